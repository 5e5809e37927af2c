// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#include "settings/profile.h"

#include "settings/logging_p.h"

#include <QFile>
#include <QFileInfo>
#include <QLoggingCategory>
#include <QMutex>
#include <QMutexLocker>

#include <cstring>
#include <memory>

#ifdef Q_OS_UNIX
#include <sys/stat.h>
#endif

namespace quirra {

namespace {

// Nothing a person writes by hand comes near this; a larger file is refused
// rather than read into memory whole.
constexpr qint64 MaxFileSize = 64 * 1024 * 1024;

// The number of files whose parsed form is kept.
constexpr int MaxCachedFiles = 32;

bool isBlank(char c)
{
    return c == ' ' || c == '\t' || c == '\v' || c == '\f' || c == '\r' || c == '\n';
}

// [begin, end) of the line without the blanks around it.
void trimRange(const char *&begin, const char *&end)
{
    while (begin < end && isBlank(*begin))
        ++begin;
    while (end > begin && isBlank(end[-1]))
        --end;
}

QString decode(const char *begin, const char *end)
{
    return QString::fromUtf8(begin, end - begin);
}

QString fold(const QString &name)
{
    return name.trimmed().toCaseFolded();
}

// Cuts after MaxValueLength characters without splitting a surrogate pair.
QString cut(QString value)
{
    if (value.size() > ProfileFile::MaxValueLength) {
        int n = ProfileFile::MaxValueLength;
        if (value.at(n - 1).isHighSurrogate())
            --n;
        value.truncate(n);
    }
    return value;
}

QString unquote(const QString &value)
{
    if (value.size() >= 2) {
        const QChar first = value.front();
        if ((first == u'"' || first == u'\'') && value.back() == first)
            return value.mid(1, value.size() - 2);
    }
    return value;
}

/** What identifies one version of a file on disk. */
struct FileStamp
{
    qint64 size = -1;
    qint64 modifiedNs = 0;
    qint64 changedNs = 0;
    quint64 inode = 0;

    bool operator==(const FileStamp &o) const
    {
        return size == o.size && modifiedNs == o.modifiedNs && changedNs == o.changedNs &&
               inode == o.inode;
    }
};

FileStamp stampOf(QFile &file)
{
    FileStamp stamp;
#ifdef Q_OS_UNIX
    struct stat st;
    if (::fstat(file.handle(), &st) == 0) {
        stamp.size = qint64(st.st_size);
        stamp.modifiedNs = qint64(st.st_mtim.tv_sec) * 1000000000 + st.st_mtim.tv_nsec;
        stamp.changedNs = qint64(st.st_ctim.tv_sec) * 1000000000 + st.st_ctim.tv_nsec;
        stamp.inode = quint64(st.st_ino);
        return stamp;
    }
#endif
    const QFileInfo info(file.fileName());
    stamp.size = info.size();
    stamp.modifiedNs = info.lastModified().toMSecsSinceEpoch() * 1000000;
    return stamp;
}

// Only a plain file is read: opening a pipe or a device given as a settings
// file could block or never end.
bool isRegularFile(const QString &path)
{
    if (path.isEmpty())
        return false;
#ifdef Q_OS_UNIX
    struct stat st;
    return ::stat(QFile::encodeName(path).constData(), &st) == 0 && S_ISREG(st.st_mode);
#else
    return QFileInfo(path).isFile();
#endif
}

struct CachedFile
{
    FileStamp stamp;
    std::shared_ptr<const ProfileFile> profile;
};

QMutex cacheMutex;
QHash<QString, CachedFile> &cache()
{
    static QHash<QString, CachedFile> files;
    return files;
}

// The parsed file, or nullptr when it cannot be read.
std::shared_ptr<const ProfileFile> load(const QString &path)
{
    QFile file(path);
    if (!isRegularFile(path) || !file.open(QIODevice::ReadOnly)) {
        QMutexLocker lock(&cacheMutex);
        cache().remove(path);
        return nullptr;
    }
    const FileStamp stamp = stampOf(file);
    {
        QMutexLocker lock(&cacheMutex);
        const auto it = cache().constFind(path);
        if (it != cache().constEnd() && it->stamp == stamp)
            return it->profile;
    }
    if (stamp.size > MaxFileSize) {
        qCWarning(lcSettings).noquote() << "The settings file" << path << "has" << stamp.size
                                        << "bytes, more than a settings file may have ("
                                        << MaxFileSize << "); its values read as their defaults";
        return nullptr;
    }
    // A file that changes while it is read is read again at the next lookup:
    // its stamp was taken before the read.
    auto profile = std::make_shared<const ProfileFile>(ProfileFile::fromText(file.readAll()));
    QMutexLocker lock(&cacheMutex);
    if (cache().size() >= MaxCachedFiles && !cache().contains(path))
        cache().clear();
    cache().insert(path, CachedFile{stamp, profile});
    return profile;
}

} // namespace

ProfileFile ProfileFile::fromText(const QByteArray &text)
{
    ProfileFile profile;
    const char *p = text.constData();
    const char *const end = p + text.size();
    // A byte order mark would hide the first section header.
    if (text.startsWith("\xEF\xBB\xBF"))
        p += 3;

    QHash<QString, QString> *section = nullptr; // null: no section yet, or a repeated one
    while (p < end) {
        const char *lineEnd = p;
        while (lineEnd < end && *lineEnd != '\n' && *lineEnd != '\r')
            ++lineEnd;
        const char *b = p;
        const char *e = lineEnd;
        p = lineEnd < end ? lineEnd + 1 : end;

        // A NUL byte means the line is binary junk, whatever else it holds.
        if (std::memchr(b, '\0', size_t(e - b)))
            continue;
        trimRange(b, e);
        if (b == e || *b == ';')
            continue;

        if (*b == '[') {
            const char *close = e;
            while (close > b && close[-1] != ']')
                --close;
            if (close == b)
                continue; // "[" without "]": junk, the current section goes on
            const QString name = fold(decode(b + 1, close - 1));
            // Only the first section of a name counts; a repeated one is
            // read past, its keys unseen.
            if (profile.m_sections.contains(name)) {
                section = nullptr;
            } else {
                section = &profile.m_sections[name];
            }
            continue;
        }

        if (!section)
            continue;
        const char *equals = static_cast<const char *>(std::memchr(b, '=', size_t(e - b)));
        if (!equals)
            continue;
        const char *kb = b;
        const char *ke = equals;
        trimRange(kb, ke);
        if (kb == ke)
            continue;
        const QString key = decode(kb, ke).toCaseFolded();
        if (section->contains(key))
            continue;
        const char *vb = equals + 1;
        const char *ve = e;
        trimRange(vb, ve);
        section->insert(key, cut(unquote(decode(vb, ve))));
    }
    return profile;
}

const QString *ProfileFile::find(const QString &section, const QString &key) const
{
    const auto s = m_sections.constFind(fold(section));
    if (s == m_sections.constEnd())
        return nullptr;
    const auto k = s->constFind(fold(key));
    return k == s->constEnd() ? nullptr : &k.value();
}

QString ProfileFile::readString(const QString &file, const QString &section, const QString &key,
                                const QString &defaultValue)
{
    const std::shared_ptr<const ProfileFile> profile = load(file);
    if (profile) {
        if (const QString *value = profile->find(section, key))
            return *value;
    }
    // The classic call drops the default's trailing blanks and cuts it like
    // any value.
    QString fallback = defaultValue;
    while (!fallback.isEmpty() && fallback.back() == u' ')
        fallback.chop(1);
    return cut(fallback);
}

} // namespace quirra
