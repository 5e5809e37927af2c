// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#include "dialogs/sheetpreview.h"

#include "dialogs/sheetdrawing.h"

#include <QFontMetricsF>
#include <QPainter>

#include <algorithm>

namespace quirra {

namespace {

// The arrow heads at both ends of a mark's line, pixels.
constexpr double Tick = 3;

void drawMarkLine(QPainter &painter, const QLineF &line)
{
    painter.drawLine(line);
    // Short bars across both ends show where the length starts and stops,
    // even when the line is only a few pixels long.
    const QLineF normal = line.normalVector().unitVector();
    const QPointF across = (normal.p2() - normal.p1()) * Tick;
    for (const QPointF &end : {line.p1(), line.p2()})
        painter.drawLine(end - across, end + across);
}

} // namespace

SheetPreview::SheetPreview(QWidget *parent) : QWidget(parent)
{
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    setAccessibleName(tr("Sheet preview"));
}

void SheetPreview::setEntry(const PieceSpec &entry)
{
    m_entry = entry;
    ++m_entryUpdates;
    update();
}

void SheetPreview::setThumbnail(bool thumbnail, bool roundPieces)
{
    m_thumbnail = thumbnail;
    m_round = roundPieces;
    updateGeometry();
    update();
}

SheetDrawing SheetPreview::drawing() const
{
    const QFontMetricsF metrics(font());
    return SheetDrawing(
        m_entry, QSizeF(size()),
        [&metrics](const QString &text) { return metrics.horizontalAdvance(text); },
        metrics.height());
}

QSize SheetPreview::sizeHint() const
{
    const qreal em = QFontMetricsF(font()).height();
    if (m_thumbnail)
        return QSize(int(em * 8), int(em * 10));
    return QSize(int(em * 24), int(em * 26));
}

QSize SheetPreview::minimumSizeHint() const
{
    const qreal em = QFontMetricsF(font()).height();
    if (m_thumbnail)
        return QSize(int(em * 5), int(em * 5));
    return QSize(int(em * 12), int(em * 12));
}

void SheetPreview::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    if (m_thumbnail) {
        paintThumbnail(painter);
        return;
    }
    const SheetDrawing sheet = drawing();
    if (sheet.isEmpty()) {
        painter.setPen(palette().color(QPalette::PlaceholderText));
        painter.drawText(rect(), Qt::AlignCenter | Qt::TextWordWrap, tr("No page to show"));
        return;
    }

    // The paper stays white whatever the theme: it stands for a real sheet.
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(0, 0, 0, 60));
    painter.drawRect(sheet.paper().translated(3, 3));
    painter.setBrush(Qt::white);
    painter.setPen(QPen(QColor(90, 90, 90), 1));
    painter.drawRect(sheet.paper());

    const QColor pieceFill(232, 240, 250);
    const QColor firstFill(190, 215, 245);
    const QColor offFill(250, 215, 215);
    bool first = true;
    for (const SheetDrawing::Piece &piece : sheet.pieces()) {
        painter.setBrush(piece.offPage ? offFill : first ? firstFill : pieceFill);
        painter.setPen(QPen(piece.offPage ? QColor(190, 30, 30) : QColor(60, 90, 140), 1));
        painter.drawRect(piece.rect);
        first = false;
    }

    painter.setPen(QPen(palette().color(QPalette::WindowText), 1));
    for (const SheetDrawing::Mark &mark : sheet.marks()) {
        drawMarkLine(painter, mark.line);
        if (mark.textRect.isEmpty())
            continue;
        if (!mark.turned) {
            painter.drawText(mark.textRect, Qt::AlignCenter | Qt::TextDontClip, mark.text);
            continue;
        }
        // Turned a quarter to the left, so it reads upwards along its line.
        const QRectF area = mark.textRect;
        painter.save();
        painter.translate(area.center());
        painter.rotate(-90);
        painter.drawText(QRectF(-area.height() / 2, -area.width() / 2, area.height(), area.width()),
                         Qt::AlignCenter | Qt::TextDontClip, mark.text);
        painter.restore();
    }
}

void SheetPreview::paintThumbnail(QPainter &painter)
{
    const PieceSpec &e = m_entry;
    if (e.PageWidth <= 0 || e.PageHeight <= 0)
        return;
    // The sheet fills the widget but for room for its shadow.
    const QRectF area = QRectF(rect()).adjusted(2, 2, -5, -5);
    const double scale = std::min(area.width() / e.PageWidth, area.height() / e.PageHeight);
    const QSizeF page(e.PageWidth * scale, e.PageHeight * scale);
    const QRectF paper(area.center() - QPointF(page.width(), page.height()) / 2, page);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(0, 0, 0, 60));
    painter.drawRect(paper.translated(3, 3));
    painter.setBrush(Qt::white);
    painter.setPen(QPen(QColor(90, 90, 90), 1));
    painter.drawRect(paper);
    painter.setBrush(QColor(232, 240, 250));
    painter.setPen(QPen(QColor(60, 90, 140), 0.5));
    const int across = std::min<int>(e.NumAcross, SheetDrawing::MaxDrawnPerDirection);
    const int down = std::min<int>(e.NumDown, SheetDrawing::MaxDrawnPerDirection);
    for (int row = 0; row < down; ++row) {
        for (int column = 0; column < across; ++column) {
            const QRectF piece(paper.left() + (e.MarginSide + column * e.PitchHorz) * scale,
                               paper.top() + (e.MarginTop + row * e.PitchVert) * scale,
                               e.LabelWidth * scale, e.LabelHeight * scale);
            if (m_round)
                painter.drawEllipse(piece);
            else
                painter.drawRect(piece);
        }
    }
}

} // namespace quirra
