// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#include "surface/pagehelpers_p.h"

#include <QPaintDevice>
#include <QPainter>
#include <QPicture>

#include <algorithm>
#include <cmath>
#include <limits>

namespace quirra {

// A picture played on a painter is scaled by the device's resolution over
// the picture's own; undo that, so that the painter's transform alone says
// how large a twip is.
void playPicture(QPainter &painter, const QPicture &picture)
{
    const QPaintDevice *device = painter.device();
    if (!device)
        return;
    painter.save();
    painter.scale(double(picture.logicalDpiX()) / device->logicalDpiX(),
                  double(picture.logicalDpiY()) / device->logicalDpiY());
    painter.drawPicture(0, 0, picture);
    painter.restore();
}

// Twips as a whole number, held within int so that a run far off the page
// cannot overflow.
int clampToInt(double twips)
{
    return int(std::clamp(std::round(twips), double(std::numeric_limits<int>::min()),
                          double(std::numeric_limits<int>::max())));
}

} // namespace quirra
