// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#include "surface/surface.h"

namespace quirra {

// Out of line so the class has one home for its vtable.
Surface::~Surface() = default;

int Surface::textWidthLaidOut() const
{
    return 0;
}

void Surface::setClipBox(int, int, int, int) {}

void Surface::clearClipBox() {}

QRect Surface::paperRect() const
{
    return QRect();
}

} // namespace quirra
