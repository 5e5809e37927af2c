// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#include "render/drawitem.h"

#include "surface/surface.h"

#include <algorithm>
#include <cmath>

namespace quirra {

namespace {
// The surface's own code for justified text.
constexpr int SurfaceJustified = 9;
// The frame is drawn with this pen width, in twips.
constexpr int FramePenWidth = 10;

int roundTwips(double twips)
{
    return static_cast<int>(std::lrint(twips)); // halves to even
}
} // namespace

ItemBox itemBoxOnSurface(const Item &item, const Piece &piece, int slot, int surfaceMarginLeft)
{
    const SlotPlace place = placeOfSlot(piece, slot);
    const int top = roundTwips(double(item.Top) * 1440.0 + place.top);
    const int left = roundTwips(double(item.Left) * 1440.0 + place.left);

    ItemBox box;
    box.width = roundTwips(double(item.Width) * 1440.0);
    box.height = roundTwips(double(item.Height) * 1440.0);
    box.top = roundTwips(top - double(piece.PrinterTop) * 1440.0);
    box.left = roundTwips(left - surfaceMarginLeft - double(piece.PrinterLeft) * 1440.0);
    // What lies in the strip the printer cannot reach is drawn at its edge.
    box.top = std::max(box.top, 0);
    box.left = std::max(box.left, 0);
    return box;
}

void DrawItem(const Item &item, const Piece &piece, int slot, Surface &surface)
{
    DrawItem(item, piece, slot, surface, nullptr);
}

void DrawItem(const Item &item, const Piece &piece, int slot, Surface &surface, DrawnText *drawn)
{
    DrawnText laidOut;
    if (!LayOutItem(item, piece, slot, surface, laidOut))
        return;
    if (drawn)
        *drawn = laidOut;
    DrawLaidOutItem(item, surface, laidOut);
}

bool LayOutItem(const Item &item, const Piece &piece, int slot, Surface &surface,
                DrawnText &laidOut)
{
    if (!item.Visible)
        return false;
    const ItemBox box = itemBoxOnSurface(item, piece, slot, surface.marginLeft());

    const ItemFont &font = item.Font;
    surface.setFontSize(font.Size);
    surface.setFontName(font.Name);
    surface.setFontBold(font.Bold);
    surface.setFontItalic(font.Italic);
    surface.setFontUnderline(font.Underline);
    surface.setFontStrikethrough(font.Strikethrough);

    surface.setLineSpacing(item.LineSpacing);
    surface.setTextAlign(item.HorzAlign == haFull ? SurfaceJustified : int(item.HorzAlign));

    surface.textBox(item.Text, box.left, box.top, box.width, box.height, item.Wrap, true,
                    item.Border > 0);
    const int height = surface.textHeight();

    int offset = 0;
    if (height < box.height) {
        if (item.VertAlign == vaMiddle)
            offset = (box.height - height) / 2; // truncated toward zero
        else if (item.VertAlign == vaBottom)
            offset = box.height - height;
    }
    laidOut = DrawnText{box, box.top + offset, surface.textWidthLaidOut(), height};
    return true;
}

void DrawLaidOutItem(const Item &item, Surface &surface, const DrawnText &laidOut)
{
    const ItemBox &box = laidOut.box;
    if (item.Border > 0) {
        // The frame goes round the whole box, however tall the text is.
        surface.setPenWidth(FramePenWidth);
        surface.textBox(QString(), box.left, box.top, box.width, box.height, item.Wrap, false,
                        true);
    }
    const int offset = laidOut.top - box.top;
    surface.textBox(item.Text, box.left, laidOut.top, box.width, box.height - offset, item.Wrap,
                    false, false);
}

bool ItemMayCross(const Item &item, const DrawnText &laidOut, const QRect &ink,
                  const QRect &pieceBox)
{
    const ItemBox &box = laidOut.box;
    if (item.Border > 0) {
        const QRect frame(box.left, box.top, box.width, box.height);
        if (!pieceBox.contains(
                frame.adjusted(-FramePenWidth, -FramePenWidth, FramePenWidth, FramePenWidth)))
            return true;
    }
    if (ink.isNull())
        return true;
    return !pieceBox.contains(ink.translated(box.left, laidOut.top));
}

} // namespace quirra
