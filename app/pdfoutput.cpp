// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#include "pdfoutput.h"

#include "console.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryFile>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <fcntl.h>
#include <sys/stat.h>
#include <sys/statvfs.h>
#include <unistd.h>
#include <utility>
#include <vector>

namespace quirra {

namespace {

// Links are followed as far as the kernel would follow them.
constexpr int MaxLinks = 40;

// Below this much room a folder counts as full.
constexpr unsigned long long FullBelowBytes = 1 << 20;

QString errnoText(int code)
{
    return QString::fromLocal8Bit(std::strerror(code));
}

// What a path that is no regular file is, in words; empty for a regular file.
QString kindOf(mode_t mode)
{
    if (S_ISREG(mode))
        return QString();
    if (S_ISDIR(mode))
        return Cli::tr("a folder");
    if (S_ISFIFO(mode))
        return Cli::tr("a named pipe (FIFO)");
    if (S_ISCHR(mode) || S_ISBLK(mode))
        return Cli::tr("a device");
    if (S_ISSOCK(mode))
        return Cli::tr("a socket");
    return Cli::tr("not a regular file");
}

/*
 * The last bytes of a PDF are "startxref", the offset of the cross-reference
 * table, and "%%EOF"; the table gives the offset of every object. A file cut
 * short, or missing a block in between, fails one of these.
 */
bool pdfIsWhole(QFile &file)
{
    // Read in pieces, never mapped whole: the check of a run of a million
    // labels stays within a few megabytes, as the run itself does.
    const qint64 size = file.size();
    auto readAt = [&](qint64 at, qint64 length) {
        if (at < 0 || at >= size || !file.seek(at))
            return QByteArray();
        return file.read(std::min(length, size - at));
    };
    const QByteArray tail = readAt(std::max<qint64>(0, size - 1024), 1024).trimmed();
    if (!tail.endsWith("%%EOF"))
        return false;
    const qsizetype at = tail.lastIndexOf("startxref");
    if (at < 0)
        return false;
    bool ok = false;
    const qint64 table = tail.mid(at + 9, tail.size() - 5 - at - 9).trimmed().toLongLong(&ok);
    if (!ok || table <= 0 || table >= size)
        return false;
    // The table is read line by line through a handle of its own: it holds
    // twenty bytes an object, megabytes for a long run.
    QFile xref(file.fileName());
    if (!xref.open(QIODevice::ReadOnly) || !xref.seek(table))
        return false;
    auto nextLine = [&]() { return xref.readLine(256).trimmed(); };
    if (!nextLine().startsWith("xref"))
        return false;
    // Each object is looked for at its offset, in the file's order, through
    // a window that moves on through the file.
    constexpr qint64 WindowBytes = 1 << 20;
    QByteArray window;
    qint64 windowAt = -1;
    auto startsWith = [&](qint64 offset, const QByteArray &start) {
        if (windowAt < 0 || offset < windowAt || offset + start.size() > windowAt + window.size()) {
            windowAt = offset;
            window = readAt(offset, WindowBytes);
        }
        return window.mid(offset - windowAt, start.size()) == start;
    };
    // The entries are checked a batch at a time, each batch in the file's
    // order: the check keeps a megabyte of entries however long the run.
    constexpr size_t BatchEntries = 1 << 16;
    std::vector<std::pair<qint64, qint64>> objects; // offset, object number
    objects.reserve(BatchEntries);
    auto checkBatch = [&]() {
        std::sort(objects.begin(), objects.end());
        for (const auto &[offset, object] : objects) {
            if (!startsWith(offset, QByteArray::number(object) + ' '))
                return false;
        }
        objects.clear();
        return true;
    };
    // Subsections: "first count", then count lines "offset generation n|f".
    for (QByteArray head = nextLine(); !head.startsWith("trailer"); head = nextLine()) {
        const QList<QByteArray> fields = head.split(' ');
        if (fields.size() != 2)
            return false;
        bool firstOk = false, countOk = false;
        qint64 object = fields[0].toLongLong(&firstOk);
        const qint64 count = fields[1].toLongLong(&countOk);
        if (!firstOk || !countOk || count < 0)
            return false;
        for (qint64 i = 0; i < count; ++i, ++object) {
            const QByteArray entry = nextLine();
            if (entry.size() < 18)
                return false;
            if (entry.endsWith('f'))
                continue;
            const qint64 offset = entry.left(10).toLongLong(&ok);
            if (!ok || offset < 0 || offset >= table)
                return false;
            objects.push_back({offset, object});
            if (objects.size() == BatchEntries && !checkBatch())
                return false;
        }
    }
    return checkBatch();
}

} // namespace

PdfOutput::PdfOutput(const QString &target) : m_target(target) {}

PdfOutput::~PdfOutput()
{
    if (!m_committed)
        discard();
}

bool PdfOutput::open(QString *error)
{
    if (m_target.isEmpty() || QFileInfo(m_target).fileName().isEmpty()) {
        *error = Cli::tr("the PDF needs a file name");
        return false;
    }
    // A link is followed: the file it names is replaced, the link stays.
    m_path = QFileInfo(m_target).absoluteFilePath();
    for (int links = 0; QFileInfo(m_path).isSymLink(); ++links) {
        if (links == MaxLinks) {
            *error = Cli::tr("%1 is a loop of symbolic links").arg(m_target);
            return false;
        }
        m_path = QFileInfo(m_path).symLinkTarget();
    }
    m_mode = 0;
    m_replaces = false;
    struct stat info;
    if (::stat(QFile::encodeName(m_path).constData(), &info) == 0) {
        const QString kind = kindOf(info.st_mode);
        if (!kind.isEmpty()) {
            *error = Cli::tr("%1 is %2; --pdf needs the name of a regular file or of a "
                             "new one")
                         .arg(m_target, kind);
            return false;
        }
        m_mode = info.st_mode & 07777;
        m_owner = info.st_uid;
        m_group = info.st_gid;
        m_replaces = true;
    } else if (errno != ENOENT) {
        *error = Cli::tr("cannot write %1: %2").arg(m_target, errnoText(errno));
        return false;
    }
    const QFileInfo info2(m_path);
    const QDir folder = info2.absoluteDir();
    if (!folder.exists()) {
        *error = Cli::tr("the folder %1 does not exist; create it first")
                     .arg(QDir::toNativeSeparators(folder.path()));
        return false;
    }
    // Hidden, and named after the target, so a stray one (after a crash) is
    // easy to recognise.
    QTemporaryFile file(
        folder.filePath(QLatin1Char('.') + info2.fileName() + QStringLiteral(".XXXXXX.part")));
    file.setAutoRemove(false);
    if (!file.open()) {
        *error = Cli::tr("cannot write in the folder %1: %2")
                     .arg(QDir::toNativeSeparators(folder.path()), file.errorString());
        return false;
    }
    m_temporary = file.fileName();
    file.close();
    m_committed = false;
    return true;
}

QString PdfOutput::incompleteReason() const
{
    const QString folder = QFileInfo(m_path).absolutePath();
    struct statvfs room;
    if (::statvfs(QFile::encodeName(folder).constData(), &room) == 0 &&
        (unsigned long long)room.f_bavail * room.f_frsize < FullBelowBytes) {
        return Cli::tr("the disk is full (no space left in %1); free some room and run "
                       "again")
            .arg(QDir::toNativeSeparators(folder));
    }
    return Cli::tr("a write failed (an input/output error or a disk quota); check the disk "
                   "and run again");
}

bool PdfOutput::commit(QString *error)
{
    if (m_temporary.isEmpty()) {
        *error = Cli::tr("no PDF was started");
        return false;
    }
    auto fail = [&](const QString &why) {
        discard();
        const QString left =
            m_replaces ? Cli::tr("the file there is as it was") : Cli::tr("no file was made");
        *error = Cli::tr("%1 was not written: %2; %3").arg(m_target, why, left);
        return false;
    };
    QFile file(m_temporary);
    if (!file.open(QIODevice::ReadOnly))
        return fail(file.errorString());
    if (file.size() == 0)
        return fail(Cli::tr("no page was written"));
    if (!pdfIsWhole(file))
        return fail(Cli::tr("the file came out incomplete: ") + incompleteReason());
    // The data must be on the disk before the name points at it.
    if (::fsync(file.handle()) != 0)
        return fail(errnoText(errno));
    file.close();

    const QByteArray from = QFile::encodeName(m_temporary);
    const QByteArray to = QFile::encodeName(m_path);
    mode_t mode = m_mode;
    if (!m_replaces) {
        mode = umask(0);
        umask(mode);
        mode = 0666 & ~mode;
    }
    // Root replacing another user's file gives it back to that user.
    if (m_replaces && ::geteuid() == 0)
        (void)!::chown(from.constData(), m_owner, m_group);
    ::chmod(from.constData(), mode);
    // rename() replaces an existing target in one step.
    if (std::rename(from.constData(), to.constData()) != 0)
        return fail(errnoText(errno));
    const int folder = ::open(QFile::encodeName(QFileInfo(m_path).absolutePath()).constData(),
                              O_RDONLY | O_DIRECTORY);
    if (folder >= 0) {
        ::fsync(folder);
        ::close(folder);
    }
    m_committed = true;
    m_temporary.clear();
    return true;
}

void PdfOutput::discard()
{
    if (!m_temporary.isEmpty())
        QFile::remove(m_temporary);
    m_temporary.clear();
}

} // namespace quirra
