// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#include "settings/units.h"

#include <QRegularExpression>
#include <QTest>

#include <cmath>

using namespace quirra;

class TestUnits : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void formatNumber_data();
    void formatNumber();
    void displayTwipsToText_data();
    void displayTwipsToText();
    void tiesGiveTheSecondArgument();
};

void TestUnits::formatNumber_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<QString>("pattern");
    QTest::addColumn<QString>("expected");
    const auto row = [](const char *tag, double value, const QString &format,
                        const QString &expected) {
        QTest::newRow(tag) << value << format << expected;
    };

    row("whole-number-keeps-point", 2.0, "#0.##", "2.");
    row("half-away-on-15-digits", 2.675, "#0.##", "2.68");
    row("negative-half-away", -2.675, "#0.##", "-2.68");
    row("rounds-to-zero-without-minus", -0.001, "#0.##", "0.");
    row("carry-into-a-new-digit", 9.999, "#0.##", "10.");
    row("hash-drops-leading-zero", 0.5, "#.##", ".5");
    row("fixed-decimals-padded", 2.0, "0.00", "2.00");
    row("fixed-decimals-rounded", 0.125, "0.00", "0.13");
    row("whole-half-away", -2.5, "#0", "-3");
    row("tiny-number", 1e-20, "#0.##", "0.");
    // Nothing but the half just past the last decimal shown.
    row("half-past-the-last-decimal-rounds-up", 0.005, "#0.##", "0.01");
    row("below-half-past-the-last-decimal", 0.0049, "#0.##", "0.");
    row("text-around-kept", 2.0, "0.00 in", "2.00 in");
}

void TestUnits::formatNumber()
{
    QFETCH(double, value);
    QFETCH(QString, pattern);
    QFETCH(QString, expected);
    QCOMPARE(FormatNumber(value, pattern), expected);
}

void TestUnits::displayTwipsToText_data()
{
    QTest::addColumn<float>("scale");
    QTest::addColumn<double>("twips");
    QTest::addColumn<QString>("expected");

    QTest::newRow("one-inch-keeps-point") << 1.0f << 1440.0 << "1.";
    QTest::newRow("inch-and-a-half") << 1.0f << 2160.0 << "1.5";
    QTest::newRow("rounded-to-hundredths") << 1.0f << 1000.0 << "0.69";
    QTest::newRow("scale-divides") << 2.0f << 2160.0 << "0.75";
    QTest::newRow("zero-scale-taken-as-one") << 0.0f << 1440.0 << "1.";
}

void TestUnits::displayTwipsToText()
{
    QFETCH(float, scale);
    QFETCH(double, twips);
    QFETCH(QString, expected);
    if (scale <= 0)
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("display scale")));
    QCOMPARE(DisplayTwipsToText(twips, scale), expected);
    // A length placed on the editor's surface shows as itself.
    if (scale > 0)
        QCOMPARE(DisplayTwipsToText(InchesToDisplayTwips(4.333, scale), scale),
                 QStringLiteral("4.33"));
}

void TestUnits::tiesGiveTheSecondArgument()
{
    // +0 and -0 are equal, so the sign tells which argument came back.
    QVERIFY(std::signbit(Larger(0.0f, -0.0f)));
    QVERIFY(!std::signbit(Larger(-0.0f, 0.0f)));
    QVERIFY(std::signbit(Smaller(0.0f, -0.0f)));
    QVERIFY(!std::signbit(Smaller(-0.0f, 0.0f)));
    QCOMPARE(Larger(3, 2), 3.0f);
    QCOMPARE(Smaller(3, 2), 2.0f);
}

QTEST_GUILESS_MAIN(TestUnits)
#include "tst_units.moc"
