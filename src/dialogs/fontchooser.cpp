// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#include "dialogs/fontchooser.h"

#include "dialogs/logging_p.h"

#include <QFontDialog>

namespace quirra {

namespace {
FontChooserHook &installedHook()
{
    static FontChooserHook hook;
    return hook;
}
} // namespace

void setFontChooserHook(FontChooserHook hook)
{
    installedHook() = std::move(hook);
}

bool ChooseFont(QFont &font, QWidget *parent)
{
    if (const FontChooserHook &hook = installedHook())
        return hook(font, parent);
    bool ok = false;
    // Scalable fonts only: the piece is printed at any size the item asks.
    const QFont chosen =
        QFontDialog::getFont(&ok, font, parent, QString(), QFontDialog::ScalableFonts);
    qCDebug(lcDialogs) << "font dialog" << (ok ? "chose" : "cancelled") << chosen;
    if (ok)
        font = chosen;
    return ok;
}

} // namespace quirra
