// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QHash>
#include <QString>

namespace quirra {

/**
 * @brief A settings file in the INI format, read by the rules desktop
 * programs have always used for such files.
 *
 * Sections and keys match case-insensitively and the first match wins (a
 * section repeated further down is not read at all); blanks around names and
 * values are ignored; a value in matching quotes (double or single) loses
 * them; lines starting with ";" are comments; lines that are neither a
 * section nor "key=value", and lines holding a NUL byte, are skipped. Lines
 * end in LF, CR LF or CR. A value is cut at 254 characters. Parsing takes
 * time in proportion to the text's length, whatever the text holds.
 *
 * QSettings is no substitute: it splits values at commas, and catalogue
 * records are comma-separated text.
 */
class ProfileFile
{
public:
    /** @brief Parses the text of a settings file (UTF-8). */
    static ProfileFile fromText(const QByteArray &text);

    /**
     * @brief The value of key in section, or nullptr when either is absent.
     */
    const QString *find(const QString &section, const QString &key) const;

    /**
     * @brief Reads one value from a file, as the classic profile-string call
     * does: the default when the file, the section or the key is missing.
     *
     * The default loses its trailing blanks and is cut like any value. Only a
     * plain file is read (a pipe, a device or a folder counts as missing, as
     * does a file over 64 MiB). Parsed files are kept, and a file is parsed
     * again when its size, modification time (to the nanosecond) or inode
     * changes, so a catalogue edited while the program runs is seen at the
     * next lookup.
     */
    static QString readString(const QString &file, const QString &section, const QString &key,
                              const QString &defaultValue);

    /** @brief The longest value a lookup returns; longer ones are cut. */
    static constexpr int MaxValueLength = 254;

private:
    // section (folded) -> key (folded) -> value; the first of each wins.
    QHash<QString, QHash<QString, QString>> m_sections;
};

} // namespace quirra
