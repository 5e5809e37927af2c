// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#include "settings/profile.h"

#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QRandomGenerator>
#include <QTemporaryDir>
#include <QTest>

#include <sys/stat.h>

using namespace quirra;

class TestProfileFile : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void lookup_data();
    void lookup();
    void changedFileIsSeen_data();
    void changedFileIsSeen();
    void pipeOrFolderReadsAsMissing();
    void junkParsesInLinearTime_data();
    void junkParsesInLinearTime();

private:
    QString write(const QString &name, const QByteArray &content)
    {
        QFile f(m_dir.filePath(name));
        if (!f.open(QIODevice::WriteOnly | QIODevice::Truncate) || f.write(content) < 0)
            qFatal("cannot write %s", qPrintable(f.fileName()));
        return f.fileName();
    }
    QString read(const QString &path) const
    {
        return ProfileFile::readString(path, QStringLiteral("A"), QStringLiteral("k"),
                                       QStringLiteral("<none>"));
    }
    QTemporaryDir m_dir;
};

// Every row looks up key "k" of section "A"; "<none>" means not found.
void TestProfileFile::lookup_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QString>("expected");
    const QByteArray longValue(300, 'a');
    const QString cut(254, u'a');

    QTest::newRow("names-ignore-case") << QByteArray("[a]\nK=v") << "v";
    QTest::newRow("first-section-wins") << QByteArray("[A]\nk=1\n[a]\nk=2") << "1";
    QTest::newRow("repeated-section-unseen") << QByteArray("[A]\nj=1\n[a]\nk=2") << "<none>";
    QTest::newRow("first-key-wins") << QByteArray("[A]\nk=1\nK=2") << "1";
    QTest::newRow("empty-value-is-present") << QByteArray("[A]\nk=\nk=2") << "";
    QTest::newRow("blanks-around-names-and-value") << QByteArray("[ A ]\n \tk\t=  v w \t") << "v w";
    QTest::newRow("double-quotes-removed") << QByteArray("[A]\nk=\" x \"") << " x ";
    QTest::newRow("mismatched-quotes-kept") << QByteArray("[A]\nk=\"x'") << "\"x'";
    QTest::newRow("commas-and-equals-kept") << QByteArray("[A]\nk=a,b=c") << "a,b=c";
    QTest::newRow("comment-skipped") << QByteArray("[A]\n ;k=1\nk=2") << "2";
    QTest::newRow("crlf-line-ends") << QByteArray("[A]\r\nj=1\r\nk=2\r\n") << "2";
    QTest::newRow("line-without-equals-skipped") << QByteArray("[A]\nk\nk=1") << "1";
    QTest::newRow("line-with-nul-skipped") << QByteArray("[A]\nk=\0x\nk=2", 12) << "2";
    QTest::newRow("invalid-utf8-replaced") << QByteArray("[A]\nk=\xFF"
                                                         "ok")
                                           << "\uFFFDok";
    QTest::newRow("key-before-any-section-unseen") << QByteArray("k=1\n[A]") << "<none>";
    QTest::newRow("byte-order-mark") << QByteArray("\xEF\xBB\xBF[A]\nk=1") << "1";
    QTest::newRow("value-cut-at-254") << QByteArray("[A]\nk=" + longValue) << cut;
    QTest::newRow("quotes-removed-before-cut") << QByteArray("[A]\nk=\"" + longValue + "\"") << cut;
}

void TestProfileFile::lookup()
{
    QFETCH(QByteArray, text);
    QFETCH(QString, expected);
    const ProfileFile profile = ProfileFile::fromText(text);
    const QString *found = profile.find(QStringLiteral(" a "), QStringLiteral("K"));
    QCOMPARE(found ? *found : QStringLiteral("<none>"), expected);
    QCOMPARE(read(write(QStringLiteral("lookup.ini"), text)), expected);
}

void TestProfileFile::changedFileIsSeen_data()
{
    QTest::addColumn<QByteArray>("second");
    QTest::addColumn<int>("secondsLater"); // -1: the file is removed
    QTest::addColumn<QString>("expected");
    // A grown file gets its old time back: only the size tells the change.
    QTest::newRow("grown-file-same-time") << QByteArray("[A]\nk=longer") << 0 << "longer";
    QTest::newRow("same-size-newer-time") << QByteArray("[A]\nk=two") << 2 << "two";
    QTest::newRow("file-removed") << QByteArray() << -1 << "<none>";
}

void TestProfileFile::changedFileIsSeen()
{
    QFETCH(QByteArray, second);
    QFETCH(int, secondsLater);
    QFETCH(QString, expected);
    const QString name = QString::fromLatin1(QTest::currentDataTag()) + QStringLiteral(".ini");
    const QString path = write(name, "[A]\nk=one");
    QCOMPARE(read(path), QStringLiteral("one"));
    if (secondsLater < 0) {
        QVERIFY(QFile::remove(path));
    } else {
        const QDateTime before = QFileInfo(path).lastModified();
        write(name, second);
        QFile f(path);
        QVERIFY(f.open(QIODevice::ReadWrite));
        QVERIFY(f.setFileTime(before.addSecs(secondsLater), QFileDevice::FileModificationTime));
    }
    QCOMPARE(read(path), expected);
}

void TestProfileFile::pipeOrFolderReadsAsMissing()
{
    // Opening a pipe would wait for a writer that never comes.
    const QString pipe = m_dir.filePath(QStringLiteral("pipe.ini"));
    QCOMPARE(::mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
    QCOMPARE(read(pipe), QStringLiteral("<none>"));
    QCOMPARE(read(m_dir.path()), QStringLiteral("<none>"));
}

void TestProfileFile::junkParsesInLinearTime_data()
{
    QTest::addColumn<bool>("oneLine");
    QTest::newRow("random-bytes") << false;
    QTest::newRow("one-ten-megabyte-line") << true;
}

void TestProfileFile::junkParsesInLinearTime()
{
    QFETCH(bool, oneLine);
    QByteArray junk(10 * 1024 * 1024, Qt::Uninitialized);
    QRandomGenerator random(20260101);
    for (char &c : junk) {
        c = char(random.bounded(256));
        if (oneLine && (c == '\n' || c == '\r'))
            c = '=';
    }
    const QString path = write(QStringLiteral("junk.ini"), "[A]\n" + junk);
    QElapsedTimer timer;
    timer.start();
    QCOMPARE(read(path), QStringLiteral("<none>"));
    qDebug("10 MB of junk parsed in %lld ms", timer.elapsed());
    QVERIFY2(timer.elapsed() < 10000, "parsing must stay linear in the file's size");
}

QTEST_GUILESS_MAIN(TestProfileFile)
#include "tst_profilefile.moc"
