// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#include "render/logging_p.h"

Q_LOGGING_CATEGORY(lcRender, "quirra.render")
