// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
//
// Settings-file text of any bytes: parsing must end, and every value found
// must keep the reader's promises (at most 254 characters, no blanks at the
// ends unless they were quoted).
#include "settings/profile.h"

#include <QByteArrayList>

#include <cstdint>
#include <cstdlib>

using namespace quirra;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QByteArray text(reinterpret_cast<const char *>(data), qsizetype(size));
    const ProfileFile profile = ProfileFile::fromText(text);

    // Ask for the names the text itself offers: every "[section]" with every
    // "key=" that follows it, and a few the file cannot have.
    QString section;
    int asked = 0;
    for (const QByteArray &line : text.split('\n')) {
        if (++asked > 2000)
            break;
        const QByteArray trimmed = line.trimmed();
        if (trimmed.startsWith('[')) {
            section = QString::fromUtf8(trimmed.mid(1, trimmed.lastIndexOf(']') - 1));
            continue;
        }
        const qsizetype equals = trimmed.indexOf('=');
        if (equals <= 0)
            continue;
        const QString key = QString::fromUtf8(trimmed.left(equals));
        if (const QString *value = profile.find(section, key)) {
            if (value->size() > ProfileFile::MaxValueLength)
                std::abort();
        }
    }
    profile.find(QString(), QString());
    profile.find(QStringLiteral("Details"), QStringLiteral("\x01"));
    return 0;
}
