// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#include "properties/propertybag.h"

namespace quirra {

PropertyBag::~PropertyBag() = default;

} // namespace quirra
