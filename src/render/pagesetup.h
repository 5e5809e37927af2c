// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QSize>

namespace quirra {

class Surface;

/**
 * @brief Sets the surface's orientation (0 portrait, 1 landscape) and reads
 * it back, up to ten times, until the surface holds the value.
 *
 * Printer drivers are known to take a page setting only once something has
 * been written, so each attempt first writes a line of blanks. After ten
 * refusals the run goes on with whatever the surface holds.
 * @return true when the surface took the value.
 */
bool SetOrientationVerified(Surface &surface, int orientation);

/** @brief The same for the paper code (1 letter, 5 legal, 20 No. 10 envelope, ...). */
bool SetPaperSizeVerified(Surface &surface, int paperCode);

/**
 * @brief The same for a paper code that may be 256, a custom paper of
 * customTwips (whole twips, either side first): each attempt hands the
 * surface the custom size before the code, and the paper only counts as
 * taken when the surface also holds that size, to within half a point. For
 * any other code customTwips is not used.
 */
bool SetPaperSizeVerified(Surface &surface, int paperCode, const QSize &customTwips);

} // namespace quirra
