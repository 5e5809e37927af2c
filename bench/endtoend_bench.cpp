// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
//
// endtoend_bench: quirra print as a mailing house runs it, timed. For each N
// it writes a CSV file of N made-up recipients, prints it to PDF with the
// quirra program on 30-up address labels and (up to --envelopes-up-to) on
// No. 10 envelopes with a return address and a message, and draws the same
// pieces with engine_bench, Qt's PDF engine alone, as the yardstick. Every
// program runs as a child process, so its wall time, CPU time and peak
// memory are its own (CPU time tells what a run costs when other programs
// share the core). Each PDF is read back: its page count, and every
// record's name found once, none missing.
//
//   endtoend_bench [--bin DIR] [--work DIR] [--envelopes-up-to N] [--no-check] [N ...]
//
// Default N: 1000 10000 100000 1000000. Exits 1 when a PDF is wrong or a
// target is missed:
//   - labels: 10,000 records a second or better, and within 3x of the engine;
//   - peak memory under 100 MB at every N, and no more at the largest N than
//     at 10,000 (10% slack);
//   - the page count and every name right.
#include "benchdata.h"

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QTemporaryDir>

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

constexpr double LabelRateTarget = 10000.0; // records a second, end to end
constexpr double EngineRatioTarget = 3.0;   // end to end over engine alone
constexpr double PeakTargetMb = 100.0;

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
Measure run(const QStringList &command, const QString &log)
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

double megabytes(const QString &path)
{
    return double(QFileInfo(path).size()) / 1048576.0;
}

struct Row
{
    QString piece;
    qint64 records = 0;
    Measure quirra;
    Measure engine;
    int pages = 0;
    double pdfMb = 0;
    double enginePdfMb = 0;
    QString check;
};

void printHeader()
{
    std::printf("%-7s %8s %6s | %7s %6s %7s %7s %6s | %7s %6s %7s %7s %6s | %5s | %s\n", "piece",
                "records", "pages", "quirra", "cpu s", "rec/s", "peak MB", "PDF MB", "engine",
                "cpu s", "rec/s", "peak MB", "PDF MB", "x eng", "check");
}

void printRow(const Row &r)
{
    const double rate = r.quirra.seconds > 0 ? double(r.records) / r.quirra.seconds : 0;
    const double engineRate = r.engine.seconds > 0 ? double(r.records) / r.engine.seconds : 0;
    std::printf(
        "%-7s %8lld %6d | %6.2fs %6.2f %7.0f %7.1f %6.1f | %6.2fs %6.2f %7.0f %7.1f %6.1f | "
        "%5.2f | %s\n",
        qPrintable(r.piece), static_cast<long long>(r.records), r.pages, r.quirra.seconds,
        r.quirra.cpuSeconds, rate, r.quirra.peakMb, r.pdfMb, r.engine.seconds, r.engine.cpuSeconds,
        engineRate, r.engine.peakMb, r.enginePdfMb,
        r.engine.seconds > 0 ? r.quirra.seconds / r.engine.seconds : 0.0,
        qPrintable(r.check.isEmpty() ? QStringLiteral("ok") : r.check));
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
    bool check = true;
    QList<qint64> counts;
    for (qsizetype i = 0; i < args.size(); ++i) {
        const QString &a = args.at(i);
        if (a == QLatin1String("--bin") && i + 1 < args.size()) {
            bin = args.at(++i);
        } else if (a == QLatin1String("--work") && i + 1 < args.size()) {
            work = args.at(++i);
        } else if (a == QLatin1String("--envelopes-up-to") && i + 1 < args.size()) {
            envelopesUpTo = args.at(++i).toLongLong();
        } else if (a == QLatin1String("--no-check")) {
            check = false;
        } else {
            bool ok = false;
            const qint64 n = a.toLongLong(&ok);
            if (!ok || n < 1) {
                std::fprintf(stderr, "usage: endtoend_bench [--bin DIR] [--work DIR] "
                                     "[--envelopes-up-to N] [--no-check] [N ...]\n");
                return 2;
            }
            counts << n;
        }
    }
    if (counts.isEmpty())
        counts = {1000, 10000, 100000, 1000000};

    const QString quirra = bin + QStringLiteral("/quirra");
    const QString engine = bin + QStringLiteral("/engine_bench");
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

    printHeader();
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
            r.piece = labels ? QStringLiteral("5160") : QStringLiteral("No.10");
            r.records = n;
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
            r.quirra = run(command, pdf + QStringLiteral(".log"));
            r.engine = run({engine, labels ? QStringLiteral("labels") : QStringLiteral("envelopes"),
                            QString::number(n), reference},
                           reference + QStringLiteral(".log"));
            r.pdfMb = megabytes(pdf);
            r.enginePdfMb = megabytes(reference);
            const qint64 perPage = labels ? 30 : 1;
            const int expectedPages = int((n + perPage - 1) / perPage);
            if (!r.quirra.ok) {
                r.check = r.quirra.error;
            } else if (!r.engine.ok) {
                r.check = r.engine.error;
            } else if (check) {
                r.pages = pageCount(pdf);
                if (r.pages != expectedPages)
                    r.check =
                        QStringLiteral("%1 pages, expected %2").arg(r.pages).arg(expectedPages);
                else
                    r.check = checkNames(pdf, n);
            } else {
                r.check = QStringLiteral("not checked");
                r.pages = expectedPages;
            }
            for (const QString &file : {pdf, reference}) {
                QFile::remove(file);
                QFile::remove(file + QStringLiteral(".log"));
            }
            printRow(r);
            rows << r;
        }
    }

    // The targets.
    std::printf("\n");
    bool allMet = true;
    auto verdict = [&](bool met, const QString &what) {
        std::printf("%-6s %s\n", met ? "met" : "MISSED", qPrintable(what));
        allMet = allMet && met;
    };
    double peakAt10k = 0;
    for (const Row &r : rows) {
        if (r.piece == QLatin1String("5160") && r.records == 10000)
            peakAt10k = r.quirra.peakMb;
    }
    for (const Row &r : rows) {
        const QString what = QStringLiteral("%1 x %2").arg(r.records).arg(r.piece);
        if (!r.check.isEmpty() && r.check != QLatin1String("not checked")) {
            verdict(false, what + QStringLiteral(": ") + r.check);
            continue;
        }
        verdict(r.quirra.peakMb < PeakTargetMb, QStringLiteral("%1: peak %2 MB, under %3 MB")
                                                    .arg(what)
                                                    .arg(r.quirra.peakMb, 0, 'f', 1)
                                                    .arg(PeakTargetMb));
        if (r.piece != QLatin1String("5160") || r.records < 10000)
            continue; // start-up dominates small runs
        const double rate = double(r.records) / r.quirra.seconds;
        QString note;
        // Wall time well over CPU time: other programs had the core too.
        if (r.quirra.seconds > 1.3 * r.quirra.cpuSeconds)
            note = QStringLiteral(" (the core was shared: %1 records/s of CPU time)")
                       .arg(double(r.records) / r.quirra.cpuSeconds, 0, 'f', 0);
        verdict(rate >= LabelRateTarget, QStringLiteral("%1: %2 records/s, %3 or better%4")
                                             .arg(what)
                                             .arg(rate, 0, 'f', 0)
                                             .arg(LabelRateTarget, 0, 'f', 0)
                                             .arg(note));
        const double ratio = r.quirra.seconds / r.engine.seconds;
        verdict(ratio <= EngineRatioTarget, QStringLiteral("%1: %2x the engine alone, within %3x")
                                                .arg(what)
                                                .arg(ratio, 0, 'f', 2)
                                                .arg(EngineRatioTarget));
        if (r.records > 10000 && peakAt10k > 0)
            verdict(r.quirra.peakMb <= peakAt10k * 1.1,
                    QStringLiteral("%1: peak %2 MB, as at 10000 (%3 MB)")
                        .arg(what)
                        .arg(r.quirra.peakMb, 0, 'f', 1)
                        .arg(peakAt10k, 0, 'f', 1));
    }
    return allMet ? 0 : 1;
}
