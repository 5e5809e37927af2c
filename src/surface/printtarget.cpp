// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#include "surface/printtarget.h"

namespace quirra {

PrintTarget::~PrintTarget() = default;

QPageLayout PrintTarget::acceptedLayout(const QPageLayout &wanted)
{
    return wanted;
}

void PrintTarget::abortDocument() {}

QString PrintTarget::failure() const
{
    return QString();
}

} // namespace quirra
