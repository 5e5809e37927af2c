// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#include "settings/units.h"

#include "settings/logging_p.h"

#include <QLoggingCategory>

#include <cmath>
#include <vector>

namespace quirra {

namespace {

bool isPlaceholder(QChar c)
{
    return c == u'#' || c == u'0' || c == u'.';
}
} // namespace

double InchesToDisplayTwips(double inches, float scale)
{
    return inches * 1440.0 * double(scale);
}

QString DisplayTwipsToText(double displayTwips, float displayScale)
{
    double scale = double(displayScale);
    if (!(scale > 0) || !std::isfinite(scale)) {
        qCWarning(lcSettings) << "the display scale is" << scale
                              << "; lengths are shown at the scale 1 instead";
        scale = 1.0;
    }
    return FormatNumber(displayTwips / scale / 1440.0, QStringLiteral("#0.##"));
}

float Larger(float a, float b)
{
    return a <= b ? b : a;
}

float Smaller(float a, float b)
{
    return a >= b ? b : a;
}

QString FormatNumber(double value, const QString &pattern)
{
    int first = -1;
    int last = -1;
    for (int i = 0; i < pattern.size(); ++i) {
        if (isPlaceholder(pattern[i])) {
            if (first < 0)
                first = i;
            last = i;
        }
    }
    if (first < 0 || !std::isfinite(value))
        return QString::number(value, 'g', 15);

    // Text around the placeholders stands as it is ("0.00 in").
    const QString prefix = pattern.left(first);
    const QString suffix = pattern.mid(last + 1);
    const QString core = pattern.mid(first, last - first + 1);
    const int point = core.indexOf(u'.');
    const QString intPattern = point < 0 ? core : core.left(point);
    const QString fracPattern = point < 0 ? QString() : core.mid(point + 1);
    const int minInt = int(intPattern.count(u'0'));
    const int minFrac = int(fracPattern.count(u'0'));
    const int maxFrac = minFrac + int(fracPattern.count(u'#'));

    // The number as its first 15 significant digits: the forms have always
    // rounded that decimal text, so 2.675 shows as 2.68 although the double
    // lies just below it.
    const QString sci = QString::number(std::fabs(value), 'e', 14);
    const int e = int(sci.indexOf(u'e'));
    std::vector<int> digits;
    for (int i = 0; i < e; ++i) {
        if (sci[i] != u'.')
            digits.push_back(sci[i].unicode() - u'0');
    }
    int intDigits = sci.mid(e + 1).toInt() + 1; // digits before the point

    // Half away from zero at the last decimal the pattern shows.
    const int keep = intDigits + maxFrac;
    if (keep < 0) {
        digits.clear();
    } else if (keep < int(digits.size())) {
        const bool up = digits[size_t(keep)] >= 5;
        digits.resize(size_t(keep));
        if (up) {
            int i = keep - 1;
            while (i >= 0 && digits[size_t(i)] == 9)
                digits[size_t(i--)] = 0;
            if (i >= 0) {
                ++digits[size_t(i)];
            } else {
                digits.insert(digits.begin(), 1);
                ++intDigits;
            }
        }
    }

    auto digitAt = [&](int position) { // position 0 is the first significant digit
        return position >= 0 && position < int(digits.size())
                   ? QChar(u'0' + digits[size_t(position)])
                   : QChar(u'0');
    };
    QString intText;
    for (int i = 0; i < intDigits; ++i)
        intText += digitAt(i);
    int lead = 0;
    while (lead < intText.size() && intText[lead] == u'0')
        ++lead;
    intText.remove(0, lead);
    if (intText.size() < minInt)
        intText.prepend(QString(minInt - intText.size(), u'0'));

    QString fracText;
    for (int i = 0; i < maxFrac; ++i)
        fracText += digitAt(intDigits + i);
    while (fracText.size() > minFrac && fracText.endsWith(u'0'))
        fracText.chop(1);

    auto allZeros = [](const QString &t) {
        for (QChar c : t) {
            if (c != u'0')
                return false;
        }
        return true;
    };
    const bool zero = allZeros(intText) && allZeros(fracText);
    QString text = (value < 0 && !zero) ? QStringLiteral("-") : QString();
    text += intText;
    if (point >= 0)
        text += u'.' + fracText;
    return prefix + text + suffix;
}

} // namespace quirra
