// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace quirra {

/**
 * @brief The font of an item: what the surface is given before the item's
 * text is laid out.
 *
 * A plain value kept in the model, so the model needs no GUI library; the
 * drawing side turns it into a QFont.
 */
struct ItemFont
{
    QString Name = QStringLiteral("Arial"); ///< typeface
    double Size = 10.0;                     ///< points
    bool Bold = false;
    bool Italic = false;
    bool Underline = false;
    bool Strikethrough = false;

    bool operator==(const ItemFont &other) const;
    bool operator!=(const ItemFont &other) const { return !(*this == other); }
};

} // namespace quirra
