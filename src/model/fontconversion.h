// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#pragma once

#include "model/itemfont.h"
#include <QFont>

namespace quirra {

/**
 * @brief The item font as a QFont: typeface, size in points, bold, italic,
 * underline and strike-out. A size that is not positive leaves the QFont's
 * default size.
 */
QFont toQFont(const ItemFont &font);

/**
 * @brief The parts of a QFont an item keeps: typeface, size in points, bold,
 * italic, underline and strike-out.
 *
 * A font sized in pixels is converted at 96 pixels to the inch; a font with
 * no size at all keeps the item default of 10 points.
 */
ItemFont toItemFont(const QFont &font);

} // namespace quirra
