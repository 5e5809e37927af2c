// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#include "dialogs/numberfield.h"

#include "model/error.h"
#include "settings/settings.h"
#include "settings/units.h"

#include <cfloat>
#include <cmath>
#include <limits>

namespace quirra {

namespace {
const QString MeasureFormat = QStringLiteral("#0.##");
const QString CountFormat = QStringLiteral("#0");
} // namespace

NumberField::NumberField(Kind kind, float minimum, float maximum)
    : m_kind(kind), m_minimum(minimum), m_maximum(maximum < minimum ? minimum : maximum)
{
}

double NumberField::stepSize() const
{
    return m_kind == Measure ? 0.1 : 1.0;
}

bool NumberField::acceptsCharacter(QChar c)
{
    return c == QChar(8) || (c >= u'0' && c <= u'9') || c == u'.';
}

double NumberField::read(const QString &text) const
{
    double value = 0;
    double place = 1; // 10^k for the k-th digit after the point
    bool fraction = false;
    for (QChar c : text) {
        if (c >= u'0' && c <= u'9') {
            const int digit = c.unicode() - u'0';
            if (fraction) {
                place *= 10;
                value += digit / place;
            } else {
                value = value * 10 + digit;
            }
        } else if (c == u'.') {
            if (!allowsDecimals())
                break;
            fraction = true;
        }
    }
    return value;
}

double NumberField::bounded(double value, bool &clamped) const
{
    // Compared in single precision, as the values are stored: the page height
    // 11.6929 typed in full is the maximum itself, not above it.
    const float single = std::isfinite(value) && std::fabs(value) < double(FLT_MAX)
                             ? float(value)
                             : std::numeric_limits<float>::infinity();
    clamped = true;
    if (single < m_minimum)
        return m_minimum;
    if (single > m_maximum)
        return m_maximum;
    clamped = false;
    return value;
}

QString NumberField::checked(const QString &text) const
{
    bool clamped = false;
    const double value = bounded(read(text), clamped);
    return clamped ? FormatNumber(value, MeasureFormat) : text;
}

NumberField::Stepped NumberField::stepped(const QString &text, int scrollValue) const
{
    const double step = -scrollValue * stepSize();
    Stepped result;
    const double value = bounded(read(text) + step, result.clamped);
    result.text = FormatNumber(value, m_kind == Measure ? MeasureFormat : CountFormat);
    return result;
}

QString NumberField::initialText(double value) const
{
    if (m_kind == Count)
        return QString::number(qint64(std::lrint(value)));
    // Seven significant digits are what a single holds: 0.1 shows as 0.1,
    // not as the double nearest the single.
    if (!std::isfinite(value))
        return QStringLiteral("0");
    return QString::number(value, 'g', 7);
}

float NumberField::measureValue(const QString &text) const
{
    if (IsNumeric(text))
        return ParseSingle(text);
    const double value = read(text);
    return std::fabs(value) < double(FLT_MAX) ? float(value) : m_maximum;
}

qint16 NumberField::countValue(const QString &text) const
{
    if (!IsNumeric(text))
        return qint16(std::lrint(std::min(read(text), double(m_maximum))));
    try {
        return ParseInteger(text);
    } catch (const Error &) {
        // Only pasted text can hold such a number: the keys and the bound
        // check keep a typed one within the bounds.
        const double value = ParseDouble(text);
        return qint16(std::lrint(value < m_minimum ? m_minimum : m_maximum));
    }
}

} // namespace quirra
