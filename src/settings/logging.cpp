// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#include "settings/logging_p.h"

Q_LOGGING_CATEGORY(lcSettings, "quirra.settings")
