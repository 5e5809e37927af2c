// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#include "pane/panelayout.h"

#include <QTest>

using namespace quirra;
using Part = PaneLayout::Part;
Q_DECLARE_METATYPE(quirra::PaneSettings)

namespace {
enum Hide { None = 0, Paging = 1, Label = 2, PrintPage = 4, PrintAll = 8 };

PaneSettings settings(int inside, int top, int hide = None, int maxHeight = 240,
                      float fraction = 0.85f)
{
    PaneSettings s;
    s.BoarderInside = short(inside);
    s.BoarderButtonTop = short(top);
    s.ButtonMaxHeight = short(maxHeight);
    s.paneFraction = fraction;
    s.ButtonPgAdvanceVisible = !(hide & Paging);
    s.TextPgNumberVisible = !(hide & Label);
    s.ButtonPrintPgVisible = !(hide & PrintPage);
    s.ButtonPrintAllVisible = !(hide & PrintAll);
    return s;
}
} // namespace

class TestPaneLayout : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void arithmetic_data()
    {
        QTest::addColumn<QSize>("pane");
        QTest::addColumn<PaneSettings>("given");
        QTest::addColumn<int>("inside");
        QTest::addColumn<int>("top");
        QTest::addColumn<int>("size");

        const QSize normal(9000, 6750), shortPane(9000, 1500), narrow(3000, 6750);
        QTest::newRow("defaults-capped-at-240") << normal << settings(60, 40) << 60 << 40 << 240;
        QTest::newRow("inside-a-fifth-of-height")
            << QSize(9000, 1000) << settings(400, 0) << 200 << 0 << 90;
        QTest::newRow("top-a-tenth-of-height")
            << QSize(9000, 2000) << settings(0, 300) << 0 << 200 << 240;
        QTest::newRow("beyond-setter-range-clamped")
            << QSize(90000, 90000) << settings(999, 999, None, 999) << 400 << 300 << 400;
        QTest::newRow("negative-values-read-zero")
            << normal << settings(-5, -5, None, 10) << 0 << 0 << 50;
        QTest::newRow("negative-pane-reads-empty")
            << QSize(-50, -50) << settings(60, 40) << 0 << 0 << 1;
        // (1500 - 2 x 60 - 40) x 0.15
        QTest::newRow("short-pane-takes-its-share")
            << shortPane << settings(60, 40) << 60 << 40 << 201;
        QTest::newRow("nan-fraction-reads-default")
            << shortPane << settings(60, 40, None, 240, qQNaN()) << 60 << 40 << 201;
        // 270 twips of spacing and 15 button widths in 3000 twips.
        QTest::newRow("narrow-pane-shrinks") << narrow << settings(60, 40) << 60 << 40 << 182;
        QTest::newRow("hidden-paging-takes-no-room")
            << narrow << settings(60, 40, Paging) << 60 << 40 << 240;
        QTest::newRow("very-narrow-floor-of-one")
            << QSize(200, 6750) << settings(60, 40) << 40 << 40 << 1;
    }

    void arithmetic()
    {
        QFETCH(QSize, pane);
        QFETCH(PaneSettings, given);
        const PaneLayout l(pane, given);
        QTEST(l.boarderInside(), "inside");
        QTEST(l.boarderButtonTop(), "top");
        QTEST(l.buttonSize(), "size");
        // Shrinking stops at the first size that fits; a pane wide enough for
        // anything shows the unshrunk size.
        const int unshrunk = PaneLayout(QSize(1000000, pane.height()), given).buttonSize();
        QVERIFY(l.buttonSize() == 1 || l.rowWidth(l.buttonSize()) <= pane.width());
        QVERIFY(l.buttonSize() == unshrunk || l.rowWidth(l.buttonSize() + 1) > pane.width());
    }

    void partsInsideAndApart_data()
    {
        QTest::addColumn<QSize>("pane");
        QTest::addColumn<PaneSettings>("given");

        QTest::newRow("small-300x200px") << QSize(4500, 3000) << settings(60, 40);
        QTest::newRow("large-1200x900px") << QSize(18000, 13500) << settings(60, 40, None, 400);
        QTest::newRow("tiny-40x30px") << QSize(600, 450) << settings(60, 40);
        QTest::newRow("strip-2px-high") << QSize(9000, 30) << settings(60, 40);
        QTest::newRow("strip-squeezes-spacing") << QSize(100, 9000) << settings(400, 300);
        QTest::newRow("just-room-for-1-twip-parts") << QSize(16, 16) << settings(60, 40);
        QTest::newRow("paging-hidden-label-closes-up")
            << QSize(9000, 6750) << settings(60, 40, Paging);
        QTest::newRow("label-and-print-page-hidden")
            << QSize(9000, 6750) << settings(60, 40, Label | PrintPage);
        QTest::newRow("no-row-page-fills-pane")
            << QSize(9000, 6750) << settings(60, 40, Paging | Label | PrintPage | PrintAll);
    }

    void partsInsideAndApart()
    {
        QFETCH(QSize, pane);
        QFETCH(PaneSettings, given);
        const PaneLayout l(pane, given);
        const int size = l.buttonSize(), b = l.boarderInside();
        QList<QRect> shown;
        for (int p = 0; p < PaneLayout::PartCount; ++p) {
            const QRect r = l.rect(Part(p));
            QCOMPARE(r.isEmpty(), !l.isVisible(Part(p)));
            if (r.isEmpty())
                continue;
            QVERIFY2(QRect(QPoint(), pane).contains(r), qPrintable(QString::number(p)));
            QCOMPARE(r.size(), QSize(PaneLayout::partWidth(Part(p), size), size));
            QVERIFY2(shown.isEmpty() || r.x() >= shown.last().x() + shown.last().width(),
                     "in order");
            // Neighbours in twips stay neighbours in pixels, at any resolution.
            if (p > PaneLayout::First && p <= PaneLayout::Last) {
                const QRect left = PaneLayout::toPixels(shown.last(), 97, 97);
                QCOMPARE(left.x() + left.width(), PaneLayout::toPixels(r, 97, 97).x());
            }
            shown.append(r);
        }
        if (shown.isEmpty()) {
            QCOMPARE(l.surfaceRect(), QRect(b, b, pane.width() - 2 * b, pane.height() - 2 * b));
            return;
        }
        QVERIFY(!l.surfaceRect().intersects(shown.first()));
        // With room to spare the row sits on the bottom border below the page,
        // and the left group and the print buttons reach the side borders.
        if (l.rowWidth(size) > pane.width() || pane.height() < 2 * b + size)
            return;
        QCOMPARE(shown.first().y() + size, pane.height() - b);
        QCOMPARE(l.surfaceRect().bottom() + 1 + l.boarderButtonTop(), shown.first().y());
        if (l.isVisible(PaneLayout::First) || l.isVisible(PaneLayout::PageLabel))
            QCOMPARE(shown.first().x(), b);
        if (l.isVisible(PaneLayout::PrintAll))
            QCOMPARE(shown.last().x() + shown.last().width(), pane.width() - b);
    }
};

QTEST_GUILESS_MAIN(TestPaneLayout)
#include "tst_panelayout.moc"
