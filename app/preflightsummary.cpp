// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#include "preflightsummary.h"

#include "console.h"

#include "interruptcleanup.h"
#include "recordfeed.h"
#include "runoptions.h"

#include "control/quirra.h"
#include "model/error.h"
#include "records/sharedspool.h"
#include "render/runreport.h"

#include <QCommandLineParser>

#include <cstdio>

namespace quirra {

namespace {

// Names and texts of any length stay on one readable line.
constexpr qsizetype LongestShown = 60;

QString shortened(const QString &text)
{
    if (text.size() <= LongestShown)
        return text;
    return text.left(LongestShown) + Cli::tr("… (%1 characters)").arg(text.size());
}

QString records(qint64 n)
{
    return n == 1 ? Cli::tr("1 record") : Cli::tr("%1 records").arg(n);
}

} // namespace

QStringList PreflightSummary(const RunReport &report)
{
    if (report.isEmpty())
        return {};
    const qint64 noted = report.recordsNoted();
    QStringList lines{noted == 1 ? Cli::tr("1 record needs a look:")
                                 : Cli::tr("%1 records need a look:").arg(noted)};
    for (int k = 0; k < NoteKindCount; ++k) {
        const auto kind = NoteKind(k);
        const qint64 count = report.count(kind);
        const Note *first = report.firstOf(kind);
        if (count == 0 || !first)
            continue;
        QString line = QStringLiteral("  record %1").arg(first->record);
        if (!first->name.isEmpty())
            line += QStringLiteral(" (%1)").arg(shortened(first->name));
        line += QStringLiteral(": ") + RunReport::describe(kind);
        if (!first->detail.isEmpty())
            line += QStringLiteral(": ") + first->detail;
        if (count > 1)
            line += count == 2 ? Cli::tr(" (and 1 more record)")
                               : Cli::tr(" (and %1 more records)").arg(count - 1);
        lines << line;
    }
    return lines;
}

QCommandLineOption StrictOption()
{
    return QCommandLineOption(
        QStringLiteral("strict"),
        Cli::tr("Check every record first; when any needs a look (a city line cut or "
                "left out, text cut off, a piece off the page ...), say so and exit with "
                "status 3 without printing or writing anything."));
}

void TellNotes(const Quirra &control, const QString &command)
{
    for (const QString &line : PreflightSummary(control.LastRunReport()))
        say(QStringLiteral("quirra %1: %2").arg(command, line));
}

bool PreflightPasses(Quirra &control, const QString &command)
{
    control.PreflightNow();
    if (control.LastRunReport().isEmpty())
        return true;
    TellNotes(control, command);
    say(Cli::tr("quirra %1: nothing was printed (--strict); correct the records or the "
                "layout, or leave out --strict to print as it is")
            .arg(command));
    return false;
}

int RunCheckCommand(const QStringList &arguments,
                    const std::function<std::optional<int>(
                        QCommandLineParser &, const QStringList &, const QString &)> &parse)
{
    const QString command = QStringLiteral("check");
    QCommandLineParser parser;
    parser.setApplicationDescription(
        Cli::tr("Checks the addresses of a CSV file on the chosen piece as print would "
                "print them, and tells which records need a look; prints nothing. Exit "
                "status 0: all clean, 3: some records need a look."));
    RunOptions::addTo(parser, false);
    if (const auto status = parse(parser, arguments, command))
        return *status;
    RunOptions options;
    QString error;
    if (!options.read(parser, false, &error)) {
        say(QStringLiteral("quirra check: %1").arg(error));
        return 2;
    }
    Quirra control;
    InterruptCleanup::watch(SharedSpool::instance().spoolPath());
    if (const auto status = options.applyTo(control, command))
        return *status;
    RecordFeed feed(control);
    if (!feed.open(options.csvPath, &error) || !feed.feed({}, &error)) {
        say(QStringLiteral("quirra check: %1").arg(error));
        return 1;
    }
    try {
        control.PreflightNow();
    } catch (const Error &e) {
        say(QStringLiteral("quirra check: %1").arg(e.message()));
        return 1;
    }
    TellNotes(control, command);
    if (!control.LastRunReport().isEmpty())
        return NotesExitStatus;
    say(Cli::tr("quirra check: %1 on \"%2\": nothing to note")
            .arg(records(feed.records()), control.PieceName()));
    return 0;
}

} // namespace quirra
