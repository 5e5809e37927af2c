// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#include "spoolprogress.h"

#include "progressbar.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <algorithm>

namespace quirra {

namespace {
constexpr int PollMilliseconds = 100;
} // namespace

SpoolProgress::SpoolProgress(const QString &spoolPath, qint64 records, int perPage,
                             ProgressBar *bar)
    : m_path(QFileInfo(spoolPath).canonicalFilePath()), m_records(records),
      m_perPage(std::max(1, perPage)), m_bar(bar)
{
}

SpoolProgress::~SpoolProgress()
{
    stop();
}

qint64 SpoolProgress::pagesFor(qint64 records, int perPage)
{
    const qint64 per = std::max(1, perPage);
    return records <= 0 ? 0 : (records + per - 1) / per;
}

QString SpoolProgress::pageDetail(qint64 page, qint64 pages)
{
    return QStringLiteral("page %1 of %2").arg(page).arg(pages);
}

void SpoolProgress::stop()
{
    if (isRunning()) {
        m_stop.release();
        wait();
    }
}

qint64 SpoolProgress::readPosition(const QString &canonicalPath)
{
    const QDir fds(QStringLiteral("/proc/self/fd"));
    const QStringList entries = fds.entryList(QDir::Files | QDir::System | QDir::NoDotAndDotDot);
    for (const QString &fd : entries) {
        if (QFile::symLinkTarget(fds.filePath(fd)) != canonicalPath)
            continue;
        QFile info(QStringLiteral("/proc/self/fdinfo/") + fd);
        if (!info.open(QIODevice::ReadOnly))
            continue;
        // The first line reads "pos:\t<offset>".
        const QByteArray first = info.readLine().trimmed();
        if (first.startsWith("pos:")) {
            bool ok = false;
            const qint64 pos = first.mid(4).trimmed().toLongLong(&ok);
            if (ok)
                return pos;
        }
    }
    return -1;
}

void SpoolProgress::run()
{
    const qint64 size = QFileInfo(m_path).size();
    const qint64 pages = pagesFor(m_records, m_perPage);
    const QString label = QStringLiteral("printing");
    m_bar->update(label, 0, pageDetail(0, pages), true);
    if (m_path.isEmpty() || size <= 0)
        return;
    while (!m_stop.tryAcquire(1, PollMilliseconds)) {
        const qint64 pos = readPosition(m_path);
        if (pos < 0)
            continue;
        const double fraction = std::min(1.0, double(pos) / double(size));
        const qint64 done = qint64(fraction * double(m_records));
        m_bar->update(label, fraction, pageDetail(pagesFor(done, m_perPage), pages));
    }
}

} // namespace quirra
