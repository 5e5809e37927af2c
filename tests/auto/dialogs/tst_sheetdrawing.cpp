// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#include "dialogs/sheetdrawing.h"

#include <QTest>

using namespace quirra;

namespace {

// Labels measured as 7 pixels a character, 12 high.
SheetDrawing draw(const PieceSpec &entry, QSizeF area = QSizeF(300, 360))
{
    return SheetDrawing(
        entry, area, [](const QString &t) { return t.size() * 7.0; }, 12);
}

// Page W H, margins side top, pitch horizontal vertical, piece W H, across, down.
PieceSpec sheet(float pw, float ph, float ms, float mt, float px, float py, float w, float h,
                qint16 across, qint16 down)
{
    return PieceSpec{{}, {}, pw, ph, mt, ms, py, px, h, w, across, down, false};
}

const PieceSpec Labels30 = sheet(8.5f, 11, 0.1875f, 0.5f, 2.75f, 1, 2.625f, 1, 3, 10);

} // namespace

Q_DECLARE_METATYPE(PieceSpec)

class TestSheetDrawing : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void layout_data()
    {
        QTest::addColumn<PieceSpec>("entry");
        QTest::addColumn<int>("count");
        QTest::addColumn<int>("offPage");
        QTest::addColumn<QStringList>("marks");

        QTest::newRow("thirty-labels-on-letter")
            << Labels30 << 30 << 0
            << QStringList{"0.5", "1", "pitch 1", "0.1875", "2.625", "pitch 2.75"};
        QTest::newRow("fourth-column-runs-off")
            << sheet(8.5f, 11, 0.1875f, 0.5f, 2.75f, 1, 2.625f, 1, 4, 10) << 40 << 10
            << QStringList{"0.5", "1", "pitch 1", "0.1875", "2.625", "pitch 2.75"};
        QTest::newRow("no-margins-no-margin-marks")
            << sheet(9.5f, 4.125f, 0, 0, 9.5f, 4.125f, 9.5f, 4.125f, 1, 1) << 1 << 0
            << QStringList{"4.125", "pitch 4.125", "9.5", "pitch 9.5"};
        QTest::newRow("counts-beyond-drawing-capped")
            << sheet(8.5f, 11, 0, 0, 0.05f, 0.05f, 0.05f, 0.05f, 32767, 32767) << 100 * 100 << 0
            << QStringList{"0.05", "pitch 0.05", "0.05", "pitch 0.05"};
        QTest::newRow("negative-counts-draw-no-piece")
            << sheet(8.5f, 11, 0, 0, 1, 1, 1, 1, -3, 5) << 0 << 0
            << QStringList{"1", "pitch 1", "1", "pitch 1"};
        QTest::newRow("nothing-to-draw") << PieceSpec() << 0 << 0 << QStringList();
    }

    void layout()
    {
        QFETCH(PieceSpec, entry);
        QFETCH(int, count);
        QFETCH(int, offPage);
        QFETCH(QStringList, marks);

        const QSizeF area(300, 360);
        const SheetDrawing d = draw(entry, area);
        QCOMPARE(d.isEmpty(), entry.PageWidth == 0);
        QCOMPARE(d.pieces().size(), count);
        int off = 0;
        QRectF all = d.paper();
        for (const SheetDrawing::Piece &p : d.pieces()) {
            off += p.offPage ? 1 : 0;
            all |= p.rect;
        }
        QCOMPARE(off, offPage);
        QStringList texts;
        for (const SheetDrawing::Mark &m : d.marks()) {
            texts.append(m.text);
            all |= m.textRect;
        }
        QCOMPARE(texts, marks);
        if (d.isEmpty())
            return;

        // The page keeps its proportions, everything (marks too) stays in the area, and
        // the pieces stand a pitch apart from the margins.
        QVERIFY(qAbs(d.paper().width() / d.paper().height() - entry.PageWidth / entry.PageHeight) <
                1e-6);
        QVERIFY(QRectF(QPointF(0, 0), area).contains(all));
        const int across = qMin<int>(entry.NumAcross, SheetDrawing::MaxDrawnPerDirection);
        if (across >= 2 && count > across) {
            const QRectF first = d.pieces().at(0).rect;
            QCOMPARE(first.topLeft() - d.paper().topLeft(),
                     QPointF(entry.MarginSide, entry.MarginTop) * d.scale());
            QCOMPARE(d.pieces().at(1).rect.left() - first.left(), entry.PitchHorz * d.scale());
            QCOMPARE(d.pieces().at(across).rect.top() - first.top(), entry.PitchVert * d.scale());
        }
        const SheetDrawing::Mark *width = d.mark(QStringLiteral("label_wd_view"));
        QVERIFY(width);
        QCOMPARE(width->line.length(), entry.LabelWidth * d.scale());
        QVERIFY(width->line.y1() < d.paper().top());
    }

    void labelsKeepApart()
    {
        // In a small preview the margins' labels are longer than their lengths
        // and must move off the labels of the sizes beside them, not out of view:
        // the top margin's finds room above; the side margin's finds none and is
        // left out.
        const SheetDrawing d = draw(Labels30, QSizeF(200, 240));
        for (const auto &[margin, size, shown] :
             {std::tuple{"top_margin_view", "label_ht_view", true},
              std::tuple{"side_margin_view", "label_wd_view", false}}) {
            const SheetDrawing::Mark *a = d.mark(QLatin1String(margin));
            const SheetDrawing::Mark *b = d.mark(QLatin1String(size));
            QVERIFY(a && b);
            QCOMPARE(!a->textRect.isEmpty(), shown);
            QVERIFY2(!a->textRect.intersects(b->textRect), margin);
            QVERIFY2(a->textRect.left() >= 0 && a->textRect.top() >= 0, margin);
        }
    }
};

QTEST_GUILESS_MAIN(TestSheetDrawing)
#include "tst_sheetdrawing.moc"
