// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#include "pane/logging_p.h"

namespace quirra {

Q_LOGGING_CATEGORY(lcPane, "quirra.pane")

} // namespace quirra
