// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#include "render/pagesetup.h"

#include "model/papersizes.h"
#include "surface/surface.h"

#include <QString>

#include <cstdlib>

namespace quirra {

namespace {

constexpr int Attempts = 10;
constexpr int NudgePosition = 2000; // twips
constexpr int NudgeWrites = 4;

// Writes the line of blanks that makes a driver take the setting.
void nudge(Surface &surface)
{
    static const QString blanks(23, QLatin1Char(' '));
    surface.setCurrentX(NudgePosition);
    surface.setCurrentY(NudgePosition);
    for (int i = 0; i < NudgeWrites; ++i)
        surface.outputText(blanks);
}

template <typename Set, typename Get>
bool setVerified(Surface &surface, int value, Set set, Get get)
{
    for (int attempt = 0; attempt < Attempts; ++attempt) {
        nudge(surface);
        (surface.*set)(value);
        if ((surface.*get)() == value)
            return true;
    }
    return false;
}

constexpr int HalfPoint = 10; // twips

bool sameUpright(QSize a, QSize b)
{
    if (a.width() > a.height())
        a.transpose();
    if (b.width() > b.height())
        b.transpose();
    return std::abs(a.width() - b.width()) <= HalfPoint &&
           std::abs(a.height() - b.height()) <= HalfPoint;
}

} // namespace

bool SetOrientationVerified(Surface &surface, int orientation)
{
    return setVerified(surface, orientation, &Surface::setOrientation, &Surface::orientation);
}

bool SetPaperSizeVerified(Surface &surface, int paperCode)
{
    // The paper code is a 16-bit value: compare as the surface hands it back.
    return setVerified(surface, qint16(paperCode), &Surface::setPaperSize, &Surface::paperSize);
}

bool SetPaperSizeVerified(Surface &surface, int paperCode, const QSize &customTwips)
{
    if (paperCode != CustomPaperCode)
        return SetPaperSizeVerified(surface, paperCode);
    for (int attempt = 0; attempt < Attempts; ++attempt) {
        nudge(surface);
        surface.setCustomPaperSize(customTwips.width(), customTwips.height());
        surface.setPaperSize(paperCode);
        if (surface.paperSize() == paperCode && sameUpright(surface.paperSizeTwips(), customTwips))
            return true;
    }
    return false;
}

} // namespace quirra
