// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#include "settings/strings.h"

#include <QTest>

using namespace quirra;

class TestStrings : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void splitAndTrim_data();
    void splitAndTrim();
};

void TestStrings::splitAndTrim_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("separator");
    // TextBefore, TextAfter, TextAfterLast, TrimBlanks, TrimTrailingBlanks, joined by "/".
    QTest::addColumn<QString>("results");

    QTest::newRow("first-and-last-differ") << "a|b|c"
                                           << "|"
                                           << "a/b|c/c/a|b|c/a|b|c";
    QTest::newRow("absent-separator") << "plain"
                                      << "|"
                                      << "plain//plain/plain/plain";
    QTest::newRow("case-counts") << "aXbxc"
                                 << "x"
                                 << "aXb/c/c/aXbxc/aXbxc";
    // An empty separator never occurs, so a list split by it ends at once.
    QTest::newRow("empty-separator") << "abc"
                                     << ""
                                     << "abc//abc/abc/abc";
    QTest::newRow("blanks-trimmed-inner-kept") << "  1  Main "
                                               << "|"
                                               << "  1  Main //  1  Main /1  Main/  1  Main";
    QTest::newRow("only-spaces-are-blanks") << "\tC1\n "
                                            << "|"
                                            << "\tC1\n //\tC1\n /\tC1\n/\tC1\n";
}

void TestStrings::splitAndTrim()
{
    QFETCH(QString, text);
    QFETCH(QString, separator);
    QFETCH(QString, results);

    const QStringList got = {TextBefore(text, separator), TextAfter(text, separator),
                             TextAfterLast(text, separator), TrimBlanks(text),
                             TrimTrailingBlanks(text)};
    QCOMPARE(got.join(QLatin1Char('/')), results);
}

QTEST_GUILESS_MAIN(TestStrings)
#include "tst_strings.moc"
