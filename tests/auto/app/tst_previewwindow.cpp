// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#include "hostrecorder.h"
#include "modaldriver.h"
#include "pdfprobe.h"
#include "previewwindow.h"
#include "recordfeed.h"

#include "control/quirra.h"
#include "printing/printsurface.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QPrinter>
#include <QRadioButton>
#include <QSpinBox>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>

using namespace quirra;

class TestPreviewWindow : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void exportWritesTheRunAndRestoresThePrinter();
    void closingStopsTheFeed();
    void designActionsRefreshWhenAccepted_data();
    void designActionsRefreshWhenAccepted();
    void printButtons_data();
    void printButtons();

private:
    void feed(PreviewWindow &window);
    std::unique_ptr<QTemporaryDir> m_dir;
};

void TestPreviewWindow::initTestCase()
{
    if (QStandardPaths::findExecutable(QStringLiteral("pdfinfo")).isEmpty())
        QSKIP("pdfinfo (poppler-utils) is not installed; scripts/install-deps installs it");
}

void TestPreviewWindow::init()
{
    m_dir = std::make_unique<QTemporaryDir>();
    QVERIFY(m_dir->isValid());
}

void TestPreviewWindow::feed(PreviewWindow &window)
{
    RecordFeed records(*window.control());
    QString error;
    QVERIFY2(records.open(QStringLiteral(QUIRRA_TEST_DATA "/people.csv"), &error),
             qPrintable(error));
    QVERIFY2(records.feed({}, &error), qPrintable(error));
    QCOMPARE(records.records(), qint64(4));
    window.control()->PreviewNow();
}

void TestPreviewWindow::exportWritesTheRunAndRestoresThePrinter()
{
    PreviewWindow window;
    feed(window);
    QPrinter *printer = window.control()->printer();
    const QPrinter::OutputFormat format = printer->outputFormat();
    const QString file = printer->outputFileName();

    const QString pdf = m_dir->filePath(QStringLiteral("export.pdf"));
    for (int round = 0; round < 2; ++round) { // the second replaces the first
        QVERIFY(window.exportPdfTo(pdf));
        QCOMPARE(pdfprobe::pageSizes(pdf).size(), 4);
        QCOMPARE(printer->outputFormat(), format);
        QCOMPARE(printer->outputFileName(), file);
    }
    QCOMPARE(QDir(m_dir->path()).entryList(QDir::Files | QDir::Hidden), QStringList{"export.pdf"});
}

void TestPreviewWindow::closingStopsTheFeed()
{
    PreviewWindow window;
    window.show();
    RecordFeed records(*window.control());
    QString error;
    QVERIFY(records.open(QStringLiteral(QUIRRA_TEST_DATA "/people.csv"), &error));
    const bool fed = records.feed(
        [&](qint64 count, qint64) {
            if (count == 2)
                window.close();
            return window.isVisible();
        },
        &error);
    QVERIFY(!fed);
    QCOMPARE(records.records(), qint64(2));
    QVERIFY2(error.contains(QLatin1String("stopped after 2 records")), qPrintable(error));
    // The two records fed so far are a whole document.
    window.control()->PreviewNow();
    QCOMPARE(window.control()->surface()->pageCount(), 2);
}

namespace {
void click(QWidget *parent, const char *name)
{
    auto *button = parent->findChild<QAbstractButton *>(QLatin1String(name));
    QVERIFY2(button, name);
    QTest::mouseClick(button, Qt::LeftButton);
}
} // namespace

void TestPreviewWindow::designActionsRefreshWhenAccepted_data()
{
    QTest::addColumn<QString>("action");
    QTest::addColumn<QString>("dialog");
    QTest::addColumn<QString>("button");
    QTest::addColumn<bool>("refreshed");
    const auto row = [](const char *tag, const QString &action, const QString &dialog,
                        const QString &button, bool refreshed) {
        QTest::newRow(tag) << action << dialog << button << refreshed;
    };
    row("layout-ok", "edit_layout_act", "piece_layout_edit_form", "ok_btn", true);
    row("layout-cancel", "edit_layout_act", "piece_layout_edit_form", "cancel_btn", false);
    row("properties-ok", "properties_act", "property_sheet", "ok_btn", true);
    row("properties-cancel", "properties_act", "property_sheet", "cancel_btn", false);
    row("about", "about_act", "about_box", "ok_btn", false);
}

void TestPreviewWindow::designActionsRefreshWhenAccepted()
{
    QFETCH(QString, action);
    QFETCH(QString, dialog);
    QFETCH(QString, button);
    QFETCH(bool, refreshed);
    PreviewWindow window;
    window.show();
    feed(window);
    // A refresh shows the run again from its first page.
    window.control()->surface()->setPreviewPage(3);
    auto *act = window.findChild<QAction *>(action);
    QVERIFY(act);
    ModalDriver driver;
    driver.onModal(dialog, [&](QDialog *shown) { click(shown, qPrintable(button)); });
    act->trigger();

    QVERIFY(!driver.watchdogFired());
    QCOMPARE(driver.actionsRun(), 1);
    QCOMPARE(window.control()->surface()->previewPage(), refreshed ? 1 : 3);
}

void TestPreviewWindow::printButtons_data()
{
    QTest::addColumn<QString>("button");
    QTest::addColumn<QString>(
        "answer");                      // in the print dialog: "cancel", "print", pages "2-3"; none
    QTest::addColumn<int>("hostFirst"); // SetPrintPages(hostFirst, 0) before the preview
    QTest::addColumn<QString>("printer"); // a queue to print on instead of a PDF file
    QTest::addColumn<QStringList>(
        "outcome"); // last names on the pages printed, the host's messages

    const QStringList none, missing = {"Ptr.error = 2"}, okafor = {"Okafor"};
    QTest::newRow("page-at-once") << "mc_p_pg"
                                  << "" << 0 << "" << okafor;
    QTest::newRow("page-dialog-cancel") << "mc_p_pg"
                                        << "cancel" << 0 << "" << none;
    QTest::newRow("page-dialog-print") << "mc_p_pg"
                                       << "print" << 0 << "" << okafor;
    QTest::newRow("all-at-once") << "mc_p_all"
                                 << "" << 0 << ""
                                 << QStringList{"Holloway", "Okafor", "Ångström", "Wu"};
    QTest::newRow("all-dialog-cancel") << "mc_p_all"
                                       << "cancel" << 0 << "" << none;
    QTest::newRow("all-dialog-pages") << "mc_p_all"
                                      << "2-3" << 0 << "" << QStringList{"Okafor", "Ångström"};
    QTest::newRow("all-dialog-pages-of-the-host-range")
        << "mc_p_all"
        << "2-3" << 2 << "" << QStringList{"Ångström", "Wu"};
    // A failed "Pr Pg" reaches the host as a failed "Pr All" does.
    QTest::newRow("page-no-such-printer") << "mc_p_pg"
                                          << "" << 0 << "no-such-queue" << missing;
    QTest::newRow("all-no-such-printer") << "mc_p_all"
                                         << "" << 0 << "no-such-queue" << missing;
}

void TestPreviewWindow::printButtons()
{
    QFETCH(QString, button);
    QFETCH(QString, answer);
    QFETCH(int, hostFirst);
    QFETCH(QString, printer);
    QFETCH(QStringList, outcome);
    HostRecorder host;
    PreviewWindow window;
    QVERIFY(showActive(&window));
    Quirra *control = window.control();
    control->PrintDialogOnPrint(!answer.isEmpty());
    control->SetPrintPages(hostFirst, 0);
    feed(window);
    const QString pdf = m_dir->filePath(QStringLiteral("out.pdf"));
    if (printer.isEmpty())
        control->printer()->setOutputFileName(pdf);
    else
        control->surface()->setPrinterName(printer);
    click(&window, "mc_next"); // "Pr Pg" prints the second page shown

    ModalDriver driver;
    driver.onModal(QStringLiteral("print_dialog"), [&](QDialog *shown) {
        if (answer == QLatin1String("cancel"))
            return ModalDriver::close(shown, QStringLiteral("escape"));
        // To the PDF file, also where the system has printers: the last of them.
        auto *printers = shown->findChild<QComboBox *>(QStringLiteral("printers"));
        printers->setCurrentIndex(printers->count() - 1);
        shown->findChild<QLineEdit *>(QStringLiteral("filename"))->setText(pdf);
        if (answer.contains(QLatin1Char('-'))) {
            shown->findChild<QRadioButton *>(QStringLiteral("printRange"))->click();
            shown->findChild<QSpinBox *>(QStringLiteral("to"))->setValue(answer.right(1).toInt());
            shown->findChild<QSpinBox *>(QStringLiteral("from"))->setValue(answer.left(1).toInt());
        }
        ModalDriver::close(shown, QStringLiteral("return"));
    });
    click(&window, qPrintable(button));

    QVERIFY(!driver.watchdogFired());
    QCOMPARE(driver.actionsRun(), answer.isEmpty() ? 0 : 1);
    QStringList names;
    for (const pdfprobe::Word &word : pdfprobe::words(pdf)) {
        if (QStringList{"Holloway", "Okafor", "Ångström", "Wu"}.contains(word.text))
            names.append(word.text);
    }
    QCOMPARE(names + host.messages, outcome);
}

QTEST_MAIN(TestPreviewWindow)
#include "tst_previewwindow.moc"
