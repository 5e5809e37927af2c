// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#include "addresscolumns.h"

#include <QTest>

using namespace quirra;

namespace {

// The recipient as "first|middle|last|address1|address2|city|state|zip|substitute".
QString joined(const AddressRow &row)
{
    return QStringList(row.fields.begin(), row.fields.end()).join(QLatin1Char('|'));
}

} // namespace

class TestAddressColumns : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void mapsRows_data();
    void mapsRows();
    void refusesHeaders_data();
    void refusesHeaders();
    void refusesValues_data();
    void refusesValues();
    void hundredThousandColumns();
};

void TestAddressColumns::mapsRows_data()
{
    QTest::addColumn<QStringList>("header");
    QTest::addColumn<QStringList>("row");
    QTest::addColumn<QString>("recipient");

    QTest::newRow("plain-names") << QStringList{"first",    "middle", "last",  "address1",
                                                "address2", "city",   "state", "zip"}
                                 << QStringList{"Ann",   "Q",    "Lee", "1 Elm",
                                                "Apt 2", "Troy", "NY",  "12180"}
                                 << "Ann|Q|Lee|1 Elm|Apt 2|Troy|NY|12180||";
    QTest::newRow("record-names-any-case-any-order")
        << QStringList{"ZIP", "Addr_1", "NM_LAST", "nm_first"}
        << QStringList{"12180", "1 Elm", "Lee", "Ann"} << "Ann||Lee|1 Elm||||12180||";
    QTest::newRow("other-columns-become-entries")
        << QStringList{"last", "salutation", "Code"} << QStringList{"Lee", "Ms. Lee", "7"}
        << "||Lee||||||salutation^Ms. Lee|Code^7|";
    QTest::newRow("substitute-column-first-then-entries")
        << QStringList{"salutation", "last", "substitute"}
        << QStringList{"Dr. Lee", "Lee", "club^Rotary|year^1999"}
        << "||Lee||||||club^Rotary|year^1999|salutation^Dr. Lee|";
    QTest::newRow("substitute-column-as-it-stands")
        << QStringList{"last", "substitute"} << QStringList{"Lee", "a^b|c|^d"}
        << "||Lee||||||a^b|c|^d|";
    QTest::newRow("unnamed-column-left-out")
        << QStringList{"last", "", "note"} << QStringList{"Lee", "ignored", "n"}
        << "||Lee||||||note^n|";
    QTest::newRow("caret-in-an-entry-value")
        << QStringList{"last", "math"} << QStringList{"Lee", "2^10"} << "||Lee||||||math^2^10|";
    QTest::newRow("barcode-columns-any-case")
        << QStringList{"last", "IMb"} << QStringList{"Lee", "01234567094987654321"}
        << "||Lee|||||||01234567094987654321";
}

void TestAddressColumns::mapsRows()
{
    QFETCH(QStringList, header);
    QFETCH(QStringList, row);
    QFETCH(QString, recipient);

    AddressColumns columns;
    QString error;
    QVERIFY2(columns.setHeader(header, &error), qPrintable(error));
    AddressRow out;
    // A reused row is filled afresh.
    out[AddressField::State] = QStringLiteral("stale");
    QVERIFY2(columns.mapRow(row, out, &error), qPrintable(error));
    QCOMPARE(joined(out), recipient);
}

void TestAddressColumns::refusesHeaders_data()
{
    QTest::addColumn<QStringList>("header");
    QTest::addColumn<QString>("error");

    QTest::newRow("no-address-column")
        << QStringList{"name", "phone"} << "the header row names no address column";
    QTest::newRow("substitute-alone-is-no-address")
        << QStringList{"substitute"} << "the header row names no address column";
    QTest::newRow("same-field-twice")
        << QStringList{"first", "nm_first"} << "the columns \"first\" and \"nm_first\" both name";
    QTest::newRow("same-entry-twice")
        << QStringList{"last", "note", "x", "note"} << "columns 2 and 4 are both named \"note\"";
    QTest::newRow("caret-in-a-name")
        << QStringList{"last", "a^b"} << "column 2: the name \"a^b\" cannot be used";
}

void TestAddressColumns::refusesHeaders()
{
    QFETCH(QStringList, header);
    QFETCH(QString, error);
    AddressColumns columns;
    QString actual;
    QVERIFY(!columns.setHeader(header, &actual));
    QVERIFY2(actual.startsWith(error), qPrintable(actual));
}

void TestAddressColumns::refusesValues_data()
{
    QTest::addColumn<QStringList>("row");
    QTest::addColumn<QString>("error");

    // The header: first, last, note.
    QTest::newRow("double-quote") << QStringList{"Ann", "O\"Lee", ""}
                                  << "column 2 (\"last\") holds a double quote";
    QTest::newRow("line-feed") << QStringList{"Ann", "Lee", "a\nb"}
                               << "column 3 (\"note\") holds a line break";
    QTest::newRow("bar-in-an-entry")
        << QStringList{"Ann", "Lee", "a|b"} << "column 3 (\"note\") holds a |";
    QTest::newRow("too-few-fields")
        << QStringList{"Ann", "Lee"} << "the row has 2 fields but the header has 3";
}

void TestAddressColumns::refusesValues()
{
    QFETCH(QStringList, row);
    QFETCH(QString, error);
    AddressColumns columns;
    QString actual;
    QVERIFY(columns.setHeader({"first", "last", "note"}, &actual));
    AddressRow out;
    QVERIFY(!columns.mapRow(row, out, &actual));
    QVERIFY2(actual.startsWith(error), qPrintable(actual));
}

void TestAddressColumns::hundredThousandColumns()
{
    QStringList header{QStringLiteral("last")};
    QStringList row{QStringLiteral("Lee")};
    for (int i = 1; i < 100000; ++i) {
        header << QStringLiteral("c%1").arg(i);
        row << QString::number(i);
    }
    AddressColumns columns;
    QString error;
    QVERIFY(columns.setHeader(header, &error));
    AddressRow out;
    QVERIFY(columns.mapRow(row, out, &error));
    const QString &entries = out[AddressField::Substitute];
    QVERIFY(entries.startsWith(QLatin1String("c1^1|c2^2|")));
    QVERIFY(entries.endsWith(QLatin1String("|c99999^99999")));
    QCOMPARE(entries.count(QLatin1Char('|')), 99998);
}

QTEST_GUILESS_MAIN(TestAddressColumns)
#include "tst_addresscolumns.moc"
