// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace quirra {

/**
 * @brief One catalogue piece as the catalogue reader, the piece dialogs and
 * the control hand it to each other.
 *
 * Lengths are in the unit of the page (inches for everything the catalogue
 * ships). A record that is missing or broken reads as all zeros and empty
 * texts; a NumAcross below 1 marks it as not found.
 */
struct PieceSpec
{
    QString Name;          ///< the piece's name, the key of its record
    QString PageDesc;      ///< the page as the paper size list names it
    float PageWidth = 0;   ///< width of the sheet, inches
    float PageHeight = 0;  ///< height of the sheet, inches
    float MarginTop = 0;   ///< sheet's top edge to the first row, inches
    float MarginSide = 0;  ///< sheet's left edge to the first column, inches
    float PitchVert = 0;   ///< one row's top edge to the next's, inches
    float PitchHorz = 0;   ///< one column's left edge to the next's, inches
    float LabelHeight = 0; ///< height of one piece, inches
    float LabelWidth = 0;  ///< width of one piece, inches
    qint16 NumAcross = 0;  ///< pieces per row
    qint16 NumDown = 0;    ///< rows per sheet
    bool IsCustom = false; ///< edited by the user; never set for a record read from a file

    bool operator==(const PieceSpec &other) const;
    bool operator!=(const PieceSpec &other) const { return !(*this == other); }
};

} // namespace quirra
