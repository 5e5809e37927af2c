// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#include "settings/defaultlayout.h"

#include "settings/strings.h"
#include "settings/units.h"

namespace quirra {

namespace {

void setCommonFields(Item &item, const QString &defaultText)
{
    // Only the typeface is set: the size stays what the item had.
    item.Font.Name = QStringLiteral("Arial");
    item.Border = 0;
    item.Wrap = true;
    item.HorzAlign = haLeft;
    item.VertAlign = vaTop;
    item.LineSpacing = 80;
    // A user's text survives a change of piece; only a blank one is replaced.
    if (TrimBlanks(item.Text).isEmpty())
        item.Text = defaultText;
}

} // namespace

void DefaultLayout(float pieceHeight, float pieceWidth, Item &address, Item &returnItem,
                   Item &stamp, Item &message1, Item &message2)
{
    const float h = pieceHeight;
    const float w = pieceWidth;

    setCommonFields(address, QStringLiteral("Delivery Address"));
    setCommonFields(returnItem, QStringLiteral("Return Address"));
    setCommonFields(stamp, QStringLiteral("Bulk Rate U.S. Postage   PAID   Permit No. 00001"));
    setCommonFields(message1, QStringLiteral("Message 1"));
    setCommonFields(message2, QStringLiteral("Message 2"));
    returnItem.HorzAlign = haCenter;
    stamp.HorzAlign = haCenter;
    stamp.Border = 1;

    // The delivery address sits two thirds of the way into the free space.
    address.Height = Smaller(float(0.95 * double(h)), 1.5f);
    address.Width = Smaller(float(0.95 * double(w)), 3.0f);
    address.Top = (h - address.Height) * 2 / 3;
    address.Left = (w - address.Width) * 2 / 3;

    returnItem.Height = 1.1f;
    returnItem.Width = 2.0f;
    returnItem.Top = 0.05f;
    returnItem.Left = 0.05f;

    stamp.Height = 0.91f;
    stamp.Width = 0.82f;
    stamp.Top = 0.05f;
    stamp.Left = float(double(w) - double(stamp.Width) - 0.05);

    message1.Height = 1.5f;
    message1.Width = Smaller(Larger(2.0f, float(0.9 * double(address.Left))), 3.0f);
    message1.Top = float(double(h) - double(message1.Height) - 0.1);
    message1.Left = 0.1f;

    message2.Height = 0.5f;
    message2.Width = 1.5f;
    message2.Top = float(double(h) - double(message2.Height) - 0.1);
    message2.Left = float(double(w) - double(message2.Width) - 0.1);

    // Touching the address counts as overlapping it: every test is strict.
    const float addressBottom = address.Top + address.Height;
    const float addressRight = address.Left + address.Width;
    address.Visible = true;
    returnItem.Visible = returnItem.Top + returnItem.Height < address.Top ||
                         returnItem.Left + returnItem.Width < address.Left;
    stamp.Visible = stamp.Top + stamp.Height < address.Top || addressRight < stamp.Left;
    message1.Visible = message1.Left + message1.Width < address.Left;
    message2.Visible = addressBottom < message2.Top;
}

} // namespace quirra
