// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#pragma once

#include "quirracontrol_export.h"

#include <QFont>

#include <functional>

class QWidget;

namespace quirra {

/**
 * @brief Lets the user choose a font, starting from font (size in points).
 *
 * Returns true and the chosen font in font, or false when the user
 * cancelled (font is then left as it was). The default opens the font
 * dialog on scalable fonts with their effects (underline, strike-out); a
 * test or a headless host installs its own.
 */
using FontChooserHook = std::function<bool(QFont &font, QWidget *parent)>;

/** @brief Installs the process-wide font chooser; an empty hook restores the font dialog. */
QUIRRACONTROL_EXPORT void setFontChooserHook(FontChooserHook hook);

/** @brief Asks the installed chooser for a font; see FontChooserHook. */
QUIRRACONTROL_EXPORT bool ChooseFont(QFont &font, QWidget *parent);

} // namespace quirra
