// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#include "dialogs/sheetdrawing.h"

#include "settings/units.h"

#include <QCoreApplication>

#include <algorithm>
#include <cmath>

namespace quirra {

namespace {

constexpr double Padding = 6;      // between the area's edge and the drawing, pixels
constexpr double Gap = 4;          // between a label and its line, pixels
constexpr double Tolerance = 1e-4; // a piece this close to the edge is still on the page

// A length that cannot be drawn (negative, not a number) is drawn as none.
double length(float value)
{
    return std::isfinite(value) && value > 0 ? double(value) : 0.0;
}

int drawnCount(qint16 count)
{
    return std::clamp<int>(count, 0, SheetDrawing::MaxDrawnPerDirection);
}

// A length as a mark shows it: up to four decimals, and no dangling point
// for a whole number (a drawing is not a form field).
QString lengthText(double value)
{
    QString number = FormatNumber(value, QStringLiteral("#0.####"));
    if (number.endsWith(u'.'))
        number.chop(1);
    return number;
}

// A pitch often equals the piece size beside it: its label says which it is.
QString pitchText(double value)
{
    return QCoreApplication::translate("quirra::SheetDrawing", "pitch %1").arg(lengthText(value));
}

} // namespace

SheetDrawing::SheetDrawing(const PieceSpec &entry, const QSizeF &area, const TextWidth &textWidth,
                           double textHeight)
{
    const double pageWidth = length(entry.PageWidth);
    const double pageHeight = length(entry.PageHeight);
    const double top = length(entry.MarginTop);
    const double side = length(entry.MarginSide);
    const double pitchV = length(entry.PitchVert);
    const double pitchH = length(entry.PitchHorz);
    const double height = length(entry.LabelHeight);
    const double width = length(entry.LabelWidth);
    const int across = drawnCount(entry.NumAcross);
    const int down = drawnCount(entry.NumDown);

    // The extent covers the page and every piece, so pieces off the sheet
    // stay in view.
    double extentW = pageWidth;
    double extentH = pageHeight;
    if (across > 0 && down > 0) {
        extentW = std::max(extentW, side + (across - 1) * pitchH + width);
        extentH = std::max(extentH, top + (down - 1) * pitchV + height);
    }
    if (extentW <= 0 || extentH <= 0)
        return;

    // Two columns left of the page and two rows above it, each one label
    // high; the outer ones only when there is a pitch to show.
    const double band = textHeight + 2 * Gap;
    const double leftBand = band + (pitchV > 0 ? band : 0);
    const double topBand = band + (pitchH > 0 ? band : 0);
    const double roomW = area.width() - 2 * Padding - leftBand;
    const double roomH = area.height() - 2 * Padding - topBand;
    if (roomW <= 0 || roomH <= 0)
        return;
    m_scale = std::min(roomW / extentW, roomH / extentH);

    // The whole drawing centred in the area.
    const double drawingW = leftBand + extentW * m_scale;
    const double drawingH = topBand + extentH * m_scale;
    const double originX = (area.width() - drawingW) / 2 + leftBand;
    const double originY = (area.height() - drawingH) / 2 + topBand;
    const auto x = [&](double v) { return originX + v * m_scale; };
    const auto y = [&](double v) { return originY + v * m_scale; };

    m_paper = QRectF(x(0), y(0), pageWidth * m_scale, pageHeight * m_scale);

    m_pieces.reserve(across * down);
    for (int r = 0; r < down; ++r) {
        for (int c = 0; c < across; ++c) {
            const double left = side + c * pitchH;
            const double topEdge = top + r * pitchV;
            Piece piece;
            piece.rect = QRectF(x(left), y(topEdge), width * m_scale, height * m_scale);
            piece.offPage =
                left + width > pageWidth + Tolerance || topEdge + height > pageHeight + Tolerance;
            m_pieces.append(piece);
        }
    }

    // Vertical marks: the label turned along the line, on its left.
    const auto vertical = [&](const char *name, const QString &text, double from, double to,
                              double lineX) {
        if (to - from <= 0)
            return -1;
        const double w = textWidth(text);
        const double mid = (y(from) + y(to)) / 2;
        m_marks.append({QLatin1String(name), text, QLineF(lineX, y(from), lineX, y(to)),
                        QRectF(lineX - Gap - textHeight, mid - w / 2, textHeight, w), true});
        return int(m_marks.size()) - 1;
    };
    const double innerLineX = originX - Gap;
    const double outerLineX = originX - band - Gap;
    const int topMark = vertical("top_margin_view", lengthText(top), 0, top, innerLineX);
    const int heightMark =
        vertical("label_ht_view", lengthText(height), top, top + height, innerLineX);
    vertical("vert_pitch_view", pitchText(pitchV), top, top + pitchV, outerLineX);
    // A margin shorter than its label gives way upwards, into the free
    // corner above the marks.
    giveWay(topMark, heightMark, Qt::Vertical);

    // Horizontal marks: the label centred above the line.
    const auto horizontal = [&](const char *name, const QString &text, double from, double to,
                                double lineY) {
        if (to - from <= 0)
            return -1;
        const double w = textWidth(text);
        const double mid = (x(from) + x(to)) / 2;
        m_marks.append({QLatin1String(name), text, QLineF(x(from), lineY, x(to), lineY),
                        QRectF(mid - w / 2, lineY - Gap / 2 - textHeight, w, textHeight), false});
        return int(m_marks.size()) - 1;
    };
    const double innerLineY = originY - Gap;
    const double outerLineY = originY - band - Gap;
    const int sideMark = horizontal("side_margin_view", lengthText(side), 0, side, innerLineY);
    const int widthMark =
        horizontal("label_wd_view", lengthText(width), side, side + width, innerLineY);
    horizontal("horiz_pitch_view", pitchText(pitchH), side, side + pitchH, outerLineY);
    // Likewise leftwards, into the corner.
    giveWay(sideMark, widthMark, Qt::Horizontal);
}

void SheetDrawing::giveWay(int margin, int size, Qt::Orientation direction)
{
    if (margin < 0 || size < 0)
        return;
    QRectF &moving = m_marks[margin].textRect;
    const QRectF &fixed = m_marks.at(size).textRect;
    // Never out of the area: a label that finds no room there is left out
    // (the box beside the drawing shows the number anyway).
    if (direction == Qt::Vertical) {
        if (moving.bottom() + Gap > fixed.top())
            moving.translate(0, std::max(fixed.top() - Gap - moving.bottom(), -moving.top()));
        if (moving.bottom() + Gap > fixed.top())
            moving = QRectF();
    } else {
        if (moving.right() + Gap > fixed.left())
            moving.translate(std::max(fixed.left() - Gap - moving.right(), -moving.left()), 0);
        if (moving.right() + Gap > fixed.left())
            moving = QRectF();
    }
}

const SheetDrawing::Mark *SheetDrawing::mark(const QString &name) const
{
    for (const Mark &m : m_marks) {
        if (m.name == name)
            return &m;
    }
    return nullptr;
}

} // namespace quirra
