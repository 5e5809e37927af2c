// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#include "settings/settings.h"

#include "model/error.h"
#include "settings/profile.h"
#include "settings/strings.h"

#include <cfloat>
#include <cmath>

namespace quirra {

namespace {

bool isDigit(QChar c)
{
    return c >= u'0' && c <= u'9';
}

// A decimal number by the fixed C rules: an optional sign, digits with at
// most one "." (at least one digit somewhere), an optional exponent. No
// thousands separators, no hexadecimal, no words such as "inf".
bool isDecimalNumber(const QString &text)
{
    const int n = text.size();
    int i = 0;
    if (i < n && (text[i] == u'+' || text[i] == u'-'))
        ++i;
    int digits = 0;
    while (i < n && isDigit(text[i])) {
        ++i;
        ++digits;
    }
    if (i < n && text[i] == u'.') {
        ++i;
        while (i < n && isDigit(text[i])) {
            ++i;
            ++digits;
        }
    }
    if (digits == 0)
        return false;
    if (i < n && (text[i] == u'e' || text[i] == u'E')) {
        ++i;
        if (i < n && (text[i] == u'+' || text[i] == u'-'))
            ++i;
        int expDigits = 0;
        while (i < n && isDigit(text[i])) {
            ++i;
            ++expDigits;
        }
        if (expDigits == 0)
            return false;
    }
    return i == n;
}

// The value of a numeric text; false when the text is not a finite number.
bool toNumber(const QString &text, double &value)
{
    const QString t = text.trimmed();
    if (!isDecimalNumber(t))
        return false;
    bool ok = false;
    // QString::toDouble always reads "." as the point, whatever the locale.
    value = t.toDouble(&ok);
    return ok && std::isfinite(value);
}

} // namespace

QString ReadSettingRaw(const QString &file, const QString &section, const QString &key,
                       const QString &defaultValue)
{
    // The reader cuts every value, the default included, at 254 characters.
    return ProfileFile::readString(file, section, key, defaultValue);
}

QString ReadSetting(const QString &file, const QString &section, const QString &key)
{
    return ReadSettingRaw(file, section, key, QString());
}

QString ReadSettingOr(const QString &file, const QString &section, const QString &key,
                      const QString &defaultValue)
{
    const QString value = ReadSetting(file, section, key);
    return TrimBlanks(value).isEmpty() ? defaultValue : value;
}

int ReadSettingList(const QString &file, const QString &section, const QString &key,
                    QStringList &slots)
{
    for (QString &slot : slots)
        slot.clear();
    if (slots.isEmpty())
        return 0;

    int last = 0;
    for (int i = 0; i < slots.size(); ++i) {
        const QString value =
            ReadSetting(file, section, key + u'(' + QString::number(i + 1) + u')');
        // Gaps are kept as empty slots: a missing size(2) does not end the list.
        if (!value.isEmpty())
            last = i + 1;
        slots[i] = TrimBlanks(EmptyMarkerToEmpty(value));
    }
    if (last == 0) {
        const QString value = TrimBlanks(ReadSetting(file, section, key));
        if (!value.isEmpty()) {
            last = 1;
            slots[0] = EmptyMarkerToEmpty(value);
        }
    }
    return last;
}

QString EmptyMarkerToEmpty(const QString &text)
{
    return text == QLatin1String("`") ? QString() : text;
}

bool ParseBoolean(const QString &text)
{
    static const QStringList trueWords = {
        QStringLiteral("TRUE"), QStringLiteral("T"),  QStringLiteral("YES"), QStringLiteral("Y"),
        QStringLiteral("ON"),   QStringLiteral("-1"), QStringLiteral("1"),
    };
    return trueWords.contains(TrimBlanks(text).toUpper());
}

double ParseDouble(const QString &text)
{
    const QString t = TrimBlanks(text);
    if (t.isEmpty() || t == QLatin1String("."))
        return 0;
    double value = 0;
    return toNumber(t, value) ? value : 0;
}

float ParseSingle(const QString &text)
{
    const double value = ParseDouble(text);
    // A number beyond single precision does not convert, and reads as 0 as
    // any other text that does not convert.
    return std::fabs(value) > double(FLT_MAX) ? 0.0f : float(value);
}

qint16 ParseInteger(const QString &text)
{
    double value = 0;
    if (!toNumber(text, value))
        return 0;
    const double rounded = std::nearbyint(value); // halves to even
    if (std::fabs(rounded) > 1e15) {
        throw Error(QStringLiteral("Overflow: the number %1 is more than a 16-bit number holds "
                                   "(-32768 to 32767)")
                        .arg(TrimBlanks(text)));
    }
    return toInt16Checked(qint64(rounded), "the number");
}

bool IsNumeric(const QString &text)
{
    double value = 0;
    return toNumber(text, value);
}

} // namespace quirra
