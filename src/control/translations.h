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
 * The first call in a process chooses the language; later ones change
 * nothing and return what it chose. The first control makes that call with
 * the user's locale, so a host that wants another language (English
 * whatever the locale: QLocale::c()) calls this before its first control. A
 * locale without a translation leaves the English texts. The translators are
 * children of the application object. Needs a QCoreApplication.
 *
 * @return whether the library's texts are translated.
 */
QUIRRACONTROL_EXPORT bool InstallTranslations(const QLocale &locale = QLocale::system());

} // namespace quirra
