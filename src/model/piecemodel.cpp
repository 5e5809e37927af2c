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

const QStringList &PieceChangedNames()
{
    static const QStringList names = {
        QStringLiteral("IsCustom"),    QStringLiteral("MarginLeft"),
        QStringLiteral("MarginTop"),   QStringLiteral("NumAcross"),
        QStringLiteral("NumDown"),     QStringLiteral("Orientation"),
        QStringLiteral("PageSize"),    QStringLiteral("PageSizeNum"),
        QStringLiteral("PieceHeight"), QStringLiteral("PieceWidth"),
        QStringLiteral("PitchHorz"),   QStringLiteral("PitchVert"),
        QStringLiteral("PrinterLeft"), QStringLiteral("PrinterTop"),
    };
    return names;
}

const QStringList &ItemsChangedNames()
{
    static const QStringList names = [] {
        static const char *const fields[] = {"Border", "Font",        "Height", "HorzAlign",
                                             "Left",   "LineSpacing", "Text",   "Top",
                                             "VertAlign", "Visible",  "Width",  "Wrap"};
        QStringList list;
        for (ItemId id : ArgumentOrder) {
            for (const char *field : fields)
                list.append(itemName(id) + QLatin1String(field));
        }
        return list;
    }();
    return names;
}

} // namespace quirra
