// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#pragma once

#include "model/enums.h"
#include "model/item.h"
#include "model/piece.h"
#include <array>

namespace quirra {

/**
 * @brief The piece, its five items and the envelope orientation.
 *
 * There is one of these per process, shared by every control: a layout that
 * one control loads or edits is at once the layout of all of them. Dialogs
 * work on copies and hand them back when the user accepts.
 */
struct PieceModel
{
    Piece piece;
    std::array<Item, ItemCount> items; ///< in storage order, see ItemId
    eEnvOrient EnvelopeOrientation = eoLandscape;
    /** @brief The record's Intelligent Mail barcode below the city line. */
    bool AddressBarcode = false;
    /** @brief The slot of the first sheet that takes the first record, from 1. */
    short PieceStartSlot = 1;
    /** @brief Each piece's outline, thin and grey, drawn with the piece. */
    bool PieceOutlines = false;
    /** @brief The printer's stretch across and down, in percent (90..110 used). */
    float PrinterScaleX = 100;
    float PrinterScaleY = 100;

    Item &item(ItemId id) { return items[static_cast<int>(id)]; }
    const Item &item(ItemId id) const { return items[static_cast<int>(id)]; }

    /** @brief The model every control of this process shares. */
    static PieceModel &shared();

    /** @brief Puts the shared model back to its state at process start (for tests). */
    static void resetShared();

    bool operator==(const PieceModel &other) const;
    bool operator!=(const PieceModel &other) const { return !(*this == other); }
};

} // namespace quirra
