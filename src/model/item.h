// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#pragma once

#include "model/enums.h"
#include "model/itemfont.h"
#include <QString>

#include <array>

namespace quirra {

/**
 * @brief One of the five text blocks drawn on every piece.
 *
 * Lengths are inches, measured from the piece's top-left corner.
 */
struct Item
{
    qint16 LineSpacing = 100; ///< percent of the font's line height
    qint16 Border = 0;        ///< 0: no frame; anything else: a frame round the box
    float Top = 0;            ///< inches
    float Left = 0;           ///< inches
    float Height = 0;         ///< inches
    float Width = 0;          ///< inches
    bool Visible = true;
    bool Wrap = true;
    QString Text; ///< lines separated by carriage returns
    eHorzAlign HorzAlign = haLeft;
    eVertAlign VertAlign = vaTop;
    ItemFont Font;

    bool operator==(const Item &other) const;
    bool operator!=(const Item &other) const { return !(*this == other); }
};

/** @brief The five items, numbered in their order of storage. */
enum class ItemId : int {
    Address = 0,
    Return = 1,
    Message1 = 2,
    Message2 = 3,
    Stamp = 4,
};

constexpr int ItemCount = 5;

/** @brief The items in storage order: Address, Return, Message1, Message2, Stamp. */
constexpr std::array<ItemId, ItemCount> StorageOrder = {
    ItemId::Address, ItemId::Return, ItemId::Message1, ItemId::Message2, ItemId::Stamp};

/**
 * @brief The items in the order in which routines that take all five at once
 * receive them: Address, Return, Stamp, Message1, Message2.
 */
constexpr std::array<ItemId, ItemCount> ArgumentOrder = {
    ItemId::Address, ItemId::Return, ItemId::Stamp, ItemId::Message1, ItemId::Message2};

/** @brief The published name of an item ("Address", "Return", ...). */
QString itemName(ItemId id);

} // namespace quirra
