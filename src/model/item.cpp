// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#include "model/item.h"

namespace quirra {

bool ItemFont::operator==(const ItemFont &o) const
{
    return Name == o.Name && Size == o.Size && Bold == o.Bold && Italic == o.Italic &&
           Underline == o.Underline && Strikethrough == o.Strikethrough;
}

bool Item::operator==(const Item &o) const
{
    return LineSpacing == o.LineSpacing && Border == o.Border && Top == o.Top && Left == o.Left &&
           Height == o.Height && Width == o.Width && Visible == o.Visible && Wrap == o.Wrap &&
           Text == o.Text && HorzAlign == o.HorzAlign && VertAlign == o.VertAlign && Font == o.Font;
}

QString itemName(ItemId id)
{
    switch (id) {
    case ItemId::Address:
        return QStringLiteral("Address");
    case ItemId::Return:
        return QStringLiteral("Return");
    case ItemId::Message1:
        return QStringLiteral("Message1");
    case ItemId::Message2:
        return QStringLiteral("Message2");
    case ItemId::Stamp:
        return QStringLiteral("Stamp");
    }
    return QString();
}

} // namespace quirra
