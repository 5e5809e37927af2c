// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#pragma once

#include "catalogue/pieceentry.h"
#include <QString>
#include <QStringList>

namespace quirra {

/** @brief The master catalogue: every piece's record and the paper size list. */
inline const QString MasterCatalogueFileName = QStringLiteral("quirra.cfg");
/** @brief The catalogue of the laser/ink-jet family, the selection dialog's first file. */
inline const QString LaserCatalogueFileName = QStringLiteral("quirral.cfg");
/**
 * @brief The dot-matrix family's catalogue name. Nothing reads it: the
 * selection dialog reads both families from the master file.
 */
inline const QString DotMatrixCatalogueFileName = QStringLiteral("quirram.cfg");

/** @brief The laser/ink-jet family's section, listing product(1) ... product(100). */
inline const QString LaserFamilySection = QStringLiteral("Laser/InkJet Products");
/** @brief The dot-matrix family's section, listing product(1) ... product(100). */
inline const QString DotMatrixFamilySection = QStringLiteral("Dot Matrix Products");
/** @brief The section holding one record per piece, keyed by the piece's name. */
inline const QString DetailsSection = QStringLiteral("Details");
/** @brief The section holding the paper size list, size(1) ... size(100). */
inline const QString PaperSizesSection = QStringLiteral("Available Paper Sizes");

constexpr int ProductListBound = 100;   ///< product(1) to product(100)
constexpr int PieceListBound = 200;     ///< Piece(1) to Piece(200)
constexpr int PaperSizeListBound = 100; ///< size(1) to size(100)

/** @brief The kinds of sheet ReadPieceType tells apart. */
enum PieceType : int {
    PieceTypeCut = 1,        ///< cut sheet or envelope
    PieceTypeContinuous = 2, ///< continuous (tractor-fed) forms
};

/**
 * @brief The record of the piece name in the "Details" section of file.
 *
 * The record is "product,W x H,W x H,S x T,H x V,A x D,page description,type":
 * piece size, page size, side and top margin, horizontal and vertical pitch
 * (all inches), pieces across and down. Each pair is split at its first
 * lower-case "x". Missing fields read as empty and 0, text that is not a
 * number as 0, and counts beyond 16 bits as 0; nothing is reported. Name is
 * name and IsCustom false.
 */
PieceSpec ReadPieceSpec(const QString &file, const QString &name);

/**
 * @brief PieceTypeContinuous when the master catalogue's record of name ends
 * in "CONT" (any case, blanks around it allowed), else PieceTypeCut (also for
 * a missing record).
 */
int ReadPieceType(const QString &name);

/** @brief The product (first field) of name's record in the master catalogue. */
QString ReadPieceProduct(const QString &name);

/**
 * @brief The master catalogue's full path (SystemDirectory() + "quirra.cfg"),
 * or the empty text when that file cannot be read.
 */
QString CatalogueFilePath();

/**
 * @brief The products of a printer family section: the first field of
 * product(1) ... up to the last one present, gaps kept as empty entries.
 */
QStringList ReadProductList(const QString &file, const QString &family);

/**
 * @brief The pieces of a product section: the first field of Piece(1) ... up
 * to the last one present, gaps kept as empty entries.
 */
QStringList ReadPieceList(const QString &file, const QString &product);

/**
 * @brief The captions of the paper size list in PaperCatalogueFile(): the
 * text after the last comma of each size(n), gaps kept as empty entries.
 */
QStringList ReadPaperSizeCaptions();

/**
 * @brief Width and height (inches) of the paper size at a zero-based
 * position of the caption list.
 *
 * The second field of size(index + 1), lower-cased, gives the width before
 * its first "x" and the height after its last "x". A missing entry reads as
 * "8.5x11", a value without the dimension field, so both come out 0.
 */
void ReadPaperSize(int index, float &width, float &height);

} // namespace quirra
