// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#include "records/textmeasurer.h"

namespace quirra {

// Out of line so the class has one home for its vtable.
TextMeasurer::~TextMeasurer() = default;

} // namespace quirra
