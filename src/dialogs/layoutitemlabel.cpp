// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#include "dialogs/layoutitemlabel.h"

#include <QPainter>
#include <QPen>

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

void LayoutItemLabel::paintEvent(QPaintEvent *event)
{
    QLabel::paintEvent(event);
    if (m_bordered)
        return;
    QPainter painter(this);
    QPen pen(QColor(0, 0, 0, 70));
    pen.setStyle(Qt::DotLine);
    pen.setCosmetic(true);
    painter.setPen(pen);
    painter.drawRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5));
}

} // namespace quirra
