// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#include "dialogs/logging_p.h"

namespace quirra {

Q_LOGGING_CATEGORY(lcDialogs, "quirra.dialogs")

} // namespace quirra
