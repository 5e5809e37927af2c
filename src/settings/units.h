// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#pragma once

#include "quirracontrol_export.h"

#include <QString>

namespace quirra {

/**
 * @brief Display twips per twip of the real piece in the layout editor;
 * one value per process, 1.0 until the editor fits a piece to the screen.
 */
QUIRRACONTROL_EXPORT extern float display_scale;

/**
 * @brief Inches to display twips: inches × 1440 × display_scale, in that
 * order, in double precision.
 */
QUIRRACONTROL_EXPORT double InchesToDisplayTwips(double inches);

/**
 * @brief value ÷ display_scale ÷ 1440 as inches, formatted "#0.##" ("2." for
 * two inches).
 *
 * A display_scale that is not a positive number is taken as 1 (with a
 * warning in the log), so a field never shows an infinite length.
 */
QUIRRACONTROL_EXPORT QString DisplayTwipsToText(double displayTwips);

/** @brief b when a <= b, else a: on equal values the second argument. */
QUIRRACONTROL_EXPORT float Larger(float a, float b);

/** @brief b when a >= b, else a: on equal values the second argument. */
QUIRRACONTROL_EXPORT float Smaller(float a, float b);

/**
 * @brief Formats a number by one of the patterns the forms use.
 *
 * "#0.##": at least one digit before the point, at most two after it,
 * trailing zeros dropped and the point kept ("2.", "1.5", "0.69");
 * "0.00": exactly two decimals; "#0": a whole number. Other patterns of the
 * same family ("#0.###", "0.0") follow the same rules. Rounding is half away
 * from zero on the number's 15 significant digits, as the forms always showed
 * it.
 */
QUIRRACONTROL_EXPORT QString FormatNumber(double value, const QString &pattern);

} // namespace quirra
