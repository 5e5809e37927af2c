// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#include "model/error.h"
#include "settings/files.h"

#include <QCoreApplication>

#include <QDir>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <cerrno>

using namespace quirra;

class TestFiles : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void makeTempFileName_data()
    {
        QTest::addColumn<QString>("prefix");
        QTest::addColumn<QString>("folder");
        QTest::addColumn<QString>("expected"); // the name's pattern, or what the error says

        QTest::newRow("spool-prefix") << "qzv"
                                      << ""
                                      << "^qzv\\w{6}\\.tmp$";
        QTest::newRow("long-prefix-cut-to-three") << "quirra"
                                                  << ""
                                                  << "^qui\\w{6}\\.tmp$";
        QTest::newRow("slash-cannot-leave-the-folder") << "../x"
                                                       << ""
                                                       << "^\\.\\._\\w{6}\\.tmp$";
        QTest::newRow("missing-folder-explained") << "qzv"
                                                  << "/gone"
                                                  << "No such file.*TMPDIR";
    }

    void makeTempFileName()
    {
        QFETCH(QString, prefix);
        QFETCH(QString, folder);
        QFETCH(QString, expected);

        const QString dir = m_dir.path() + folder;
        qputenv("TMPDIR", QFile::encodeName(dir));
        QString path;
        try {
            path = MakeTempFileName(prefix);
        } catch (const Error &error) {
            const QString message = error.message();
            QVERIFY2(message.contains(dir) && message.contains(QRegularExpression(expected)),
                     qPrintable(message));
            return;
        }
        QVERIFY(folder.isEmpty() && MakeTempFileName(prefix) != path);
        const QFileInfo info(path);
        QCOMPARE(info.absolutePath(), dir);
        QVERIFY2(info.fileName().contains(QRegularExpression(expected)), qPrintable(path));
        QCOMPARE(info.size(), 0);
        // Read and write for the owner only: the spool holds people's addresses.
        QCOMPARE(int(info.permissions() & 0x7077), int(QFile::ReadOwner | QFile::WriteOwner));
    }

    void temporaryFolderProblems()
    {
        // What the user can do about it depends on why the folder took no file.
        for (const auto &[code, advice] :
             {std::pair{ENOSPC, "is full (No space left on device): free"},
              {EDQUOT, "is full (Disk quota exceeded): free"},
              {ENOTDIR, "is missing (Not a directory): create it"},
              {EACCES, "Cannot create a temporary file in"}}) {
            const QString text = TemporaryDirectoryProblem(QStringLiteral("/tmp/q"), code);
            QVERIFY2(text.contains(QLatin1String(advice)) && text.contains(QLatin1String("/tmp/q")),
                     qPrintable(text));
        }
    }

    void catalogueLocations()
    {
        qputenv("QUIRRA_SYSTEM_DIR", " /opt/q ");
        qputenv("QUIRRA_PAPER_CATALOGUE", "");
        QCOMPARE(SystemDirectory() + PaperCatalogueFile(),
                 QStringLiteral("/opt/q//opt/q/quirra.cfg"));
        qputenv("QUIRRA_SYSTEM_DIR", "/opt/q/");
        qputenv("QUIRRA_PAPER_CATALOGUE", "/etc/papers.cfg");
        QCOMPARE(SystemDirectory() + PaperCatalogueFile(),
                 QStringLiteral("/opt/q//etc/papers.cfg"));

        // Unset: the catalogue beside the program, as after installation.
        qunsetenv("QUIRRA_SYSTEM_DIR");
        const QString beside = QDir::cleanPath(QCoreApplication::applicationDirPath() +
                                               QStringLiteral("/../share/quirra/"));
        if (!QFile::exists(beside + QStringLiteral("/quirra.cfg"))) {
            QSKIP("the build tree holds no catalogue");
        }
        QCOMPARE(SystemDirectory(), beside + QLatin1Char('/'));
    }

    void deleteFileAndWait()
    {
        const QString path = m_dir.filePath(QStringLiteral("qzvABCDEF.tmp"));
        QVERIFY(!FileExists(path) && !FileExists(QString()) && !FileExists(m_dir.path()));
        QVERIFY(QFile(path).open(QIODevice::WriteOnly));
        QVERIFY(FileExists(path));
        DeleteFileAndWait(path);
        QVERIFY(!QFile::exists(path));

        // A file anyone can read and nobody can delete, not even root: the wait
        // gives up after about 5 s, processing events meanwhile.
        const QString undeletable = QStringLiteral("/proc/self/status");
        if (!FileExists(undeletable)) {
            QSKIP("no /proc on this system");
        }
        bool yielded = false;
        QTimer::singleShot(0, this, [&yielded] { yielded = true; });
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("Gave up waiting")));
        QElapsedTimer clock;
        clock.start();
        DeleteFileAndWait(undeletable);
        const qint64 waited = clock.elapsed();
        QVERIFY2(waited >= 4000 && waited < 10000, qPrintable(QString::number(waited)));
        QVERIFY(yielded);
    }

private:
    QTemporaryDir m_dir;
};

QTEST_GUILESS_MAIN(TestFiles)
#include "tst_files.moc"
