// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#include "render/textlines.h"

#include "settings/strings.h"

namespace quirra {

QString AppendTextLine(const QString &text, const QString &line)
{
    const QString head = TrimTrailingBlanks(text);
    if (head.isEmpty())
        return line;
    return head + QLatin1String("\r\n") + line;
}

} // namespace quirra
