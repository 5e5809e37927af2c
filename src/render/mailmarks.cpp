// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#include "render/mailmarks.h"

#include "records/intelligentmail.h"
#include "render/piecechecks.h"
#include "surface/surface.h"

#include <algorithm>

namespace quirra {

namespace {
constexpr QRgb Black = 0xff000000;
constexpr QRgb OutlineGrey = 0xff999999;
constexpr QRgb UsedShade = 0xffe4e4e4;
constexpr int OutlinePen = 10; // twips, half a point
} // namespace

bool AddressBarcodeLine::take(const QString &barCode, const QString &zip, PieceChecks &checks)
{
    m_bars.clear();
    if (barCode.trimmed().isEmpty())
        return false;
    const IntelligentMailBarcode code(barCode, zip);
    if (!code.isValid()) {
        checks.noteBarcode(code.error());
        return false;
    }
    m_bars = code.barRects(QPoint(0, 0));
    return true;
}

QString AddressBarcodeLine::withLine(const QString &addressText)
{
    // A blank, so the line is laid out like any other and the block's
    // vertical alignment counts it.
    return addressText + QLatin1String("\r ");
}

void AddressBarcodeLine::draw(Surface &surface, const Item &address, const QString &text,
                              const DrawnText &drawn) const
{
    if (m_bars.isEmpty() || !address.Visible)
        return;
    // The block without its barcode line tells where that line starts.
    const QString above = text.left(text.size() - 2);
    surface.textBox(above, drawn.box.left, drawn.box.top, drawn.box.width, drawn.box.height,
                    address.Wrap, true, false);
    const int lineTop = drawn.top + surface.textHeight();
    const int lineHeight = drawn.height - surface.textHeight();
    const int height = IntelligentMailBarcode::heightTwips();
    const int width = IntelligentMailBarcode::widthTwips();

    int left = drawn.box.left;
    if (address.HorzAlign == haCenter)
        left += (drawn.box.width - width) / 2;
    else if (address.HorzAlign == haRight)
        left += drawn.box.width - width;
    const QPoint origin(std::max(left, drawn.box.left),
                        lineTop + std::max(0, (lineHeight - height) / 2));
    for (const QRect &bar : m_bars)
        surface.fillRectangle(bar.translated(origin), Black);
}

void markUsedSlot(Surface &surface, const QRect &pieceBox)
{
    surface.fillRectangle(pieceBox, UsedShade);
    surface.outlineRectangle(pieceBox, OutlineGrey, OutlinePen);
}

void outlinePiece(Surface &surface, const QRect &pieceBox)
{
    surface.outlineRectangle(pieceBox, OutlineGrey, OutlinePen);
}

} // namespace quirra
