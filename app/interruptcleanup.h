// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <atomic>

namespace quirra {

/**
 * @brief Removes the files of a run that is interrupted (Ctrl-C, a hang-up,
 * kill): the spool and a half-written PDF would otherwise stay behind, since
 * no destructor runs when a signal ends the process.
 *
 * Holds a few paths at a time; the signal handler only unlinks them and then
 * ends the process by the same signal, as if no handler had been there.
 *
 * While a run can be cancelled, the first SIGINT only sets the run's cancel
 * flag: the run stops before its next piece and the command cleans up and
 * ends itself. A second SIGINT ends the process as above.
 */
class InterruptCleanup
{
public:
    /** @brief The most files watched at once. */
    static constexpr int MaxFiles = 4;

    /** @brief Installs the handlers for SIGINT, SIGTERM and SIGHUP (once). */
    static void install();

    /** @brief Removes path if a signal ends the process; false when all places are taken. */
    static bool watch(const QString &path);

    /** @brief Stops watching path (it was renamed, or removed by its owner). */
    static void unwatch(const QString &path);

    /** @brief The cancel flag SIGINT sets (a control's cancelFlag()); nullptr: none. */
    static void cancelOnInterrupt(std::atomic_bool *flag);

    /** @brief True once SIGINT has set the cancel flag. */
    static bool interrupted();
};

} // namespace quirra
