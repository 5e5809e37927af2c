// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
//
// endtoend_bench: quirra print as a mailing house runs it, timed. For each N
// it writes a CSV file of N made-up recipients, prints it to PDF with the
// quirra program on 30-up address labels and (up to --envelopes-up-to) on
// No. 10 envelopes with a return address and a message, and draws the same
// pieces with engine_bench, Qt's PDF engine alone, as the yardstick. Every
// program runs as a child process, so its wall time, CPU time and peak
// memory are its own. Each piece is run --runs times (default 3), quirra and
// the engine taking turns, and the least time of each is kept: other
// programs sharing the machine only ever add time. The ratio is taken on CPU
// time, which is what a run costs whoever else has the cores; the wall-time
// ratio stands beside it. The first PDF of each is read back: its page count,
// and every record's name found once, none missing. Last, preview_bench
// previews --preview N labels in the control (the same number of runs), and
// its figures stand under the table.
//
//   endtoend_bench [--bin DIR] [--work DIR] [--envelopes-up-to N] [--runs R]
//                  [--preview N] [--engine-default-heap] [--no-check] [N ...]
//
// quirra keeps 64 MB of room at the top of its heap (M_TOP_PAD), and so does
// the engine alone: neither pays for handing memory back to the system page
// by page and taking it again. --engine-default-heap runs the engine with
// glibc's default instead (a yardstick that flatters quirra, for comparison).
//
// Default N: 1000 10000 100000 1000000. Exits 1 when a PDF is wrong or a
// target is missed (at 10,000 records and more, where start-up no longer
// counts):
//   - from 100,000 records, labels within 1.25x of the engine alone's CPU
//     time, envelopes within 1.1x;
//   - labels at 10,000 records a second of CPU time or better;
//   - peak memory of labels under 60 MB at every N, and what quirra's peak
//     grows beyond 10,000 records, less what the engine alone's grows over
//     the same records (Qt's own tables of every page and object), within a
//     tenth of quirra's peak at 10,000; of envelopes under 100 MB;
//   - the page count and every name right.
#include "benchdata.h"

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QTemporaryDir>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <optional>
#include <vector>

#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace quirra;

namespace {

constexpr double LabelRateTarget = 10000.0; // records a CPU second, end to end
constexpr double LabelRatioTarget = 1.25;   // CPU time over the engine alone's
constexpr double EnvelopeRatioTarget = 1.1;
constexpr double LabelPeakTargetMb = 60.0;
constexpr double EnvelopePeakTargetMb = 100.0;

struct Measure
{
    bool ok = false;
    double seconds = 0;    // wall time
    double cpuSeconds = 0; // user and system time of the process
    double peakMb = 0;
    QString error;
};

double seconds(const timeval &t)
{
    return double(t.tv_sec) + double(t.tv_usec) / 1e6;
}

// Runs a program to its end, its standard error into log; its wall time,
// CPU time and its own peak resident memory.
Measure run(const QStringList &command, const QString &log, const QString &out = QString(),
            bool defaultHeap = false)
{
    std::vector<QByteArray> bytes;
    for (const QString &a : command)
        bytes.push_back(QFile::encodeName(a));
    std::vector<char *> argv;
    for (QByteArray &b : bytes)
        argv.push_back(b.data());
    argv.push_back(nullptr);

    Measure m;
    QElapsedTimer clock;
    clock.start();
    const pid_t pid = fork();
    if (pid < 0) {
        m.error = QStringLiteral("fork: %1").arg(QString::fromLocal8Bit(std::strerror(errno)));
        return m;
    }
    if (pid == 0) {
        if (FILE *f = std::fopen(QFile::encodeName(log).constData(), "w"))
            dup2(fileno(f), STDERR_FILENO);
        if (!out.isEmpty()) {
            if (FILE *f = std::fopen(QFile::encodeName(out).constData(), "w"))
                dup2(fileno(f), STDOUT_FILENO);
        }
        if (defaultHeap)
            setenv("MALLOC_TOP_PAD_", "131072", 1); // glibc's own default
        execv(argv[0], argv.data());
        std::fprintf(stderr, "cannot run %s: %s\n", argv[0], std::strerror(errno));
        _exit(127);
    }
    int status = 0;
    rusage usage{};
    while (wait4(pid, &status, 0, &usage) < 0 && errno == EINTR) {
    }
    m.seconds = double(clock.nsecsElapsed()) / 1e9;
    m.cpuSeconds = seconds(usage.ru_utime) + seconds(usage.ru_stime);
    m.peakMb = double(usage.ru_maxrss) / 1024.0; // KiB on Linux
    m.ok = WIFEXITED(status) && WEXITSTATUS(status) == 0;
    if (!m.ok) {
        QFile f(log);
        const QByteArray tail = f.open(QIODevice::ReadOnly) ? f.readAll().right(300) : QByteArray();
        m.error = QStringLiteral("%1 failed (status %2): %3")
                      .arg(QFileInfo(command.first()).fileName())
                      .arg(status)
                      .arg(QString::fromUtf8(tail).simplified());
    }
    return m;
}

QByteArray output(const QString &program, const QStringList &arguments)
{
    QByteArray line = QFile::encodeName(program);
    for (const QString &a : arguments)
        line += " '" + QFile::encodeName(a) + '\'';
    QByteArray out;
    if (FILE *pipe = popen(line.constData(), "r")) {
        char buffer[65536];
        size_t n;
        while ((n = fread(buffer, 1, sizeof buffer, pipe)) > 0)
            out.append(buffer, qsizetype(n));
        pclose(pipe);
    }
    return out;
}

int pageCount(const QString &pdf)
{
    static const QRegularExpression pages(QStringLiteral("^Pages:\\s+(\\d+)"),
                                          QRegularExpression::MultilineOption);
    const auto match = pages.match(QString::fromUtf8(output(QStringLiteral("pdfinfo"), {pdf})));
    return match.hasMatch() ? match.captured(1).toInt() : -1;
}

// Reads the PDF's text as it streams out of pdftotext and ticks off each
// record's last name (a surname with the record's number). Returns the
// problem, or nothing when every one of the count names is there once.
QString checkNames(const QString &pdf, qint64 count)
{
    const QByteArray line = "pdftotext -q -enc UTF-8 '" + QFile::encodeName(pdf) + "' -";
    FILE *pipe = popen(line.constData(), "r");
    if (!pipe)
        return QStringLiteral("cannot run pdftotext");
    std::vector<bool> seen(size_t(count), false);
    qint64 found = 0, twice = 0, stray = 0;
    char *text = nullptr;
    size_t size = 0;
    ssize_t got;
    while ((got = getline(&text, &size, pipe)) > 0) {
        // Each word that is letters ending in digits is a last name: "Holloway123".
        const char *p = text;
        const char *const lineEnd = text + got;
        while (p < lineEnd) {
            while (p < lineEnd && (*p == ' ' || *p == '\n' || *p == '\r' || *p == '\f'))
                ++p;
            const char *wordStart = p;
            while (p < lineEnd && !(*p == ' ' || *p == '\n' || *p == '\r' || *p == '\f'))
                ++p;
            const char *digits = p;
            while (digits > wordStart && digits[-1] >= '0' && digits[-1] <= '9')
                --digits;
            if (digits == p || digits == wordStart || !(digits[-1] >= 'a' && digits[-1] <= 'z'))
                continue;
            const qint64 n = QByteArray(digits, p - digits).toLongLong();
            if (n < 0 || n >= count) {
                ++stray;
            } else if (seen[size_t(n)]) {
                ++twice;
            } else {
                seen[size_t(n)] = true;
                ++found;
            }
        }
    }
    std::free(text);
    pclose(pipe);
    if (found == count && twice == 0 && stray == 0)
        return {};
    return QStringLiteral("%1 of %2 names found, %3 twice, %4 unknown")
        .arg(found)
        .arg(count)
        .arg(twice)
        .arg(stray);
}

QString writeCsv(const QString &folder, qint64 count)
{
    const QString path = QStringLiteral("%1/people-%2.csv").arg(folder).arg(count);
    if (QFileInfo(path).exists())
        return path;
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        return {};
    bench::RecordMaker maker;
    QByteArray chunk = bench::RecordMaker::csvHeader();
    for (qint64 i = 0; i < count; ++i) {
        chunk += maker.csvRow(i);
        if (chunk.size() > (1 << 20)) {
            file.write(chunk);
            chunk.clear();
        }
    }
    file.write(chunk);
    return path;
}

// The least wall time and the least CPU time of the runs, and the greatest peak.
void keepBest(Measure &best, const Measure &m, bool first)
{
    if (first || !m.ok) {
        best = m;
        return;
    }
    if (!best.ok)
        return;
    best.seconds = std::min(best.seconds, m.seconds);
    best.cpuSeconds = std::min(best.cpuSeconds, m.cpuSeconds);
    best.peakMb = std::max(best.peakMb, m.peakMb);
}

struct Row
{
    QString work;
    bool labels = true;
    qint64 records = 0;
    Measure quirra;
    Measure engine;
    int pages = 0;
    QString check;
    double cpuRatio() const
    {
        return engine.cpuSeconds > 0 ? quirra.cpuSeconds / engine.cpuSeconds : 0.0;
    }
    double wallRatio() const { return engine.seconds > 0 ? quirra.seconds / engine.seconds : 0.0; }
};

void printHeader(int runs)
{
    std::printf("least of %d runs each, quirra and the engine alone taking turns; ratio = quirra "
                "over the engine alone\n\n",
                runs);
    std::printf("%-28s %7s | %-15s | %-15s | %-11s | %-13s | %s\n", "work", "pages", "     us",
                "  engine alone", "   ratio", "  peak MB", "check");
    std::printf("%-28s %7s | %7s %7s | %7s %7s | %5s %5s | %6s %6s |\n", "", "", "wall s", "cpu s",
                "wall s", "cpu s", "cpu", "wall", "us", "engine");
}

void printRow(const Row &r)
{
    if (r.engine.cpuSeconds > 0) {
        std::printf("%-28s %7d | %7.2f %7.2f | %7.2f %7.2f | %5.2f %5.2f | %6.1f %6.1f | %s\n",
                    qPrintable(r.work), r.pages, r.quirra.seconds, r.quirra.cpuSeconds,
                    r.engine.seconds, r.engine.cpuSeconds, r.cpuRatio(), r.wallRatio(),
                    r.quirra.peakMb, r.engine.peakMb,
                    qPrintable(r.check.isEmpty() ? QStringLiteral("ok") : r.check));
    } else {
        std::printf("%-28s %7s | %7.2f %7.2f | %7s %7s | %5s %5s | %6.1f %6s | %s\n",
                    qPrintable(r.work), "", r.quirra.seconds, r.quirra.cpuSeconds, "-", "-", "-",
                    "-", r.quirra.peakMb, "-",
                    qPrintable(r.check.isEmpty() ? QStringLiteral("ok") : r.check));
    }
    std::fflush(stdout);
}

} // namespace

int main(int argc, char **argv)
{
    QCoreApplication app(argc, argv);
    QStringList args = app.arguments();
    args.removeFirst();
    QString bin = QCoreApplication::applicationDirPath();
    QString work;
    qint64 envelopesUpTo = 100000;
    qint64 previewCount = 100000;
    int runs = 3;
    bool check = true;
    bool engineDefaultHeap = false;
    QList<qint64> counts;
    for (qsizetype i = 0; i < args.size(); ++i) {
        const QString &a = args.at(i);
        const bool valued = i + 1 < args.size();
        if (a == QLatin1String("--bin") && valued) {
            bin = args.at(++i);
        } else if (a == QLatin1String("--work") && valued) {
            work = args.at(++i);
        } else if (a == QLatin1String("--envelopes-up-to") && valued) {
            envelopesUpTo = args.at(++i).toLongLong();
        } else if (a == QLatin1String("--preview") && valued) {
            previewCount = args.at(++i).toLongLong();
        } else if (a == QLatin1String("--runs") && valued) {
            runs = std::max(1, args.at(++i).toInt());
        } else if (a == QLatin1String("--engine-default-heap")) {
            engineDefaultHeap = true;
        } else if (a == QLatin1String("--no-check")) {
            check = false;
        } else {
            bool ok = false;
            const qint64 n = a.toLongLong(&ok);
            if (!ok || n < 1) {
                std::fprintf(stderr, "usage: endtoend_bench [--bin DIR] [--work DIR] "
                                     "[--envelopes-up-to N] [--runs R] [--preview N] "
                                     "[--engine-default-heap] [--no-check] [N ...]\n");
                return 2;
            }
            counts << n;
        }
    }
    if (counts.isEmpty())
        counts = {1000, 10000, 100000, 1000000};

    const QString quirra = bin + QStringLiteral("/quirra");
    const QString engine = bin + QStringLiteral("/engine_bench");
    const QString preview = bin + QStringLiteral("/preview_bench");
    for (const QString &program : {quirra, engine}) {
        if (!QFileInfo(program).isExecutable()) {
            std::fprintf(stderr, "endtoend_bench: %s is not built\n", qPrintable(program));
            return 2;
        }
    }
    std::optional<QTemporaryDir> scratch;
    if (work.isEmpty()) {
        scratch.emplace();
        work = scratch->path();
    }
    QDir().mkpath(work);

    std::printf(engineDefaultHeap ? "the engine alone with glibc's default heap, quirra with 64 MB "
                                    "kept at its heap's top: a yardstick that flatters quirra\n"
                                  : "quirra and the engine alone each keep 64 MB at the top of "
                                    "their heap\n");
    printHeader(runs);
    QList<Row> rows;
    for (const qint64 n : counts) {
        const QString csv = writeCsv(work, n);
        if (csv.isEmpty()) {
            std::fprintf(stderr, "endtoend_bench: cannot write the CSV file in %s\n",
                         qPrintable(work));
            return 2;
        }
        for (const bool labels : {true, false}) {
            if (!labels && n > envelopesUpTo)
                continue;
            Row r;
            r.labels = labels;
            r.records = n;
            r.work = labels ? QStringLiteral("%1 labels (5160)").arg(n)
                            : QStringLiteral("%1 envelopes (No. 10)").arg(n);
            const QString pdf = QStringLiteral("%1/quirra-%2.pdf").arg(work).arg(n);
            const QString reference = QStringLiteral("%1/engine-%2.pdf").arg(work).arg(n);
            QStringList command{quirra, QStringLiteral("print"), QStringLiteral("--no-progress"),
                                QStringLiteral("--piece"),
                                labels ? bench::LabelPiece : bench::EnvelopePiece};
            if (!labels)
                command << QStringLiteral("--set")
                        << QStringLiteral("ReturnText=") + bench::ReturnText
                        << QStringLiteral("--set")
                        << QStringLiteral("Message1Text=") + bench::MessageText;
            command << QStringLiteral("--pdf") << pdf << csv;
            const qint64 perPage = labels ? 30 : 1;
            const int expectedPages = int((n + perPage - 1) / perPage);
            for (int round = 0; round < runs && r.check.isEmpty(); ++round) {
                keepBest(r.quirra, run(command, pdf + QStringLiteral(".log")), round == 0);
                keepBest(
                    r.engine,
                    run({engine, labels ? QStringLiteral("labels") : QStringLiteral("envelopes"),
                         QString::number(n), reference},
                        reference + QStringLiteral(".log"), QString(), engineDefaultHeap),
                    round == 0);
                if (!r.quirra.ok) {
                    r.check = r.quirra.error;
                } else if (!r.engine.ok) {
                    r.check = r.engine.error;
                } else if (round == 0 && check) {
                    // The output is the same every run: the first is read back.
                    r.pages = pageCount(pdf);
                    if (r.pages != expectedPages)
                        r.check =
                            QStringLiteral("%1 pages, expected %2").arg(r.pages).arg(expectedPages);
                    else
                        r.check = checkNames(pdf, n);
                } else if (!check) {
                    r.pages = expectedPages;
                }
                for (const QString &file : {pdf, reference}) {
                    QFile::remove(file);
                    QFile::remove(file + QStringLiteral(".log"));
                }
            }
            printRow(r);
            rows << r;
        }
    }

    // The preview in the control, for the same number of runs.
    QString previewLine;
    if (previewCount > 0 && QFileInfo(preview).isExecutable()) {
        Row r;
        r.work = QStringLiteral("preview %1 labels").arg(previewCount);
        const QString out = work + QStringLiteral("/preview.out");
        const QString log = work + QStringLiteral("/preview.log");
        for (int round = 0; round < runs && r.check.isEmpty(); ++round) {
            const Measure m = run({preview, QString::number(previewCount)}, log, out);
            const bool best = round == 0 || m.cpuSeconds < r.quirra.cpuSeconds;
            keepBest(r.quirra, m, round == 0);
            if (!m.ok) {
                r.check = m.error;
            } else if (best) {
                QFile f(out);
                if (f.open(QIODevice::ReadOnly))
                    previewLine = QString::fromUtf8(f.readAll()).trimmed();
            }
        }
        QFile::remove(out);
        QFile::remove(log);
        printRow(r);
        if (!previewLine.isEmpty())
            std::printf("  preview_bench (its least-CPU run): %s\n", qPrintable(previewLine));
        rows << r;
    } else if (previewCount > 0) {
        std::printf("preview_bench is not built: no preview figures\n");
    }

    // The targets.
    std::printf("\n");
    bool allMet = true;
    auto verdict = [&](bool met, const QString &what) {
        std::printf("%-6s %s\n", met ? "met" : "MISSED", qPrintable(what));
        allMet = allMet && met;
    };
    double peakAt10k = 0, enginePeakAt10k = 0;
    for (const Row &r : rows) {
        if (r.labels && r.engine.ok && r.records == 10000) {
            peakAt10k = r.quirra.peakMb;
            enginePeakAt10k = r.engine.peakMb;
        }
    }
    for (const Row &r : rows) {
        if (!r.check.isEmpty() && r.check != QLatin1String("not checked")) {
            verdict(false, r.work + QStringLiteral(": ") + r.check);
            continue;
        }
        if (!r.engine.ok)
            continue; // the preview: figures only
        const double peakTarget = r.labels ? LabelPeakTargetMb : EnvelopePeakTargetMb;
        verdict(r.quirra.peakMb < peakTarget, QStringLiteral("%1: peak %2 MB, under %3 MB")
                                                  .arg(r.work)
                                                  .arg(r.quirra.peakMb, 0, 'f', 1)
                                                  .arg(peakTarget));
        if (r.records < 10000)
            continue; // start-up dominates small runs
        // The ratio from 100,000 records: at 10,000 the control's start-up
        // is still a tenth of an envelope run.
        const double ratioTarget = r.labels ? LabelRatioTarget : EnvelopeRatioTarget;
        if (r.records >= 100000) {
            verdict(
                r.cpuRatio() <= ratioTarget,
                QStringLiteral("%1: %2x the engine alone's CPU time, within %3x (wall time %4x)")
                    .arg(r.work)
                    .arg(r.cpuRatio(), 0, 'f', 2)
                    .arg(ratioTarget)
                    .arg(r.wallRatio(), 0, 'f', 2));
        }
        if (!r.labels)
            continue;
        const double rate = double(r.records) / r.quirra.cpuSeconds;
        verdict(rate >= LabelRateTarget,
                QStringLiteral("%1: %2 records a CPU second (%3 a wall second), %4 or better")
                    .arg(r.work)
                    .arg(rate, 0, 'f', 0)
                    .arg(double(r.records) / r.quirra.seconds, 0, 'f', 0)
                    .arg(LabelRateTarget, 0, 'f', 0));
        if (r.records > 10000 && peakAt10k > 0) {
            const double growth = r.quirra.peakMb - peakAt10k;
            const double engineGrowth = r.engine.peakMb - enginePeakAt10k;
            verdict(growth - engineGrowth <= peakAt10k * 0.1,
                    QStringLiteral("%1: peak %2 MB, %3 MB over 10000 records' (%4 MB) where the "
                                   "engine alone's grows %5 MB: %6 MB of our own, within %7 MB")
                        .arg(r.work)
                        .arg(r.quirra.peakMb, 0, 'f', 1)
                        .arg(growth, 0, 'f', 1)
                        .arg(peakAt10k, 0, 'f', 1)
                        .arg(engineGrowth, 0, 'f', 1)
                        .arg(growth - engineGrowth, 0, 'f', 1)
                        .arg(peakAt10k * 0.1, 0, 'f', 1));
        }
    }
    return allMet ? 0 : 1;
}
