// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#pragma once

#include "records/spoolreader.h"

#include <QList>
#include <QString>

namespace quirra {

/**
 * @brief The spool state that belongs to the process, not to one control.
 *
 * There is one spool path for all controls: each new control makes a fresh
 * spool file and names it here, replacing the one before. There is one
 * reader, with its open and end-of-spool marks, used by every print run.
 * Two controls in one process therefore share a spool; one active control at
 * a time is assumed. The writers stay per control (SpoolWriter).
 */
class SharedSpool
{
public:
    /** @brief The one instance of this process. */
    static SharedSpool &instance();

    /** @brief Closes the reader and forgets the path and the marks (for tests). */
    static void reset();

    /** @brief The full path of the spool file; empty before any control made one. */
    QString spoolPath() const { return m_reader.path(); }

    /** @brief Names the spool file for every writer and the reader. */
    void setSpoolPath(const QString &path) { m_reader.setPath(path); }

    /**
     * @brief Creates a new, empty spool file in the temporary directory
     * (prefix "qzv", mode 0600), names it as the spool and returns its path.
     *
     * The process holds a lock on every spool file it made until it ends, so
     * a spool nobody holds a lock on was left by a process that was killed:
     * the first spool a process makes removes those of its user first.
     *
     * @throws Error when the temporary directory cannot take a new file; the
     * message is kept as creationError().
     */
    QString makeNewSpoolFile();

    /** @brief Why the last makeNewSpoolFile() failed; empty when it did not. */
    QString creationError() const { return m_creationError; }

    /**
     * @brief Removes the spool files in folder ("qzv*.tmp", owned by this
     * user, unchanged for a minute) that no process holds a lock on;
     * returns how many.
     */
    static int removeStaleSpools(const QString &folder);

    /** @brief The process's one spool reader. */
    SpoolReader &reader() { return m_reader; }

private:
    SharedSpool() = default;
    SharedSpool(const SharedSpool &) = delete;
    SharedSpool &operator=(const SharedSpool &) = delete;

    SpoolReader m_reader;
    QString m_creationError;
    QList<int> m_locks; // one open descriptor, locked, per spool file made
    bool m_swept = false;
};

} // namespace quirra
