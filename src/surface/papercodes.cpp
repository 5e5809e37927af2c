// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#include "surface/papercodes.h"

#include <QRectF>
#include <QSizeF>

namespace quirra {

namespace {

constexpr double twipsPerPoint = 20.0;

// Upright, as the shorter side across; Qt's exact match compares whole
// points, so a catalogue's A4 in inches still becomes Qt's named A4.
QPageSize uprightPageSize(QSizeF points)
{
    if (points.isEmpty())
        return QPageSize();
    if (points.width() > points.height())
        points.transpose();
    return QPageSize(points, QPageSize::Point, QString(), QPageSize::ExactMatch);
}

} // namespace

QPageSize pageSizeForPaperCode(int code)
{
    return uprightPageSize(paperSizePoints(code));
}

QPageSize pageSizeForTwips(int widthTwips, int heightTwips)
{
    if (widthTwips <= 0 || heightTwips <= 0)
        return QPageSize();
    return uprightPageSize(QSizeF(widthTwips, heightTwips) / twipsPerPoint);
}

QPageSize pageSizeForPaper(int code, const QSize &customTwips)
{
    return code == CustomPaperCode ? pageSizeForTwips(customTwips.width(), customTwips.height())
                                   : pageSizeForPaperCode(code);
}

QSizeF paperTwips(const QPageLayout &layout)
{
    return layout.fullRect(QPageLayout::Point).size() * twipsPerPoint;
}

QSize uprightTwips(const QPageSize &size)
{
    const QSize twips = (size.size(QPageSize::Point) * twipsPerPoint).toSize();
    return twips.width() <= twips.height() ? twips : twips.transposed();
}

int paperCodeForPageSize(const QPageSize &size)
{
    if (!size.isValid())
        return CustomPaperCode;
    return paperCodeForSize(size.size(QPageSize::Point));
}

} // namespace quirra
