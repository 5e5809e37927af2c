// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#include "catalogue/logging_p.h"

namespace quirra {

Q_LOGGING_CATEGORY(lcCatalogue, "quirra.catalogue")

} // namespace quirra
