// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#include "columns.h"
#include "pane/panelayout.h"
#include "pane/previewpane.h"

#include "modaldriver.h"
#include "nowindowleft.h"
#include "pdfprobe.h"
#include "spoolfixture.h"

#include "catalogue/pieceloader.h"
#include "printing/printsurface.h"
#include "render/previewrun.h"

#include <QApplication>
#include <QFile>
#include <QLabel>
#include <QPrinter>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QToolButton>

using namespace quirra;
using Part = PaneLayout::Part;

namespace {
const QStringList PagingButtons = {"mc_first", "mc_prev", "mc_next", "mc_last"};

// A real preview run of records pieces; labels go three to a page.
void preview(PreviewPane &pane, int records,
             const QString &piece = QStringLiteral("5160 - Address Labels"))
{
    PieceModel &model = PieceModel::shared();
    QVERIFY(LoadPieceByName(piece, model));
    if (model.piece.PieceNumAcross * model.piece.PieceNumDown > 1) {
        model.piece.PieceNumAcross = 3;
        model.piece.PieceNumDown = 1;
    }
    fixture::newSpool();
    fixture::feed(fixture::numbered(records));
    pane.surface()->setPreview(true);
    PreviewRun(model, SharedSpool::instance().spoolPath()).run(*pane.surface());
    pane.Navigate(0);
}

void click(const PreviewPane &pane, const QString &name)
{
    auto *button = pane.findChild<QToolButton *>(name);
    QVERIFY2(button && button->isEnabled(), qPrintable(name));
    QTest::mouseClick(button, Qt::LeftButton);
}
} // namespace

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

class TestPreviewPane : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { PieceModel::resetShared(); }
    void cleanup()
    {
        verifyNoWindowLeft();
        QFile::remove(SharedSpool::instance().spoolPath());
    }

    void paging_data()
    {
        // focus: empty: neither mc_prev nor mc_next
        columns<int, QStringList, QString, QStringList, QString>("records", "clicks", "label",
                                                                 "enabled", "focus");

        const QStringList back = {"mc_first", "mc_prev"}, ahead = {"mc_next", "mc_last"};
        QTest::newRow("first-display") << 7 << QStringList() << "Page 1 of 3" << ahead << "mc_next";
        QTest::newRow("last") << 7 << QStringList{"mc_last"} << "Page 3 of 3" << back << "mc_prev";
        QTest::newRow("back-keeps-focus-on-previous")
            << 7 << QStringList{"mc_last", "mc_prev"} << "Page 2 of 3" << PagingButtons
            << "mc_prev";
        QTest::newRow("back-to-first-focus-moves-on")
            << 7 << QStringList{"mc_next", "mc_prev"} << "Page 1 of 3" << ahead << "mc_next";
        QTest::newRow("first-from-last")
            << 7 << QStringList{"mc_last", "mc_first"} << "Page 1 of 3" << ahead << "mc_next";
        QTest::newRow("print-all-moves-focus-on")
            << 7 << QStringList{"mc_last", "mc_prev", "mc_p_all"} << "Page 2 of 3" << PagingButtons
            << "mc_next";
        QTest::newRow("one-page") << 2 << QStringList() << "Page 1 of 1" << QStringList() << "";
    }

    void paging()
    {
        const auto [records, clicks, label, enabled, focus] =
            fetched<int, QStringList, QString, QStringList, QString>("records", "clicks", "label",
                                                                     "enabled", "focus");
        PreviewPane pane;
        QVERIFY(showActive(&pane));
        QSignalSpy printAll(&pane, &PreviewPane::printAllRequested);
        preview(pane, records);
        for (const QString &name : clicks)
            click(pane, name);

        QCOMPARE(pane.findChild<QLabel *>("mc_pg_lbl")->text(), label);
        QCOMPARE(QStringLiteral("Page %1 of").arg(pane.surface()->previewPage()), label.left(9));
        for (const QString &name : PagingButtons)
            QCOMPARE(pane.findChild<QToolButton *>(name)->isEnabled(), enabled.contains(name));
        const QString focused =
            QApplication::focusWidget() ? QApplication::focusWidget()->objectName() : QString();
        if (focus.isEmpty())
            QVERIFY2(focused != "mc_prev" && focused != "mc_next", qPrintable(focused));
        else
            QCOMPARE(focused, focus);
        QCOMPARE(printAll.count(), int(clicks.count("mc_p_all")));
    }

    void pageShownFromItsRecords_data()
    {
        // recordsAdded: after the preview was made
        // words: on the last page, printed with "Pr Pg"
        columns<bool, QStringList>("recordsAdded", "words");
        // Only the first page is kept as drawn: the others come from their
        // records in the spool when shown.
        QTest::newRow("last-page") << false << QStringList{"Name7"};
        QTest::newRow("records-added-page-says-preview-again") << true << QStringList{"Preview"};
    }

    void pageShownFromItsRecords()
    {
        const auto [recordsAdded, words] = fetched<bool, QStringList>("recordsAdded", "words");
        QTemporaryDir dir;
        const QString pdf = dir.filePath(QStringLiteral("page.pdf"));
        PreviewPane pane;
        pane.show();
        preview(pane, 7);
        if (recordsAdded)
            fixture::feed(fixture::numbered(3));
        pane.surface()->printer()->setOutputFileName(pdf);
        click(pane, "mc_last");
        click(pane, "mc_p_pg");

        QStringList printed;
        for (const pdfprobe::Word &w : pdfprobe::words(pdf))
            if (w.text.startsWith("Name") || w.text == "Preview")
                printed.append(w.text);
        QCOMPARE(printed, words);
    }

    void layout_data()
    {
        // letterSpacing: percent, in the host's font
        columns<QSize, bool, int>("size", "paging", "letterSpacing");

        QTest::newRow("small-300x200") << QSize(300, 200) << true << 100;
        QTest::newRow("tiny-60x40") << QSize(60, 40) << true << 100;
        QTest::newRow("wide-font-label-shrinks-paging-hidden") << QSize(600, 450) << false << 300;
    }

    void layout()
    {
        const auto [size, paging, letterSpacing] =
            fetched<QSize, bool, int>("size", "paging", "letterSpacing");
        PreviewPane pane;
        QFont hostFont = pane.font();
        hostFont.setLetterSpacing(QFont::PercentageSpacing, letterSpacing);
        pane.setFont(hostFont);
        pane.resize(size);
        pane.show();
        preview(pane, 7);
        PaneSettings s;
        s.ButtonMaxHeight = 400;
        s.ButtonPgAdvanceVisible = paging;
        pane.setSettings(s); // at once, with no resize

        const PaneLayout twips = pane.paneLayout();
        QList<QWidget *> shown;
        for (QWidget *child : pane.findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly)) {
            QCOMPARE(child->isHidden(), !paging && PagingButtons.contains(child->objectName()));
            if (child->isHidden())
                continue;
            if (child != pane.surface())
                QCOMPARE(child->height(),
                         PaneLayout::pixelsFromTwips(twips.buttonSize(), pane.logicalDpiY()));
            QVERIFY2(pane.rect().contains(child->geometry()), qPrintable(child->objectName()));
            for (const QWidget *other : shown)
                QVERIFY(!child->geometry().intersects(other->geometry()));
            shown.append(child);
        }
        const auto *label = pane.findChild<QLabel *>("mc_pg_lbl");
        QVERIFY(label->fontMetrics().horizontalAdvance(label->text()) <= label->width());
        if (!paging)
            QCOMPARE(label->x(),
                     PaneLayout::pixelsFromTwips(twips.boarderInside(), pane.logicalDpiX()));
    }

    void zoom_data()
    {
        // input: wheel turns in eighths of a degree; keys: ±1 each
        columns<int, QList<int>, bool, int>("start", "input", "wheel", "zoom");

        const int step = PreviewPane::ZoomStep;
        QTest::newRow("wheel-down-two-notches") << 30 << QList<int>{-240} << true << 30 - 2 * step;
        QTest::newRow("touchpad-turns-add-up")
            << 30 << QList<int>{90, 90, 60} << true << 30 + 2 * step;
        QTest::newRow("wheel-down-stops-at-10") << 15 << QList<int>{-120, -120} << true << 10;
        QTest::newRow("wheel-up-keeps-the-spot") << 200 << QList<int>{120} << true << 200 + step;
        QTest::newRow("ctrl-plus-and-equal")
            << 30 << QList<int>{Qt::Key_Plus, Qt::Key_Equal} << false << 30 + 2 * step;
        QTest::newRow("ctrl-minus") << 30 << QList<int>{Qt::Key_Minus} << false << 30 - step;
        QTest::newRow("ctrl-plus-stops-at-1000")
            << 995 << QList<int>{Qt::Key_Plus, Qt::Key_Plus} << false << 1000;
    }

    void zoom()
    {
        QFETCH(int, start);
        QFETCH(QList<int>, input);
        QFETCH(bool, wheel);
        QFETCH(int, zoom);
        PreviewPane pane;
        QVERIFY(showActive(&pane));
        preview(pane, 7);
        PrintSurface *surface = pane.surface();
        surface->setZoom(start);
        // Over the page, two thirds of the way across and down the view.
        const QPoint pointer(surface->viewport()->width() * 2 / 3,
                             surface->viewport()->height() * 2 / 3);
        const QPointF spot = QPointF(pointer - surface->pageRect().topLeft()) / start;
        QSignalSpy zoomed(&pane, &PreviewPane::zoomChanged);
        const auto turnWheel = [&](int angle, Qt::KeyboardModifiers modifiers) {
            QWheelEvent event(pointer, surface->viewport()->mapToGlobal(pointer), QPoint(),
                              QPoint(0, angle), Qt::NoButton, modifiers, Qt::NoScrollPhase, false);
            QApplication::sendEvent(surface->viewport(), &event);
        };

        for (const int turn : input) {
            if (wheel)
                turnWheel(turn, Qt::ControlModifier);
            else // to the button with the focus, as a person's keys go
                QTest::keyClick(QApplication::focusWidget(), Qt::Key(turn), Qt::ControlModifier);
        }
        QCOMPARE(surface->zoom(), zoom);
        QCOMPARE(zoomed.isEmpty() ? 0 : zoomed.last().at(0).toInt(), zoom);
        if (start >= 200) { // the page scrolls: the spot under the pointer stays, within a pixel
            const QPointF moved =
                (QPointF(pointer - surface->pageRect().topLeft()) / zoom - spot) * zoom;
            QVERIFY2(moved.manhattanLength() <= 2,
                     qPrintable(QString("%1 %2").arg(moved.x()).arg(moved.y())));
        }
        // Without Ctrl the wheel scrolls the page and leaves the zoom.
        turnWheel(-120, Qt::NoModifier);
        QCOMPARE(surface->zoom(), zoom);
    }

    void fit_data()
    {
        // width: fit the width, else the whole page
        // down: the fitted page scrolls down
        columns<QString, QSize, bool, bool>("piece", "paneSize", "width", "down");

        const QString sheet = QStringLiteral("5160 - Address Labels");
        const QString envelope = QStringLiteral("Size 10 - Envelope");
        QTest::newRow("sheet-page") << sheet << QSize(600, 450) << false << false;
        QTest::newRow("sheet-width-scrolls-down") << sheet << QSize(600, 450) << true << true;
        QTest::newRow("envelope-page-tall-pane") << envelope << QSize(400, 700) << false << false;
        QTest::newRow("envelope-width") << envelope << QSize(900, 500) << true << false;
    }

    void fit()
    {
        QFETCH(QString, piece);
        QFETCH(QSize, paneSize);
        QFETCH(bool, width);
        QFETCH(bool, down);
        PreviewPane pane;
        pane.resize(paneSize);
        QVERIFY(showActive(&pane));
        preview(pane, 1, piece);
        PrintSurface *surface = pane.surface();
        const int fitted = PreviewPane::fittingZoom(*surface, width ? PreviewPane::Fit::Width
                                                                    : PreviewPane::Fit::Page);
        // The scroll bars come and go after the zoom, as events.
        const auto scrollsAt = [surface](int zoom) {
            surface->setZoom(zoom);
            QCoreApplication::processEvents();
            QCoreApplication::processEvents();
            return qMakePair(surface->horizontalScrollBar()->maximum() > 0,
                             surface->verticalScrollBar()->maximum() > 0);
        };

        // Fitted, nothing scrolls across; a percent more and the page does not fit.
        QCOMPARE(scrollsAt(fitted), qMakePair(false, down));
        const auto larger = scrollsAt(fitted + 1);
        QVERIFY(larger.first || (!width && larger.second));
    }

    void arithmetic_data()
    {
        columns<QSize, PaneSettings, int, int, int>("pane", "given", "inside", "top", "size");

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
        QTest::newRow("zero-fraction-gives-the-row-all")
            << shortPane << settings(60, 40, None, 240, 0.0f) << 60 << 40 << 240;
        QTest::newRow("whole-fraction-leaves-the-row-none")
            << shortPane << settings(60, 40, None, 240, 1.0f) << 60 << 40 << 1;
        // 270 twips of spacing and 15 button widths in 3000 twips.
        QTest::newRow("narrow-pane-shrinks") << narrow << settings(60, 40) << 60 << 40 << 182;
        QTest::newRow("hidden-paging-takes-no-room")
            << narrow << settings(60, 40, Paging) << 60 << 40 << 240;
        QTest::newRow("very-narrow-floor-of-one")
            << QSize(200, 6750) << settings(60, 40) << 40 << 40 << 1;
    }

    void arithmetic()
    {
        const auto [pane, given] = fetched<QSize, PaneSettings>("pane", "given");
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
        columns<QSize, PaneSettings>("pane", "given");

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
        const auto [pane, given] = fetched<QSize, PaneSettings>("pane", "given");
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

QTEST_MAIN(TestPreviewPane)
#include "tst_previewpane.moc"
