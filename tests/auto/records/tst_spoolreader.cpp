// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#include "spoolfixture.h"

#include <QDir>
#include <QElapsedTimer>
#include <QRandomGenerator>
#include <QRegularExpression>
#include <QTest>

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

class TestSpoolReader : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_path = fixture::newSpool(); }
    void cleanup() { QFile::remove(m_path); }
    void readsValuesAsListItems_data();
    void readsValuesAsListItems();
    void junkNeverHangs_data();
    void junkNeverHangs();
    void missingFileAndRereading();

private:
    QString m_path;
};

void TestSpoolReader::readsValuesAsListItems_data()
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
            << QStringList{QString(fill, QLatin1Char('a')) + QStringLiteral("|b|c|d|e|f|g|h|i|j|k"),
                           JohnRead};
    }
}

void TestSpoolReader::readsValuesAsListItems()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QStringList, run);

    QVERIFY(fixture::overwrite(m_path, bytes));
    QCOMPARE(readRun(), run);
}

void TestSpoolReader::junkNeverHangs_data()
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

void TestSpoolReader::junkNeverHangs()
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

void TestSpoolReader::missingFileAndRereading()
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

QTEST_GUILESS_MAIN(TestSpoolReader)
#include "tst_spoolreader.moc"
