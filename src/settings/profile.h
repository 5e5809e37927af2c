// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#pragma once

#include "quirracontrol_export.h"

#include <QByteArray>
#include <QHash>
#include <QString>

namespace quirra {

/**
 * @brief A settings file in the INI format, read by the rules desktop
 * programs have always used for such files.
 *
 * Sections and keys match case-insensitively and the first match wins;
 * blanks around keys and values are ignored; a value in matching quotes loses
 * them; lines starting with ";" are comments; lines that are neither a
 * section nor "key=value" are skipped. A value is cut at 254 characters.
 *
 * QSettings is no substitute: it splits values at commas, and catalogue
 * records are comma-separated text.
 */
class QUIRRACONTROL_EXPORT ProfileFile
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
     * Parsed files are kept, and a file is parsed again when its size or
     * modification time changes, so a catalogue edited while the program runs
     * is seen at the next lookup.
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
