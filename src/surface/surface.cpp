// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#include "surface/surface.h"

#include "model/papersizes.h"

#include <cmath>

namespace quirra {

// Out of line so the class has one home for its vtable.
Surface::~Surface() = default;

int Surface::textWidthLaidOut() const
{
    return 0;
}

QRect Surface::textInkBounds() const
{
    return QRect();
}

void Surface::setClipBox(int, int, int, int) {}

void Surface::clearClipBox() {}

void Surface::fillRectangle(const QRect &, QRgb) {}

void Surface::outlineRectangle(const QRect &, QRgb, int) {}

QRect Surface::paperRect() const
{
    return QRect();
}

void Surface::setCustomPaperSize(int, int) {}

QSize Surface::paperSizeTwips() const
{
    const QSizeF points = paperSizePoints(paperSize());
    return QSize(int(std::lround(points.width() * 20.0)), int(std::lround(points.height() * 20.0)));
}

} // namespace quirra
