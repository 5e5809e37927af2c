// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#include "settings/strings.h"

namespace quirra {

// An empty separator counts as "does not occur": otherwise it would be found
// at the start of every text, and a loop that splits a list by it would never
// make progress.

QString TextBefore(const QString &text, const QString &separator)
{
    if (separator.isEmpty()) {
        return text;
    }
    const qsizetype at = text.indexOf(separator, 0, Qt::CaseSensitive);
    return at < 0 ? text : text.left(at);
}

QString TextAfter(const QString &text, const QString &separator)
{
    if (separator.isEmpty()) {
        return QString(QLatin1String(""));
    }
    const qsizetype at = text.indexOf(separator, 0, Qt::CaseSensitive);
    return at < 0 ? QString(QLatin1String("")) : text.mid(at + separator.size());
}

QString TextAfterLast(const QString &text, const QString &separator)
{
    if (separator.isEmpty()) {
        return text;
    }
    const qsizetype at = text.lastIndexOf(separator, -1, Qt::CaseSensitive);
    return at < 0 ? text : text.mid(at + separator.size());
}

QString TrimBlanks(const QString &text)
{
    qsizetype begin = 0;
    qsizetype end = text.size();
    while (begin < end && text.at(begin) == QLatin1Char(' ')) {
        ++begin;
    }
    while (end > begin && text.at(end - 1) == QLatin1Char(' ')) {
        --end;
    }
    if (begin == 0 && end == text.size()) {
        return text.isNull() ? QString(QLatin1String("")) : text;
    }
    return text.mid(begin, end - begin);
}

QString TrimTrailingBlanks(const QString &text)
{
    qsizetype end = text.size();
    while (end > 0 && text.at(end - 1) == QLatin1Char(' ')) {
        --end;
    }
    if (end == text.size()) {
        return text.isNull() ? QString(QLatin1String("")) : text;
    }
    return text.left(end);
}

} // namespace quirra
