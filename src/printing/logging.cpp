// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#include "printing/logging_p.h"

namespace quirra {

Q_LOGGING_CATEGORY(lcPrinting, "quirra.printing")

} // namespace quirra
