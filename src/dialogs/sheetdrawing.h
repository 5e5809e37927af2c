// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#pragma once

#include "catalogue/pieceentry.h"
#include <QLineF>
#include <QList>
#include <QRectF>
#include <QSizeF>
#include <QString>

#include <functional>

namespace quirra {

/**
 * @brief The geometry of the customization dialog's sheet preview, apart
 * from any widget: the page scaled into an area, every piece across and
 * down, and the dimension marks of margin, pitch and piece size.
 *
 * All coordinates are pixels of the area, with (0, 0) its top-left corner.
 * The vertical marks stand left of the page in two columns (the top margin
 * chained to the piece height, then the vertical pitch), their labels
 * turned to run along them; the horizontal ones stand above it in two rows
 * (side margin and piece width, then the horizontal pitch). A margin's
 * label too long for its length moves outwards, off its neighbour's, and is
 * left out (an empty textRect) when the area has no room for it. Pieces
 * that do not fit on the page are still drawn and flagged, so a geometry
 * that runs off the sheet is plain to see.
 */
class SheetDrawing
{
public:
    /** @brief One dimension mark: a line with its label. */
    struct Mark
    {
        QString name;        ///< "top_margin_view", "label_wd_view", ...
        QString text;        ///< the length ("2.625"; a pitch "pitch 2.75"), in the page's unit
        QLineF line;         ///< from the start of the length to its end, pixels
        QRectF textRect;     ///< the area the label covers, pixels
        bool turned = false; ///< the label reads upwards, along a vertical line
    };

    /** @brief One piece on the sheet. */
    struct Piece
    {
        QRectF rect;          ///< pixels
        bool offPage = false; ///< not wholly on the page
    };

    /** @brief Measures a label's width in pixels. */
    using TextWidth = std::function<double(const QString &text)>;

    /**
     * @brief Lays entry out in an area of size pixels; textWidth and
     * textHeight (pixels) size the labels of the marks.
     */
    SheetDrawing(const PieceSpec &entry, const QSizeF &area, const TextWidth &textWidth,
                 double textHeight);

    /** @brief The most pieces drawn in either direction; more are left out. */
    static constexpr int MaxDrawnPerDirection = 100;

    /** @brief True when there is nothing to draw: no page size and no piece size. */
    bool isEmpty() const { return m_scale <= 0; }
    /** @brief Pixels per unit of length (per inch for the shipped catalogue). */
    double scale() const { return m_scale; }
    /** @brief The page, pixels. */
    QRectF paper() const { return m_paper; }
    /** @brief The pieces row by row, at most MaxDrawnPerDirection each way. */
    const QList<Piece> &pieces() const { return m_pieces; }
    /** @brief The dimension marks of the lengths that are not zero. */
    const QList<Mark> &marks() const { return m_marks; }
    /** @brief The mark of that name, or nullptr when it is not drawn. */
    const Mark *mark(const QString &name) const;

private:
    // Moves the margin's label (up or left) off the label of the piece size
    // that follows it on the same line of marks.
    void giveWay(int margin, int size, Qt::Orientation direction);

    double m_scale = 0;
    QRectF m_paper;
    QList<Piece> m_pieces;
    QList<Mark> m_marks;
};

} // namespace quirra
