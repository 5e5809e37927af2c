// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QLoggingCategory>

namespace quirra {

// The dialogs folder's one logging category, "quirra.dialogs". The dialogs
// report nothing to the user but a beep; what they read and decide goes to
// debug messages here.
Q_DECLARE_LOGGING_CATEGORY(lcDialogs)

} // namespace quirra
