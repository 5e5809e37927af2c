// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#include "model/error.h"

#include <limits>

namespace quirra {

Error::Error(const QString &message) : std::runtime_error(message.toStdString()) {}

QString Error::message() const
{
    return QString::fromUtf8(what());
}

qint16 toInt16Checked(qint64 value, const char *what)
{
    if (value < std::numeric_limits<qint16>::min() || value > std::numeric_limits<qint16>::max()) {
        throw Error(QStringLiteral("Overflow: %1 is %2, more than a 16-bit number holds "
                                   "(-32768 to 32767)")
                        .arg(QString::fromUtf8(what))
                        .arg(value));
    }
    return static_cast<qint16>(value);
}

} // namespace quirra
