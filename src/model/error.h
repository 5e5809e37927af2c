// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#pragma once

#include "quirracontrol_export.h"

#include <QString>

#include <cstdint>
#include <stdexcept>

namespace quirra {

/**
 * @brief The one error class of the library.
 *
 * A runtime failure of a public method (a spool that cannot be written, a
 * 16-bit overflow, a division by zero in the page layout) leaves the method
 * as this exception. The message says what failed and what to do about it.
 */
class QUIRRACONTROL_EXPORT Error : public std::runtime_error
{
public:
    /** @brief An error saying message (what failed, where, and what to do). */
    explicit Error(const QString &message);

    /** @brief The message as a QString (UTF-8 decoded from what()). */
    QString message() const;
};

/**
 * @brief Narrows a whole number to 16 bits, as the control's integers are.
 * @param value the number
 * @param what names the quantity in the error message ("pieces per page")
 * @throws Error "Overflow" when the value does not fit in -32768..32767.
 */
QUIRRACONTROL_EXPORT qint16 toInt16Checked(qint64 value, const char *what);

} // namespace quirra
