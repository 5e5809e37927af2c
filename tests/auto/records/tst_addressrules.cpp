// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#include "records/addressrules.h"
#include "records/textmeasurer.h"
#include "spoolfixture.h"

#include <QElapsedTimer>
#include <QRegularExpression>
#include <QTest>

#include <stdexcept>

using namespace quirra;

namespace {

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

class TestAddressRules : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_path = fixture::newSpool(); }
    void cleanup() { QFile::remove(m_path); }

    void fitCityStateZip_data()
    {
        QTest::addColumn<QString>("city");
        QTest::addColumn<double>("widest");
        QTest::addColumn<QString>("line");
        QTest::addColumn<int>("measured");

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
        QFETCH(QString, city);
        QFETCH(double, widest);
        QFETCH(QString, line);
        QFETCH(int, measured);

        FixedMeasurer m;
        QCOMPARE(FitCityStateZip(city, QStringLiteral("IL"), QStringLiteral("62704"), widest, m),
                 line);
        QCOMPARE(m.calls, measured);
    }

    void longCityIsCutInBoundedWork_data()
    {
        QTest::addColumn<int>("fitting"); // longest cut that fits by width; 0: none
        QTest::addColumn<int>("dip");     // a longer cut that fits out of turn; 0: none
        QTest::addColumn<int>("expected");

        QTest::newRow("fits-just-below-the-walk") << 199936 << 0 << 199936;
        QTest::newRow("fits-nowhere") << 0 << 0 << 0;
        QTest::newRow("one-letter-fits-after-the-bisection") << 1 << 0 << 1;
        // The walk from above the bisection finds what a full walk would.
        QTest::newRow("dip-above-the-fit") << 77777 << 77800 << 77800;
    }

    void longCityIsCutInBoundedWork()
    {
        QFETCH(int, fitting);
        QFETCH(int, dip);
        QFETCH(int, expected);

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
        QTest::addColumn<QString>("record");
        QTest::addColumn<double>("widest");
        QTest::addColumn<QString>("lines"); // as shown()

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
        QFETCH(QString, record);
        QFETCH(double, widest);
        QFETCH(QString, lines);

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
        QCOMPARE(shown(got), lines);
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
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("list");
        QTest::addColumn<QString>("expected");
        QTest::addColumn<QString>("separator"); // between entries
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
        QFETCH(QString, text);
        QFETCH(QString, list);
        QFETCH(QString, expected);
        QFETCH(QString, separator);

        QElapsedTimer clock;
        clock.start();
        QCOMPARE(ReplaceTokens(text, list, QStringLiteral("^"), separator), expected);
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

private:
    QString m_path;
};

QTEST_GUILESS_MAIN(TestAddressRules)
#include "tst_addressrules.moc"
