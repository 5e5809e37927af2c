// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#pragma once

#include "quirracontrol_export.h"

#include <QString>

#include <functional>

namespace quirra {

/**
 * @brief Receives the messages a run shows the user ("Ptr.error = 3").
 *
 * The control installs a hook that opens a message box; a headless host or a
 * test installs one that takes the text. Without a hook the message goes to
 * the log and to standard error.
 */
using MessageHook = std::function<void(const QString &text)>;

/** @brief Installs the process-wide hook; an empty hook restores the default. */
QUIRRACONTROL_EXPORT void setMessageHook(MessageHook hook);

/** @brief True while a hook is installed; false while messages go to the log. */
QUIRRACONTROL_EXPORT bool hasMessageHook();

/** @brief Shows a message through the installed hook. */
QUIRRACONTROL_EXPORT void showMessage(const QString &text);

} // namespace quirra
