// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#include "pane/previewpane.h"

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
#include <QSignalSpy>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>
#include <QToolButton>

using namespace quirra;

namespace {
const QStringList Paging = {"mc_first", "mc_prev", "mc_next", "mc_last"};
using PageRange = std::pair<int, int>;

// A real preview run of records address labels, three to a page.
void preview(PreviewPane &pane, int records, short startSlot = 1, PageRange pages = {0, 0})
{
    PieceModel &model = PieceModel::shared();
    QVERIFY(LoadPieceByName(QStringLiteral("5160 - Address Labels"), model));
    model.piece.PieceNumAcross = 3;
    model.piece.PieceNumDown = 1;
    model.PieceStartSlot = startSlot;
    fixture::newSpool();
    fixture::feed(fixture::numbered(records));
    pane.surface()->setPreview(true);
    PreviewRun run(model, SharedSpool::instance().spoolPath());
    run.setPageRange(pages);
    run.run(*pane.surface());
    pane.Navigate(0);
}

void click(const PreviewPane &pane, const QString &name)
{
    auto *button = pane.findChild<QToolButton *>(name);
    QVERIFY2(button && button->isEnabled(), qPrintable(name));
    QTest::mouseClick(button, Qt::LeftButton);
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
    void paging_data();
    void paging();
    void printPageOnShow_data();
    void printPageOnShow();
    void layout_data();
    void layout();
};

void TestPreviewPane::paging_data()
{
    QTest::addColumn<int>("records");
    QTest::addColumn<QStringList>("clicks"); // "feed": records added first
    QTest::addColumn<QString>("label");
    QTest::addColumn<QStringList>("enabled");
    QTest::addColumn<QString>("focus"); // empty: neither mc_prev nor mc_next

    const QStringList back = {"mc_first", "mc_prev"}, ahead = {"mc_next", "mc_last"};
    QTest::newRow("first-display") << 7 << QStringList() << "Page 1 of 3" << ahead << "mc_next";
    QTest::newRow("last") << 7 << QStringList{"mc_last"} << "Page 3 of 3" << back << "mc_prev";
    QTest::newRow("back-keeps-focus-on-previous")
        << 7 << QStringList{"mc_last", "mc_prev"} << "Page 2 of 3" << Paging << "mc_prev";
    QTest::newRow("back-to-first-focus-moves-on")
        << 7 << QStringList{"mc_next", "mc_prev"} << "Page 1 of 3" << ahead << "mc_next";
    QTest::newRow("print-all-moves-focus-on") << 7 << QStringList{"mc_last", "mc_prev", "mc_p_all"}
                                              << "Page 2 of 3" << Paging << "mc_next";
    QTest::newRow("one-page") << 2 << QStringList() << "Page 1 of 1" << QStringList() << "";
}

void TestPreviewPane::paging()
{
    QFETCH(int, records);
    QFETCH(QStringList, clicks);
    QFETCH(QString, label);
    QFETCH(QStringList, enabled);
    QFETCH(QString, focus);
    PreviewPane pane;
    pane.show();
    pane.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&pane));
    QSignalSpy printAll(&pane, &PreviewPane::printAllRequested);
    preview(pane, records);
    for (const QString &name : clicks)
        click(pane, name);

    QCOMPARE(pane.findChild<QLabel *>("mc_pg_lbl")->text(), label);
    QCOMPARE(QStringLiteral("Page %1 of").arg(pane.surface()->previewPage()), label.left(9));
    for (const QString &name : Paging)
        QCOMPARE(pane.findChild<QToolButton *>(name)->isEnabled(), enabled.contains(name));
    const QString focused =
        QApplication::focusWidget() ? QApplication::focusWidget()->objectName() : QString();
    if (focus.isEmpty())
        QVERIFY2(focused != "mc_prev" && focused != "mc_next", qPrintable(focused));
    else
        QCOMPARE(focused, focus);
    QCOMPARE(printAll.count(), int(clicks.count("mc_p_all")));
}

void TestPreviewPane::printPageOnShow_data()
{
    QTest::addColumn<short>("startSlot");
    QTest::addColumn<PageRange>("pages");
    QTest::addColumn<QStringList>("clicks"); // "feed": records added first
    QTest::addColumn<QStringList>("names");  // on the page printed
    // Only the first page is kept as drawn: the others come from their
    // records in the spool when shown.
    QTest::newRow("last") << short(1) << PageRange(0, 0) << QStringList{"mc_last"}
                          << QStringList{"Name7"};
    QTest::newRow("start-slot-2-second") << short(2) << PageRange(0, 0) << QStringList{"mc_next"}
                                         << QStringList{"Name3", "Name4", "Name5"};
    QTest::newRow("pages-2-3-last")
        << short(1) << PageRange(2, 3) << QStringList{"mc_last", "mc_prev", "mc_next"}
        << QStringList{"Name7"};
    QTest::newRow("records-added-page-says-preview-again")
        << short(1) << PageRange(0, 0) << QStringList{"feed", "mc_last"} << QStringList{"Preview"};
}

void TestPreviewPane::printPageOnShow()
{
    QFETCH(short, startSlot);
    QFETCH(PageRange, pages);
    QFETCH(QStringList, clicks);
    QFETCH(QStringList, names);
    if (QStandardPaths::findExecutable(QStringLiteral("pdfinfo")).isEmpty())
        QSKIP("pdfinfo (poppler-utils) is not installed");
    QTemporaryDir dir;
    const QString pdf = dir.filePath(QStringLiteral("page.pdf"));
    PreviewPane pane;
    pane.show();
    preview(pane, 7, startSlot, pages);
    pane.surface()->printer()->setOutputFileName(pdf);
    for (const QString &name : clicks) {
        if (name == "feed")
            fixture::feed(fixture::numbered(3));
        else
            click(pane, name);
    }
    QWidget *const focused = pane.focusWidget();
    click(pane, "mc_p_pg");

    QCOMPARE(pdfprobe::pageSizes(pdf).size(), 1);
    QStringList printed;
    for (const pdfprobe::Word &w : pdfprobe::words(pdf))
        if (w.text.startsWith("Name") || w.text == "Preview")
            printed.append(w.text);
    QCOMPARE(printed, names);
    QCOMPARE(pane.focusWidget(), focused);
}

void TestPreviewPane::layout_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<bool>("paging");
    QTest::addColumn<int>("letterSpacing"); // percent, in the host's font

    QTest::newRow("small-300x200") << QSize(300, 200) << true << 100;
    QTest::newRow("tiny-60x40") << QSize(60, 40) << true << 100;
    QTest::newRow("wide-font-label-shrinks-paging-hidden") << QSize(600, 450) << false << 300;
}

void TestPreviewPane::layout()
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

QTEST_MAIN(TestPreviewPane)
#include "tst_previewpane.moc"
