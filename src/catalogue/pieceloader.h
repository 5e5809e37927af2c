// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#pragma once

#include "catalogue/pieceentry.h"
#include "model/piecemodel.h"
#include <QString>

namespace quirra {

/**
 * @brief The piece as a catalogue entry (name, margins, counts, sizes and
 * pitch, the page's description and real size, in inches), the form the
 * piece dialogs edit. The custom flag is left for the caller.
 */
PieceSpec PieceEntryOf(const Piece &piece);

/**
 * @brief Puts a piece's geometry into the model and gives its items their
 * default layout.
 *
 * Copies margins, counts, piece size, pitch, the page's description and real
 * size (inches) and the custom flag (1 when set, else 0) into model.piece,
 * derives the orientation and paper code, then lays out the five items for
 * the piece's size. The piece's name, the printer offsets and the envelope
 * orientation are left as they are. Choosing or customising a piece thus
 * always resets the item layout.
 */
void ApplyPieceSpec(const PieceSpec &entry, PieceModel &model);

/**
 * @brief Loads the catalogue piece name into the model, as setting the
 * piece's name does.
 *
 * Catalogue::system()->loadPiece(): reads name from the catalogue; when it is missing or
 * broken (fewer than 1 piece across) "Size 10 - Envelope" is taken instead,
 * silently. The geometry is applied with ApplyPieceSpec, and PieceName is
 * name even when it fell back. With no catalogue at all the geometry is 0
 * and a warning names the folder searched.
 *
 * @return true when name itself was found.
 */
bool LoadPieceByName(const QString &name, PieceModel &model);

} // namespace quirra
