// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#pragma once

#include "model/papersizes.h"
#include <QPageLayout>
#include <QPageSize>

namespace quirra {

/**
 * @brief The paper for a paper code (1 Letter, 5 Legal, 9 A4, 20 No. 10
 * envelope, ...), as the printer drivers number their papers; the sizes are
 * model/papersizes.h's.
 *
 * The paper is Qt's standard paper of that size where Qt has one (so a
 * printer is asked for its own named paper), else a custom paper of exactly
 * that size. Returns an invalid QPageSize for CustomPaperCode and for a code
 * no paper has. Sizes are always given upright (the shorter side across);
 * orientation is a separate setting.
 */
QPageSize pageSizeForPaperCode(int code);

/**
 * @brief A paper of exactly widthTwips x heightTwips (twips, 1440 to the
 * inch), given upright whichever side is longer: Qt's standard paper when one
 * has that size to the point, else a custom paper. Invalid when either side is
 * not positive.
 */
QPageSize pageSizeForTwips(int widthTwips, int heightTwips);

/**
 * @brief The paper setPaperSize() takes for a code: pageSizeForPaperCode(),
 * or for CustomPaperCode the custom size in twips (pageSizeForTwips()).
 */
QPageSize pageSizeForPaper(int code, const QSize &customTwips);

/** @brief The paper of a page layout as it is oriented, in twips. */
QSizeF paperTwips(const QPageLayout &layout);

/** @brief A paper's size in whole twips, upright (the shorter side first). */
QSize uprightTwips(const QPageSize &size);

/**
 * @brief The paper code of a paper: the first code whose paper has the same
 * size (to within half a point, in either orientation), or CustomPaperCode
 * when no code has it.
 */
int paperCodeForPageSize(const QPageSize &size);

} // namespace quirra
