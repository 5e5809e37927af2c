// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#include "control/propertybag.h"

namespace quirra {

PropertyBag::~PropertyBag() = default;

} // namespace quirra
