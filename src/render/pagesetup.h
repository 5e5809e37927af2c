// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#pragma once

#include "quirracontrol_export.h"

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
QUIRRACONTROL_EXPORT bool SetOrientationVerified(Surface &surface, int orientation);

/** @brief The same for the paper code (1 letter, 5 legal, 20 No. 10 envelope, ...). */
QUIRRACONTROL_EXPORT bool SetPaperSizeVerified(Surface &surface, int paperCode);

} // namespace quirra
