// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#include "csvreader.h"

#include <QBuffer>
#include <QTest>

using namespace quirra;

namespace {

// Hands out its bytes a few at a time, as a pipe may.
class TrickleDevice : public QIODevice
{
public:
    TrickleDevice(const QByteArray &bytes, int step) : m_bytes(bytes), m_step(step)
    {
        open(QIODevice::ReadOnly);
    }
    bool isSequential() const override { return true; }

protected:
    qint64 readData(char *data, qint64 max) override
    {
        const qint64 n = std::min<qint64>({max, m_step, m_bytes.size() - m_pos});
        memcpy(data, m_bytes.constData() + m_pos, size_t(n));
        m_pos += n;
        return n;
    }
    qint64 writeData(const char *, qint64) override { return -1; }

private:
    QByteArray m_bytes;
    qint64 m_step;
    qint64 m_pos = 0;
};

// Every row as its fields joined by "|", each row ended by "/".
QString readAll(QIODevice &device, QString *error, QList<qint64> *lines = nullptr)
{
    CsvReader reader(&device);
    QStringList fields;
    QString rows;
    int guard = 0;
    while (reader.readRow(fields) && ++guard < 1000) {
        rows += fields.join(QLatin1Char('|')) + QLatin1Char('/');
        if (lines)
            lines->append(reader.rowLine());
    }
    *error = reader.error();
    return rows;
}

} // namespace

class TestCsvReader : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void rows_data();
    void rows();
    void malformedInputStops_data();
    void malformedInputStops();
    void rowsKnowTheirLine();
    void byteOrderMarkArrivingByteByByte();
    void wideAndLongFields();
};

void TestCsvReader::rows_data()
{
    QTest::addColumn<QByteArray>("input");
    QTest::addColumn<QString>("rows");

    QTest::newRow("plain") << QByteArray("a,b,c\n1,2,3\n") << "a|b|c/1|2|3/";
    QTest::newRow("crlf") << QByteArray("a,b\r\n1,2\r\n") << "a|b/1|2/";
    QTest::newRow("lone-cr") << QByteArray("a,b\r1,2\r") << "a|b/1|2/";
    QTest::newRow("quoted-comma") << QByteArray("\"Troy, NY\",x\n") << "Troy, NY|x/";
    QTest::newRow("doubled-quotes") << QByteArray("\"say \"\"hi\"\"\",x\n") << "say \"hi\"|x/";
    QTest::newRow("quoted-line-break") << QByteArray("\"1 Elm\nBack\",x\n") << "1 Elm\nBack|x/";
    QTest::newRow("quoted-crlf-kept") << QByteArray("\"a\r\nb\"\r\n") << "a\r\nb/";
    QTest::newRow("empty-fields") << QByteArray(",,\n") << "||/";
    QTest::newRow("blank-line-is-one-empty-field") << QByteArray("a\n\nb\n") << "a//b/";
    QTest::newRow("quote-inside-unquoted-field-kept")
        << QByteArray("O\"Brien,x\n") << "O\"Brien|x/";
    QTest::newRow("bom-dropped") << QByteArray("\xEF\xBB\xBFname,zip\n") << "name|zip/";
    QTest::newRow("bom-only") << QByteArray("\xEF\xBB\xBF") << "";
    QTest::newRow("utf8-text") << QByteArray("Zo\xC3\xAB,\xC3\x85ngstr\xC3\xB6m\n")
                               << QString::fromUtf8("Zoë|Ångström/");
}

void TestCsvReader::rows()
{
    QFETCH(QByteArray, input);
    QFETCH(QString, rows);
    QBuffer buffer(&input);
    QVERIFY(buffer.open(QIODevice::ReadOnly));
    QString error;
    QCOMPARE(readAll(buffer, &error), rows);
    QCOMPARE(error, QString());
}

void TestCsvReader::malformedInputStops_data()
{
    QTest::addColumn<QByteArray>("input");
    QTest::addColumn<QString>("rowsBefore");
    QTest::addColumn<QString>("error");

    QTest::newRow("unterminated-quote")
        << QByteArray("a,b\n1,\"2\n3,4\n") << "a|b/"
        << "line 4: column 2: a quoted field that began on line 2 is never closed";
    QTest::newRow("junk-after-quote") << QByteArray("a,b\n\"1\"x,2\n") << "a|b/"
                                      << "line 2: column 1: text after the closing quote";
    QTest::newRow("latin1-byte") << QByteArray("a,b\nx,Zo\xEB\n") << "a|b/"
                                 << "line 2: column 2: the text is not UTF-8";
    QTest::newRow("cut-utf8-sequence") << QByteArray("\xC3") << ""
                                       << "line 1: column 1: the text is not UTF-8";
    QTest::newRow("field-over-a-mebibyte")
        << QByteArray("a\n") + QByteArray(CsvReader::MaxFieldBytes + 1, 'x') << "a/"
        << "line 2: column 1: a field longer than 1048576 bytes";
}

void TestCsvReader::malformedInputStops()
{
    QFETCH(QByteArray, input);
    QFETCH(QString, rowsBefore);
    QFETCH(QString, error);
    QBuffer buffer(&input);
    QVERIFY(buffer.open(QIODevice::ReadOnly));
    QString actual;
    QCOMPARE(readAll(buffer, &actual), rowsBefore);
    QVERIFY2(actual.startsWith(error), qPrintable(actual));
}

void TestCsvReader::rowsKnowTheirLine()
{
    QByteArray input("h\r\n\"two\r\nlines\"\r\nnext\rafter-cr\n\"a\nb\nc\"\nlast");
    QBuffer buffer(&input);
    QVERIFY(buffer.open(QIODevice::ReadOnly));
    QString error;
    QList<qint64> lines;
    readAll(buffer, &error, &lines);
    QCOMPARE(error, QString());
    QCOMPARE(lines, (QList<qint64>{1, 2, 4, 5, 6, 9}));
}

void TestCsvReader::byteOrderMarkArrivingByteByByte()
{
    const QByteArray input("\xEF\xBB\xBF\"first\",zip\r\n\"Ann\",1\r\n");
    for (int step : {1, 2, 3, 5}) {
        TrickleDevice device(input, step);
        QString error;
        QCOMPARE(readAll(device, &error), QStringLiteral("first|zip/Ann|1/"));
        QCOMPARE(error, QString());
    }
    // Bytes that only begin like a mark are text.
    TrickleDevice device(QByteArray("\xEF\xBB,x\n"), 1);
    QString error;
    readAll(device, &error);
    QVERIFY(error.contains(QLatin1String("not UTF-8")));
}

void TestCsvReader::wideAndLongFields()
{
    // 100,000 columns in one row, and a 10,000-character field.
    QByteArray wide;
    for (int i = 0; i < 100000; ++i)
        wide += "c" + QByteArray::number(i) + ',';
    wide.chop(1);
    const QByteArray longField(10000, 'y');
    QByteArray input = wide + "\n\"" + longField + "\"\n";
    QBuffer buffer(&input);
    QVERIFY(buffer.open(QIODevice::ReadOnly));
    CsvReader reader(&buffer);
    QStringList fields;
    QVERIFY(reader.readRow(fields));
    QCOMPARE(fields.size(), 100000);
    QCOMPARE(fields.last(), QStringLiteral("c99999"));
    QVERIFY(reader.readRow(fields));
    QCOMPARE(fields, QStringList{QString::fromLatin1(longField)});
    QCOMPARE(reader.bytesRead(), qint64(input.size()));
    QVERIFY(!reader.readRow(fields));
    QCOMPARE(reader.error(), QString());
}

QTEST_GUILESS_MAIN(TestCsvReader)
#include "tst_csvreader.moc"
