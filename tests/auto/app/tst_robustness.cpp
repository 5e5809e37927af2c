// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
//
// The quirra program fed what a careless export or a broken disk gives it:
// a value of ten thousand characters, bytes that are no text, a catalogue
// of junk. Each run ends in a clear message or a correct PDF, in bounded
// time and memory, and leaves no spool or half written file behind - also
// when the run fails inside the control. And the preflight as the program
// tells it: quirra check, print's summary of what needs a look, and print
// --strict that writes nothing.
#include "columns.h"
#include "pdfprobe.h"
#include "quirrarun.h"

#include <QDirIterator>
#include <QRandomGenerator>
#include <QStandardPaths>
#include <QTest>

#include <signal.h>
#include <sys/file.h>
#include <sys/mount.h>
#include <sys/resource.h>
#include <sys/stat.h>

namespace {

#if defined(__SANITIZE_ADDRESS__)
constexpr double PeakLimitMb = 1500; // the sanitizer's shadow memory and quarantine
#elif defined(__has_feature)
#if __has_feature(address_sanitizer)
constexpr double PeakLimitMb = 1500;
#else
constexpr double PeakLimitMb = 400;
#endif
#else
constexpr double PeakLimitMb = 400;
#endif

// The largest peak resident memory of any child waited for so far.
double childrenPeakMb()
{
    rusage usage{};
    getrusage(RUSAGE_CHILDREN, &usage);
    return double(usage.ru_maxrss) / 1024.0;
}

QByteArray junk(qsizetype size, quint32 seed)
{
    QRandomGenerator random(seed);
    QByteArray bytes(size, Qt::Uninitialized);
    random.fillRange(reinterpret_cast<quint32 *>(bytes.data()), size / 4);
    return bytes;
}

// Files left in a folder and its subfolders (Qt makes a runtime folder in
// TMPDIR when the session has none: that one may stay, empty).
QStringList leftFiles(const QString &folder)
{
    QStringList files;
    QDirIterator it(folder, QDir::Files | QDir::Hidden | QDir::System,
                    QDirIterator::Subdirectories);
    while (it.hasNext())
        files << it.next();
    return files;
}

const QByteArray Header = "first,last,address1,city,state,zip\n";
const QByteArray Clean = "Ann,Lee,12 Elm St,Troy,NY,12180\n";
// The state is far too long for the city line: the line is left out.
const QByteArray LongState = "Bob,Roe,4 Oak Ave,Troy,NEW YORK STATE OF AMERICA,12180\n";

const QByteArray Holloway = "Margaret,Holloway,1427 Birchwood Ln,Springfield,IL,62704\n";

} // namespace

class TestRobustness : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        if (QStandardPaths::findExecutable(QStringLiteral("pdfinfo")).isEmpty())
            QSKIP("pdfinfo (poppler-utils) is not installed; scripts/install-deps installs it");
        QVERIFY(QFileInfo::exists(QStringLiteral(QUIRRA_BINARY)));
    }

    void init()
    {
        m_dir = std::make_unique<QTemporaryDir>();
        m_tmp = std::make_unique<QTemporaryDir>();
        QVERIFY(m_dir->isValid() && m_tmp->isValid());
    }

    void hostileInput_data()
    {
        // csv: the input file; none when empty
        // junkCatalogue: 10 MB of random bytes as quirra.cfg
        // message: on standard error
        // pages: of the PDF when the run succeeds
        columns<QByteArray, bool, QStringList, int, QString, int>(
            "csv", "junkCatalogue", "arguments", "status", "message", "pages");

        const QStringList labels{"print", "--piece", "5160 - Address Labels", "--pdf", "%OUT%"};
        QTest::newRow("value-of-10000-characters")
            << Header + "Margaret,Holloway," + QByteArray(10000, 'x') +
                   ",Springfield,IL,62704\nDaniel,Okafor,88 Harbor View Dr,Portland,ME,04101\n"
            << false << labels << 0 << "2 records, 1 page" << 1;
        QTest::newRow("csv-of-random-bytes")
            << junk(1 << 20, 7) << false << labels << 1 << "line 1" << 0;
        QTest::newRow("csv-of-nul-bytes") << Header + QByteArray(1000, '\0') + '\n'
                                          << false << labels << 1 << "line 2" << 0;
        QTest::newRow("print-with-junk-catalogue")
            << Header + Holloway << true << labels << 1
            << "quirra.cfg: line 1: the text is not UTF-8" << 0;
        QTest::newRow("list-junk-catalogue") << QByteArray() << true << QStringList{"pieces"} << 1
                                             << "quirra.cfg: line 1: the text is not UTF-8" << 0;
    }

    void hostileInput()
    {
        auto [csv, junkCatalogue, arguments, status, message] =
            fetched<QByteArray, bool, QStringList, int, QString>("csv", "junkCatalogue",
                                                                 "arguments", "status", "message");

        QProcessEnvironment env = environment();
        if (junkCatalogue) {
            QVERIFY(QDir(m_dir->path()).mkdir(QStringLiteral("catalogue")));
            const QString file = write(QStringLiteral("catalogue/quirra.cfg"), junk(10 << 20, 42));
            env.insert(QStringLiteral("QUIRRA_SYSTEM_DIR"), QFileInfo(file).path());
            env.insert(QStringLiteral("QUIRRA_PAPER_CATALOGUE"), file);
        }
        const QString pdf = m_dir->filePath(QStringLiteral("out.pdf"));
        arguments.replaceInStrings(QStringLiteral("%OUT%"), pdf);
        if (!csv.isEmpty())
            arguments << write(QStringLiteral("in.csv"), csv);

        const QuirraRun run = runQuirra(m_dir->path(), arguments, {}, env);
        QVERIFY2(run.status == status, qPrintable(run.err));
        QVERIFY2(run.err.contains(message), qPrintable(run.err));
        // A damaged catalogue is one message, not a cascade.
        if (junkCatalogue)
            QVERIFY2(run.err.trimmed().count(QLatin1Char('\n')) == 0, qPrintable(run.err));
        QVERIFY2(childrenPeakMb() < PeakLimitMb,
                 qPrintable(QStringLiteral("peak memory %1 MB").arg(childrenPeakMb())));

        if (status == 0) {
            QTEST(int(pdfprobe::pageSizes(pdf).size()), "pages");
            QVERIFY(pdfprobe::find(pdfprobe::words(pdf), QStringLiteral("Holloway")));
        } else {
            QVERIFY(!QFileInfo::exists(pdf));
        }
        // Neither the spool nor a hidden PDF in the making is left anywhere.
        QCOMPARE(leftFiles(m_tmp->path()), QStringList());
        QCOMPARE(QDir(m_dir->path()).entryList({QStringLiteral(".*")}, QDir::Files | QDir::Hidden),
                 QStringList());
    }

    void spoolIsPrivateAndRemoved_data()
    {
        columns<QStringList, int, QString>("settings", "status", "message");

        QTest::newRow("run-completes") << QStringList() << 0 << "2 records, 1 page";
        // The control's print run raises its error: the method fails with an exception.
        QTest::newRow("run-fails-in-the-control")
            << QStringList{"--set", "PieceNumAcross=0"} << 1 << "0 pieces across";
    }

    void spoolIsPrivateAndRemoved()
    {
        QFETCH(QStringList, settings);
        QFETCH(int, status);
        QFETCH(QString, message);

        // Records come down a pipe, so the run waits, spool open, until the
        // pipe is closed.
        QProcess quirra;
        quirra.setProcessEnvironment(environment());
        quirra.start(QStringLiteral(QUIRRA_BINARY),
                     QStringList{"print", "--piece", "5160 - Address Labels", "--pdf",
                                 m_dir->filePath(QStringLiteral("out.pdf"))} +
                         settings + QStringList{"-"});
        QVERIFY(quirra.waitForStarted());
        quirra.write(Header + Holloway);
        QVERIFY(quirra.waitForBytesWritten());

        QString spool;
        QTRY_VERIFY_WITH_TIMEOUT(
            [&] {
                const QStringList found =
                    QDir(m_tmp->path()).entryList({QStringLiteral("qzv*")}, QDir::Files);
                if (found.size() == 1)
                    spool = QDir(m_tmp->path()).filePath(found.first());
                return !spool.isEmpty();
            }(),
            30000);
        struct stat info;
        QCOMPARE(::stat(QFile::encodeName(spool).constData(), &info), 0);
        QCOMPARE(info.st_mode & 07777, mode_t(0600));
        // Held while in use, so no other run takes it for a stale one.
        const int fd = ::open(QFile::encodeName(spool).constData(), O_RDONLY);
        QVERIFY(fd >= 0);
        QVERIFY(::flock(fd, LOCK_EX | LOCK_NB) != 0);
        ::close(fd);

        quirra.write("Daniel,Okafor,88 Harbor View Dr,Portland,ME,04101\n");
        quirra.closeWriteChannel();
        QVERIFY(quirra.waitForFinished(60000));
        const QString err = QString::fromUtf8(quirra.readAllStandardError());
        QVERIFY2(quirra.exitCode() == status, qPrintable(err));
        QVERIFY2(err.contains(message), qPrintable(err));
        QVERIFY2(!QFileInfo::exists(spool), qPrintable(spool + QStringLiteral(" is left")));
        QCOMPARE(leftFiles(m_tmp->path()), QStringList());
    }

    void staleSpoolsAreRemoved()
    {
        // One left by a killed run; one a running process holds.
        const QString stale = m_tmp->filePath(QStringLiteral("qzvKILLED.tmp"));
        const QString held = m_tmp->filePath(QStringLiteral("qzvINUSE1.tmp"));
        for (const QString &path : {stale, held}) {
            QFile file(path);
            QVERIFY(file.open(QIODevice::WriteOnly));
            file.write("\"FirstName\"\r\n");
            file.close();
            const timespec hourAgo[2] = {{::time(nullptr) - 3600, 0}, {::time(nullptr) - 3600, 0}};
            QCOMPARE(::utimensat(AT_FDCWD, QFile::encodeName(path).constData(), hourAgo, 0), 0);
        }
        const int fd = ::open(QFile::encodeName(held).constData(), O_RDONLY);
        QVERIFY(fd >= 0);
        QCOMPARE(::flock(fd, LOCK_EX | LOCK_NB), 0);

        const QuirraRun run = runQuirra(
            m_dir->path(), {"print", "--pdf", m_dir->filePath(QStringLiteral("out.pdf")), "-"},
            Header + Holloway, environment());
        ::close(fd);
        QVERIFY2(run.status == 0, qPrintable(run.err));
        QCOMPARE(leftFiles(m_tmp->path()), QStringList{held});
    }

    void fullOrMissingFolder_data()
    {
        // full: "pdf" or "tmp": the folder on a full disk
        columns<QString, QString>("full", "message");

        QTest::newRow("pdf-folder-full") << "pdf"
                                         << "the disk is full (no space left in";
        QTest::newRow("temporary-folder-full") << "tmp"
                                               << "\" is full (";
        QTest::newRow("temporary-folder-missing") << "missing"
                                                  << "\" is missing (";
    }

    void fullOrMissingFolder()
    {
        QFETCH(QString, full);
        QFETCH(QString, message);

        // A small disk of its own: the older file fits, three pages of labels do not.
        const QString disk = m_dir->filePath(QStringLiteral("disk"));
        QVERIFY(QDir().mkpath(disk));
        const QByteArray mountPoint = QFile::encodeName(disk);
        if (full != QLatin1String("missing") &&
            ::mount("tmpfs", mountPoint.constData(), "tmpfs", 0, "size=12k") != 0) {
            QSKIP("cannot mount a small tmpfs here (needs root)");
        }
        const auto unmount = qScopeGuard([&] {
            if (full != QLatin1String("missing"))
                ::umount(mountPoint.constData());
        });
        const QString pdf =
            (full == QLatin1String("pdf") ? disk : m_dir->path()) + QStringLiteral("/out.pdf");
        QFile old(pdf);
        QVERIFY(old.open(QIODevice::WriteOnly) && old.write("older run") > 0);
        old.close();
        QProcessEnvironment env = environment();
        if (full == QLatin1String("tmp")) {
            QFile filler(disk + QStringLiteral("/filler"));
            QVERIFY(filler.open(QIODevice::WriteOnly));
            while (filler.write(QByteArray(4096, 'x')) > 0 && filler.flush()) {
            }
            env.insert(QStringLiteral("TMPDIR"), disk);
        } else if (full == QLatin1String("missing")) {
            env.insert(QStringLiteral("TMPDIR"), m_dir->filePath(QStringLiteral("gone")));
        }

        const QuirraRun run =
            runQuirra(m_dir->path(),
                      {"print", "--piece", "5160 - Address Labels", "--pdf", pdf,
                       QStringLiteral(QUIRRA_SOURCE_ROOT "/examples/addresses.csv")},
                      {}, env);
        QVERIFY2(run.status == 1 && run.err.contains(message), qPrintable(run.err));
        QVERIFY(old.open(QIODevice::ReadOnly));
        QCOMPARE(old.readAll(), QByteArray("older run"));
        QCOMPARE(QDir(QFileInfo(pdf).path())
                     .entryList({QStringLiteral(".*")}, QDir::Files | QDir::Hidden),
                 QStringList());
    }

    void interruptedPrinterRunLeavesNothing()
    {
        const QString queue = qEnvironmentVariable("QUIRRA_CUPS_QUEUE");
        if (queue.isEmpty())
            QSKIP("no CUPS queue (run under scripts/with-cups)");
        // Enough records that the pages take a while to write.
        QByteArray rows = Header;
        for (int i = 0; i < 20000; ++i)
            rows += "Margaret,Holloway" + QByteArray::number(i) +
                    ",1427 Birchwood Ln,Springfield,IL,62704\n";

        QProcess quirra;
        quirra.setProcessEnvironment(environment());
        quirra.start(QStringLiteral(QUIRRA_BINARY),
                     {"print", "--piece", "5160 - Address Labels", "--printer", queue,
                      write(QStringLiteral("many.csv"), rows)});
        QVERIFY(quirra.waitForStarted());
        // Interrupted once the pages are being written: a file beside the spool.
        QTRY_VERIFY_WITH_TIMEOUT(
            QDir(m_tmp->path()).entryList(QDir::Files | QDir::Hidden).size() >= 2, 60000);
        QTest::qWait(200);
        ::kill(pid_t(quirra.processId()), SIGINT);
        QVERIFY(quirra.waitForFinished(30000));
        // Cancelled between pieces: the job aborted, the files removed, the
        // command ending as a shell reports Ctrl-C.
        const QString err = QString::fromUtf8(quirra.readAllStandardError());
        QCOMPARE(quirra.exitStatus(), QProcess::NormalExit);
        QVERIFY2(quirra.exitCode() == 130 && err.contains(QLatin1String("interrupted")),
                 qPrintable(err));
        QCOMPARE(leftFiles(m_tmp->path()), QStringList());
    }

    // quirra check, and print's summary of the records that need a look.
    void preflight_data()
    {
        // said: parts of standard error, "!" before a part that must not be there
        // written: the start of out.pdf afterwards (an older file before the run)
        columns<QStringList, QByteArray, int, QStringList, QByteArray>("arguments", "rows",
                                                                       "status", "said", "written");
        const QByteArray older = "an older file\n";
        // Three records need a look, on three envelope pages.
        const QByteArray three = LongState + Clean + LongState + LongState;
        const QStringList summary{"quirra print: 3 records need a look:\nquirra print:   record 1 "
                                  "(Bob Roe): the city line was left out: ",
                                  "(and 2 more records)"};
        QTest::newRow("check-clean")
            << QStringList{"check"} << Clean + Clean << 0
            << QStringList{"2 records on \"Size 10 - Envelope\": nothing to note"} << older;
        QTest::newRow("check-city-line-left-out")
            << QStringList{"check"} << Clean + LongState << 3
            << QStringList{"1 record needs a look:\nquirra check:   record 2 (Bob Roe): the city "
                           "line was left out: \"Troy,  NEW YORK STATE OF AMERICA  12180\" is "}
            << older;
        QTest::newRow("strict-writes-nothing")
            << QStringList{"print", "--strict", "--pdf", "%OUT%"} << three << 3
            << summary + QStringList{"!-> "} << older;
        QTest::newRow("lenient-prints-and-tells")
            << QStringList{"print", "--pdf", "%OUT%"} << three << 0
            << summary + QStringList{"4 records, 4 pages"} << QByteArray("%PDF");
    }

    void preflight()
    {
        auto [arguments, rows, said] =
            fetched<QStringList, QByteArray, QStringList>("arguments", "rows", "said");
        const QString pdf = write(QStringLiteral("out.pdf"), "an older file\n");
        arguments.replaceInStrings(QStringLiteral("%OUT%"), pdf);
        const QuirraRun run = quirra(arguments << write(QStringLiteral("in.csv"), Header + rows));
        for (const QString &part : said)
            QVERIFY2(run.err.contains(part.mid(part.startsWith(u'!'))) != part.startsWith(u'!'),
                     qPrintable(part + QStringLiteral(" in:\n") + run.err));
        QVERIFY2(run.err.count(QStringLiteral("the city line was left out")) <= 1,
                 qPrintable(run.err));
        QTEST(run.status, "status");
        QFETCH(QByteArray, written);
        QFile out(pdf);
        QVERIFY(out.open(QIODevice::ReadOnly) && out.readAll().startsWith(written));
        // Nothing but the input and the PDF in the folder, no spool left behind.
        QCOMPARE(QDir(m_dir->path()).entryList(QDir::Files), (QStringList{"in.csv", "out.pdf"}));
        QCOMPARE(leftFiles(m_tmp->path()), QStringList());
    }

private:
    QProcessEnvironment environment() const
    {
        QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
        env.insert(QStringLiteral("TMPDIR"), m_tmp->path());
        return env;
    }
    QuirraRun quirra(const QStringList &arguments)
    {
        return runQuirra(m_dir->path(), arguments, {}, environment());
    }
    QString write(const QString &name, const QByteArray &bytes)
    {
        QFile file(m_dir->filePath(name));
        const bool written = file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
        return written ? file.fileName() : QString();
    }

    std::unique_ptr<QTemporaryDir> m_dir; // inputs and outputs
    std::unique_ptr<QTemporaryDir> m_tmp; // the program's TMPDIR: its spool goes here
};

QTEST_GUILESS_MAIN(TestRobustness)
#include "tst_robustness.moc"
