// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#include "settings/files.h"

#include "settings/logging_p.h"

#include "model/error.h"
#include "settings/strings.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLoggingCategory>
#include <QThread>

#include <cerrno>
#include <cstdlib>
#include <cstring>

#include <dlfcn.h>
#include <unistd.h>

namespace quirra {

namespace {

const QLatin1String CatalogueName("quirra.cfg");

// How long a file that will not go away may keep its deleter waiting.
constexpr int DeleteWaitMs = 5000;

QString folderOfThisCode()
{
    // The folder of the shared library this code was linked into, or of the
    // program when it was linked statically: the catalogue ships beside it.
    Dl_info info;
    std::memset(&info, 0, sizeof info);
    if (dladdr(reinterpret_cast<void *>(&SystemDirectory), &info) == 0 || !info.dli_fname ||
        !*info.dli_fname) {
        return QString();
    }
    QFileInfo object(QFile::decodeName(info.dli_fname));
    // The program itself may be reported by the name it was started with,
    // which need not be a path from here.
    if (!object.isAbsolute() || !object.exists()) {
        object = QFileInfo(QStringLiteral("/proc/self/exe"));
    }
    const QString canonical = object.canonicalFilePath();
    return canonical.isEmpty() ? QString() : QFileInfo(canonical).absolutePath();
}

bool holdsCatalogue(const QString &folder)
{
    return !folder.isEmpty() && QFileInfo(WithTrailingSlash(folder) + CatalogueName).isFile();
}

} // namespace

QString MakeTempFileName(const QString &prefix)
{
    QString stem = prefix.left(3);
    if (stem.isEmpty()) {
        stem = QStringLiteral("tmp");
    }
    // A prefix is a name, never a way into another folder.
    stem.replace(QLatin1Char('/'), QLatin1Char('_'));
    stem.replace(QChar(0), QLatin1Char('_'));

    QString dir = qEnvironmentVariable("TMPDIR");
    if (dir.isEmpty()) {
        dir = QDir::tempPath();
    }
    dir = QFileInfo(dir).absoluteFilePath();

    const QString pattern = WithTrailingSlash(dir) + stem + QStringLiteral("XXXXXX.tmp");
    QByteArray name = QFile::encodeName(pattern);
    // mkstemps creates the file with mode 0600 and fails rather than reuse a
    // name, so no other user can read or swap the spooled addresses.
    const int fd = ::mkstemps(name.data(), 4);
    if (fd < 0) {
        throw Error(TemporaryDirectoryProblem(dir, errno));
    }
    ::close(fd);
    return QFile::decodeName(name);
}

QString TemporaryDirectoryProblem(const QString &dir, int code)
{
    const QString reason = QString::fromLocal8Bit(std::strerror(code));
    if (code == ENOENT || code == ENOTDIR) {
        return QStringLiteral("The temporary directory \"%1\" is missing (%2): create it, or set "
                              "TMPDIR to a folder that exists.")
            .arg(dir, reason);
    }
    if (code == ENOSPC || code == EDQUOT) {
        return QStringLiteral("The temporary directory \"%1\" is full (%2): free some room "
                              "there, or set TMPDIR to a folder with room.")
            .arg(dir, reason);
    }
    return QStringLiteral("Cannot create a temporary file in \"%1\": %2. "
                          "Set TMPDIR to a folder you can write to.")
        .arg(dir, reason);
}

QString SystemDirectory()
{
    const QString configured = TrimBlanks(qEnvironmentVariable("QUIRRA_SYSTEM_DIR"));
    if (!configured.isEmpty()) {
        return WithTrailingSlash(configured);
    }

    const QString here = folderOfThisCode();
    if (!here.isEmpty()) {
        const QString beside =
            QDir::cleanPath(here + QLatin1Char('/') + QStringLiteral(QUIRRA_RELATIVE_DATADIR));
        if (holdsCatalogue(beside)) {
            return WithTrailingSlash(beside);
        }
    }

    const QString installed = QStringLiteral(QUIRRA_INSTALL_DATADIR);
    if (holdsCatalogue(installed)) {
        return WithTrailingSlash(installed);
    }
    return WithTrailingSlash(QStringLiteral(QUIRRA_SOURCE_DATADIR));
}

QString TranslationsDirectory()
{
    const QString here = folderOfThisCode();
    const QStringList candidates{
        here.isEmpty() ? QString()
                       : QDir::cleanPath(here + QLatin1Char('/') +
                                         QStringLiteral(QUIRRA_RELATIVE_TRANSLATIONSDIR)),
        QStringLiteral(QUIRRA_INSTALL_TRANSLATIONSDIR)};
    for (const QString &folder : candidates) {
        if (!folder.isEmpty() && QFileInfo(folder).isDir())
            return folder;
    }
    return QString();
}

QString PaperCatalogueFile()
{
    const QString configured = qEnvironmentVariable("QUIRRA_PAPER_CATALOGUE");
    if (!configured.isEmpty()) {
        return configured;
    }
    return SystemDirectory() + CatalogueName;
}

QString WithTrailingSlash(const QString &path)
{
    if (path.endsWith(QLatin1Char('/'))) {
        return path;
    }
    return path + QLatin1Char('/');
}

bool FileExists(const QString &path)
{
    if (path.isEmpty()) {
        return false;
    }
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        return false;
    }
    file.close();
    return true;
}

void DeleteFileAndWait(const QString &path)
{
    if (path.isEmpty()) {
        return;
    }
    QFile::remove(path);
    if (!FileExists(path)) {
        return;
    }

    const QDeadlineTimer deadline(DeleteWaitMs);
    while (FileExists(path)) {
        if (deadline.hasExpired()) {
            qCWarning(lcSettings).noquote()
                << "Gave up waiting for" << path << "to be deleted; it is left behind.";
            return;
        }
        if (QCoreApplication::instance()) {
            QCoreApplication::processEvents();
        }
        QThread::msleep(10);
        // Whatever held the file may have let go of it by now.
        QFile::remove(path);
    }
}

} // namespace quirra
