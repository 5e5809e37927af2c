// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QLoggingCategory>

namespace quirra {

Q_DECLARE_LOGGING_CATEGORY(lcPane)

} // namespace quirra
