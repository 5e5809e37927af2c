// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#include "pane/panelayout.h"

#include <algorithm>
#include <cmath>

namespace quirra {

namespace {
// The clamps of the control's setters, applied again so that settings filled
// in by hand cannot make the arithmetic below misbehave.
constexpr int MinButtonHeight = 50, MaxButtonHeight = 400;
constexpr int MaxBoarderInside = 400, MaxBoarderButtonTop = 300;
constexpr float DefaultPaneFraction = 0.85f;
constexpr double DefaultDpi = 96.0;

double usableDpi(double dotsPerInch)
{
    return dotsPerInch > 0 && std::isfinite(dotsPerInch) ? dotsPerInch : DefaultDpi;
}
} // namespace

PaneLayout::PaneLayout(QSize paneTwips, const PaneSettings &settings)
    : m_pane(std::max(0, paneTwips.width()), std::max(0, paneTwips.height()))
{
    const int w = m_pane.width(), h = m_pane.height();
    m_visible[First] = m_visible[Prev] = m_visible[Next] = m_visible[Last] =
        settings.ButtonPgAdvanceVisible;
    m_visible[PageLabel] = settings.TextPgNumberVisible;
    m_visible[PrintPage] = settings.ButtonPrintPgVisible;
    m_visible[PrintAll] = settings.ButtonPrintAllVisible;

    const int maxHeight =
        std::clamp<int>(settings.ButtonMaxHeight, MinButtonHeight, MaxButtonHeight);
    const int inside = std::clamp<int>(settings.BoarderInside, 0, MaxBoarderInside);
    const int top = std::clamp<int>(settings.BoarderButtonTop, 0, MaxBoarderButtonTop);
    // The negated test also catches NaN.
    const double fraction = !(settings.paneFraction >= 0.0f && settings.paneFraction <= 1.0f)
                                ? DefaultPaneFraction
                                : settings.paneFraction;

    // A border may take a fifth of the pane's smaller side, the gap above the
    // row a tenth of its height: a small pane keeps room for the page.
    m_inside = std::min(inside, int(std::min(w, h) * 0.2));
    m_top = std::min(top, int(h * 0.1));

    const int freeHeight = h - 2 * m_inside - m_top;
    const int share = int(std::lround(std::max(0, freeHeight) * (1.0 - fraction)));
    m_buttonSize = std::max(1, std::min(maxHeight, share));
    const bool rowShown = visibleGroups() > 0;
    if (rowShown) {
        while (m_buttonSize > 1 && rowWidth(m_buttonSize) > w)
            --m_buttonSize;
    }

    const int rowHeight = rowShown ? m_top + m_buttonSize : 0;
    const int surfaceHeight = std::max(0, h - 2 * m_inside - rowHeight);
    m_surface = QRect(m_inside, m_inside, std::max(0, w - 2 * m_inside), surfaceHeight);
    if (rowShown) {
        // Only a pane with no free height at all pushes the row into the border.
        const int rowTop = std::min(m_inside + surfaceHeight + m_top, h - m_buttonSize);
        placeRow(std::max(0, rowTop));
    }
}

int PaneLayout::partWidth(Part part, int size)
{
    switch (part) {
    case PageLabel:
        return 6 * size; // "Page 10 of 12" at the row's font
    case PrintPage:
    case PrintAll:
        return (5 * size + 1) / 2;
    default:
        return size; // the paging buttons are square
    }
}

int PaneLayout::visibleGroups() const
{
    // The four paging buttons stand together as one group.
    return int(m_visible[First]) + int(m_visible[PageLabel]) + int(m_visible[PrintPage]) +
           int(m_visible[PrintAll]);
}

int PaneLayout::rowWidth(int size) const
{
    return rowWidth(size, m_inside, m_top) + RowSlack;
}

int PaneLayout::rowWidth(int size, int inside, int gap) const
{
    int width = 2 * inside + std::max(0, visibleGroups() - 1) * gap;
    for (int part = 0; part < PartCount; ++part) {
        if (m_visible[part])
            width += partWidth(Part(part), size);
    }
    return width;
}

void PaneLayout::placeRow(int rowTop)
{
    const int w = m_pane.width(), size = m_buttonSize;
    int inside = m_inside, gap = m_top;
    if (rowWidth(size) > w) {
        // Not even 1-twip buttons fit with the usual spacing: the border and
        // the gaps give way, in proportion.
        const int parts = rowWidth(size, 0, 0);
        const int spacing = 2 * inside + std::max(0, visibleGroups() - 1) * gap;
        const double scale = spacing > 0 ? double(std::max(0, w - parts)) / spacing : 0.0;
        inside = int(inside * scale);
        gap = int(gap * scale);
    }
    auto place = [&](Part part, int left) {
        const int width = partWidth(part, size);
        // Only a pane narrower than the parts themselves needs this clamp.
        left = std::max(0, std::min(left, w - width));
        m_rects[part] = QRect(left, rowTop, width, size);
    };

    // Paging buttons and the label from the left edge ...
    int x = inside;
    bool leftGroup = false;
    if (m_visible[First]) {
        for (Part part : {First, Prev, Next, Last}) {
            place(part, x);
            x += size;
        }
        leftGroup = true;
    }
    if (m_visible[PageLabel]) {
        if (leftGroup)
            x += gap;
        place(PageLabel, x);
        x += partWidth(PageLabel, size);
        leftGroup = true;
    }
    // ... the print buttons from the right edge, never over the left group.
    const int printWidth = (m_visible[PrintPage] ? partWidth(PrintPage, size) : 0) +
                           (m_visible[PrintAll] ? partWidth(PrintAll, size) : 0) +
                           (m_visible[PrintPage] && m_visible[PrintAll] ? gap : 0);
    int right = std::max(w - inside - printWidth, leftGroup ? x + gap : inside);
    if (m_visible[PrintPage]) {
        place(PrintPage, right);
        right += partWidth(PrintPage, size) + gap;
    }
    if (m_visible[PrintAll])
        place(PrintAll, right);
}

int PaneLayout::twipsFromPixels(int pixels, double dotsPerInch)
{
    return int(std::lround(pixels * double(TwipsPerInch) / usableDpi(dotsPerInch)));
}

int PaneLayout::pixelsFromTwips(int twips, double dotsPerInch)
{
    return int(std::lround(twips * usableDpi(dotsPerInch) / TwipsPerInch));
}

QRect PaneLayout::toPixels(const QRect &twips, double dotsPerInchX, double dotsPerInchY)
{
    const int left = pixelsFromTwips(twips.x(), dotsPerInchX);
    const int top = pixelsFromTwips(twips.y(), dotsPerInchY);
    const int right = pixelsFromTwips(twips.x() + twips.width(), dotsPerInchX);
    const int bottom = pixelsFromTwips(twips.y() + twips.height(), dotsPerInchY);
    return QRect(left, top, right - left, bottom - top);
}

} // namespace quirra
