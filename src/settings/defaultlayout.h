// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#pragma once

#include "model/item.h"

namespace quirra {

/**
 * @brief Gives the five items of a piece of the given size (inches) their
 * default boxes, fields and texts.
 *
 * The delivery address sits two thirds of the way into the free space, the
 * return address and the stamp hug the top corners, the messages the bottom
 * corners; an item that would touch or overlap the address is hidden. Items
 * that already have text keep it; the typeface becomes "Arial".
 */
void DefaultLayout(float pieceHeight, float pieceWidth, Item &address, Item &returnItem,
                   Item &stamp, Item &message1, Item &message2);

} // namespace quirra
