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
    void hundredThousandColumns();
};

void TestAddressColumns::mapsRows_data()
{
    QTest::addColumn<QStringList>("header");
    QTest::addColumn<QStringList>("row");
    QTest::addColumn<QString>("recipient"); // or "refused: " and the start of the error
    const auto row = [](const char *tag, const QStringList &header, const QStringList &values,
                        const QString &recipient) {
        QTest::newRow(tag) << header << values << recipient;
    };

    row("plain-names", {"first", "middle", "last", "address1", "address2", "city", "state", "zip"},
        {"Ann", "Q", "Lee", "1 Elm", "Apt 2", "Troy", "NY", "12180"},
        "Ann|Q|Lee|1 Elm|Apt 2|Troy|NY|12180||");
    row("record-names-any-case-any-order", {"ZIP", "Addr_1", "NM_LAST", "nm_first"},
        {"12180", "1 Elm", "Lee", "Ann"}, "Ann||Lee|1 Elm||||12180||");
    row("other-columns-become-entries", {"last", "salutation", "Code"}, {"Lee", "Ms. Lee", "7"},
        "||Lee||||||salutation^Ms. Lee|Code^7|");
    row("substitute-column-first-then-entries", {"salutation", "last", "substitute"},
        {"Dr. Lee", "Lee", "club^Rotary|year^1999"},
        "||Lee||||||club^Rotary|year^1999|salutation^Dr. Lee|");
    row("substitute-column-as-it-stands", {"last", "substitute"}, {"Lee", "a^b|c|^d"},
        "||Lee||||||a^b|c|^d|");
    row("unnamed-column-left-out", {"last", "", "note"}, {"Lee", "ignored", "n"},
        "||Lee||||||note^n|");
    row("caret-in-an-entry-value", {"last", "math"}, {"Lee", "2^10"}, "||Lee||||||math^2^10|");
    row("barcode-columns-any-case", {"last", "IMb"}, {"Lee", "01234567094987654321"},
        "||Lee|||||||01234567094987654321");

    // Headers refused before any row.
    row("no-address-column", {"name", "phone"}, {},
        "refused: the header row names no address column");
    row("substitute-alone-is-no-address", {"substitute"}, {},
        "refused: the header row names no address column");
    row("same-field-twice", {"first", "nm_first"}, {},
        "refused: the columns \"first\" and \"nm_first\" both name");
    row("same-entry-twice", {"last", "note", "x", "note"}, {},
        "refused: columns 2 and 4 are both named \"note\"");
    row("caret-in-a-name", {"last", "a^b"}, {},
        "refused: column 2: the name \"a^b\" cannot be used");
    // Values refused under a good header.
    const QStringList fln{"first", "last", "note"};
    row("double-quote", fln, {"Ann", "O\"Lee", ""},
        "refused: column 2 (\"last\") holds a double quote");
    row("line-feed", fln, {"Ann", "Lee", "a\nb"},
        "refused: column 3 (\"note\") holds a line break");
    row("bar-in-an-entry", fln, {"Ann", "Lee", "a|b"}, "refused: column 3 (\"note\") holds a |");
    row("too-few-fields", fln, {"Ann", "Lee"},
        "refused: the row has 2 fields but the header has 3");
}

void TestAddressColumns::mapsRows()
{
    QFETCH(QStringList, header);
    QFETCH(QStringList, row);
    QFETCH(QString, recipient);

    AddressColumns columns;
    QString error;
    AddressRow out;
    // A reused row is filled afresh.
    out[AddressField::State] = QStringLiteral("stale");
    const bool mapped = columns.setHeader(header, &error) && columns.mapRow(row, out, &error);
    if (recipient.startsWith(QLatin1String("refused: "))) {
        QVERIFY2(!mapped && error.startsWith(recipient.mid(9)), qPrintable(error));
    } else {
        QVERIFY2(mapped, qPrintable(error));
        QCOMPARE(joined(out), recipient);
    }
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
