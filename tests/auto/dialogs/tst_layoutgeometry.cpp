// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#include "dialogs/layoutgeometry.h"

#include "model/error.h"

#include <QTest>

#include <limits>

using namespace quirra;

Q_DECLARE_METATYPE(LayoutGeometry)

namespace {
// A No. 10 envelope at the display scale 0.5, in display twips, with its
// delivery address where the default layout puts it.
const LayoutGeometry Envelope(6840, 2970, 0.5f);
const QRectF Address(3120, 1260, 2160, 1080);
} // namespace

class TestLayoutGeometry : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void fitScale_data()
    {
        QTest::addColumn<float>("width");  // inches
        QTest::addColumn<float>("height"); // inches
        QTest::addColumn<int>("screenWidth");
        QTest::addColumn<int>("screenHeight");
        QTest::addColumn<float>("scale"); // NaN: the piece is refused

        const float refused = std::numeric_limits<float>::quiet_NaN();
        QTest::newRow("fits-as-it-is") << 9.5f << 4.125f << 19200 << 15360 << 1.0f;
        // 20160 twips on 15360: (4800 + 360) / 20160 off, 0.744 shown as 0.74.
        QTest::newRow("fourteen-inches-on-a-narrow-screen")
            << 14.0f << 4.0f << 15360 << 15360 << 0.74f;
        QTest::newRow("width-equal-to-screen-is-no-excess")
            << 10.0f << 4.0f << 14400 << 15360 << 1.0f;
        // 11520 + 2880 on 12000: 2400 / 14400 off.
        QTest::newRow("too-high-with-the-panel") << 5.0f << 8.0f << 19200 << 12000 << 0.83f;
        QTest::newRow("height-losses-follow-width-losses")
            << 14.0f << 8.0f << 15360 << 12000 << 0.58f;
        // 1 - 0.596 - 0.716 < 0: fitted to both reserves instead, 6120 / 28800.
        QTest::newRow("far-too-large-is-fitted") << 20.0f << 20.0f << 12000 << 9000 << 0.21f;
        QTest::newRow("wider-than-16-bit-twips") << 23.0f << 4.0f << 19200 << 15360 << refused;
        QTest::newRow("higher-than-16-bit-with-panel")
            << 8.5f << 21.0f << 19200 << 15360 << refused;
    }

    void fitScale()
    {
        QFETCH(float, width);
        QFETCH(float, height);
        QFETCH(int, screenWidth);
        QFETCH(int, screenHeight);
        QFETCH(float, scale);

        if (std::isnan(scale)) {
            QVERIFY_THROWS_EXCEPTION(
                Error, LayoutGeometry::fitScale(width, height, screenWidth, screenHeight));
            return;
        }
        QCOMPARE(LayoutGeometry::fitScale(width, height, screenWidth, screenHeight), scale);
    }

    void moved_data()
    {
        QTest::addColumn<LayoutGeometry>("piece");
        QTest::addColumn<int>("handle"); // 0: the box is dragged, pressed at 150, 150
        QTest::addColumn<QRectF>("box");
        QTest::addColumn<QPointF>("mouse"); // relative to the press or to the handle's corner
        QTest::addColumn<QRectF>("result");

        QTest::newRow("halves-round-to-even")
            << Envelope << 0 << Address << QPointF(150.5, 151.5) << QRectF(3120, 1262, 2160, 1080);
        QTest::newRow("past-bottom-keeps-50-inside")
            << Envelope << 0 << Address << QPointF(150, 900) << QRectF(3120, 1840, 2160, 1080);
        QTest::newRow("exactly-at-keep-out-stays")
            << Envelope << 0 << Address << QPointF(150 + 1510, 150 - 1210)
            << QRectF(4630, 50, 2160, 1080);
        // A 1795-wide item on a 1890-wide label: the far edge comes last and wins.
        QTest::newRow("too-big-gives-up-the-near-edge")
            << LayoutGeometry(1890, 720) << 0 << QRectF(63, 24, 1795, 684) << QPointF(0, 0)
            << QRectF(45, -14, 1795, 684);
        QTest::newRow("box-rounded-first") << Envelope << 5 << QRectF(3119.6, 1260.4, 2160.5, 1080)
                                           << QPointF(15, 0) << QRectF(3120, 1260, 2175, 1080);
        // Left and top may touch the keep-out line; width and height must stay above 50.
        QTest::newRow("left-reaches-keep-out")
            << Envelope << 4 << Address << QPointF(-3070, 0) << QRectF(50, 1260, 5230, 1080);
        QTest::newRow("left-past-keep-out-stays")
            << Envelope << 4 << Address << QPointF(-3071, 0) << Address;
        QTest::newRow("left-leaves-just-over-50")
            << Envelope << 4 << Address << QPointF(2109, 0) << QRectF(5229, 1260, 51, 1080);
        QTest::newRow("left-leaving-50-stays")
            << Envelope << 4 << Address << QPointF(2110, 0) << Address;
        QTest::newRow("top-reaches-keep-out")
            << Envelope << 2 << Address << QPointF(0, -1210) << QRectF(3120, 50, 2160, 2290);
        // Right and bottom must stay short of the keep-out line.
        QTest::newRow("right-just-inside")
            << Envelope << 8 << Address << QPointF(1509, 0) << QRectF(3120, 1260, 3669, 1080);
        QTest::newRow("right-at-keep-out-stays")
            << Envelope << 8 << Address << QPointF(1510, 0) << Address;
        QTest::newRow("bottom-at-keep-out-stays")
            << Envelope << 6 << Address << QPointF(0, 580) << Address;
        QTest::newRow("bottom-shrinks-to-51")
            << Envelope << 7 << Address << QPointF(0, -1029) << QRectF(3120, 1260, 2160, 51);
        QTest::newRow("bottom-shrinking-to-50-stays")
            << Envelope << 7 << Address << QPointF(0, -1030) << Address;
        QTest::newRow("one-direction-stops-other-goes")
            << Envelope << 3 << Address << QPointF(1510, -100) << QRectF(3120, 1160, 2160, 1180);
    }

    void moved()
    {
        QFETCH(LayoutGeometry, piece);
        QFETCH(int, handle);
        QFETCH(QRectF, box);
        QFETCH(QPointF, mouse);
        QFETCH(QRectF, result);

        if (handle == 0)
            QCOMPARE(QRectF(piece.dragged(box, mouse, QPointF(150, 150)), box.size()), result);
        else
            QCOMPARE(piece.resized(handle, box, mouse), result);
    }

    void completed_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("result");

        for (const auto &[tag, text, result] :
             {std::tuple{"extra-decimals-rounded", "1.236", "1.24"},
              {"above-bound", "9", "6.5"},
              {"empty-gets-current", "", "4.33"},
              {"point-alone-gets-current", ".", "4.33"}})
            QTest::newRow(tag) << QString::fromLatin1(text) << QString::fromLatin1(result);
    }

    void completed()
    {
        QFETCH(QString, text);
        QFETCH(QString, result);

        QCOMPARE(LayoutGeometry::completed(text, 6.5f, 4.33), result);
    }
};

QTEST_GUILESS_MAIN(TestLayoutGeometry)
#include "tst_layoutgeometry.moc"
