// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#include "model/error.h"
#include "spoolfixture.h"

#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>
#include <QTest>
#include <QTimer>

using namespace quirra;

class TestSpoolWriter : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_path = fixture::newSpool(); }
    void cleanup() { QFile::remove(m_path); }
    void documentStates_data();
    void documentStates();
    void linesOnDisk_data();
    void linesOnDisk();
    void failuresNameTheFile_data();
    void failuresNameTheFile();
    void defaultYieldProcessesEvents();

private:
    QString m_path;
};

void TestSpoolWriter::documentStates_data()
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

void TestSpoolWriter::documentStates()
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

void TestSpoolWriter::linesOnDisk_data()
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
    row("setters-trim-blanks-only", "  John ;\tQ;;;;;;;;;a^1, b^2 ", "John|\tQ|||||||||a^1, b^2");
    row("utf8-accents", QString::fromUtf8("Zoë;;;;;Málaga;MA"),
        "Zo\xc3\xab|||||M\xc3\xa1laga,|MA||||");
    row("quote-written-as-is-warned", "Ann;;The \"Old\" Mill", "Ann||The \"Old\" Mill||||||||",
        "nm_last.*double quote");
    row("line-break-warned", ";;;1 Elm\nSt", "|||1 Elm\nSt|||||||", "addr_1.*line break");
    row("values-past-the-last-column-dropped", "a;;;;;;;;;;s;past;past", "a||||||||||s");
}

void TestSpoolWriter::linesOnDisk()
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

void TestSpoolWriter::failuresNameTheFile_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("reason");

    QTest::newRow("folder-removed") << QDir::tempPath() + "/gone/s.tmp" << QString("No such file");
    if (QFileInfo::exists(QStringLiteral("/dev/full")))
        QTest::newRow("disk-full") << QString("/dev/full") << QString("No space");
    QTest::newRow("no-spool-made") << QString("") << QString("no spool file");
}

void TestSpoolWriter::failuresNameTheFile()
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

void TestSpoolWriter::defaultYieldProcessesEvents()
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

QTEST_GUILESS_MAIN(TestSpoolWriter)
#include "tst_spoolwriter.moc"
