// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#pragma once

#include "model/item.h"
#include "render/drawitem.h"

#include <QList>
#include <QRect>
#include <QString>

namespace quirra {

class PieceChecks;
class Surface;

/**
 * @brief The Intelligent Mail barcode of the record being placed, as its
 * own line of the address block below the city line.
 *
 * The bars keep the postal dimensions whatever the address font: the text
 * only makes room for them with one blank line.
 */
class AddressBarcodeLine
{
public:
    /**
     * @brief Takes the record's bar code: an empty one gives no barcode, an
     * invalid one gives none and a note in checks.
     * @return true when the piece gets a barcode
     */
    bool take(const QString &barCode, const QString &zip, PieceChecks &checks);
    /** @brief Forgets the last record's barcode. */
    void clear() { m_bars.clear(); }
    bool isEmpty() const { return m_bars.isEmpty(); }

    /** @brief The address text with the room the bars take below its last line. */
    static QString withLine(const QString &addressText);

    /**
     * @brief Draws the bars, black, in the room below the city line, as the
     * block is aligned across its box.
     * @param text the address text as drawn, its room for the bars included
     */
    void draw(Surface &surface, const Item &address, const QString &text,
              const DrawnText &drawn) const;

private:
    QList<QRect> m_bars; ///< the barcode's top-left corner at (0, 0)
};

/** @brief A slot already used on the sheet, as the preview shows it: shaded and outlined. */
void markUsedSlot(Surface &surface, const QRect &pieceBox);

/** @brief A piece's outline, thin and grey. */
void outlinePiece(Surface &surface, const QRect &pieceBox);

} // namespace quirra
