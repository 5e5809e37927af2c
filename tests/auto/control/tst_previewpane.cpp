// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
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

namespace {
const QStringList Paging = {"mc_first", "mc_prev", "mc_next", "mc_last"};

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

struct PagingRow
{
    int records;
    QStringList clicks;
    QString label;
    QStringList enabled;
    QString focus; // empty: neither mc_prev nor mc_next
};

struct ZoomRow
{
    int start;
    QList<int> input; // wheel turns in eighths of a degree; keys: ±1 each
    bool wheel;
    int zoom;
};

struct FitRow
{
    QString piece;
    QSize paneSize;
    bool width; // fit the width, else the whole page
    bool down;  // the fitted page scrolls down
};

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
        QTest::addColumn<PagingRow>("row");

        const QStringList back = {"mc_first", "mc_prev"}, ahead = {"mc_next", "mc_last"};
        QTest::newRow("first-display")
            << PagingRow{7, QStringList(), "Page 1 of 3", ahead, "mc_next"};
        QTest::newRow("last") << PagingRow{7, QStringList{"mc_last"}, "Page 3 of 3", back,
                                           "mc_prev"};
        QTest::newRow("back-keeps-focus-on-previous")
            << PagingRow{7, QStringList{"mc_last", "mc_prev"}, "Page 2 of 3", Paging, "mc_prev"};
        QTest::newRow("back-to-first-focus-moves-on")
            << PagingRow{7, QStringList{"mc_next", "mc_prev"}, "Page 1 of 3", ahead, "mc_next"};
        QTest::newRow("print-all-moves-focus-on") << PagingRow{
            7, QStringList{"mc_last", "mc_prev", "mc_p_all"}, "Page 2 of 3", Paging, "mc_next"};
        QTest::newRow("one-page") << PagingRow{2, QStringList(), "Page 1 of 1", QStringList(), ""};
    }

    void paging()
    {
        QFETCH(PagingRow, row);
        PreviewPane pane;
        QVERIFY(showActive(&pane));
        QSignalSpy printAll(&pane, &PreviewPane::printAllRequested);
        preview(pane, row.records);
        for (const QString &name : row.clicks)
            click(pane, name);

        QCOMPARE(pane.findChild<QLabel *>("mc_pg_lbl")->text(), row.label);
        QCOMPARE(QStringLiteral("Page %1 of").arg(pane.surface()->previewPage()),
                 row.label.left(9));
        for (const QString &name : Paging)
            QCOMPARE(pane.findChild<QToolButton *>(name)->isEnabled(), row.enabled.contains(name));
        const QString focused =
            QApplication::focusWidget() ? QApplication::focusWidget()->objectName() : QString();
        if (row.focus.isEmpty())
            QVERIFY2(focused != "mc_prev" && focused != "mc_next", qPrintable(focused));
        else
            QCOMPARE(focused, row.focus);
        QCOMPARE(printAll.count(), int(row.clicks.count("mc_p_all")));
    }

    void pageShownFromItsRecords_data()
    {
        QTest::addColumn<bool>("recordsAdded"); // after the preview was made
        QTest::addColumn<QStringList>("words"); // on the last page, printed with "Pr Pg"
        // Only the first page is kept as drawn: the others come from their
        // records in the spool when shown.
        QTest::newRow("last-page") << false << QStringList{"Name7"};
        QTest::newRow("records-added-page-says-preview-again") << true << QStringList{"Preview"};
    }

    void pageShownFromItsRecords()
    {
        QFETCH(bool, recordsAdded);
        QFETCH(QStringList, words);
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
        QTest::addColumn<QSize>("size");
        QTest::addColumn<bool>("paging");
        QTest::addColumn<int>("letterSpacing"); // percent, in the host's font

        QTest::newRow("small-300x200") << QSize(300, 200) << true << 100;
        QTest::newRow("tiny-60x40") << QSize(60, 40) << true << 100;
        QTest::newRow("wide-font-label-shrinks-paging-hidden") << QSize(600, 450) << false << 300;
    }

    void layout()
    {
        QFETCH(QSize, size);
        QFETCH(bool, paging);
        QFETCH(int, letterSpacing);
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
            QCOMPARE(child->isHidden(), !paging && Paging.contains(child->objectName()));
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
        QTest::addColumn<ZoomRow>("row");

        const int step = PreviewPane::ZoomStep;
        QTest::newRow("wheel-down-two-notches")
            << ZoomRow{30, QList<int>{-240}, true, 30 - 2 * step};
        QTest::newRow("touchpad-turns-add-up")
            << ZoomRow{30, QList<int>{90, 90, 60}, true, 30 + 2 * step};
        QTest::newRow("wheel-down-stops-at-10") << ZoomRow{15, QList<int>{-120, -120}, true, 10};
        QTest::newRow("wheel-up-keeps-the-spot") << ZoomRow{200, QList<int>{120}, true, 200 + step};
        QTest::newRow("ctrl-plus-and-equal")
            << ZoomRow{30, QList<int>{Qt::Key_Plus, Qt::Key_Equal}, false, 30 + 2 * step};
        QTest::newRow("ctrl-minus") << ZoomRow{30, QList<int>{Qt::Key_Minus}, false, 30 - step};
        QTest::newRow("ctrl-plus-stops-at-1000")
            << ZoomRow{995, QList<int>{Qt::Key_Plus, Qt::Key_Plus}, false, 1000};
    }

    void zoom()
    {
        QFETCH(ZoomRow, row);
        PreviewPane pane;
        QVERIFY(showActive(&pane));
        preview(pane, 7);
        PrintSurface *surface = pane.surface();
        surface->setZoom(row.start);
        // Over the page, two thirds of the way across and down the view.
        const QPoint pointer(surface->viewport()->width() * 2 / 3,
                             surface->viewport()->height() * 2 / 3);
        const QPointF spot = QPointF(pointer - surface->pageRect().topLeft()) / row.start;
        QSignalSpy zoomed(&pane, &PreviewPane::zoomChanged);
        const auto turnWheel = [&](int angle, Qt::KeyboardModifiers modifiers) {
            QWheelEvent event(pointer, surface->viewport()->mapToGlobal(pointer), QPoint(),
                              QPoint(0, angle), Qt::NoButton, modifiers, Qt::NoScrollPhase, false);
            QApplication::sendEvent(surface->viewport(), &event);
        };

        for (const int turn : row.input) {
            if (row.wheel)
                turnWheel(turn, Qt::ControlModifier);
            else // to the button with the focus, as a person's keys go
                QTest::keyClick(QApplication::focusWidget(), Qt::Key(turn), Qt::ControlModifier);
        }
        QCOMPARE(surface->zoom(), row.zoom);
        QCOMPARE(zoomed.isEmpty() ? 0 : zoomed.last().at(0).toInt(), row.zoom);
        if (row.start >=
            200) { // the page scrolls: the spot under the pointer stays, within a pixel
            const QPointF moved =
                (QPointF(pointer - surface->pageRect().topLeft()) / row.zoom - spot) * row.zoom;
            QVERIFY2(moved.manhattanLength() <= 2,
                     qPrintable(QString("%1 %2").arg(moved.x()).arg(moved.y())));
        }
        // Without Ctrl the row.wheel scrolls the page and leaves the row.zoom.
        turnWheel(-120, Qt::NoModifier);
        QCOMPARE(surface->zoom(), row.zoom);
    }

    void fit_data()
    {
        QTest::addColumn<FitRow>("row");

        const QString sheet = QStringLiteral("5160 - Address Labels");
        const QString envelope = QStringLiteral("Size 10 - Envelope");
        QTest::newRow("sheet-page") << FitRow{sheet, QSize(600, 450), false, false};
        QTest::newRow("sheet-width-scrolls-down") << FitRow{sheet, QSize(600, 450), true, true};
        QTest::newRow("envelope-page-tall-pane") << FitRow{envelope, QSize(400, 700), false, false};
        QTest::newRow("envelope-width") << FitRow{envelope, QSize(900, 500), true, false};
    }

    void fit()
    {
        QFETCH(FitRow, row);
        PreviewPane pane;
        pane.resize(row.paneSize);
        QVERIFY(showActive(&pane));
        preview(pane, 1, row.piece);
        PrintSurface *surface = pane.surface();
        const int fitted = PreviewPane::fittingZoom(*surface, row.width ? PreviewPane::Fit::Width
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
        QCOMPARE(scrollsAt(fitted), qMakePair(false, row.down));
        const auto larger = scrollsAt(fitted + 1);
        QVERIFY(larger.first || (!row.width && larger.second));
    }
};

QTEST_MAIN(TestPreviewPane)
#include "tst_previewpane.moc"
