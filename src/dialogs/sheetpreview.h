// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#pragma once

#include "catalogue/pieceentry.h"
#include <QWidget>

class QPainter;

namespace quirra {

class SheetDrawing;

/**
 * @brief The customization dialog's picture of the sheet: the page scaled
 * to the widget, its pieces across and down, and the margin, pitch and size
 * marks with their lengths.
 *
 * It only draws what it is given; the dialog hands it the piece after every
 * change of a number box. The geometry comes from SheetDrawing.
 */
class SheetPreview : public QWidget
{
    Q_OBJECT

public:
    /** @brief An empty preview (nothing to draw until setEntry). */
    explicit SheetPreview(QWidget *parent = nullptr);

    /** @brief Draws entry from now on (lengths in the page's unit). */
    void setEntry(const PieceSpec &entry);
    /**
     * @brief A thumbnail draws the sheet and its pieces filling the widget,
     * without the marks; round pieces as ellipses. Its size hint is small.
     */
    void setThumbnail(bool thumbnail, bool roundPieces = false);
    /** @brief The piece drawn. */
    const PieceSpec &entry() const { return m_entry; }
    /** @brief How many times the piece was handed over, for a look at the redraws. */
    int entryUpdates() const { return m_entryUpdates; }

    /** @brief The geometry of the drawing at the widget's present size (pixels). */
    SheetDrawing drawing() const;

    /** @brief About 24 by 26 lines of the widget's font, pixels. */
    QSize sizeHint() const override;
    /** @brief About 12 by 12 lines of the widget's font, pixels: below that the marks crowd. */
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    void paintThumbnail(QPainter &painter);

    PieceSpec m_entry;
    int m_entryUpdates = 0;
    bool m_thumbnail = false;
    bool m_round = false;
};

} // namespace quirra
