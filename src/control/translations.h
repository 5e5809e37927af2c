// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#pragma once

#include "quirracontrol_export.h"

#include <QLocale>

namespace quirra {

/**
 * @brief Puts the library's texts (the dialogs, the preview pane, the command
 * line host) into the language of @p locale, and Qt's own standard buttons
 * with them when Qt's translation for it is installed.
 *
 * The translators are children of the application object, installed there
 * once: when the library's translation is already in place, nothing changes.
 * A locale without a translation (English, "C") leaves the English texts.
 * Needs a QCoreApplication.
 *
 * @return whether the library's texts are translated now.
 */
QUIRRACONTROL_EXPORT bool InstallTranslations(const QLocale &locale = QLocale::system());

} // namespace quirra
