// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QSizeF>

namespace quirra {

/** @brief The code that stands for a paper size no code names: a custom paper. */
constexpr int CustomPaperCode = 256;

/**
 * @brief The size of the paper a paper code names (1 Letter, 5 Legal, 9 A4,
 * 20 No. 10 envelope, 27 DL, ...; the printer drivers' own numbering), in
 * points (72 to the inch), upright: the shorter side across.
 *
 * An empty size for CustomPaperCode and for a code no paper has.
 */
QSizeF paperSizePoints(int code);

/**
 * @brief The code of the paper of a size, in points, in either orientation:
 * the first code whose paper matches to within half a point, or
 * CustomPaperCode when none does (or the size is empty).
 *
 * Where two codes name one sheet (Letter and "Letter small") the first wins,
 * so a US Letter sheet is 1 and a legal sheet 5.
 */
int paperCodeForSize(const QSizeF &points);

} // namespace quirra
