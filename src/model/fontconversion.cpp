// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#include "model/fontconversion.h"

#include <cmath>

namespace quirra {

QFont toQFont(const ItemFont &font)
{
    QFont result(font.Name);
    if (font.Size > 0 && std::isfinite(font.Size))
        result.setPointSizeF(font.Size);
    result.setBold(font.Bold);
    result.setItalic(font.Italic);
    result.setUnderline(font.Underline);
    result.setStrikeOut(font.Strikethrough);
    return result;
}

ItemFont toItemFont(const QFont &font)
{
    ItemFont result;
    result.Name = font.family();
    if (font.pointSizeF() > 0)
        result.Size = font.pointSizeF();
    else if (font.pixelSize() > 0)
        result.Size = font.pixelSize() * 72.0 / 96.0;
    result.Bold = font.bold();
    result.Italic = font.italic();
    result.Underline = font.underline();
    result.Strikethrough = font.strikeOut();
    return result;
}

} // namespace quirra
