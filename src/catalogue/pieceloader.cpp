// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#include "catalogue/pieceloader.h"

#include "catalogue/catalogue.h"
#include "catalogue/logging_p.h"
#include "settings/defaultlayout.h"
#include "settings/files.h"

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
    piece.PieceMarginLeft = entry.MarginSide;
    piece.PieceMarginTop = entry.MarginTop;
    piece.PieceNumAcross = entry.NumAcross;
    piece.PieceNumDown = entry.NumDown;
    piece.PieceHeight = entry.LabelHeight;
    piece.PieceWidth = entry.LabelWidth;
    piece.PiecePitchHorz = entry.PitchHorz;
    piece.PiecePitchVert = entry.PitchVert;
    piece.IsCustom = entry.IsCustom ? 1 : 0;
    piece.PageSize = entry.PageDesc;
    piece.PageWidth = entry.PageWidth;
    piece.PageHeight = entry.PageHeight;
    DerivePageSetup(piece);
    DefaultLayout(piece.PieceHeight, piece.PieceWidth, model.item(ItemId::Address),
                  model.item(ItemId::Return), model.item(ItemId::Stamp),
                  model.item(ItemId::Message1), model.item(ItemId::Message2));
}

bool LoadPieceByName(const QString &name, PieceModel &model)
{
    const QString file = CatalogueFilePath();
    PieceSpec entry = ReadPieceSpec(file, name);
    const bool found = entry.NumAcross >= 1;
    if (!found) {
        entry = ReadPieceSpec(file, DefaultPieceName);
        if (entry.NumAcross >= 1) {
            qCDebug(lcCatalogue).noquote()
                << "piece" << name << "is not in the catalogue; loaded" << DefaultPieceName;
        } else if (file.isEmpty()) {
            qCWarning(lcCatalogue).noquote()
                << "No catalogue to load the piece" << name << "from:" << MasterCatalogueFileName
                << "is not in" << SystemDirectory()
                << "- set QUIRRA_SYSTEM_DIR to the folder that holds it. The piece's size "
                   "stays 0.";
        } else {
            qCWarning(lcCatalogue).noquote()
                << "The catalogue" << file << "holds neither the piece" << name << "nor"
                << DefaultPieceName
                << "- check the file, or set QUIRRA_SYSTEM_DIR to the folder of a complete "
                   "catalogue. The piece's size stays 0.";
        }
    }
    ApplyPieceSpec(entry, model);
    model.piece.PieceName = name;
    return found;
}

} // namespace quirra
