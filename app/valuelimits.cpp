// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#include "valuelimits.h"

#include "console.h"

#include <QMetaType>

#include <cmath>

namespace quirra {

QString valueProblem(const QString &name, const QVariant &value)
{
    if (value.typeId() == QMetaType::QString) {
        const qsizetype length = value.toString().size();
        if (length > MaxItemTextLength) {
            return Cli::tr("%1 is %2 characters long; a text may have at most %3")
                .arg(name)
                .arg(length)
                .arg(MaxItemTextLength);
        }
        return QString();
    }
    const bool number = value.typeId() == QMetaType::Float || value.typeId() == QMetaType::Double;
    // The printer's stretch, in percent.
    if (number && name.startsWith(QLatin1String("PrinterScale"))) {
        const double percent = value.toDouble();
        if (!std::isfinite(percent) || percent < 90 || percent > 110)
            return Cli::tr("%1 is %2 %; the printer's scale is from 90 to 110 %")
                .arg(name)
                .arg(percent);
        return QString();
    }
    // Besides the scale, the control keeps its lengths (positions, sizes,
    // margins, pitches) in inches as floats, and nothing else.
    if (number) {
        const double inches = value.toDouble();
        if (!std::isfinite(inches) || inches < 0 || inches > MaxInches) {
            return Cli::tr("%1 is %2 in; a length on a sheet is from 0 to %3 in")
                .arg(name)
                .arg(inches)
                .arg(MaxInches);
        }
    }
    return QString();
}

} // namespace quirra
