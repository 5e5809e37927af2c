// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#include "render/messagehook.h"

#include "render/logging_p.h"

#include <cstdio>

namespace quirra {

namespace {
MessageHook &hookSlot()
{
    static MessageHook hook;
    return hook;
}
} // namespace

void setMessageHook(MessageHook hook)
{
    hookSlot() = std::move(hook);
}

bool hasMessageHook()
{
    return bool(hookSlot());
}

void showMessage(const QString &text)
{
    if (hookSlot()) {
        hookSlot()(text);
        return;
    }
    qCWarning(lcRender).noquote() << text;
    std::fprintf(stderr, "%s\n", text.toLocal8Bit().constData());
}

} // namespace quirra
