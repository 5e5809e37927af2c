// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#include "dialogs/layoutitemlabel.h"

#include <QPainter>
#include <QPen>

#include <algorithm>

namespace quirra {

LayoutItemLabel::LayoutItemLabel(QWidget *parent) : QLabel(parent)
{
    setTextFormat(Qt::PlainText);
    setWordWrap(true);
    setTextInteractionFlags(Qt::NoTextInteraction);
    setFrameShape(QFrame::NoFrame);
    setLineWidth(1);
    // The text starts at the box's edge, as it does on the printed piece.
    setMargin(0);
    setIndent(0);
    setForegroundRole(QPalette::WindowText);
}

void LayoutItemLabel::setBordered(bool bordered)
{
    m_bordered = bordered;
    setFrameStyle(bordered ? (QFrame::Box | QFrame::Plain) : QFrame::NoFrame);
    update();
}

void LayoutItemLabel::setBarcodeBand(const QSize &pixels)
{
    m_barcode = pixels;
    update();
}

void LayoutItemLabel::paintEvent(QPaintEvent *event)
{
    QLabel::paintEvent(event);
    QPainter painter(this);
    if (!m_barcode.isEmpty()) {
        // Below the last line, clear of its descenders, as the print run puts it.
        const QRect inside = contentsRect();
        const int lines = int(text().count(QLatin1Char('\n'))) + 1;
        const int top = inside.top() + lines * fontMetrics().lineSpacing() + m_barcode.height() / 4;
        int left = inside.left();
        if (alignment() & Qt::AlignHCenter)
            left += (inside.width() - m_barcode.width()) / 2;
        else if (alignment() & Qt::AlignRight)
            left += inside.width() - m_barcode.width();
        painter.fillRect(QRect(QPoint(std::max(left, inside.left()), top), m_barcode),
                         QBrush(Qt::black, Qt::VerPattern));
    }
    if (m_bordered)
        return;
    QPen pen(QColor(0, 0, 0, 70));
    pen.setStyle(Qt::DotLine);
    pen.setCosmetic(true);
    painter.setPen(pen);
    painter.drawRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5));
}

} // namespace quirra
