// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#include "model/piecemodel.h"

namespace quirra {

bool PieceModel::operator==(const PieceModel &o) const
{
    return piece == o.piece && items == o.items && EnvelopeOrientation == o.EnvelopeOrientation &&
           AddressBarcode == o.AddressBarcode && PieceStartSlot == o.PieceStartSlot &&
           PieceOutlines == o.PieceOutlines && PrinterScaleX == o.PrinterScaleX &&
           PrinterScaleY == o.PrinterScaleY;
}

PieceModel &PieceModel::shared()
{
    static PieceModel model;
    return model;
}

void PieceModel::resetShared()
{
    shared() = PieceModel();
}

} // namespace quirra
