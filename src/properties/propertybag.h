// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#pragma once

#include "quirracontrol_export.h"

#include <QString>
#include <QVariant>

namespace quirra {

/**
 * @brief Where a host keeps a control's settings with its form: named
 * values, each read and written together with its default.
 *
 * Values come and go in their saved form (see PropertyInfo): bool, short,
 * qint32, float, QString or QFont, as the default's type says.
 */
class QUIRRACONTROL_EXPORT PropertyBag
{
public:
    virtual ~PropertyBag();

    /**
     * @brief The saved value of name, or defaultValue when none is saved.
     *
     * A saved value that cannot be read may raise an exception or come back
     * invalid; the control then takes the default and goes on with the next
     * name.
     */
    virtual QVariant read(const QString &name, const QVariant &defaultValue) = 0;

    /**
     * @brief Saves value under name. A bag may leave out a value equal to
     * defaultValue, since reading gives the default back.
     */
    virtual void write(const QString &name, const QVariant &value,
                       const QVariant &defaultValue) = 0;
};

} // namespace quirra
