// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace quirra {

/** @brief The text before the first separator; the whole text when there is none. */
QString TextBefore(const QString &text, const QString &separator);

/** @brief The text after the first separator; the empty text when there is none. */
QString TextAfter(const QString &text, const QString &separator);

/** @brief The text after the last separator; the whole text when there is none. */
QString TextAfterLast(const QString &text, const QString &separator);

/**
 * @brief The text without leading and trailing blanks (spaces only: a tab or
 * a line break is kept, as the address rules expect).
 */
QString TrimBlanks(const QString &text);

/** @brief The text without trailing blanks (spaces only). */
QString TrimTrailingBlanks(const QString &text);

} // namespace quirra
