// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#include "records/sharedspool.h"

#include "model/error.h"
#include "settings/files.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <ctime>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace quirra {

namespace {

const QString SpoolPrefix = QStringLiteral("qzv");

// A spool younger than this may be one another process has just made and
// not yet locked.
constexpr time_t StaleAfterSeconds = 60;

QString temporaryDirectory()
{
    const QString dir = qEnvironmentVariable("TMPDIR");
    return dir.isEmpty() ? QDir::tempPath() : dir;
}

} // namespace

SharedSpool &SharedSpool::instance()
{
    static SharedSpool spool;
    return spool;
}

void SharedSpool::reset()
{
    SharedSpool &spool = instance();
    spool.m_reader.close();
    spool.m_reader.setSpoolExhausted(false);
    spool.m_reader.setPath(QString());
}

int SharedSpool::removeStaleSpools(const QString &folder)
{
    int removed = 0;
    const QDir dir(folder);
    const QStringList names = dir.entryList({SpoolPrefix + QStringLiteral("*.tmp")},
                                            QDir::Files | QDir::Hidden | QDir::NoSymLinks);
    for (const QString &name : names) {
        const QByteArray path = QFile::encodeName(dir.filePath(name));
        const int fd = ::open(path.constData(), O_RDONLY | O_NOFOLLOW | O_CLOEXEC | O_NONBLOCK);
        if (fd < 0)
            continue;
        struct stat info;
        // Only this user's files, not touched for a while, that no one holds.
        if (::fstat(fd, &info) == 0 && S_ISREG(info.st_mode) && info.st_uid == ::geteuid() &&
            info.st_mtime + StaleAfterSeconds < ::time(nullptr) &&
            ::flock(fd, LOCK_EX | LOCK_NB) == 0 && ::unlink(path.constData()) == 0) {
            ++removed;
        }
        ::close(fd);
    }
    return removed;
}

QString SharedSpool::makeNewSpoolFile()
{
    if (!m_swept) {
        m_swept = true;
        removeStaleSpools(temporaryDirectory());
    }
    // Locks on spool files that are gone are of no use any more.
    for (qsizetype i = m_locks.size() - 1; i >= 0; --i) {
        struct stat info;
        if (::fstat(m_locks[i], &info) == 0 && info.st_nlink == 0) {
            ::close(m_locks[i]);
            m_locks.removeAt(i);
        }
    }
    QString path;
    try {
        path = MakeTempFileName(SpoolPrefix);
    } catch (const Error &e) {
        m_creationError = e.message();
        throw;
    }
    m_creationError.clear();
    const int fd = ::open(QFile::encodeName(path).constData(), O_RDONLY | O_CLOEXEC);
    if (fd >= 0) {
        if (::flock(fd, LOCK_EX | LOCK_NB) == 0)
            m_locks << fd;
        else
            ::close(fd);
    }
    setSpoolPath(path);
    return path;
}

} // namespace quirra
