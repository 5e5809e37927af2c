// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#include "catalogue/pieceentry.h"

namespace quirra {

bool PieceSpec::operator==(const PieceSpec &o) const
{
    return Name == o.Name && PageDesc == o.PageDesc && PageWidth == o.PageWidth &&
           PageHeight == o.PageHeight && MarginTop == o.MarginTop && MarginSide == o.MarginSide &&
           PitchVert == o.PitchVert && PitchHorz == o.PitchHorz && LabelHeight == o.LabelHeight &&
           LabelWidth == o.LabelWidth && NumAcross == o.NumAcross && NumDown == o.NumDown &&
           IsCustom == o.IsCustom;
}

} // namespace quirra
