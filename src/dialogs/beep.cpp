// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#include "dialogs/beep.h"

#include "dialogs/logging_p.h"

#include <QApplication>

namespace quirra {

namespace {
BeepHook &installedHook()
{
    static BeepHook hook;
    return hook;
}
} // namespace

void setBeepHook(BeepHook hook)
{
    installedHook() = std::move(hook);
}

void Beep()
{
    if (const BeepHook &hook = installedHook()) {
        hook();
        return;
    }
    qCDebug(lcDialogs) << "beep";
    QApplication::beep();
}

} // namespace quirra
