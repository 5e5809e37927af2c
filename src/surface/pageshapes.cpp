// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#include "surface/pageengine.h"

#include <QPainter>

namespace quirra {

// Shapes in plain twips: no font, no pen setting of the frames, so a
// barcode's bars come out the same size whatever the text around them.

void PageEngine::fillRectangle(const QRect &box, QRgb color)
{
    QPoint corner;
    if (QPainter *painter = bodyPainter(corner))
        painter->fillRect(box.translated(corner), QColor(color));
}

void PageEngine::outlineRectangle(const QRect &box, QRgb color, int penTwips)
{
    QPoint corner;
    QPainter *painter = bodyPainter(corner);
    if (!painter || penTwips <= 0)
        return;
    // The line's ink stays inside the box, as a frame's does.
    const double half = penTwips / 2.0;
    painter->save();
    painter->setPen(QPen(QColor(color), penTwips, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
    painter->setBrush(Qt::NoBrush);
    painter->drawRect(QRectF(box.translated(corner)).adjusted(half, half, -half, -half));
    painter->restore();
}

} // namespace quirra
