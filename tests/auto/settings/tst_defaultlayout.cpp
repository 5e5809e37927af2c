// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#include "settings/defaultlayout.h"

#include "model/piecemodel.h"

#include <QTest>

#include <cmath>

using namespace quirra;

namespace {
void layOut(PieceModel &m, float h, float w)
{
    DefaultLayout(h, w, m.item(ItemId::Address), m.item(ItemId::Return), m.item(ItemId::Stamp),
                  m.item(ItemId::Message1), m.item(ItemId::Message2));
}
} // namespace

class TestDefaultLayout : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void boxes_data()
    {
        QTest::addColumn<float>("h");
        QTest::addColumn<float>("w");
        QTest::addColumn<int>("item");
        QTest::addColumn<QList<float>>("box"); // top, left, height, width (inches)
        QTest::addColumn<bool>("visible");
        using B = QList<float>;
        const int a = int(ItemId::Address), r = int(ItemId::Return), s = int(ItemId::Stamp),
                  m1 = int(ItemId::Message1), m2 = int(ItemId::Message2);

        QTest::newRow("no10-address") << 4.125f << 9.5f << a << B{1.75f, 4.3333f, 1.5f, 3} << true;
        QTest::newRow("no10-return") << 4.125f << 9.5f << r << B{0.05f, 0.05f, 1.1f, 2} << true;
        QTest::newRow("no10-stamp") << 4.125f << 9.5f << s << B{0.05f, 8.63f, 0.91f, 0.82f} << true;
        QTest::newRow("no10-message1-capped")
            << 4.125f << 9.5f << m1 << B{2.525f, 0.1f, 1.5f, 3} << true;
        QTest::newRow("no10-message2")
            << 4.125f << 9.5f << m2 << B{3.525f, 7.9f, 0.5f, 1.5f} << true;
        QTest::newRow("label-address")
            << 1.f << 2.625f << a << B{0.0333f, 0.0875f, 0.95f, 2.4938f} << true;
        QTest::newRow("label-return") << 1.f << 2.625f << r << B{0.05f, 0.05f, 1.1f, 2} << false;
        QTest::newRow("label-stamp")
            << 1.f << 2.625f << s << B{0.05f, 1.755f, 0.91f, 0.82f} << false;
        QTest::newRow("label-message1-floor")
            << 1.f << 2.625f << m1 << B{-0.6f, 0.1f, 1.5f, 2} << false;
        QTest::newRow("label-message2")
            << 1.f << 2.625f << m2 << B{0.4f, 1.025f, 0.5f, 1.5f} << false;
        // Either side of h = 3.3, where the address bottom meets Message 2's top.
        QTest::newRow("message2-just-clear")
            << 3.31f << 4.f << m2 << B{2.71f, 2.4f, 0.5f, 1.5f} << true;
        QTest::newRow("message2-just-over")
            << 3.29f << 4.f << m2 << B{2.69f, 2.4f, 0.5f, 1.5f} << false;
        // Either side of where the stamp meets the address's right edge (w = 5.61)
        // and its top (h = 2.94).
        QTest::newRow("stamp-just-clear-right")
            << 2.f << 5.62f << s << B{0.05f, 4.75f, 0.91f, 0.82f} << true;
        QTest::newRow("stamp-just-over-right")
            << 2.f << 5.6f << s << B{0.05f, 4.73f, 0.91f, 0.82f} << false;
        QTest::newRow("stamp-just-clear-above")
            << 2.95f << 4.f << s << B{0.05f, 3.13f, 0.91f, 0.82f} << true;
        QTest::newRow("stamp-just-over-above")
            << 2.93f << 4.f << s << B{0.05f, 3.13f, 0.91f, 0.82f} << false;
        // The return box's right edge on the address's left one: touching is overlapping.
        QTest::newRow("return-touching-the-address")
            << 2.f << 6.075f << r << B{0.05f, 0.05f, 1.1f, 2} << false;
        QTest::newRow("return-clear-on-the-left")
            << 2.f << 8.f << r << B{0.05f, 0.05f, 1.1f, 2} << true;
        QTest::newRow("message1-between-bounds")
            << 4.f << 6.5f << m1 << B{2.4f, 0.1f, 1.5f, 2.1f} << true;
    }

    void boxes()
    {
        QFETCH(float, h);
        QFETCH(float, w);
        QFETCH(int, item);
        QFETCH(QList<float>, box);
        QFETCH(bool, visible);
        PieceModel m;
        for (Item &it : m.items)
            it.Visible = !visible; // the layout must set it either way
        layOut(m, h, w);
        const Item &got = m.item(ItemId(item));
        const QList<float> actual = {got.Top, got.Left, got.Height, got.Width};
        for (int i = 0; i < 4; ++i) {
            QVERIFY2(std::fabs(actual[i] - box[i]) < 5e-4,
                     qPrintable(QStringLiteral("value %1 is %2").arg(i).arg(actual[i])));
        }
        QCOMPARE(got.Visible, visible);
    }

    void texts_data()
    {
        QTest::addColumn<int>("item");
        QTest::addColumn<QString>("before");
        QTest::addColumn<QString>("after");
        QTest::newRow("blank-address-gets-default") << int(ItemId::Address) << "   "
                                                    << "Delivery Address";
        QTest::newRow("user-text-kept") << int(ItemId::Address) << "ATTN"
                                        << "ATTN";
        QTest::newRow("padded-text-kept-as-is") << int(ItemId::Return) << " Me "
                                                << " Me ";
        QTest::newRow("stamp-three-blanks-round-paid")
            << int(ItemId::Stamp) << ""
            << "Bulk Rate U.S. Postage   PAID   Permit No. 00001";
    }

    void texts()
    {
        QFETCH(int, item);
        QFETCH(QString, before);
        QFETCH(QString, after);
        PieceModel m;
        m.item(ItemId(item)).Text = before;
        layOut(m, 4.125f, 9.5f);
        QCOMPARE(m.item(ItemId(item)).Text, after);
    }

    void otherFieldsAreReset()
    {
        PieceModel m;
        for (Item &it : m.items) {
            it = Item{5,         5,       0,        0,
                      0,         0,       true,     false,
                      QString(), haRight, vaBottom, ItemFont{QStringLiteral("Times"), 14, true}};
        }
        layOut(m, 4.125f, 9.5f);
        for (ItemId id : StorageOrder) {
            const Item &it = m.item(id);
            const bool centred = id == ItemId::Return || id == ItemId::Stamp;
            QCOMPARE(it.Border, qint16(id == ItemId::Stamp ? 1 : 0));
            QCOMPARE(it.HorzAlign, centred ? haCenter : haLeft);
            QCOMPARE(it.VertAlign, vaTop);
            QCOMPARE(it.LineSpacing, qint16(80));
            QVERIFY(it.Wrap);
            // Only the typeface is the layout's: size and style stay.
            QCOMPARE(it.Font, (ItemFont{QStringLiteral("Arial"), 14, true}));
        }
    }
};

QTEST_GUILESS_MAIN(TestDefaultLayout)
#include "tst_defaultlayout.moc"
