// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#include "columns.h"
#include "controlsteps.h"
#include "hostrecorder.h"
#include "modaldriver.h"
#include "pdfprobe.h"
#include "previewwindow.h"
#include "recordfeed.h"

#include "control/quirra.h"
#include "printing/printsurface.h"

#include <QPrinter>
#include <QRadioButton>
#include <QSpinBox>
#include <QStandardPaths>
#include <QTest>

using namespace quirra;
using steps::click;

struct PrintRow
{
    QString button;
    QString answer;      // in the print dialog: "cancel", "print", pages "2-3"; none
    int hostFirst;       // SetPrintPages(hostFirst, 0) before the preview
    QString printer;     // a queue to print on instead of a PDF file
    QStringList outcome; // last names on the pages printed, the host's messages
};

class TestPreviewWindow : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        if (QStandardPaths::findExecutable(QStringLiteral("pdfinfo")).isEmpty())
            QSKIP("pdfinfo (poppler-utils) is not installed; scripts/install-deps installs it");
    }

    void init()
    {
        m_dir = std::make_unique<QTemporaryDir>();
        QVERIFY(m_dir->isValid());
    }

    void exportWritesTheRunAndRestoresThePrinter()
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
        QCOMPARE(QDir(m_dir->path()).entryList(QDir::Files | QDir::Hidden),
                 QStringList{"export.pdf"});
    }

    void closingStopsTheFeed()
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

    void designActionsRefreshWhenAccepted_data()
    {
        const Rows<QString, QString, QString, bool> row("action", "dialog", "button", "refreshed");
        row("layout-ok", "edit_layout_act", "piece_layout_edit_form", "ok_btn", true);
        row("layout-cancel", "edit_layout_act", "piece_layout_edit_form", "cancel_btn", false);
        row("properties-ok", "properties_act", "property_sheet", "ok_btn", true);
        row("properties-cancel", "properties_act", "property_sheet", "cancel_btn", false);
        row("about", "about_act", "about_box", "ok_btn", false);
    }

    void designActionsRefreshWhenAccepted()
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

        QVERIFY(driver.ranOnce());
        QCOMPARE(window.control()->surface()->previewPage(), refreshed ? 1 : 3);
    }

    void printButtons_data()
    {
        columns<PrintRow>("row");

        const QStringList none, missing = {"Ptr.error = 2"}, okafor = {"Okafor"};
        QTest::newRow("page-at-once") << PrintRow{"mc_p_pg", "", 0, "", okafor};
        QTest::newRow("page-dialog-cancel") << PrintRow{"mc_p_pg", "cancel", 0, "", none};
        QTest::newRow("page-dialog-print") << PrintRow{"mc_p_pg", "print", 0, "", okafor};
        QTest::newRow("all-at-once")
            << PrintRow{"mc_p_all", "", 0, "", QStringList{"Holloway", "Okafor", "Ångström", "Wu"}};
        QTest::newRow("all-dialog-cancel") << PrintRow{"mc_p_all", "cancel", 0, "", none};
        QTest::newRow("all-dialog-pages")
            << PrintRow{"mc_p_all", "2-3", 0, "", QStringList{"Okafor", "Ångström"}};
        QTest::newRow("all-dialog-pages-of-the-host-range")
            << PrintRow{"mc_p_all", "2-3", 2, "", QStringList{"Ångström", "Wu"}};
        // A failed "Pr Pg" reaches the host as a failed print run does.
        QTest::newRow("page-no-such-printer")
            << PrintRow{"mc_p_pg", "", 0, "no-such-queue", missing};
    }

    void printButtons()
    {
        QFETCH(PrintRow, row);
        HostRecorder host;
        PreviewWindow window;
        QVERIFY(showActive(&window));
        Quirra *control = window.control();
        control->PrintDialogOnPrint(!row.answer.isEmpty());
        control->SetPrintPages(row.hostFirst, 0);
        feed(window);
        const QString pdf = m_dir->filePath(QStringLiteral("out.pdf"));
        if (row.printer.isEmpty())
            control->printer()->setOutputFileName(pdf);
        else
            control->surface()->setPrinterName(row.printer);
        click(&window, "mc_next"); // "Pr Pg" prints the second page shown

        ModalDriver driver;
        driver.onModal(QStringLiteral("print_dialog"), [&](QDialog *shown) {
            if (row.answer == QLatin1String("cancel"))
                return ModalDriver::close(shown, QStringLiteral("escape"));
            // To the PDF file, also where the system has printers: the last of them.
            auto *printers = shown->findChild<QComboBox *>(QStringLiteral("printers"));
            printers->setCurrentIndex(printers->count() - 1);
            shown->findChild<QLineEdit *>(QStringLiteral("filename"))->setText(pdf);
            if (row.answer.contains(QLatin1Char('-'))) {
                shown->findChild<QRadioButton *>(QStringLiteral("printRange"))->click();
                shown->findChild<QSpinBox *>(QStringLiteral("to"))
                    ->setValue(row.answer.right(1).toInt());
                shown->findChild<QSpinBox *>(QStringLiteral("from"))
                    ->setValue(row.answer.left(1).toInt());
            }
            ModalDriver::close(shown, QStringLiteral("return"));
        });
        click(&window, qPrintable(row.button));

        QVERIFY(!driver.watchdogFired());
        QCOMPARE(driver.actionsRun(), row.answer.isEmpty() ? 0 : 1);
        QStringList names;
        for (const pdfprobe::Word &word : pdfprobe::words(pdf)) {
            if (QStringList{"Holloway", "Okafor", "Ångström", "Wu"}.contains(word.text))
                names.append(word.text);
        }
        QCOMPARE(names + host.messages, row.outcome);
    }

private:
    void feed(PreviewWindow &window)
    {
        RecordFeed records(*window.control());
        QString error;
        QVERIFY2(records.open(QStringLiteral(QUIRRA_TEST_DATA "/people.csv"), &error),
                 qPrintable(error));
        QVERIFY2(records.feed({}, &error), qPrintable(error));
        QCOMPARE(records.records(), qint64(4));
        window.control()->PreviewNow();
    }
    std::unique_ptr<QTemporaryDir> m_dir;
};

QTEST_MAIN(TestPreviewWindow)
#include "tst_previewwindow.moc"
