// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#include "settings/settings.h"

#include "model/error.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <climits>

using namespace quirra;

namespace {
constexpr int Overflow = INT_MIN;
}

class TestSettings : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void readSettingList_data();
    void readSettingList();
    void readSettingOr();
    void parseBoolean_data();
    void parseBoolean();
    void parseNumbers_data();
    void parseNumbers();

private:
    QString write(const QByteArray &content)
    {
        QFile f(m_dir.filePath(QStringLiteral("f%1.cfg").arg(++m_files)));
        if (!f.open(QIODevice::WriteOnly) || f.write("[S]\n" + content) < 0)
            qFatal("cannot write %s", qPrintable(f.fileName()));
        return f.fileName();
    }
    QTemporaryDir m_dir;
    int m_files = 0;
};

void TestSettings::readSettingList_data()
{
    QTest::addColumn<QByteArray>("keys");
    QTest::addColumn<QString>("slots"); // joined by "|"; its parts give the list's bound
    QTest::addColumn<int>("last");

    QTest::newRow("gap-leaves-empty-slot") << QByteArray("size(1)=a\nsize(3)=c") << "a||c||" << 3;
    QTest::newRow("first-entries-missing") << QByteArray("size(3)=c") << "||c" << 3;
    QTest::newRow("marker-empty-but-present") << QByteArray("size(2)=`") << "|||" << 2;
    QTest::newRow("bare-key-alone") << QByteArray("Size=only") << "only||" << 1;
    QTest::newRow("bare-key-marker") << QByteArray("size=`") << "|" << 1;
    QTest::newRow("bare-key-ignored-beside-indexed")
        << QByteArray("size=x\nSIZE(2)=b") << "|b" << 2;
    QTest::newRow("index-beyond-bound-unseen") << QByteArray("size(4)=d") << "||" << 0;
    QTest::newRow("quoted-blank-counts-as-present") << QByteArray("size(1)=\"  \"") << "|" << 1;
    QTest::newRow("quoted-padding-trimmed") << QByteArray("size(1)=\" a \"") << "a" << 1;
}

void TestSettings::readSettingList()
{
    QFETCH(QByteArray, keys);
    QFETCH(QString, slots);
    QFETCH(int, last);
    const QStringList expected = slots.split(u'|');
    QStringList got(expected.size(), QStringLiteral("stale"));
    QCOMPARE(ReadSettingList(write(keys), QStringLiteral("S"), QStringLiteral("size"), got), last);
    QCOMPARE(got, expected);
}

void TestSettings::readSettingOr()
{
    const QString file = write("blank=\"   \"\nempty=\npadded=\" v \"");
    auto read = [&](const char *key) {
        return ReadSettingOr(file, QStringLiteral("S"), QLatin1String(key), QStringLiteral("D"));
    };
    QCOMPARE(read("blank"), QStringLiteral("D"));
    QCOMPARE(read("empty"), QStringLiteral("D"));
    QCOMPARE(read("missing"), QStringLiteral("D"));
    QCOMPARE(read("padded"), QStringLiteral(" v ")); // kept untrimmed
}

void TestSettings::parseBoolean_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("expected");
    QTest::newRow("yes-lower-case") << "yes" << true;
    QTest::newRow("on-with-blanks") << "  On " << true;
    QTest::newRow("minus-one") << "-1" << true;
    QTest::newRow("two") << "2" << false;
    QTest::newRow("true-with-full-stop") << "TRUE." << false;
    QTest::newRow("one-point-zero") << "1.0" << false;
}

void TestSettings::parseBoolean()
{
    QFETCH(QString, text);
    QFETCH(bool, expected);
    QCOMPARE(ParseBoolean(text), expected);
}

void TestSettings::parseNumbers_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("numeric");
    QTest::addColumn<double>("number");
    QTest::addColumn<float>("single");
    QTest::addColumn<int>("integer"); // Overflow: ParseInteger throws
    // single: NaN when it is the number as a float.
    const auto row = [](const char *tag, const QString &text, bool numeric, double number,
                        int integer, float single = qQNaN()) {
        QTest::newRow(tag) << text << numeric << number << (qIsNaN(single) ? float(number) : single)
                           << integer;
    };

    row("point-alone", ".", false, 0.0, 0);
    row("empty", "", false, 0.0, 0);
    row("decimal-with-blanks", " 1.5 ", true, 1.5, 2);
    row("halves-round-to-even-down", "2.5", true, 2.5, 2);
    row("negative-half-to-even", "-2.5", true, -2.5, -2);
    row("plus-sign-and-exponent", "+1e2", true, 100.0, 100);
    row("smallest-16-bit", "-32768.4", true, -32768.4, -32768);
    row("comma-is-not-a-point", "1,5", false, 0.0, 0);
    row("trailing-unit", "1.5in", false, 0.0, 0);
    row("infinity-word", "inf", false, 0.0, 0);
    row("beyond-double", "1e999", false, 0.0, 0);
    row("one-past-the-top", "32768", true, 32768.0, Overflow);
    row("one-past-the-bottom", "-32769", true, -32769.0, Overflow);
    row("half-rounds-past-the-top", "32767.5", true, 32767.5, Overflow);
    row("beyond-single-is-no-single", "1e39", true, 1e39, Overflow, 0.0f);
    row("far-beyond-64-bits", "1e300", true, 1e300, Overflow, 0.0f);
}

void TestSettings::parseNumbers()
{
    QFETCH(QString, text);
    QFETCH(bool, numeric);
    QFETCH(double, number);
    QFETCH(float, single);
    QFETCH(int, integer);
    QCOMPARE(IsNumeric(text), numeric);
    QCOMPARE(ParseDouble(text), number);
    QCOMPARE(ParseSingle(text), single);
    if (integer == Overflow)
        QVERIFY_THROWS_EXCEPTION(Error, ParseInteger(text));
    else
        QCOMPARE(int(ParseInteger(text)), integer);
}

QTEST_GUILESS_MAIN(TestSettings)
#include "tst_settings.moc"
