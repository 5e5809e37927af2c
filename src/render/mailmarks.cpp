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
// Clear of the city line's descenders, which reach below their line when
// the lines are set closer than 100 %.
constexpr int BarcodeClearance = 58; // twips, 0.04 in
// The room the barcode takes in the block: two blank lines, each laid out
// like any other so that the block's vertical alignment counts them.
const QLatin1String BarcodeRoom("\r \r ");
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
    return addressText + BarcodeRoom;
}

void AddressBarcodeLine::draw(Surface &surface, const Item &address, const QString &text,
                              const DrawnText &drawn) const
{
    if (m_bars.isEmpty() || !address.Visible)
        return;
    // The block without its barcode line tells where that line starts.
    const QString above = text.left(text.size() - BarcodeRoom.size());
    surface.textBox(above, drawn.box.left, drawn.box.top, drawn.box.width, drawn.box.height,
                    address.Wrap, true, false);
    const int lineTop = drawn.top + surface.textHeight();
    const int width = IntelligentMailBarcode::widthTwips();

    int left = drawn.box.left;
    if (address.HorzAlign == haCenter)
        left += (drawn.box.width - width) / 2;
    else if (address.HorzAlign == haRight)
        left += drawn.box.width - width;
    const QPoint origin(std::max(left, drawn.box.left), lineTop + BarcodeClearance);
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
