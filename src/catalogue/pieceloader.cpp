// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#include "catalogue/pieceloader.h"

#include "catalogue/piececatalogue.h"
#include "settings/defaultlayout.h"

namespace quirra {

PieceSpec PieceEntryOf(const Piece &piece)
{
    PieceSpec entry;
    entry.Name = piece.PieceName;
    entry.MarginTop = piece.PieceMarginTop;
    entry.MarginSide = piece.PieceMarginLeft;
    entry.NumAcross = piece.PieceNumAcross;
    entry.NumDown = piece.PieceNumDown;
    entry.LabelHeight = piece.PieceHeight;
    entry.LabelWidth = piece.PieceWidth;
    entry.PitchHorz = piece.PiecePitchHorz;
    entry.PitchVert = piece.PiecePitchVert;
    entry.PageDesc = piece.PageSize;
    entry.PageWidth = piece.PageWidth;
    entry.PageHeight = piece.PageHeight;
    return entry;
}

void ApplyPieceSpec(const PieceSpec &entry, PieceModel &model)
{
    Piece &piece = model.piece;
    CopyPieceSpec(entry, piece);
    DefaultLayout(piece.PieceHeight, piece.PieceWidth, model.item(ItemId::Address),
                  model.item(ItemId::Return), model.item(ItemId::Stamp),
                  model.item(ItemId::Message1), model.item(ItemId::Message2));
}

bool LoadPieceByName(const QString &name, PieceModel &model)
{
    return Catalogue::system()->loadPiece(name, model);
}

} // namespace quirra
