// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QCommandLineOption>
#include <QStringList>

#include <functional>
#include <optional>

class QCommandLineParser;
class Quirra;

namespace quirra {

class RunReport;

/** @brief The exit status of a run that stopped, or a check that found, on notes. */
constexpr int NotesExitStatus = 3;

/**
 * @brief What a run noted, as the host tells it: a head line ("2 records
 * need a look:"), then one line for each kind of note, naming the first
 * record of that kind and how many more have it. Nothing for a clean run.
 */
QStringList PreflightSummary(const RunReport &report);

/** @brief print's --strict: any note ends the run with NotesExitStatus before any output. */
QCommandLineOption StrictOption();

/**
 * @brief Runs the preflight on the control's spooled records and, when it
 * notes anything, tells it on standard error under the command's name.
 * @return true when the records are clean
 */
bool PreflightPasses(Quirra &control, const QString &command);

/** @brief Tells, on standard error under the command's name, what the control's last run noted. */
void TellNotes(const Quirra &control, const QString &command);

/**
 * @brief quirra check: the print command's piece and layout options and a
 * CSV file, run through the preflight with no output at all.
 *
 * @param parse parses the arguments as the other commands do; returns the
 *        exit status when the command is over (help, a mistake)
 * @return 0 when the records are clean, NotesExitStatus when some need a
 *         look, 1 or 2 for an error
 */
int RunCheckCommand(const QStringList &arguments,
                    const std::function<std::optional<int>(
                        QCommandLineParser &, const QStringList &, const QString &)> &parse);

} // namespace quirra
