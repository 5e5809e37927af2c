// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#pragma once

#include "quirracontrol_export.h"

#include <QObject>

namespace quirra {
Q_NAMESPACE_EXPORT(QUIRRACONTROL_EXPORT)

/** @brief How an envelope is fed to the printer. */
enum eEnvOrient : qint16 {
    eoPortrait = 0,
    eoLandscape = 1,
};
Q_ENUM_NS(eEnvOrient)

/** @brief Horizontal alignment of an item's text in its box. */
enum eHorzAlign : qint32 {
    haLeft = 0,
    haCenter = 1,
    haRight = 2,
    haFull = 3, ///< full justification; the surface knows it as 9
};
Q_ENUM_NS(eHorzAlign)

/** @brief Vertical alignment of an item's text block in its box. */
enum eVertAlign : qint32 {
    vaTop = 0,
    vaMiddle = 1,
    vaBottom = 2,
};
Q_ENUM_NS(eVertAlign)

} // namespace quirra
