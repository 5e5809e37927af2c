// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#pragma once

#include "model/item.h"
#include "model/piece.h"
#include <QString>

#include <array>

namespace quirra {

/**
 * @brief The values a control falls back on: the geometry of "Size 10 -
 * Envelope", the default boxes of its five items, printer offsets of 0.25
 * inch and the text "void" for Icon1.
 *
 * Each control computes its own when it starts and keeps it unchanged; it is
 * apart from the shared model, so later changes of the piece do not move
 * the defaults that saving and reading compare against.
 */
struct DefaultSet
{
    Piece piece;                       ///< lengths in inches
    std::array<Item, ItemCount> items; ///< in storage order, boxes in inches
    QString Icon1;

    /** @brief One item of the set. */
    const Item &item(ItemId id) const { return items[static_cast<int>(id)]; }

    /**
     * @brief Loads "Size 10 - Envelope" from the catalogue into a fresh set.
     *
     * Without a catalogue the geometry is 0 (the loader logs where it
     * looked); the printer offsets and Icon1 are set all the same.
     */
    static DefaultSet compute();
};

} // namespace quirra
