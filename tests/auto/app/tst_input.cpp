// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
//
// What the program takes in: CSV rows, their columns as a recipient, and
// the --set assignments of properties.
#include "addresscolumns.h"
#include "columns.h"
#include "csvreader.h"
#include "propertyassignment.h"

#include <QBuffer>
#include <QFont>
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

// The kinds of property the control publishes, one each.
class Target : public QObject
{
    Q_OBJECT
    Q_PROPERTY(short Border MEMBER m_border)
    Q_PROPERTY(float Top MEMBER m_top)
    Q_PROPERTY(bool Visible MEMBER m_visible)
    Q_PROPERTY(QString Text MEMBER m_text)
    Q_PROPERTY(QFont Font MEMBER m_font)
    Q_PROPERTY(Align HorzAlign MEMBER m_align)
    Q_PROPERTY(Orient Orientation MEMBER m_orient)
    Q_PROPERTY(QString Fixed READ fixed)

public:
    enum Align : qint32 { haLeft = 0, haCenter = 1, haRight = 2 };
    Q_ENUM(Align)
    enum Orient : qint16 { eoPortrait = 0, eoLandscape = 1 };
    Q_ENUM(Orient)

    QString fixed() const { return QStringLiteral("fixed"); }

    short m_border = -1;
    float m_top = -1;
    bool m_visible = false;
    QString m_text = QStringLiteral("untouched");
    QFont m_font = QFont(QStringLiteral("DejaVu Serif"), 17, QFont::Bold, true);
    Align m_align = haLeft;
    Orient m_orient = eoPortrait;
};

class TestInput : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void rows_data()
    {
        // rows: read before an error
        // error: how it starts; empty: none
        columns<QByteArray, QString, QString>("input", "rows", "error");
        const auto row = [](const char *tag, const QByteArray &input, const QString &rows,
                            const QString &error = QString()) {
            QTest::newRow(tag) << input << rows << error;
        };

        row("plain", "a,b,c\n1,2,3\n", "a|b|c/1|2|3/");
        row("crlf", "a,b\r\n1,2\r\n", "a|b/1|2/");
        row("lone-cr", "a,b\r1,2\r", "a|b/1|2/");
        row("quoted-comma", "\"Troy, NY\",x\n", "Troy, NY|x/");
        row("doubled-quotes", "\"say \"\"hi\"\"\",x\n", "say \"hi\"|x/");
        row("quoted-line-break", "\"1 Elm\nBack\",x\n", "1 Elm\nBack|x/");
        row("quoted-crlf-kept", "\"a\r\nb\"\r\n", "a\r\nb/");
        row("empty-fields", ",,\n", "||/");
        row("blank-line-is-one-empty-field", "a\n\nb\n", "a//b/");
        row("quote-inside-unquoted-field-kept", "O\"Brien,x\n", "O\"Brien|x/");
        row("bom-dropped", "\xEF\xBB\xBF\"first\",zip\r\n\"Ann\",1\r\n", "first|zip/Ann|1/");
        row("bom-only", "\xEF\xBB\xBF", "");
        row("utf8-text", "Zo\xC3\xAB,\xC3\x85ngstr\xC3\xB6m\n", QString::fromUtf8("Zoë|Ångström/"));
        row("unterminated-quote", "a,b\n1,\"2\n3,4\n", "a|b/",
            "line 4: column 2: a quoted field that began on line 2 is never closed");
        row("junk-after-quote", "a,b\n\"1\"x,2\n", "a|b/",
            "line 2: column 1: text after the closing quote");
        row("latin1-byte", "a,b\nx,Zo\xEB\n", "a|b/", "line 2: column 2: the text is not UTF-8");
        row("cut-utf8-sequence", "\xC3", "", "line 1: column 1: the text is not UTF-8");
        row("only-the-start-of-a-mark-is-text", "\xEF\xBB,x\n", "",
            "line 1: column 1: the text is not UTF-8");
        row("field-over-a-mebibyte",
            QByteArray("a\n") + QByteArray(CsvReader::MaxFieldBytes + 1, 'x'), "a/",
            "line 2: column 1: a field longer than 1048576 bytes");
    }

    void rows()
    {
        auto [input, error] = fetched<QByteArray, QString>("input", "error");
        // All at once, and trickling in a byte or two at a time (a byte order
        // mark or a character split between reads).
        for (const int step : {0, 1, 2}) {
            QBuffer buffer(&input);
            QVERIFY(buffer.open(QIODevice::ReadOnly));
            TrickleDevice trickle(input, step);
            QString actual;
            QTEST(readAll(step ? static_cast<QIODevice &>(trickle) : buffer, &actual), "rows");
            QVERIFY2(error.isEmpty() ? actual.isEmpty() : actual.startsWith(error),
                     qPrintable(actual));
        }
    }

    void rowsKnowTheirLine()
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

    void wideAndLongFields()
    {
        // 100,000 columns in one row, mapped to entries, and a 10,000-character field.
        QByteArray header = "last", values = "Lee";
        for (int i = 1; i < 100000; ++i) {
            header += ",c" + QByteArray::number(i);
            values += ',' + QByteArray::number(i);
        }
        const QByteArray longField(10000, 'y');
        QByteArray input = header + '\n' + values + "\n\"" + longField + "\"\n";
        QBuffer buffer(&input);
        QVERIFY(buffer.open(QIODevice::ReadOnly));
        CsvReader reader(&buffer);
        QStringList names, fields;
        QVERIFY(reader.readRow(names) && reader.readRow(fields));
        QCOMPARE(fields.size(), 100000);
        QCOMPARE(names.last(), QStringLiteral("c99999"));
        AddressColumns columns;
        QString error;
        AddressRow out;
        QVERIFY(columns.setHeader(names, &error) && columns.mapRow(fields, out, &error));
        const QString &entries = out[AddressField::Substitute];
        QVERIFY(entries.startsWith(QLatin1String("c1^1|c2^2|")));
        QVERIFY(entries.endsWith(QLatin1String("|c99999^99999")));
        QCOMPARE(entries.count(QLatin1Char('|')), 99998);

        QVERIFY(reader.readRow(fields));
        QCOMPARE(fields, QStringList{QString::fromLatin1(longField)});
        QCOMPARE(reader.bytesRead(), qint64(input.size()));
        QVERIFY(!reader.readRow(fields));
        QCOMPARE(reader.error(), QString());
    }

    void mapsRows_data()
    {
        // recipient: or "refused: " and the start of the error
        const Rows<QStringList, QStringList, QString> row("header", "row", "recipient");

        row("plain-names",
            {"first", "middle", "last", "address1", "address2", "city", "state", "zip"},
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
        row("bar-in-an-entry", fln, {"Ann", "Lee", "a|b"},
            "refused: column 3 (\"note\") holds a |");
        row("too-few-fields", fln, {"Ann", "Lee"},
            "refused: the row has 2 fields but the header has 3");
    }

    void mapsRows()
    {
        const auto [header, row, recipient] =
            fetched<QStringList, QStringList, QString>("header", "row", "recipient");

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
            // first|middle|last|address1|address2|city|state|zip|substitute
            QCOMPARE(QStringList(out.fields.begin(), out.fields.end()).join(u'|'), recipient);
        }
    }

    void setsByType_data()
    {
        columns<QString, QVariant>("argument", "expected");

        QTest::newRow("short") << "Border=2" << QVariant::fromValue<short>(2);
        QTest::newRow("short-negative-with-blanks")
            << "Border= -32768 " << QVariant::fromValue<short>(-32768);
        QTest::newRow("float-inches") << "Top=0.25" << QVariant(0.25f);
        QTest::newRow("bool-word-any-case") << "Visible=TRUE" << QVariant(true);
        QTest::newRow("bool-digit") << "Visible=1" << QVariant(true);
        QTest::newRow("text-as-it-stands")
            << "Text=ACME Mail, 1 Main St" << QVariant("ACME Mail, 1 Main St");
        QTest::newRow("text-keeps-equals-and-blanks") << "Text= a=b " << QVariant(" a=b ");
        QTest::newRow("text-line-breaks-become-crlf") << "Text=a\\nb\\n" << QVariant("a\r\nb\r\n");
        QTest::newRow("text-escaped-backslash") << "Text=C:\\\\n\\x" << QVariant("C:\\n\\x");
        QTest::newRow("enum-by-name") << "HorzAlign=haRight" << QVariant(2);
        QTest::newRow("enum-by-name-any-case") << "HorzAlign=HACENTER" << QVariant(1);
        QTest::newRow("enum-by-number") << "HorzAlign=1" << QVariant(1);
        QTest::newRow("16-bit-enum-by-name") << "Orientation=eoLandscape" << QVariant(1);
        QFont serif = Target().m_font;
        serif.setFamily(QStringLiteral("Liberation Serif"));
        serif.setPointSizeF(14);
        QTest::newRow("font-family-and-size") << "Font=Liberation Serif, 14" << QVariant(serif);
        // A family alone keeps the size and style the property had.
        QFont mono = Target().m_font;
        mono.setFamily(QStringLiteral("Liberation Mono"));
        QTest::newRow("font-family-alone-keeps-the-rest")
            << "Font=Liberation Mono" << QVariant(mono);
        QFont full(QStringLiteral("DejaVu Sans"), 9, QFont::Bold, true);
        full.setUnderline(true);
        QTest::newRow("font-as-qfont-writes-it") << "Font=" + full.toString() << QVariant(full);
    }

    void setsByType()
    {
        const auto [argument, expected] = fetched<QString, QVariant>("argument", "expected");

        PropertyAssignment assignment;
        QString error;
        QVERIFY(PropertyAssignment::parse(argument, &assignment, &error));
        Target target;
        QVERIFY2(assignment.apply(&target, &error), qPrintable(error));
        const QVariant actual = target.property(assignment.name().toLatin1().constData());
        if (actual.metaType().flags().testFlag(QMetaType::IsEnumeration))
            QCOMPARE(actual.toInt(), expected.toInt());
        else
            QCOMPARE(actual, expected);
    }

    void refuses_data()
    {
        const Rows<QString, QString> row("argument", "error");

        row("unknown-name", "Bottom=1", "--set Bottom: the control has no property \"Bottom\"");
        row("wrong-case-suggests", "horzalign=1", "did you mean HorzAlign?");
        row("qobject-property-not-reachable", "objectName=x", "no property \"objectName\"");
        row("read-only", "Fixed=x", "--set Fixed: the property cannot be set");
        row("short-too-big", "Border=32768", "Border takes a whole number from -32768 to 32767");
        row("short-fraction", "Border=1.5", "Border takes a whole number");
        row("float-word", "Top=high", "Top takes a number with a full stop");
        row("float-infinite", "Top=inf", "Top takes a number");
        row("float-beyond-single", "Top=1e39", "Top takes a number");
        row("bool-yes", "Visible=yes", "Visible takes true or false (or 1 or 0)");
        row("enum-unknown-number", "HorzAlign=5",
            "HorzAlign takes one of haLeft (0), haCenter (1), haRight (2)");
        row("enum-other-enums-key", "Orientation=haLeft",
            "Orientation takes one of eoPortrait (0)");
        row("font-empty", "Font=", "Font takes a font");
        row("font-size-zero", "Font=Liberation Sans,0", "Font takes a font");
    }

    void refuses()
    {
        const auto [argument, error] = fetched<QString, QString>("argument", "error");

        PropertyAssignment assignment;
        QString actual;
        QVERIFY(PropertyAssignment::parse(argument, &assignment, &actual));
        Target target;
        QVERIFY(!assignment.apply(&target, &actual));
        QVERIFY2(actual.contains(error), qPrintable(actual));
        // Nothing was written.
        const Target untouched;
        for (int i = 0; i < Target::staticMetaObject.propertyCount(); ++i)
            QCOMPARE(target.metaObject()->property(i).read(&target),
                     target.metaObject()->property(i).read(&untouched));
    }
};

QTEST_MAIN(TestInput)
#include "tst_input.moc"
