// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#include "surface/logging_p.h"

namespace quirra {

Q_LOGGING_CATEGORY(lcSurface, "quirra.surface")

} // namespace quirra
