// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace quirra {

/**
 * @brief Writes one line to standard error. Every message goes through C's
 * stderr, as the progress bar does, so the two never overtake each other.
 */
void say(const QString &line);

} // namespace quirra
