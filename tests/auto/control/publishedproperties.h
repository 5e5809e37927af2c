// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#pragma once

// The control's published properties as hosts know them: the 84 saved ones
// in the order a form saves them, with the C++ type each is published with.
// Written out by hand on purpose: the control builds its own list from
// properties.def, and these tests hold it to this one.

struct PublishedProperty
{
    const char *name;
    const char *type;
};

// clang-format off
inline constexpr PublishedProperty SavedProperties[] = {
    {"ButtonMaxHeight", "short"}, {"ButtonPgAdvanceVisible", "bool"},
    {"ButtonPrintPgVisible", "bool"}, {"ButtonPrintAllVisible", "bool"},
    {"TextPgNumberVisible", "bool"}, {"BoarderInside", "short"}, {"BoarderButtonTop", "short"},
    {"PieceName", "QString"}, {"EnvelopeOrientation", "quirra::eEnvOrient"},
    {"PreviewZoom", "short"}, {"Message1Font", "QFont"}, {"Message1Border", "short"},
    {"Message1Visible", "bool"}, {"Message1Top", "float"}, {"Message1Left", "float"},
    {"Message1Height", "float"}, {"Message1Width", "float"},
    {"Message1HorzAlign", "quirra::eHorzAlign"}, {"Message1VertAlign", "quirra::eVertAlign"},
    {"AddressFont", "QFont"}, {"AddressBorder", "short"}, {"AddressVisible", "bool"},
    {"AddressTop", "float"}, {"AddressLeft", "float"}, {"AddressHeight", "float"},
    {"AddressWidth", "float"}, {"AddressHorzAlign", "quirra::eHorzAlign"},
    {"AddressVertAlign", "quirra::eVertAlign"}, {"AddressWrap", "bool"}, {"Message1Wrap", "bool"},
    {"Message2Wrap", "bool"}, {"ReturnWrap", "bool"}, {"StampWrap", "bool"},
    {"Message1Text", "QString"}, {"Message2Text", "QString"}, {"ReturnText", "QString"},
    {"StampText", "QString"}, {"AddressLineSpacing", "short"}, {"ReturnLineSpacing", "short"},
    {"Message1LineSpacing", "short"}, {"Message2LineSpacing", "short"},
    {"StampLineSpacing", "short"}, {"ReturnFont", "QFont"}, {"ReturnBorder", "short"},
    {"ReturnVisible", "bool"}, {"ReturnTop", "float"}, {"ReturnLeft", "float"},
    {"ReturnHeight", "float"}, {"ReturnWidth", "float"}, {"ReturnHorzAlign", "quirra::eHorzAlign"},
    {"ReturnVertAlign", "quirra::eVertAlign"}, {"StampFont", "QFont"}, {"StampBorder", "short"},
    {"StampVisible", "bool"}, {"StampTop", "float"}, {"StampLeft", "float"},
    {"StampHeight", "float"}, {"StampWidth", "float"}, {"StampHorzAlign", "quirra::eHorzAlign"},
    {"StampVertAlign", "quirra::eVertAlign"}, {"Message2Font", "QFont"},
    {"Message2Border", "short"}, {"Message2Visible", "bool"}, {"Message2Top", "float"},
    {"Message2Left", "float"}, {"Message2Height", "float"}, {"Message2Width", "float"},
    {"Message2HorzAlign", "quirra::eHorzAlign"}, {"Message2VertAlign", "quirra::eVertAlign"},
    {"PieceMarginLeft", "float"}, {"PieceMarginTop", "float"}, {"PieceHeight", "float"},
    {"PieceWidth", "float"}, {"PiecePitchHorz", "float"}, {"PiecePitchVert", "float"},
    {"PrinterLeft", "float"}, {"PrinterTop", "float"}, {"PieceNumAcross", "short"},
    {"PieceNumDown", "short"}, {"PieceOrientation", "short"}, {"PageSizeNum", "short"},
    {"PageSize", "QString"}, {"IsCustom", "short"}, {"Icon1", "QString"},
};
// clang-format on

// Published but never saved: the address block's text comes from the records.
inline constexpr PublishedProperty UnsavedProperties[] = {
    {"AddressText", "QString"},
};
