// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QElapsedTimer>
#include <QMutex>
#include <QString>

class QIODevice;

namespace quirra {

/**
 * @brief A one-line progress bar on a terminal (or any device): a label, a
 * bar, the percentage and a detail such as "1200 records".
 *
 * The line is redrawn in place (carriage return, then the new text padded
 * over the old) at most every redrawInterval milliseconds, so a run of a
 * million records does not spend its time drawing. Safe to update from a
 * second thread: every write holds a lock.
 */
class ProgressBar
{
public:
    /** @brief Characters of the bar between its brackets. */
    static constexpr int BarWidth = 24;

    /** @brief Draws on device (not owned); nullptr draws nothing. */
    explicit ProgressBar(QIODevice *device);

    /**
     * @brief The line for a state of progress.
     * @param fraction done, 0 to 1; a negative fraction means the end is not
     * known and no bar is drawn
     */
    static QString render(const QString &label, double fraction, const QString &detail);

    /** @brief The shortest time between two redraws, in milliseconds. */
    void setRedrawInterval(int milliseconds) { m_interval = milliseconds; }

    /** @brief Redraws the line when the interval has passed (or force is set). */
    void update(const QString &label, double fraction, const QString &detail, bool force = false);

    /** @brief Draws the last state of a stage and ends its line. */
    void finish(const QString &label, double fraction, const QString &detail);

    /** @brief Ends a line left open by update(), e.g. before an error message. */
    void interrupt();

private:
    void draw(const QString &line);

    QIODevice *m_device;
    QMutex m_mutex;
    QElapsedTimer m_sinceDraw;
    int m_interval = 100;
    qsizetype m_lastLength = 0;
    bool m_lineOpen = false;
};

} // namespace quirra
