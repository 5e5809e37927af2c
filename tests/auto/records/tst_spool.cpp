// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#include "model/error.h"
#include "spoolfixture.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QRandomGenerator>
#include <QRegularExpression>
#include <QTest>
#include <QTimer>

using namespace quirra;

namespace {

// The records of one run, each as its eleven values joined by "|". A run
// that does not end fails the test instead of hanging it.
QStringList readRun()
{
    SpoolReader &reader = SharedSpool::instance().reader();
    reader.setSpoolExhausted(false);
    QStringList run;
    SpoolReader::Values values;
    QString substitute = QStringLiteral("stale");
    while (!reader.ReadNextRecord(values, substitute) && run.size() <= 100000) {
        run << QStringList(values.begin(), values.end()).join(QLatin1Char('|')) + QLatin1Char('|') +
                   substitute;
    }
    if (reader.isReaderOpen()) {
        run << QStringLiteral("<run did not end>");
    }
    return run;
}

const QByteArray John =
    "\"John\",\"Q\",\"Public\",\"1 Elm\",\"\",\"Troy,\",\"NY\",\"12180\",\"\",\"\",\"\"\r\n";
const QString JohnRead = QStringLiteral("John|Q|Public|1 Elm||Troy,|NY|12180|||");
const QString Letters = QStringLiteral("a|b|c|d|e|f|g|h|i|j|k");

} // namespace

class TestSpool : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_path = fixture::newSpool(); }
    void cleanup() { QFile::remove(m_path); }

    void documentStates_data()
    {
        // S StartDoc, E EndDoc, X the file removed behind the writer's back,
        // a digit NewPiece with that record; the writer is then destroyed.
        QTest::addColumn<QString>("calls");
        QTest::addColumn<QString>("records");
        QTest::addColumn<bool>("header");
        const auto row = [](const char *tag, const QString &calls, const QString &records,
                            bool header) { QTest::newRow(tag) << calls << records << header; };

        row("three-records", "S123E", "123", true);
        row("new-piece-without-start-doc-creates-header", "1E", "1", true);
        row("start-doc-twice-keeps-records", "S1S2E", "12", true);
        row("end-doc-then-new-piece-appends", "S1E2E", "12", true);
        row("start-doc-after-end-doc-truncates", "S1ES2E", "2", true);
        row("end-doc-without-document", "E", "", false);
        row("destroyed-while-open-keeps-lines", "S12", "12", true);
        row("removed-file-made-again-owner-only", "XS1E", "1", true);
    }

    void documentStates()
    {
        QFETCH(QString, calls);
        QFETCH(QString, records);
        QFETCH(bool, header);

        const Record people[] = {fixture::record(QStringLiteral("Ann;;Arden")),
                                 fixture::record(QStringLiteral("Bob;;Brook;;;Troy;NY")),
                                 fixture::record(QStringLiteral("Cy;;Cole"))};
        {
            SpoolWriter writer;
            for (const QChar c : calls) {
                if (c == QLatin1Char('S')) {
                    writer.StartDoc();
                } else if (c == QLatin1Char('E')) {
                    writer.EndDoc();
                } else if (c == QLatin1Char('X')) {
                    QVERIFY(QFile::remove(m_path));
                } else {
                    writer.NewPiece(people[c.digitValue() - 1]);
                }
            }
            QCOMPARE(writer.isSpoolStarted(), header);
            QCOMPARE(writer.isSpoolOpen(), !calls.endsWith(QLatin1Char('E')));
        }
        QByteArray expected = header ? fixture::Header : QByteArray();
        for (const QChar c : records) {
            people[c.digitValue() - 1].appendSpoolLine(expected);
        }
        QCOMPARE(fixture::contents(m_path), expected);
        QCOMPARE(int(QFileInfo(m_path).permissions() & 0x7077),
                 int(QFile::ReadOwner | QFile::WriteOwner));
    }

    void linesOnDisk_data()
    {
        QTest::addColumn<QString>("record");
        QTest::addColumn<QByteArray>("line"); // the values, each in quotes, comma-separated
        QTest::addColumn<QString>("warning");

        const auto row = [](const char *tag, const QString &record, const QByteArray &line,
                            const QString &warning = QString()) {
            QTest::newRow(tag) << record << line << warning;
        };
        row("city-and-state-get-comma", "John;Q;Public;12 Main;;Springfield;IL;62704",
            "John|Q|Public|12 Main||Springfield,|IL|62704|||");
        row("no-state-city-unchanged", ";;;;;Springfield;;62704", "|||||Springfield||62704|||");
        row("no-city-no-comma", ";;;;;;IL", "||||||IL||||");
        row("setters-trim-blanks-only", "  John ;\tQ;;;;;;;;;a^1, b^2 ",
            "John|\tQ|||||||||a^1, b^2");
        row("utf8-accents", QString::fromUtf8("Zoë;;;;;Málaga;MA"),
            "Zo\xc3\xab|||||M\xc3\xa1laga,|MA||||");
        row("quote-written-as-is-warned", "Ann;;The \"Old\" Mill", "Ann||The \"Old\" Mill||||||||",
            "nm_last.*double quote");
        row("line-break-warned", ";;;1 Elm\nSt", "|||1 Elm\nSt|||||||", "addr_1.*line break");
        row("values-past-the-last-column-dropped", "a;;;;;;;;;;s;past;past", "a||||||||||s");
    }

    void linesOnDisk()
    {
        QFETCH(QString, record);
        QFETCH(QByteArray, line);
        QFETCH(QString, warning);

        if (!warning.isEmpty()) {
            QTest::ignoreMessage(QtWarningMsg, QRegularExpression(warning));
        }
        fixture::feed({record});
        const Record r = fixture::record(record);
        QCOMPARE(r.value(RecordField(RecordFieldCount)), QString()); // out of range: nothing
        QCOMPARE(r.value(RecordField(-1)), QString());
        const QByteArray expected = fixture::Header + '"' + line.replace('|', "\",\"") + "\"\r\n";
        QCOMPARE(fixture::contents(m_path), expected);
    }

    void failuresNameTheFile_data()
    {
        QTest::addColumn<QString>("path");
        QTest::addColumn<QString>("reason");

        QTest::newRow("folder-removed")
            << QDir::tempPath() + "/gone/s.tmp" << QString("No such file");
        if (QFileInfo::exists(QStringLiteral("/dev/full")))
            QTest::newRow("disk-full") << QString("/dev/full") << QString("No space");
        QTest::newRow("no-spool-made") << QString("") << QString("no spool file");
    }

    void failuresNameTheFile()
    {
        QFETCH(QString, path);
        QFETCH(QString, reason);

        SharedSpool::instance().setSpoolPath(path);
        SpoolWriter writer;
        for (int attempt = 0; attempt < 2; ++attempt) {
            try {
                attempt ? writer.NewPiece(Record()) : writer.StartDoc();
                QFAIL("the spool was written");
            } catch (const Error &error) {
                QVERIFY2(error.message().contains(path) && error.message().contains(reason),
                         qPrintable(error.message()));
            }
            QVERIFY(!writer.isSpoolOpen() && !writer.isSpoolStarted());
        }
    }

    void defaultYieldProcessesEvents()
    {
        // Events run at the start, after every YieldEvery records, and at the end.
        SpoolWriter writer;
        int fired = 0;
        const auto post = [&] { QTimer::singleShot(0, this, [&fired] { ++fired; }); };
        post();
        writer.StartDoc();
        QCOMPARE(fired, 1);
        post();
        for (int i = 1; i < SpoolWriter::YieldEvery; ++i)
            writer.NewPiece(Record());
        QCOMPARE(fired, 1);
        writer.NewPiece(Record());
        QCOMPARE(fired, 2);
        post();
        writer.EndDoc();
        QCOMPARE(fired, 3);
    }

    void readsValuesAsListItems_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QStringList>("run");

        const QByteArray h = fixture::Header;
        QTest::newRow("three-records-city-comma-kept")
            << h + John + John + John << QStringList{JohnRead, JohnRead, JohnRead};
        QTest::newRow("header-only") << h << QStringList();
        QTest::newRow("wrong-case-header")
            << QByteArray(h).replace("nm_first", "NM_FIRST") + John << QStringList();
        QTest::newRow("unquoted-values-lose-blanks-and-tabs")
            << QByteArray(h).replace("\"", "").replace("zip", " zip\t") +
                   "  a\t ,b,c,d,e,f,g,h,i,j, k \r\n"
            << QStringList{Letters};
        QTest::newRow("text-after-closing-quote-skipped")
            << h + "\"a\"junk,\"b\" ,c,d,e,f,g,h,i,j,\"k\"x\r\n"
            << QStringList{Letters};
        QTest::newRow("line-ends-separate-like-commas")
            << QByteArray(h).replace("\r\n", "\n") + "a,b,c\r\nd,e\rf,g,h,i,j,k\n"
            << QStringList{Letters};
        QTest::newRow("truncated-record-dropped-whole")
            << h + John + "\"Jane\",\"\",\"Doe\"" << QStringList{JohnRead};
        QTest::newRow("file-ends-after-tenth-value")
            << h + "a,b,c,d,e,f,g,h,i,j\r\n"
            << QStringList{QStringLiteral("a|b|c|d|e|f|g|h|i|j|")};
        QTest::newRow("utf8-and-invalid-bytes")
            << h + "\"Zo\xc3\xab\",\"\xff\",c,d,e,f,g,h,i,j,k\r\n"
            << QStringList{QStringLiteral("Zo\u00eb|\ufffd|c|d|e|f|g|h|i|j|k")};
        QTest::newRow("unclosed-quote-runs-to-the-end")
            << h + "a,b,c,d,e,f,g,h,i,j,\"k,l\r\nm"
            << QStringList{QStringLiteral("a|b|c|d|e|f|g|h|i|j|k,l\r\nm")};
        // The file is read in 64 KiB chunks: a CR ends the first chunk and its
        // LF starts the next; then a closing quote ends the first chunk.
        for (const int quoteAt : {65535 - 21, 65535}) {
            const qsizetype fill = quoteAt - h.size() - 1;
            QTest::newRow(quoteAt == 65535 ? "closing-quote-ends-a-chunk"
                                           : "crlf-split-by-a-chunk-boundary")
                << h + '"' + QByteArray(fill, 'a') + "\",b,c,d,e,f,g,h,i,j,k\r\n" + John
                << QStringList{QString(fill, QLatin1Char('a')) +
                                   QStringLiteral("|b|c|d|e|f|g|h|i|j|k"),
                               JohnRead};
        }
    }

    void readsValuesAsListItems()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(QStringList, run);

        QVERIFY(fixture::overwrite(m_path, bytes));
        QCOMPARE(readRun(), run);
    }

    void junkNeverHangs_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<int>("records"); // -1: any number

        QRandomGenerator random(20260101);
        QByteArray junk(300000, '\0');
        for (char &c : junk) {
            c = char(random.bounded(256));
        }
        const QByteArray h = fixture::Header;
        QTest::newRow("junk-without-header") << junk << 0;
        QTest::newRow("header-then-junk") << h + junk << -1;
        // 200000 empty values: 18181 records, the nine left over dropped.
        QTest::newRow("header-then-commas") << h + QByteArray(200000, ',') << 18181;
        // A quote that never closes: the value is cut at 1 MiB.
        QTest::newRow("header-then-unclosed-3mib-value")
            << h + "a,b,c,d,e,f,g,h,i,j,\"" + QByteArray(3 * 1024 * 1024, 'x') << 1;
    }

    void junkNeverHangs()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(int, records);

        const bool cut = bytes.size() > 3 * 1024 * 1024;
        if (cut) {
            QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("longer than")));
        }
        QVERIFY(fixture::overwrite(m_path, bytes));
        QElapsedTimer clock;
        clock.start();
        const QStringList run = readRun();
        QVERIFY2(clock.elapsed() < 5000, "reading junk took too long");
        QVERIFY(!run.contains(QStringLiteral("<run did not end>")));
        QVERIFY(records < 0 || run.size() == records);
        QVERIFY(!cut || run.first().size() == 20 + 1024 * 1024);
    }

    void missingFileAndRereading()
    {
        {
            // A document still open is read whole: the writer's batch goes to
            // the file before the reader opens it.
            SpoolWriter open;
            open.setYieldHook({});
            for (const QString &r : fixture::numbered(3))
                open.NewPiece(fixture::record(r));
            QCOMPARE(readRun().size(), 3);
        }
        // A preview and then a print read every record, from the header on.
        fixture::feed({QStringLiteral("1"), QStringLiteral("2"), QStringLiteral("3")});
        const QStringList preview = readRun();
        QCOMPARE(preview.size(), 3);
        QVERIFY(SharedSpool::instance().reader().spoolExhausted());
        QCOMPARE(readRun(), preview);

        // A spool that cannot be opened (removed, a folder, no name) gives no
        // record and ends the run at once.
        QFile::remove(m_path);
        for (const QString &path : {m_path, QDir::tempPath(), QString()}) {
            SharedSpool::instance().setSpoolPath(path);
            QTest::ignoreMessage(QtWarningMsg,
                                 QRegularExpression(QStringLiteral("Cannot open the spool")));
            QCOMPARE(readRun(), QStringList());
        }
    }

private:
    QString m_path;
};

QTEST_GUILESS_MAIN(TestSpool)
#include "tst_spool.moc"
