// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QVariant>

namespace quirra {

/** @brief The longest item text a layout file or --set may give, in characters. */
constexpr qsizetype MaxItemTextLength = 64 * 1024;

/** @brief The largest length, in inches, a layout file or --set may give. */
constexpr double MaxInches = 100.0;

/**
 * @brief What is wrong with value for the control's property name, or the
 * empty text: a text longer than MaxItemTextLength (laying out megabytes of
 * text takes minutes and gigabytes), or a length (every number the control
 * keeps in inches) below 0 or above MaxInches, which no sheet has.
 */
QString valueProblem(const QString &name, const QVariant &value);

} // namespace quirra
