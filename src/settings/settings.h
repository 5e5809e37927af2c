// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

namespace quirra {

/** @brief One value through the profile-string reader, cut at 254 characters. */
QString ReadSettingRaw(const QString &file, const QString &section, const QString &key,
                       const QString &defaultValue);

/** @brief The value, or the empty text when it is missing. */
QString ReadSetting(const QString &file, const QString &section, const QString &key);

/** @brief The value untrimmed, or defaultValue when the value is empty or blank. */
QString ReadSettingOr(const QString &file, const QString &section, const QString &key,
                      const QString &defaultValue);

/**
 * @brief Reads the indexed keys key(1), key(2), ... into slots.
 *
 * slots keeps its size (the list's bound); slot i holds key(i + 1), trimmed,
 * empty where the key is missing: gaps do not end the list. A value of a
 * single "`" stands for an entry that is empty on purpose yet present. When
 * no indexed key has a value, the bare key fills the first slot.
 *
 * @return the one-based index of the last slot whose value was present, 0
 * when none.
 */
int ReadSettingList(const QString &file, const QString &section, const QString &key,
                    QStringList &slots);

/** @brief The empty text for the marker "`", else the text itself. */
QString EmptyMarkerToEmpty(const QString &text);

/** @brief True for TRUE, T, YES, Y, ON, -1 and 1 in any case with blanks around; else false. */
bool ParseBoolean(const QString &text);

/** @brief The decimal number in text ("." as the point), 0 when it is not one. */
double ParseDouble(const QString &text);

/** @brief ParseDouble, as a single-precision number. */
float ParseSingle(const QString &text);

/**
 * @brief The number in text as a 16-bit integer, halves rounded to even; 0
 * when the text is not numeric.
 * @throws Error when the number does not fit in 16 bits.
 */
qint16 ParseInteger(const QString &text);

/** @brief True when text reads as a number (blanks around it allowed). */
bool IsNumeric(const QString &text);

} // namespace quirra
