// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#include "columns.h"
#include "model/error.h"
#include "records/addressrules.h"
#include "records/intelligentmail.h"
#include "records/textmeasurer.h"
#include "spoolfixture.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QRandomGenerator>
#include <QRegularExpression>
#include <QTest>
#include <QTimer>

#include <stdexcept>

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

// 100 twips a character less 0.4 (a real font's fractions, which the rules
// round away), except that a text of narrowLength characters measures 0
// (widths that do not always grow, as with kerning).
class FixedMeasurer : public TextMeasurer
{
public:
    double TextWidth(const QString &text) override
    {
        ++calls;
        if (failing) {
            throw std::runtime_error("the printer has gone away");
        }
        return text.size() == narrowLength ? 0.0 : 100.0 * double(text.size()) - 0.4;
    }
    int calls = 0;
    bool failing = false;
    qsizetype narrowLength = -1;
};

// "line 1|lines 2 to 6 up to the last one used|line 10"; lines 7 to 9 are
// shown only when not empty.
QString shown(const AddressLines &lines)
{
    QStringList block(lines.begin() + 1, lines.begin() + 6);
    while (!block.isEmpty() && block.last().isEmpty()) {
        block.removeLast();
    }
    return lines[0] + QLatin1Char('|') + block.join(QLatin1Char('/')) + QLatin1Char('|') +
           lines[9] + lines[6] + lines[7] + lines[8];
}

// Entries "c0^v0|c1^v1|..." in the given number, each ended by sep.
QString manyEntries(int count, const QString &sep)
{
    QString list;
    for (int i = 0; i < count; ++i)
        list += QStringLiteral("c%1^v%1").arg(i) + sep;
    return list;
}

} // namespace

class TestRecords : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_path = fixture::newSpool(); }
    void cleanup() { QFile::remove(m_path); }

    void documentStates_data()
    {
        // S StartDoc, E EndDoc, X the file removed behind the writer's back,
        // a digit NewPiece with that record; the writer is then destroyed.
        const Rows<QString, QString, bool> row("calls", "records", "header");

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
        const auto [calls, records, header] =
            fetched<QString, QString, bool>("calls", "records", "header");

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
        // line: the values, each in quotes, comma-separated
        columns<QString, QByteArray, QString>("record", "line", "warning");

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
        auto [record, line, warning] =
            fetched<QString, QByteArray, QString>("record", "line", "warning");

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
        columns<QString, QString>("path", "reason");

        QTest::newRow("folder-removed")
            << QDir::tempPath() + "/gone/s.tmp" << QString("No such file");
        if (QFileInfo::exists(QStringLiteral("/dev/full")))
            QTest::newRow("disk-full") << QString("/dev/full") << QString("No space");
        QTest::newRow("no-spool-made") << QString("") << QString("no spool file");
    }

    void failuresNameTheFile()
    {
        const auto [path, reason] = fetched<QString, QString>("path", "reason");

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
        const Rows<QByteArray, QStringList> row("bytes", "run");

        const QByteArray h = fixture::Header;
        row("three-records-city-comma-kept", h + John + John + John,
            {JohnRead, JohnRead, JohnRead});
        row("header-only", h, QStringList());
        row("wrong-case-header", QByteArray(h).replace("nm_first", "NM_FIRST") + John,
            QStringList());
        row("unquoted-values-lose-blanks-and-tabs",
            QByteArray(h).replace("\"", "").replace("zip", " zip\t") +
                "  a\t ,b,c,d,e,f,g,h,i,j, k \r\n",
            {Letters});
        row("text-after-closing-quote-skipped", h + "\"a\"junk,\"b\" ,c,d,e,f,g,h,i,j,\"k\"x\r\n",
            {Letters});
        row("line-ends-separate-like-commas",
            QByteArray(h).replace("\r\n", "\n") + "a,b,c\r\nd,e\rf,g,h,i,j,k\n", {Letters});
        row("truncated-record-dropped-whole", h + John + "\"Jane\",\"\",\"Doe\"", {JohnRead});
        row("file-ends-after-tenth-value", h + "a,b,c,d,e,f,g,h,i,j\r\n",
            {QStringLiteral("a|b|c|d|e|f|g|h|i|j|")});
        row("utf8-and-invalid-bytes", h + "\"Zo\xc3\xab\",\"\xff\",c,d,e,f,g,h,i,j,k\r\n",
            {QStringLiteral("Zo\u00eb|\ufffd|c|d|e|f|g|h|i|j|k")});
        row("unclosed-quote-runs-to-the-end", h + "a,b,c,d,e,f,g,h,i,j,\"k,l\r\nm",
            {QStringLiteral("a|b|c|d|e|f|g|h|i|j|k,l\r\nm")});
        // The file is read in 64 KiB chunks: a CR ends the first chunk and its
        // LF starts the next; then a closing quote ends the first chunk.
        for (const int quoteAt : {65535 - 21, 65535}) {
            const qsizetype fill = quoteAt - h.size() - 1;
            row(quoteAt == 65535 ? "closing-quote-ends-a-chunk" : "crlf-split-by-a-chunk-boundary",
                h + '"' + QByteArray(fill, 'a') + "\",b,c,d,e,f,g,h,i,j,k\r\n" + John,
                {QString(fill, QLatin1Char('a')) + QStringLiteral("|b|c|d|e|f|g|h|i|j|k"),
                 JohnRead});
        }
    }

    void readsValuesAsListItems()
    {
        QFETCH(QByteArray, bytes);
        QTest::failOnWarning(QRegularExpression(QStringLiteral("failed"))); // the end is no failure
        QVERIFY(fixture::overwrite(m_path, bytes));
        QTEST(readRun(), "run");
    }

    void junkNeverHangs_data()
    {
        // records: -1: any number
        columns<QByteArray, int>("bytes", "records");

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
        const auto [bytes, records] = fetched<QByteArray, int>("bytes", "records");

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

    void fitCityStateZip_data()
    {
        columns<QString, double, QString, int>("city", "widest", "line", "measured");

        // State IL, code 62704: two blanks make 23 characters, single blanks 21.
        QTest::newRow("two-blanks-fit")
            << "Springfield," << 2300.0 << "Springfield,  IL  62704" << 1;
        QTest::newRow("single-blanks-equal-accepted")
            << "Springfield," << 2100.0 << "Springfield, IL 62704" << 2;
        // Narrower single blanks are passed over, then taken by the cut at full length.
        QTest::newRow("single-blanks-narrower-passed-over")
            << "Springfield," << 2200.0 << "Springfield, IL 62704" << 3;
        QTest::newRow("comma-cut-first") << "Springfield," << 2050.0 << "Springfield IL 62704" << 4;
        QTest::newRow("cut-test-is-strict")
            << "Springfield," << 2000.0 << "Springfiel IL 62704" << 5;
        QTest::newRow("one-letter-left") << "Springfield," << 1001.0 << "S IL 62704" << 14;
        QTest::newRow("nothing-fits") << "Springfield," << 1000.0 << "" << 14;
        QTest::newRow("no-city-never-cut") << "" << 500.0 << "" << 2;
    }

    void fitCityStateZip()
    {
        const auto [city, widest] = fetched<QString, double>("city", "widest");

        FixedMeasurer m;
        QTEST(FitCityStateZip(city, QStringLiteral("IL"), QStringLiteral("62704"), widest, m),
              "line");
        QTEST(m.calls, "measured");
    }

    void longCityIsCutInBoundedWork_data()
    {
        // fitting: longest cut that fits by width; 0: none
        // dip: a longer cut that fits out of turn; 0: none
        columns<int, int, int>("fitting", "dip", "expected");

        QTest::newRow("fits-just-below-the-walk") << 199936 << 0 << 199936;
        QTest::newRow("fits-nowhere") << 0 << 0 << 0;
        QTest::newRow("one-letter-fits-after-the-bisection") << 1 << 0 << 1;
        // The walk from above the bisection finds what a full walk would.
        QTest::newRow("dip-above-the-fit") << 77777 << 77800 << 77800;
    }

    void longCityIsCutInBoundedWork()
    {
        const auto [fitting, dip, expected] = fetched<int, int, int>("fitting", "dip", "expected");

        // A 200,000-character city; a cut of n makes n + 9 characters with " IL 62704".
        FixedMeasurer m;
        m.narrowLength = dip ? dip + 9 : -1;
        const QString line =
            FitCityStateZip(QString(200000, QLatin1Char('x')), QStringLiteral("IL"),
                            QStringLiteral("62704"), (fitting + 9) * 100.0 + 50, m);
        QCOMPARE(line.size(), expected ? expected + 9 : 0);
        QVERIFY2(m.calls <= 2 + 64 + 20 + 65, qPrintable(QString::number(m.calls)));
    }

    void composeAddressLines_data()
    {
        // lines: as shown()
        columns<QString, double, QString>("record", "widest", "lines");

        const double w = DefaultWidestCityLine;
        QTest::newRow("middle-initial")
            << "John;Q;Public;12 Main St;;Springfield;IL;62704" << w
            << "|John Q. Public/12 Main St/Springfield,  IL  62704|62704";
        QTest::newRow("second-street-line")
            << "John;;Public;12 Main St;Apt 4;Troy;NY;12180" << w
            << "|John Public/12 Main St/Apt 4/Troy,  NY  12180|12180";
        QTest::newRow("only-second-street-line-moves-up")
            << "John;;Public;;PO Box 9;Troy;NY;12180" << w
            << "|John Public/PO Box 9/Troy,  NY  12180|12180";
        QTest::newRow("two-letter-state-upper-cased")
            << "Ann;Quincy;Lee;;;Troy;ny;12180" << w << "|Ann Quincy Lee/Troy,  NY  12180|12180";
        QTest::newRow("longer-state-as-given")
            << "Ann;;Lee;;;Troy;Ill;62704" << w << "|Ann Lee/Troy,  Ill  62704|62704";
        QTest::newRow("initial-without-first-name") << ";Q;Public" << w << "|Q. Public|";
        // The name line is a blank before trimming, so it keeps its place.
        QTest::newRow("no-name-leaves-an-empty-line")
            << ";;;12 Main St;;Troy;NY;12180" << w << "|/12 Main St/Troy,  NY  12180|12180";
        QTest::newRow("city-line-too-wide-dropped")
            << "John;;Public;12 Main St;;Troy;NY;12180" << 500.0 << "|John Public/12 Main St|12180";
        QTest::newRow("carrier-route-line-one") << "Jo;;Li;;;Troy;NY;12180-1234;C001;BAR" << w
                                                << "C001|Jo Li/Troy,  NY  12180-1234|12180-1234";
        QTest::newRow("accents") << QString::fromUtf8("Zoë;;Brontë;;;Málaga;;29001") << w
                                 << QString::fromUtf8("|Zoë Brontë/Málaga    29001|29001");
        // A negative width makes the measurer throw: only the city line is lost.
        QTest::newRow("failing-measurer") << "John;;Public;12 Main St;Apt 4;Troy;NY;12180" << -1.0
                                          << "|John Public/12 Main St/Apt 4|12180";
    }

    void composeAddressLines()
    {
        const auto [record, widest] = fetched<QString, double>("record", "widest");

        fixture::feed({record + QString(10 - record.count(QLatin1Char(';')), QLatin1Char(';')) +
                       QStringLiteral("salut^Sir")});
        FixedMeasurer m;
        m.failing = widest < 0;
        if (m.failing) {
            QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("gone away")));
        }
        AddressLines got;
        got.fill(QStringLiteral("stale"));
        QString substitute;
        SpoolReader &reader = SharedSpool::instance().reader();
        QVERIFY(!ComposeAddressLines(reader, m, widest, got, substitute));
        QTEST(shown(got), "lines");
        QCOMPARE(substitute, QStringLiteral("salut^Sir"));
        QVERIFY(!reader.spoolExhausted());
    }

    void composeEndsTheRun()
    {
        // After the last record, and at once for a file that is not a spool:
        // the run must learn that it is over, or it would ask again for ever.
        for (const QByteArray &spool :
             QList<QByteArray>{fixture::Header + "a,b,c,d,e,f,g,h,i,j,k\r\n",
                               QByteArray("\"NM_FIRST\",\"John\"\r\n")}) {
            QVERIFY(fixture::overwrite(m_path, spool));
            FixedMeasurer m;
            SpoolReader &reader = SharedSpool::instance().reader();
            AddressLines lines;
            QString substitute;
            if (spool.startsWith(fixture::Header)) {
                QVERIFY(!ComposeAddressLines(reader, m, 3500, lines, substitute));
            }
            lines.fill(QStringLiteral("stale"));
            substitute = QStringLiteral("stale");
            QVERIFY(ComposeAddressLines(reader, m, 3500, lines, substitute));
            QVERIFY(reader.spoolExhausted());
            QCOMPARE(shown(lines) + substitute, QStringLiteral("||"));
            reader.setSpoolExhausted(false);
        }
    }

    void replaceTokens_data()
    {
        // separator: between entries
        columns<QString, QString, QString, QString>("text", "list", "expected", "separator");
        const auto row = [](const char *tag, const QString &text, const QString &list,
                            const QString &expected,
                            const QString &separator = QStringLiteral("|")) {
            QTest::newRow(tag) << text << list << expected << separator;
        };

        row("token-replaced", "Dear <<salut>>,", "salut^Sir|x^y", "Dear Sir,");
        row("token-twice-replaced-twice", "<<n>> and <<n>>", "n^Ann", "Ann and Ann");
        row("name-case-counts", "Dear <<Salut>>,", "salut^Sir", "Dear <<Salut>>,");
        row("entry-without-caret-skipped", "<<s>>", "s|s^Sir", "Sir");
        row("value-blanks-kept-name-blanks-count", "<<s>>,", "s^ Sir | s^x", " Sir ,");
        row("empty-name-and-value", "x<<>>y<<a>>", "^z|a^", "xzy");
        row("later-entry-replaces-earlier-value", "<<a>>", "a^<<b>>|b^B", "B");
        row("earlier-entry-not-applied-again", "<<a>>", "b^B|a^<<b>>", "<<b>>");
        row("blank-entries-between", "<<a>><<b>>", "a^1|  |b^2|", "12");
        row("leading-separator-ends-an-empty-entry", "<<|a>>+<<a>>", "|a^1", "<<|a>>+1");
        // Replacing the inner token completes a new one, which goes in turn.
        row("replacement-completes-a-new-token", "<<<<a>>a>>", "a^", "");
        row("self-referencing-value-once-per-occurrence", "<<a>>-<<a>>", "a^x<<a>>",
            "x<<a>>-x<<a>>");
        // Lists as long as a CSV file of as many columns gives: walking one costs
        // milliseconds, copying its rest for every entry ten seconds and more.
        const QString many = manyEntries(200000, QStringLiteral("|"));
        row("token-of-the-last-of-200000-entries", "Dear <<c199999>>", many, "Dear v199999");
        row("tokens-of-first-and-middle-entries", "<<c0>>-<<c100000>>", many, "v0-v100000");
        row("two-character-separator", "<<c7>><<c99999>>",
            manyEntries(100000, QStringLiteral(";;")), "v7v99999", ";;");
        row("200000-entries-without-pair-separator", "<<x>>",
            QString(200000, QLatin1Char('|')) + QStringLiteral("x^y"), "y");
        // Exactly the largest length a text may grow to: the list goes on.
        const QString largest(16 * 1024 * 1024 - 6, QLatin1Char('v'));
        row("grown-to-exactly-the-largest-length", "<<a>>+<<b>>", "a^" + largest + "|b^B",
            largest + "+B");
        row("blank-rest-ends-the-list", "<<a>>",
            QStringLiteral("a^1|") + QString(100000, QLatin1Char(' ')), "1");
    }

    void replaceTokens()
    {
        const auto [text, list, separator] =
            fetched<QString, QString, QString>("text", "list", "separator");

        QElapsedTimer clock;
        clock.start();
        QTEST(ReplaceTokens(text, list, QStringLiteral("^"), separator), "expected");
        QVERIFY2(clock.elapsed() < 3000, qPrintable(QStringLiteral("%1 ms").arg(clock.elapsed())));
    }

    void replaceTokensStopsARunawayList()
    {
        // 200,000 tokens, each becoming 1,000 characters: the replacement stops
        // early and says so, whether or not the value holds its own token.
        const QString text = QStringLiteral("<<a>>").repeated(200000);
        const QString list = QStringLiteral("a^") + QString(1000, QLatin1Char('v'));
        for (const QString &l : QStringList{list, list + QStringLiteral("<<a>>")}) {
            QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("stopped")));
            QElapsedTimer clock;
            clock.start();
            const QString result = ReplaceTokens(text, l);
            QVERIFY2(clock.elapsed() < 5000, qPrintable(QString::number(clock.elapsed())));
            QVERIFY(result.size() <= 16 * 1024 * 1024 + 1000);
            QVERIFY(result.endsWith(QStringLiteral("<<a>>")));
        }
    }

    void encodes_data()
    {
        const Rows<QString, QString, QString, QString> row("barCode", "zip", "routing", "bars");
        // The postal service's own examples: one tracking code with each length
        // of routing code.
        row("no-routing", "01234567094987654321", "", "",
            "ATTFATTDTTADTAATTDTDTATTDAFDDFADFDFTFFFFFTATFAAAATDFFTDAADFTFDTDT");
        row("zip5-after-dash", "01234567094987654321-01234", "99999", "01234",
            "DTTAFADDTTFTDTFTFDTDDADADAFADFATDDFTAAAFDTTADFAAATDFDTDFADDDTDFFT");
        row("zip9-from-record", "01234567094987654321", "01234-5678", "012345678",
            "ADFTTAFDTTTTFATTADTAAATFTFTATDAAAFDDADATATDTDTTDFDTDATADADTDFFTFA");
        row("zip11-run-on", "0123456709498765432101234567891", "", "01234567891",
            "AADTFFDFTDADTAADAATFDTDDAAADDTDTTDAFADADDDTFFFDDTTTADFAAADFTDAADA");
        row("zip11-after-blank", " 01234567094987654321 01234567891 ", "12345", "01234567891",
            "AADTFFDFTDADTAADAATFDTDDAAADDTDTTDAFADADDDTFFFDDTTTADFAAADFTDAADA");
    }

    void encodes()
    {
        const auto [barCode, zip] = fetched<QString, QString>("barCode", "zip");
        const IntelligentMailBarcode code(barCode, zip);
        QVERIFY2(code.isValid(), qPrintable(code.error()));
        QCOMPARE(code.tracking(), QStringLiteral("01234567094987654321"));
        QTEST(code.routing(), "routing");
        QTEST(code.bars(), "bars");
    }

    void refuses_data()
    {
        const Rows<QString, QString, QString> row("barCode", "zip", "why");
        row("letters", "0123456709498765432A", "98101", "holds more than digits");
        row("short", "0123456709498765432", "98101", "has 19 digits");
        row("routing-of-one", "012345670949876543219", "98101", "has 21 digits");
        row("two-separators", "01234567094987654321--01234", "", "holds more than digits");
        row("identifier-above-4", "05234567094987654321", "98101", "second digit");
        row("zip-of-four", "01234567094987654321", "9810", "gives none");
        row("empty", "  ", "98101", "empty");
    }

    void refuses()
    {
        const auto [barCode, zip, why] =
            fetched<QString, QString, QString>("barCode", "zip", "why");
        const IntelligentMailBarcode code(barCode, zip);
        QVERIFY(!code.isValid());
        QVERIFY2(code.error().contains(why), qPrintable(code.error()));
        QVERIFY(code.bars().isEmpty());
    }

private:
    QString m_path;
};

QTEST_GUILESS_MAIN(TestRecords)
#include "tst_records.moc"
