// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
//
// The shared library is made of the folder modules; this file only gives it
// a version symbol of its own.
#include "quirracontrol_export.h"

extern "C" QUIRRACONTROL_EXPORT const char *quirraControlVersion()
{
    return QUIRRA_VERSION;
}
