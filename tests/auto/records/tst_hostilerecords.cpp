// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
//
// Records at the far end of what a host can hand over: substitution lists
// of a hundred thousand entries and more, as a CSV file with as many
// columns gives. Their tokens are filled correctly, in time that grows with
// the list's length, not its square.
#include "records/addressrules.h"

#include <QElapsedTimer>
#include <QTest>

using namespace quirra;

namespace {

// Entries "c0^v0|c1^v1|..." in the given number, each ended by sep.
QString manyEntries(int count, const QString &sep)
{
    QString list;
    for (int i = 0; i < count; ++i)
        list += QStringLiteral("c%1^v%1").arg(i) + sep;
    return list;
}

} // namespace

class TestHostileRecords : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void longSubstitutionLists_data();
    void longSubstitutionLists();
};

void TestHostileRecords::longSubstitutionLists_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("list");
    QTest::addColumn<QString>("expected");
    QTest::addColumn<QString>("separator"); // between entries

    const QString many = manyEntries(200000, QStringLiteral("|"));
    QTest::newRow("token-of-the-last-of-200000-entries")
        << "Dear <<c199999>>" << many << "Dear v199999"
        << "|";
    QTest::newRow("tokens-of-first-and-middle-entries")
        << "<<c0>>-<<c100000>>" << many << "v0-v100000"
        << "|";
    QTest::newRow("200000-entries-none-used") << "no tokens here" << many << "no tokens here"
                                              << "|";
    QTest::newRow("two-character-separator")
        << "<<c7>><<c99999>>" << manyEntries(100000, QStringLiteral(";;")) << "v7v99999"
        << ";;";
    QTest::newRow("200000-entries-without-pair-separator")
        << "<<x>>" << QString(200000, QLatin1Char('|')) + QStringLiteral("x^y") << "y"
        << "|";
    QTest::newRow("blank-rest-ends-the-list")
        << "<<a>>" << QStringLiteral("a^1|") + QString(100000, QLatin1Char(' ')) << "1"
        << "|";
}

void TestHostileRecords::longSubstitutionLists()
{
    QFETCH(QString, text);
    QFETCH(QString, list);
    QFETCH(QString, expected);
    QFETCH(QString, separator);

    QElapsedTimer clock;
    clock.start();
    QCOMPARE(ReplaceTokens(text, list, QStringLiteral("^"), separator), expected);
    // Walking the list costs milliseconds; copying its rest for every entry
    // cost ten seconds and more.
    QVERIFY2(clock.elapsed() < 3000, qPrintable(QStringLiteral("%1 ms").arg(clock.elapsed())));
}

QTEST_GUILESS_MAIN(TestHostileRecords)
#include "tst_hostilerecords.moc"
