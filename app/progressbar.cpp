// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#include "progressbar.h"

#include <QIODevice>
#include <QMutexLocker>

#include <algorithm>
#include <cmath>

namespace quirra {

ProgressBar::ProgressBar(QIODevice *device) : m_device(device) {}

QString ProgressBar::render(const QString &label, double fraction, const QString &detail)
{
    QString line = label.leftJustified(8);
    if (fraction >= 0 && std::isfinite(fraction)) {
        const double f = std::clamp(fraction, 0.0, 1.0);
        // Floors, so the bar is full and the figure 100 only when all is done.
        const int filled = int(std::floor(f * BarWidth));
        const int percent = int(std::floor(f * 100));
        line += QLatin1String(" [") + QString(filled, QLatin1Char('#')) +
                QString(BarWidth - filled, QLatin1Char('.')) + QLatin1String("] ") +
                QString::number(percent).rightJustified(3) + QLatin1Char('%');
    }
    if (!detail.isEmpty())
        line += QLatin1String("  ") + detail;
    return line;
}

void ProgressBar::draw(const QString &line)
{
    if (!m_device)
        return;
    // Pads over the rest of a longer previous line instead of relying on
    // terminal escapes, so a log file gets plain text.
    const QString padded = line.leftJustified(m_lastLength);
    m_device->write("\r" + padded.toUtf8());
    m_lastLength = line.size();
    m_lineOpen = true;
    m_sinceDraw.start();
}

void ProgressBar::update(const QString &label, double fraction, const QString &detail, bool force)
{
    QMutexLocker lock(&m_mutex);
    if (!force && m_sinceDraw.isValid() && m_sinceDraw.elapsed() < m_interval)
        return;
    draw(render(label, fraction, detail));
}

void ProgressBar::finish(const QString &label, double fraction, const QString &detail)
{
    QMutexLocker lock(&m_mutex);
    draw(render(label, fraction, detail));
    if (m_device)
        m_device->write("\n");
    m_lineOpen = false;
    m_lastLength = 0;
    m_sinceDraw.invalidate();
}

void ProgressBar::interrupt()
{
    QMutexLocker lock(&m_mutex);
    if (m_lineOpen && m_device)
        m_device->write("\n");
    m_lineOpen = false;
    m_lastLength = 0;
}

} // namespace quirra
