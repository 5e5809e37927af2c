// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#include "properties/defaultset.h"

#include "catalogue/pieceloader.h"
#include "model/piecemodel.h"

namespace quirra {

DefaultSet DefaultSet::compute()
{
    PieceModel scratch;
    LoadPieceByName(DefaultPieceName, scratch);
    scratch.piece.PrinterLeft = 0.25f;
    scratch.piece.PrinterTop = 0.25f;

    DefaultSet set;
    set.piece = scratch.piece;
    set.items = scratch.items;
    set.Icon1 = QStringLiteral("void");
    return set;
}

} // namespace quirra
