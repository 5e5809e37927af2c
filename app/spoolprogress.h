// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QSemaphore>
#include <QString>
#include <QThread>

namespace quirra {

class ProgressBar;

/**
 * @brief Shows how far a print run has read the spool, while the run itself
 * keeps the main thread busy.
 *
 * The run reads the spool file from start to end, one record after the
 * other, so the read position of its file says how many records (and hence
 * pages) are done. A second thread looks up that position from outside, in
 * the process's open-file table (/proc/self/fdinfo), and draws the bar; it
 * touches no object of the run. Where that table does not exist the bar
 * simply stays at its first state.
 */
class SpoolProgress : public QThread
{
public:
    /**
     * @brief A watcher of one run; start() it just before the run.
     * @param spoolPath the spool file the run reads
     * @param records records in the spool
     * @param perPage pieces on one page (at least 1)
     * @param bar where to draw; updated from the watching thread
     */
    SpoolProgress(const QString &spoolPath, qint64 records, int perPage, ProgressBar *bar);
    ~SpoolProgress() override;

    /** @brief Pages a run of records takes at perPage pieces a page. */
    static qint64 pagesFor(qint64 records, int perPage);

    /** @brief The detail text for a page count, e.g. "page 12 of 40". */
    static QString pageDetail(qint64 page, qint64 pages);

    /** @brief Ends the watching thread and waits for it. */
    void stop();

    /**
     * @brief The read position of an open file of this process, in bytes
     * from its start, looked up by path; -1 when the file is not open (or
     * the system does not tell).
     */
    static qint64 readPosition(const QString &canonicalPath);

protected:
    void run() override;

private:
    QString m_path;
    qint64 m_records;
    int m_perPage;
    ProgressBar *m_bar;
    QSemaphore m_stop;
};

} // namespace quirra
