// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#include "records/intelligentmail.h"

#include <QtTest>

using namespace quirra;

class TestIntelligentMail : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void encodes_data()
    {
        QTest::addColumn<QString>("barCode");
        QTest::addColumn<QString>("zip");
        QTest::addColumn<QString>("routing");
        QTest::addColumn<QString>("bars");
        // The postal service's own examples: one tracking code with each length
        // of routing code.
        QTest::newRow("no-routing")
            << "01234567094987654321"
            << ""
            << ""
            << "ATTFATTDTTADTAATTDTDTATTDAFDDFADFDFTFFFFFTATFAAAATDFFTDAADFTFDTDT";
        QTest::newRow("zip5-after-dash")
            << "01234567094987654321-01234"
            << "99999"
            << "01234"
            << "DTTAFADDTTFTDTFTFDTDDADADAFADFATDDFTAAAFDTTADFAAATDFDTDFADDDTDFFT";
        QTest::newRow("zip9-from-record")
            << "01234567094987654321"
            << "01234-5678"
            << "012345678"
            << "ADFTTAFDTTTTFATTADTAAATFTFTATDAAAFDDADATATDTDTTDFDTDATADADTDFFTFA";
        QTest::newRow("zip11-run-on")
            << "0123456709498765432101234567891"
            << ""
            << "01234567891"
            << "AADTFFDFTDADTAADAATFDTDDAAADDTDTTDAFADADDDTFFFDDTTTADFAAADFTDAADA";
        QTest::newRow("zip11-after-blank")
            << " 01234567094987654321 01234567891 "
            << "12345"
            << "01234567891"
            << "AADTFFDFTDADTAADAATFDTDDAAADDTDTTDAFADADDDTFFFDDTTTADFAAADFTDAADA";
    }

    void encodes()
    {
        QFETCH(QString, barCode);
        QFETCH(QString, zip);
        QFETCH(QString, routing);
        QFETCH(QString, bars);
        const IntelligentMailBarcode code(barCode, zip);
        QVERIFY2(code.isValid(), qPrintable(code.error()));
        QCOMPARE(code.tracking(), QStringLiteral("01234567094987654321"));
        QCOMPARE(code.routing(), routing);
        QCOMPARE(code.bars(), bars);
    }

    void refuses_data()
    {
        QTest::addColumn<QString>("barCode");
        QTest::addColumn<QString>("zip");
        QTest::addColumn<QString>("why");
        QTest::newRow("letters") << "0123456709498765432A"
                                 << "98101"
                                 << "holds more than digits";
        QTest::newRow("short") << "0123456709498765432"
                               << "98101"
                               << "has 19 digits";
        QTest::newRow("routing-of-one") << "012345670949876543219"
                                        << "98101"
                                        << "has 21 digits";
        QTest::newRow("two-separators") << "01234567094987654321--01234"
                                        << ""
                                        << "holds more than digits";
        QTest::newRow("identifier-above-4") << "05234567094987654321"
                                            << "98101"
                                            << "second digit";
        QTest::newRow("zip-of-four") << "01234567094987654321"
                                     << "9810"
                                     << "gives none";
        QTest::newRow("empty") << "  "
                               << "98101"
                               << "empty";
    }

    void refuses()
    {
        QFETCH(QString, barCode);
        QFETCH(QString, zip);
        QFETCH(QString, why);
        const IntelligentMailBarcode code(barCode, zip);
        QVERIFY(!code.isValid());
        QVERIFY2(code.error().contains(why), qPrintable(code.error()));
        QVERIFY(code.bars().isEmpty());
    }
};

QTEST_GUILESS_MAIN(TestIntelligentMail)
#include "tst_intelligentmail.moc"
