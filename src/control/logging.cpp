// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#include "control/logging_p.h"

Q_LOGGING_CATEGORY(lcControl, "quirra.control")
