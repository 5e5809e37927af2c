// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#pragma once

#include "model/item.h"
#include "model/piece.h"
#include <QString>
#include <QStringList>
#include <QVariant>

#include <vector>

namespace quirra {

/**
 * @brief One field of an item or of the piece, read and written in the
 * property table's saved form (alignments as 32-bit integers, the font as a
 * QFont, everything else as its own type).
 */
template <typename Record> struct Field
{
    const char *name; ///< the field's name, without the item's
    QVariant (*get)(const Record &record);
    void (*set)(Record &record, const QVariant &value);
};

/** @brief A field of the piece and the name its change is announced by (empty: not announced). */
struct PieceField
{
    Field<Piece> field;
    const char *announced;
};

/**
 * @brief The twelve fields of an item, by name: Border, Font, Height,
 * HorzAlign, Left, LineSpacing, Text, Top, VertAlign, Visible, Width, Wrap.
 * Taken from the item rows of properties/properties.def.
 */
const std::vector<Field<Item>> &ItemFields();

/**
 * @brief The fields of the piece from properties/properties.def: PieceName,
 * the fourteen announced ones by their announced name, then the fields that
 * are not announced (the sheet's size) in the table's order.
 */
const std::vector<PieceField> &PieceFields();

/**
 * @brief The fourteen names by which a change of the piece is announced, in
 * order. Seven are short forms ("MarginLeft", "NumAcross", ...) rather than
 * property names: the container only needs to learn that something changed.
 */
const QStringList &PieceChangedNames();

/**
 * @brief The sixty item property names by which a change of the whole layout
 * is announced: items in the order Address, Return, Stamp, Message1, Message2,
 * and within each the fields of ItemFields().
 */
const QStringList &ItemsChangedNames();

} // namespace quirra
