// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace quirra {

/**
 * @brief Inches to display twips: inches × 1440 × scale, in that order, in
 * double precision. scale is the layout editor's display scale: display
 * twips per twip of the real piece.
 */
double InchesToDisplayTwips(double inches, float scale);

/**
 * @brief value ÷ scale ÷ 1440 as inches, formatted "#0.##" ("2." for two
 * inches); scale as for InchesToDisplayTwips().
 *
 * A scale that is not a positive number is taken as 1 (with a warning in
 * the log), so a field never shows an infinite length.
 */
QString DisplayTwipsToText(double displayTwips, float scale);

/** @brief b when a <= b, else a: on equal values the second argument. */
float Larger(float a, float b);

/** @brief b when a >= b, else a: on equal values the second argument. */
float Smaller(float a, float b);

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
QString FormatNumber(double value, const QString &pattern);

} // namespace quirra
