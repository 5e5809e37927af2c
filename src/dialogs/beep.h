// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#pragma once

#include "quirracontrol_export.h"

#include <functional>

namespace quirra {

/**
 * @brief Sounds the dialogs' warning beep (a dropped key, a value stepped
 * past its bound).
 *
 * The default sounds the system beep; a test or a silent host installs its
 * own to count or mute them.
 */
using BeepHook = std::function<void()>;

/** @brief Installs the process-wide beep hook; an empty hook restores the system beep. */
QUIRRACONTROL_EXPORT void setBeepHook(BeepHook hook);

/** @brief Sounds one beep through the installed hook. */
QUIRRACONTROL_EXPORT void Beep();

} // namespace quirra
