// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#include "model/piece.h"

#include "model/enums.h"
#include "model/error.h"

#include <cmath>

namespace quirra {

namespace {

constexpr double pointsPerInch = 72.0;

QSizeF sheetPoints(const Piece &piece)
{
    return QSizeF(double(piece.PageWidth) * pointsPerInch,
                  double(piece.PageHeight) * pointsPerInch);
}

} // namespace

bool Piece::operator==(const Piece &o) const
{
    return PieceNumAcross == o.PieceNumAcross && PieceNumDown == o.PieceNumDown &&
           PieceOrientation == o.PieceOrientation && PageSizeNum == o.PageSizeNum &&
           IsCustom == o.IsCustom && PrinterTop == o.PrinterTop && PrinterLeft == o.PrinterLeft &&
           PieceMarginTop == o.PieceMarginTop && PieceMarginLeft == o.PieceMarginLeft &&
           PiecePitchVert == o.PiecePitchVert && PiecePitchHorz == o.PiecePitchHorz &&
           PieceHeight == o.PieceHeight && PieceWidth == o.PieceWidth && PieceName == o.PieceName &&
           PageSize == o.PageSize && PageWidth == o.PageWidth && PageHeight == o.PageHeight;
}

void DerivePageSetup(Piece &piece)
{
    // Single precision, as the geometry itself is held.
    const float across = float(piece.PieceNumAcross - 1) * piece.PiecePitchHorz +
                         piece.PieceMarginLeft + piece.PieceWidth;
    const float down = float(piece.PieceNumDown - 1) * piece.PiecePitchVert + piece.PieceMarginTop +
                       piece.PieceHeight;
    piece.PieceOrientation = across <= down ? eoPortrait : eoLandscape;

    // The No. 10 envelope keeps its code even where its size is unknown; every
    // other paper is the sheet's real size, so Letter stays 1 and legal 5.
    if (piece.PageSize == EnvelopeTenPageSize)
        piece.PageSizeNum = PaperEnvelope10;
    else if (piece.PageWidth > 0 && piece.PageHeight > 0)
        piece.PageSizeNum = qint16(paperCodeForSize(sheetPoints(piece)));
    else
        piece.PageSizeNum = PaperLetter;
}

qint32 inchesToTwips(double inches)
{
    // lrint rounds halves to even in the default rounding mode.
    return static_cast<qint32>(std::lrint(inches * 1440.0));
}

SlotPlace placeOfSlot(const Piece &piece, int slot)
{
    if (piece.PieceNumAcross == 0) {
        throw Error(QStringLiteral("Division by zero: the piece \"%1\" has 0 pieces across; "
                                   "set PieceNumAcross to 1 or more, or choose a piece "
                                   "from the catalogue")
                        .arg(piece.PieceName));
    }
    SlotPlace place;
    place.row = (slot - 1) / piece.PieceNumAcross;
    place.column = (slot - 1) - place.row * piece.PieceNumAcross;
    place.top =
        inchesToTwips(double(float(place.row) * piece.PiecePitchVert + piece.PieceMarginTop));
    place.left =
        inchesToTwips(double(float(place.column) * piece.PiecePitchHorz + piece.PieceMarginLeft));
    return place;
}

} // namespace quirra
