// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#include "records/addressrules.h"
#include "records/textmeasurer.h"

#include <QFontInfo>
#include <QFontMetricsF>
#include <QTest>

using namespace quirra;

namespace {

// Measures as the screen does, converted from pixels to twips.
class FontMeasurer : public TextMeasurer
{
public:
    explicit FontMeasurer(const QFont &font) : m_metrics(font) {}
    double TextWidth(const QString &text) override
    {
        return m_metrics.horizontalAdvance(text) * 1440.0 / m_metrics.fontDpi();
    }

private:
    QFontMetricsF m_metrics;
};

} // namespace

class TestRealFontFit : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cityLineInLiberationSans_data();
    void cityLineInLiberationSans();
};

void TestRealFontFit::cityLineInLiberationSans_data()
{
    QTest::addColumn<QString>("city");
    QTest::addColumn<QString>("code");
    QTest::addColumn<bool>("shortened");

    QTest::newRow("ordinary-city-keeps-two-blanks") << "Springfield," << "62704" << false;
    QTest::newRow("long-city-is-shortened")
        << "Saint Clair Shores Charter Township," << "48080-1234" << true;
    QTest::newRow("wide-capitals-are-shortened") << "WWWWWWWWWWWWWWWWWWWWWW," << "82001" << true;
}

void TestRealFontFit::cityLineInLiberationSans()
{
    QFETCH(QString, city);
    QFETCH(QString, code);
    QFETCH(bool, shortened);

    const QFont font(QStringLiteral("Liberation Sans"), 10);
    if (QFontInfo(font).family() != QLatin1String("Liberation Sans")) {
        QSKIP("Liberation Sans is not installed");
    }
    FontMeasurer measurer(font);
    const double widest = DefaultWidestCityLine;
    const QString line = FitCityStateZip(city, QStringLiteral("MI"), code, widest, measurer);
    const QString full = city + QStringLiteral("  MI  ") + code;
    QCOMPARE(measurer.TextWidth(full) > widest, shortened);
    if (!shortened) {
        QCOMPARE(line, full);
        return;
    }
    // Shortened by more than its comma, to the longest cut that fits.
    const QString tail = QStringLiteral(" MI ") + code;
    const qsizetype kept = line.size() - tail.size();
    QCOMPARE(line, city.left(kept) + tail);
    QVERIFY2(kept > 0 && kept < city.size() - 1, qPrintable(line));
    QVERIFY(measurer.TextWidth(line) < widest);
    QVERIFY(measurer.TextWidth(city.left(kept + 1) + tail) >= widest);
}

QTEST_MAIN(TestRealFontFit)
#include "tst_realfontfit.moc"
