// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#pragma once

#include "model/papersizes.h"
#include <QString>

namespace quirra {

/** @brief The name of the piece every fallback ends on. */
inline const QString DefaultPieceName = QStringLiteral("Size 10 - Envelope");

/** @brief The page description of a No. 10 envelope, which selects paper code 20. */
inline const QString EnvelopeTenPageSize = QStringLiteral("4 1/8 x 9 1/2");

/** @brief Paper codes handed to the printing surface (the printers' own numbering). */
enum PaperCode : qint16 {
    PaperLetter = 1,
    PaperLegal = 5,
    PaperEnvelope10 = 20,
};

/**
 * @brief One mail piece: an envelope, or one label of a label sheet, with the
 * geometry of the sheet it sits on.
 *
 * Lengths are inches as single-precision numbers; the counts are 16-bit.
 */
struct Piece
{
    qint16 PieceNumAcross = 0;        ///< pieces per row (1 for an envelope)
    qint16 PieceNumDown = 0;          ///< rows per sheet (1 for an envelope)
    qint16 PieceOrientation = 0;      ///< 0 portrait, 1 landscape; derived
    qint16 PageSizeNum = PaperLetter; ///< paper code; derived
    qint16 IsCustom = 0;              ///< nonzero once the user edited the geometry
    float PrinterTop = 0.25f;         ///< inches the printer cannot reach at the top
    float PrinterLeft = 0.25f;        ///< inches the printer cannot reach at the left
    float PieceMarginTop = 0;         ///< inches from the sheet's top to the first row
    float PieceMarginLeft = 0;        ///< inches from the sheet's left to the first column
    float PiecePitchVert = 0;         ///< inches from one row's top to the next's
    float PiecePitchHorz = 0;         ///< inches from one column's left to the next's
    float PieceHeight = 0;            ///< inches
    float PieceWidth = 0;             ///< inches
    QString PieceName = DefaultPieceName;
    QString PageSize;     ///< the catalogue's description of the paper
    float PageWidth = 0;  ///< the sheet's real width as it is fed, inches; 0 unknown
    float PageHeight = 0; ///< the sheet's real height as it is fed, inches; 0 unknown

    bool operator==(const Piece &other) const;
    bool operator!=(const Piece &other) const { return !(*this == other); }
};

/**
 * @brief Sets PieceOrientation and PageSizeNum from the geometry, the page
 * description and the sheet's real size.
 *
 * The sheet is portrait unless the pieces reach further across than down (a
 * tie is portrait). The paper is a No. 10 envelope (20) when the description
 * is exactly "4 1/8 x 9 1/2"; otherwise it is the paper of the sheet's real
 * size, PageWidth x PageHeight in either orientation: the printers' code of
 * that standard paper (1 Letter, 5 Legal, 9 A4, 31 C6, ...; see
 * paperCodeForSize()), or CustomPaperCode, a paper of exactly the sheet's
 * size, when no code has it. A sheet of unknown size (0) prints on Letter.
 */
void DerivePageSetup(Piece &piece);

/** @brief Inches to whole twips (1440 to the inch), halves to even. */
qint32 inchesToTwips(double inches);

/** @brief Where a slot of a sheet lies, in whole twips from the sheet's corner. */
struct SlotPlace
{
    int row = 0;     ///< from 0
    int column = 0;  ///< from 0
    qint32 top = 0;  ///< twips
    qint32 left = 0; ///< twips
};

/**
 * @brief The place of the k-th piece of a sheet (k from 1), filled left to
 * right, then top to bottom.
 * @throws Error when PieceNumAcross is 0 (the division by the pieces across).
 */
SlotPlace placeOfSlot(const Piece &piece, int slot);

} // namespace quirra
