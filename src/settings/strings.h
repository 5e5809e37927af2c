// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#pragma once

#include "quirracontrol_export.h"

#include <QString>

namespace quirra {

/** @brief The text before the first separator; the whole text when there is none. */
QUIRRACONTROL_EXPORT QString TextBefore(const QString &text, const QString &separator);

/** @brief The text after the first separator; the empty text when there is none. */
QUIRRACONTROL_EXPORT QString TextAfter(const QString &text, const QString &separator);

/** @brief The text after the last separator; the whole text when there is none. */
QUIRRACONTROL_EXPORT QString TextAfterLast(const QString &text, const QString &separator);

/**
 * @brief The text without leading and trailing blanks (spaces only: a tab or
 * a line break is kept, as the address rules expect).
 */
QUIRRACONTROL_EXPORT QString TrimBlanks(const QString &text);

/** @brief The text without trailing blanks (spaces only). */
QUIRRACONTROL_EXPORT QString TrimTrailingBlanks(const QString &text);

} // namespace quirra
