// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#pragma once

#include "quirracontrol_export.h"

#include <QPageSize>

namespace quirra {

/**
 * @brief The paper for a paper code (1 Letter, 5 Legal, 9 A4, 20 No. 10
 * envelope, ...), as the printer drivers number their papers.
 *
 * Returns an invalid QPageSize for a code this surface does not know.
 * Sizes are always given upright (the shorter side across); orientation
 * is a separate setting.
 */
QUIRRACONTROL_EXPORT QPageSize pageSizeForPaperCode(int code);

/**
 * @brief The paper code of a paper: the first code whose paper has the same
 * size (to within half a point), or 256, the code of a custom size, when no
 * code has it.
 */
QUIRRACONTROL_EXPORT int paperCodeForPageSize(const QPageSize &size);

/** @brief The code that stands for a paper size no code names. */
constexpr int CustomPaperCode = 256;

} // namespace quirra
