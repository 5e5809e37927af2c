// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#include "logging_p.h"

namespace quirra {

Q_LOGGING_CATEGORY(lcApp, "quirra.app")

} // namespace quirra
