// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#include "records/logging_p.h"

namespace quirra {

Q_LOGGING_CATEGORY(lcRecords, "quirra.records")

} // namespace quirra
