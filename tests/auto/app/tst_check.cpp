// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
//
// The preflight as the quirra program tells it: quirra check, print's
// summary of what needs a look, and print --strict that writes nothing.
#include "quirrarun.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

namespace {

using Run = QuirraRun;

const QByteArray Header = "first,last,address1,city,state,zip\n";
const QByteArray Clean = "Ann,Lee,12 Elm St,Troy,NY,12180\n";
// The state is far too long for the city line: the line is left out.
const QByteArray LongState = "Bob,Roe,4 Oak Ave,Troy,NEW YORK STATE OF AMERICA,12180\n";

} // namespace

class TestCheck : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_dir = std::make_unique<QTemporaryDir>();
        QVERIFY(m_dir->isValid());
    }
    void check_data();
    void check();
    void print_data();
    void print();

private:
    Run quirra(const QStringList &arguments) { return runQuirra(m_dir->path(), arguments); }
    QString write(const QString &name, const QByteArray &bytes)
    {
        QFile file(m_dir->filePath(name));
        const bool written = file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
        return written ? file.fileName() : QString();
    }

    std::unique_ptr<QTemporaryDir> m_dir;
};

void TestCheck::check_data()
{
    QTest::addColumn<QByteArray>("rows");
    QTest::addColumn<QStringList>("options");
    QTest::addColumn<int>("status");
    QTest::addColumn<QString>("said");

    QTest::newRow("clean") << Clean + Clean << QStringList() << 0
                           << "2 records on \"Size 10 - Envelope\": nothing to note";
    QTest::newRow("city-line-left-out")
        << Clean + LongState << QStringList() << 3
        << "1 record needs a look:\nquirra check:   record 2 (Bob Roe): the city line was left "
           "out: \"Troy,  NEW YORK STATE OF AMERICA  12180\" is ";
    QTest::newRow("address-below-the-envelope")
        << Clean + Clean << QStringList{"--set", "AddressTop=25"} << 3
        << "record 1 (Ann Lee): an item box lies outside the page: the Address box lies wholly "
           "outside the page (and 1 more record)";
}

void TestCheck::check()
{
    QFETCH(QByteArray, rows);
    QFETCH(QStringList, options);
    QFETCH(int, status);
    QFETCH(QString, said);
    const QString csv = write(QStringLiteral("in.csv"), Header + rows);
    const Run run = quirra(QStringList{"check"} + options + QStringList{csv});
    QVERIFY2(run.err.contains(said), qPrintable(run.err));
    QCOMPARE(run.status, status);
    // Nothing but the input in the folder: no PDF, no spool left behind.
    QCOMPARE(QDir(m_dir->path()).entryList(QDir::Files), QStringList{"in.csv"});
}

void TestCheck::print_data()
{
    QTest::addColumn<bool>("strict");
    QTest::newRow("strict-writes-nothing") << true;
    QTest::newRow("lenient-prints-and-tells") << false;
}

void TestCheck::print()
{
    QFETCH(bool, strict);
    // Three records need a look, on three envelope pages.
    const QString csv =
        write(QStringLiteral("in.csv"), Header + LongState + Clean + LongState + LongState);
    const QString pdf = write(QStringLiteral("out.pdf"), "an older file\n");
    QStringList arguments{"print", "--pdf", pdf, csv};
    if (strict)
        arguments.insert(1, QStringLiteral("--strict"));
    const Run run = quirra(arguments);

    const QString summary = QStringLiteral(
        "quirra print: 3 records need a look:\nquirra print:   record 1 (Bob Roe): the city "
        "line was left out: ");
    QVERIFY2(run.err.contains(summary), qPrintable(run.err));
    QCOMPARE(run.err.count(QStringLiteral("the city line was left out")), 1);
    QVERIFY2(run.err.contains(QStringLiteral("(and 2 more records)")), qPrintable(run.err));
    QFile out(pdf);
    QVERIFY(out.open(QIODevice::ReadOnly));
    const QByteArray written = out.readAll();
    if (strict) {
        QCOMPARE(run.status, 3);
        QCOMPARE(written, QByteArray("an older file\n"));
        QVERIFY(!run.err.contains(QStringLiteral("-> ")));
    } else {
        QCOMPARE(run.status, 0);
        QVERIFY(written.startsWith("%PDF"));
        QVERIFY2(run.err.contains(QStringLiteral("4 records, 4 pages")), qPrintable(run.err));
    }
    QCOMPARE(QDir(m_dir->path()).entryList(QDir::Files), (QStringList{"in.csv", "out.pdf"}));
}

QTEST_GUILESS_MAIN(TestCheck)
#include "tst_check.moc"
