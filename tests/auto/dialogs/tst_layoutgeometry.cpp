// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
//
// What the layout editor and the sheet drawings work out without a window.
#include "columns.h"
#include "dialogs/layoutgeometry.h"
#include "dialogs/sheetdrawing.h"

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

class TestLayoutGeometry : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void fitScale_data()
    {
        // width: inches
        // height: inches
        // scale: NaN: the piece is refused
        columns<float, float, int, int, float>("width", "height", "screenWidth", "screenHeight",
                                               "scale");

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
        const auto [width, height, screenWidth, screenHeight, scale] =
            fetched<float, float, int, int, float>("width", "height", "screenWidth", "screenHeight",
                                                   "scale");

        if (std::isnan(scale)) {
            QVERIFY_THROWS_EXCEPTION(
                Error, LayoutGeometry::fitScale(width, height, screenWidth, screenHeight));
            return;
        }
        QCOMPARE(LayoutGeometry::fitScale(width, height, screenWidth, screenHeight), scale);
    }

    void moved_data()
    {
        // handle: 0: the box is dragged, pressed at 150, 150
        // mouse: relative to the press or to the handle's corner
        columns<LayoutGeometry, int, QRectF, QPointF, QRectF>("piece", "handle", "box", "mouse",
                                                              "result");

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
        const auto [piece, handle, box, mouse, result] =
            fetched<LayoutGeometry, int, QRectF, QPointF, QRectF>("piece", "handle", "box", "mouse",
                                                                  "result");

        if (handle == 0)
            QCOMPARE(QRectF(piece.dragged(box, mouse, QPointF(150, 150)), box.size()), result);
        else
            QCOMPARE(piece.resized(handle, box, mouse), result);
    }

    // A stepper's click (50 twips) moves a field by 0.03 in, as the field
    // shows it, up to its bound and down to 0; a bound beeps.
    void stepped_data()
    {
        columns<QString, int, QString, bool>("text", "scroll", "result", "clamped");
        QTest::newRow("up") << "0.5" << -50 << "0.53" << false;
        QTest::newRow("down") << "0.5" << 50 << "0.47" << false;
        QTest::newRow("up-to-the-bound-exactly") << "0.97" << -50 << "1." << false;
        QTest::newRow("past-the-bound") << "0.99" << -50 << "1." << true;
        QTest::newRow("down-to-zero-exactly") << "0.03" << 50 << "0." << false;
        QTest::newRow("below-zero") << "0.01" << 50 << "0." << true;
    }

    void stepped()
    {
        const auto [text, scroll] = fetched<QString, int>("text", "scroll");
        const LayoutGeometry::Step step = LayoutGeometry::stepped(text, scroll, 1.0f);
        QTEST(step.text, "result");
        QTEST(step.clamped, "clamped");
    }

    void completed_data()
    {
        columns<QString, QString>("text", "result");

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

        QTEST(LayoutGeometry::completed(text, 6.5f, 4.33), "result");
    }

    void layout_data()
    {
        columns<PieceSpec, int, int, QStringList>("entry", "count", "offPage", "marks");

        QTest::newRow("thirty-labels-on-letter")
            << Labels30 << 30 << 0
            << QStringList{"0.5", "1", "pitch 1", "0.1875", "2.625", "pitch 2.75"};
        QTest::newRow("fourth-column-runs-off")
            << sheet(8.5f, 11, 0.1875f, 0.5f, 2.75f, 1, 2.625f, 1, 4, 10) << 40 << 10
            << QStringList{"0.5", "1", "pitch 1", "0.1875", "2.625", "pitch 2.75"};
        QTest::newRow("eleventh-row-runs-off")
            << sheet(8.5f, 11, 0.1875f, 0.5f, 2.75f, 1, 2.625f, 1, 3, 11) << 33 << 3
            << QStringList{"0.5", "1", "pitch 1", "0.1875", "2.625", "pitch 2.75"};
        QTest::newRow("no-margins-no-margin-marks")
            << sheet(9.5f, 4.125f, 0, 0, 9.5f, 4.125f, 9.5f, 4.125f, 1, 1) << 1 << 0
            << QStringList{"4.125", "pitch 4.125", "9.5", "pitch 9.5"};
        QTest::newRow("counts-beyond-drawing-capped")
            << sheet(8.5f, 11, 0, 0, 0.05f, 0.05f, 0.05f, 0.05f, 32767, 32767) << 100 * 100 << 0
            << QStringList{"0.05", "pitch 0.05", "0.05", "pitch 0.05"};
        QTest::newRow("negative-counts-draw-no-piece")
            << sheet(8.5f, 11, 0, 0, 1, 1, 1, 1, -3, 20) << 0 << 0
            << QStringList{"1", "pitch 1", "1", "pitch 1"};
        QTest::newRow("nothing-to-draw") << PieceSpec() << 0 << 0 << QStringList();
    }

    void layout()
    {
        const auto [entry, count, offPage, marks] =
            fetched<PieceSpec, int, int, QStringList>("entry", "count", "offPage", "marks");

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
        if (count == 0) { // rows not drawn take no room from the page
            PieceSpec oneRow = entry;
            oneRow.NumDown = 1;
            QCOMPARE(d.paper(), draw(oneRow).paper());
        }

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
        // The width reads across, the height upwards along its line.
        const SheetDrawing::Mark *width = d.mark(QStringLiteral("label_wd_view"));
        const SheetDrawing::Mark *height = d.mark(QStringLiteral("label_ht_view"));
        QVERIFY(width && !width->turned && height && height->turned);
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

QTEST_GUILESS_MAIN(TestLayoutGeometry)
#include "tst_layoutgeometry.moc"
