// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#pragma once

#include "model/item.h"
#include "model/piece.h"

#include <QRect>

namespace quirra {

class Surface;

/** @brief The box of an item on the surface, in whole twips. */
struct ItemBox
{
    int left = 0;
    int top = 0;
    int width = 0;
    int height = 0;
};

/** @brief Where an item's text went when it was drawn, in twips on the surface. */
struct DrawnText
{
    ItemBox box;    ///< the item's box, as drawn
    int top = 0;    ///< the text's top (the box's, moved down by the vertical alignment)
    int width = 0;  ///< the widest line's width
    int height = 0; ///< the height of all lines
};

/**
 * @brief Where an item of the piece in a slot lands on the surface: the
 * sheet position less the printer's offsets and the surface's left margin,
 * raised to 0 where it would fall off the page.
 * @throws Error when the piece has 0 pieces across.
 */
ItemBox itemBoxOnSurface(const Item &item, const Piece &piece, int slot, int surfaceMarginLeft);

/**
 * @brief Draws one item of the piece in a slot: font, alignment and line
 * spacing to the surface, the text laid out in its box and shifted down for
 * middle or bottom alignment, the frame over the whole box, then the text.
 * An invisible item leaves no trace.
 */
void DrawItem(const Item &item, const Piece &piece, int slot, Surface &surface);

/** @brief DrawItem(), telling where the text went (untouched for an invisible item). */
void DrawItem(const Item &item, const Piece &piece, int slot, Surface &surface, DrawnText *drawn);

/**
 * @brief The first half of DrawItem(): sets the item's font and paragraph on
 * the surface and lays its text out, drawing nothing. False (and @p laidOut
 * untouched) for an invisible item. DrawLaidOutItem() draws it, with nothing
 * set on the surface in between but a clip.
 */
bool LayOutItem(const Item &item, const Piece &piece, int slot, Surface &surface,
                DrawnText &laidOut);

/** @brief The second half of DrawItem(): frame and text where LayOutItem() put them. */
void DrawLaidOutItem(const Item &item, Surface &surface, const DrawnText &laidOut);

/**
 * @brief Whether anything an item laid out by LayOutItem() draws can reach
 * outside @p pieceBox: its frame's pen, or ink of its text (@p ink, the
 * surface's textInkBounds() for it; null when the surface cannot tell, and
 * then it may reach anywhere).
 */
bool ItemMayCross(const Item &item, const DrawnText &laidOut, const QRect &ink,
                  const QRect &pieceBox);

} // namespace quirra
