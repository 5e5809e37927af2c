// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
//
// A run printed through the control to a real CUPS queue (the PDF printer
// driver on a private spooler), and the file the spooler made read back.
#include "columns.h"
#include "control/quirra.h"

#include "hostrecorder.h"
#include "pdfprobe.h"
#include "spoolfixture.h"

#include "printing/printsurface.h"

#include <QPrinterInfo>
#include <QTest>

using namespace quirra;

namespace {

// Feeds count records; the last name carries the record's number so that
// every record can be found in the output.
void feed(Quirra &control, int count)
{
    control.StartDoc();
    for (int i = 0; i < count; ++i) {
        control.ClearPiece();
        control.FirstName(QStringLiteral("Margaret"));
        control.LastName(QStringLiteral("Holloway%1").arg(i));
        control.Address1(QStringLiteral("1427 Birchwood Ln"));
        control.city(QStringLiteral("Springfield"));
        control.State(QStringLiteral("IL"));
        control.zip(QStringLiteral("62704"));
        control.NewPiece();
    }
    control.EndDoc();
}

// The file the PDF printer driver wrote for the job titled title: it names
// its files after the job's title. Waits for the spooler to finish.
QString spooledPdf(const QString &folder, const QString &title, int timeoutMs)
{
    const QDeadlineTimer deadline(timeoutMs);
    while (!deadline.hasExpired()) {
        const QStringList found =
            QDir(folder).entryList({title + QStringLiteral("*.pdf")}, QDir::Files, QDir::Time);
        if (!found.isEmpty()) {
            const QString path = QDir(folder).filePath(found.first());
            // The driver writes the file in place: wait until it is whole.
            if (!pdfprobe::pageSizes(path).isEmpty())
                return path;
        }
        QThread::msleep(200);
    }
    return {};
}

// The share of a's ink with no ink of b on it or a pixel beside it.
double inkMissing(const QImage &a, const QImage &b)
{
    const auto ink = [](const QImage &image, int x, int y) {
        return x >= 0 && y >= 0 && x < image.width() && y < image.height() &&
               image.constScanLine(y)[x] < 160;
    };
    int inked = 0, missing = 0;
    for (int y = 0; y < a.height(); ++y) {
        for (int x = 0; x < a.width(); ++x) {
            if (!ink(a, x, y))
                continue;
            ++inked;
            bool near = false;
            for (int dy = -1; dy <= 1; ++dy)
                for (int dx = -1; dx <= 1; ++dx)
                    near = near || ink(b, x + dx, y + dy);
            missing += near ? 0 : 1;
        }
    }
    return inked ? double(missing) / inked : 1.0;
}

// The spooler's PDF against the one Qt writes for the same run. The PDF
// driver passes the pages through PostScript and Ghostscript, which keeps
// every glyph where it was but renames the glyphs, so the text no longer
// reads back as text: the pages are compared as pictures. They agree when
// the ink of either lies on ink of the other, give or take a pixel at 100
// dots an inch. A printer feeds a landscape envelope short edge first and
// turns what is printed on it a quarter. Returns the first difference.
QString differences(const QString &spooled, const QString &direct)
{
    const QList<QImage> got = pdfprobe::pages(spooled, 100);
    const QList<QImage> want = pdfprobe::pages(direct, 100);
    if (got.size() != want.size() || want.isEmpty())
        return QStringLiteral("%1 pages rendered, not %2").arg(got.size()).arg(want.size());
    for (qsizetype p = 0; p < want.size(); ++p) {
        double worst = 1;
        for (const int turn : {0, 90, 270}) {
            QImage page = got.at(p).transformed(QTransform().rotate(turn));
            QImage wanted = want.at(p);
            // A custom paper may reach the spooler rounded to the point.
            const QSize common = page.size().boundedTo(wanted.size());
            if ((page.size() - common).width() > 2 || (page.size() - common).height() > 2 ||
                (wanted.size() - common).width() > 2 || (wanted.size() - common).height() > 2)
                continue;
            page = page.copy(QRect(QPoint(0, 0), common));
            wanted = wanted.copy(QRect(QPoint(0, 0), common));
            worst = qMin(worst, qMax(inkMissing(page, wanted), inkMissing(wanted, page)));
        }
        if (worst > 0.01)
            return QStringLiteral("page %1: %2% of the ink differs").arg(p + 1).arg(worst * 100);
    }
    return {};
}

QString spoolerLog()
{
    QFile log(qEnvironmentVariable("QUIRRA_CUPS_LOG"));
    return log.open(QIODevice::ReadOnly) ? QString::fromUtf8(log.readAll().right(2000))
                                         : QStringLiteral("(no spooler log)");
}

} // namespace

class TestCupsPrint : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        m_queue = qEnvironmentVariable("QUIRRA_CUPS_QUEUE");
        m_outDir = qEnvironmentVariable("QUIRRA_CUPS_PDF_DIR");
        if (m_queue.isEmpty() || qEnvironmentVariableIsEmpty("CUPS_SERVER"))
            QSKIP("no private CUPS spooler: run the suite through scripts/with-cups (make test "
                  "does)");
        QVERIFY2(!QPrinterInfo::printerInfo(m_queue).isNull(),
                 qPrintable(QStringLiteral("the queue %1 is not seen; the printers are: %2")
                                .arg(m_queue, QPrinterInfo::availablePrinterNames().join(", "))));
    }
    void init() { m_host.emplace(); }

    void cleanup()
    {
        m_host.reset();
        for (const QString &file : std::as_const(m_made))
            QFile::remove(file);
        m_made.clear();
    }

    void printsThroughTheSpooler_data()
    {
        // paper: points, as the spooler's file has it
        columns<QString, int, int, QString, QSizeF>("piece", "records", "pages", "returnText",
                                                    "paper");

        QTest::newRow("labels-two-sheets")
            << "5160 - Address Labels" << 35 << 2 << QString() << QSizeF(612, 792);
        QTest::newRow("envelopes-with-return-address")
            << "Size 10 - Envelope" << 3 << 3 << "Northwind Mail Room" << QSizeF(684, 297);
        QTest::newRow("a4-labels-on-a4")
            << "L7160 - Address Labels" << 4 << 1 << QString() << QSizeF(595, 842);
        QTest::newRow("pin-fed-row-on-its-own-custom-paper")
            << "4-Up 3 1/2 x 15/16 - Pin-Fed Address Labels" << 5 << 2 << QString()
            << QSizeF(1066, 72);
    }

    void printsThroughTheSpooler()
    {
        const auto [piece, records, returnText, paper] =
            fetched<QString, int, QString, QSizeF>("piece", "records", "returnText", "paper");

        Quirra control;
        control.PieceName(piece);
        control.ClearReturn();
        control.ClearStamp();
        if (!returnText.isEmpty())
            control.SetReturnText(returnText);
        feed(control, records);

        const QString job = title(QTest::currentDataTag()).remove(QLatin1Char('-'));
        printOn(control, m_queue, job);
        QVERIFY2(m_host->messages.isEmpty(), qPrintable(m_host->messages.join('\n')));
        QCOMPARE(control.surface()->errorCode(), 0);

        const QString pdf = spooledPdf(m_outDir, job, 120000);
        QVERIFY2(!pdf.isEmpty(),
                 qPrintable(QStringLiteral("no PDF for job %1 in %2; spooler log:\n%3")
                                .arg(job, m_outDir, spoolerLog())));
        m_made << pdf;
        // The sheet's own paper, fed in either orientation (a printer turns a
        // landscape page onto upright media).
        const QList<QSizeF> sizes = pdfprobe::pageSizes(pdf);
        QTEST(int(sizes.size()), "pages");
        const QSizeF fed =
            (sizes.first().width() > sizes.first().height()) == (paper.width() > paper.height())
                ? sizes.first()
                : sizes.first().transposed();
        QVERIFY2(qAbs(fed.width() - paper.width()) <= 1.5 &&
                     qAbs(fed.height() - paper.height()) <= 1.5,
                 qPrintable(QString::asprintf("the spooler's page is %g x %g pt",
                                              sizes.first().width(), sizes.first().height())));

        // The same run as Qt writes it to a file (other tests check that file
        // piece by piece): here it holds the last record and the return address.
        QTemporaryDir folder;
        const QString direct = folder.filePath(QStringLiteral("direct.pdf"));
        control.printer()->setOutputFileName(direct);
        control.PrintNow();
        QCOMPARE(control.surface()->errorCode(), 0);
        QStringList words;
        for (const pdfprobe::Word &w : pdfprobe::words(direct))
            words << w.text;
        QVERIFY(words.contains(QStringLiteral("Holloway%1").arg(records - 1)));
        QCOMPARE(words.contains(QStringLiteral("Northwind")), !returnText.isEmpty());

        // And the spooler printed exactly that.
        const QString problem = differences(pdf, direct);
        QVERIFY2(problem.isEmpty(), qPrintable(problem));
    }

    void unknownPrinterIsReported()
    {
        Quirra control;
        control.PieceName(QStringLiteral("5160 - Address Labels"));
        feed(control, 3);
        const QString spool = SharedSpool::instance().spoolPath();
        const QByteArray spooled = fixture::contents(spool);

        printOn(control, QStringLiteral("No Such Printer Here"));
        QCOMPARE(m_host->messages.size(), 1);
        // A printer's error number, never 0.
        QVERIFY2(m_host->messages.first().contains(
                     QRegularExpression(QStringLiteral("^Ptr\\.error = -?[1-9]"))),
                 qPrintable(m_host->messages.first()));
        QVERIFY(control.surface()->errorCode() != 0);

        // Nothing else is harmed: the spool holds its records, and the same
        // control prints them on the real queue next.
        QCOMPARE(fixture::contents(spool), spooled);
        m_host->messages.clear();
        const QString job = title("afterunknown");
        printOn(control, m_queue, job);
        QVERIFY2(m_host->messages.isEmpty(), qPrintable(m_host->messages.join('\n')));
        QCOMPARE(control.surface()->errorCode(), 0);
        const QString pdf = spooledPdf(m_outDir, job, 120000);
        QVERIFY2(!pdf.isEmpty(), qPrintable(spoolerLog()));
        m_made << pdf;
        QCOMPARE(pdfprobe::pageSizes(pdf).size(), 1);
    }

    void refusingQueueIsReported_data()
    {
        // commands: the administrator's to refuse (with -r REASON) and to restore
        columns<QStringList, QString>("commands", "reason");

        QTest::newRow("not-accepting-jobs") << QStringList{"cupsreject", "cupsaccept"}
                                            << "not accepting jobs: Out of labels until Monday";
        QTest::newRow("stopped") << QStringList{"cupsdisable", "cupsenable"}
                                 << "is stopped: Paper jam in tray 2";
    }

    void refusingQueueIsReported()
    {
        QFETCH(QStringList, commands);
        QFETCH(QString, reason);

        const QString server = qEnvironmentVariable("CUPS_SERVER");
        const QString given = reason.section(QStringLiteral(": "), 1);
        QCOMPARE(QProcess::execute(commands[0], {"-h", server, "-r", given, m_queue}), 0);
        const auto restored = qScopeGuard([&] {
            QProcess::execute(commands[1], {"-h", server, m_queue});
        });

        Quirra control;
        control.PieceName(QStringLiteral("5160 - Address Labels"));
        feed(control, 3);
        const QString job = title(QTest::currentDataTag()).remove(QLatin1Char('-'));
        printOn(control, m_queue, job);
        QCOMPARE(m_host->messages, QStringList{QStringLiteral("Ptr.error = 2")});
        QVERIFY(control.surface()->errorCode() != 0);
        QVERIFY2(control.surface()->printerFailure().contains(reason),
                 qPrintable(control.surface()->printerFailure()));
        // Nothing waits in the queue to come out later.
        QProcess::execute(commands[1], {"-h", server, m_queue});
        QVERIFY(spooledPdf(m_outDir, job, 3000).isEmpty());
    }

    void jobTheQueueCannotPrintIsReported()
    {
        // A second queue whose driver names a filter that is not installed:
        // CUPS takes the job, then stops it.
        QFile driver(QStringLiteral("/usr/share/ppd/cups-pdf/CUPS-PDF_opt.ppd"));
        QVERIFY(driver.open(QIODevice::ReadOnly));
        QTemporaryDir folder;
        QFile broken(folder.filePath(QStringLiteral("broken.ppd")));
        QVERIFY(broken.open(QIODevice::WriteOnly));
        for (const QByteArray &line : driver.readAll().split('\n')) {
            if (!line.startsWith("*cupsFilter"))
                broken.write(line + '\n');
        }
        broken.write(
            "*cupsFilter2: \"application/pdf application/vnd.cups-pdf 0 quirra-no-filter\"\n");
        broken.close();
        const QString server = qEnvironmentVariable("CUPS_SERVER");
        const QString queue = QStringLiteral("QuirraBroken");
        QCOMPARE(QProcess::execute(QStringLiteral("lpadmin"),
                                   {"-h", server, "-p", queue, "-E", "-v", "cups-pdf:/", "-P",
                                    broken.fileName(), "-o", "printer-error-policy=abort-job"}),
                 0);
        const auto removed = qScopeGuard([&] {
            QProcess::execute(QStringLiteral("lpadmin"), {"-h", server, "-x", queue});
        });

        Quirra control;
        control.PieceName(QStringLiteral("5160 - Address Labels"));
        feed(control, 3);
        printOn(control, queue);
        QVERIFY(control.surface()->errorCode() != 0);
        const QString failure = control.surface()->printerFailure();
        QVERIFY2(failure.contains(QLatin1String("quirra-no-filter")), qPrintable(failure));
    }

private:
    static void printOn(Quirra &control, const QString &queue, const QString &job = QString())
    {
        control.surface()->setPrinterName(queue);
        control.printer()->setDocName(job);
        control.PrintNow();
    }
    // Job titles unique to this process, in letters and digits only: the driver
    // turns anything else in a title into "_".
    QString title(const char *what) const
    {
        return QStringLiteral("quirratest%1%2").arg(QCoreApplication::applicationPid()).arg(what);
    }

    QString m_queue;
    QString m_outDir;
    std::optional<HostRecorder> m_host;
    QStringList m_made;
};

QTEST_MAIN(TestCupsPrint)
#include "tst_cupsprint.moc"
