// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#include "records/addressrules.h"

#include "records/logging_p.h"
#include "records/spoolreader.h"
#include "records/textmeasurer.h"
#include "settings/strings.h"

#include <cmath>
#include <exception>

namespace quirra {

namespace {

// The cut of the city walks down one character at a time for this many
// lengths from the top, and again from this far above the length that
// bisection finds.
constexpr qsizetype LinearSteps = 64;

// Characters a token replacement may move in one call, and the longest text
// it may make: far above any real item text, low enough that a list which
// keeps making new tokens stops within a fraction of a second.
constexpr qint64 ReplaceWorkBudget = 256 * 1024 * 1024;
constexpr qint64 ReplaceMaxLength = 16 * 1024 * 1024;

// A width as the surface's measuring hands it back: whole twips. The rule's
// equality test compares these, so it fires where the measure says so and
// not only when a font's fractions happen to add up.
double measuredTwips(TextMeasurer &measurer, const QString &text)
{
    return std::round(measurer.TextWidth(text));
}

enum Value : int {
    First = 0,
    Middle = 1,
    Last = 2,
    Street1 = 3,
    Street2 = 4,
    City = 5,
    State = 6,
    Zip = 7,
    CarrierRoute = 8,
    BarCode = 9,
};

class CityCut
{
public:
    CityCut(const QString &city, const QString &state, const QString &code, double widest,
            TextMeasurer &measurer)
        : m_city(city), m_tail(QLatin1Char(' ') + state + QLatin1Char(' ') + code),
          m_widest(widest), m_measurer(measurer)
    {
    }

    // The line with the city cut to n characters, if it is strictly narrower
    // than the widest. A cut through a surrogate pair drops the whole pair.
    bool fits(qsizetype n, QString &line) const
    {
        if (n < m_city.size() && n > 0 && m_city.at(n - 1).isHighSurrogate()) {
            --n;
        }
        if (n <= 0) {
            return false;
        }
        QString candidate = TrimBlanks(m_city.left(n) + m_tail);
        if (measuredTwips(m_measurer, candidate) < m_widest) {
            line = std::move(candidate);
            return true;
        }
        return false;
    }

private:
    const QString &m_city;
    const QString m_tail;
    const double m_widest;
    TextMeasurer &m_measurer;
};

} // namespace

QString FitCityStateZip(const QString &city, const QString &state, const QString &code,
                        double widest, TextMeasurer &measurer)
{
    const QString twoBlanks = QStringLiteral("  ");
    QString line = TrimBlanks(city + twoBlanks + state + twoBlanks + code);
    if (measuredTwips(measurer, line) <= widest) {
        return line;
    }

    // Single blanks are taken here only at exactly the widest width; a
    // narrower line is left to the cut below, which takes it at full length.
    line = TrimBlanks(city + QLatin1Char(' ') + state + QLatin1Char(' ') + code);
    if (measuredTwips(measurer, line) == widest) {
        return line;
    }

    const CityCut cut(city, state, code, widest, measurer);
    const qsizetype length = city.size();
    const qsizetype walkEnd = length > 2 * LinearSteps ? length - LinearSteps : 0;
    qsizetype n = length;
    for (; n > walkEnd; --n) {
        if (cut.fits(n, line)) {
            return line;
        }
    }
    if (n == 0) {
        return QString(QLatin1String(""));
    }

    // A city this long is junk rather than a place name, but it must not
    // cost one measurement per character: find the longest fitting length
    // by bisection, then walk down from a little above it.
    qsizetype lo = 0;
    qsizetype hi = n;
    QString unused;
    while (lo < hi) {
        const qsizetype mid = lo + (hi - lo + 1) / 2;
        if (cut.fits(mid, unused)) {
            lo = mid;
        } else {
            hi = mid - 1;
        }
    }
    for (qsizetype k = qMin(n, lo + LinearSteps); k >= 1; --k) {
        if (cut.fits(k, line)) {
            return line;
        }
    }
    return QString(QLatin1String(""));
}

namespace {

// Fills fit for a city line that came out as printed.
void describeFit(const QString &city, const QString &state, const QString &code,
                 const QString &printed, TextMeasurer &measurer, CityLineFit &fit)
{
    const QString twoBlanks = QStringLiteral("  ");
    fit.full = TrimBlanks(city + twoBlanks + state + twoBlanks + code);
    fit.printed = printed;
    fit.cut.clear();
    fit.fullWidth = 0;
    fit.shortened = printed != fit.full && printed != TrimBlanks(city + QLatin1Char(' ') + state +
                                                                 QLatin1Char(' ') + code);
    if (!fit.shortened)
        return;
    try {
        fit.fullWidth = measurer.TextWidth(fit.full); // measured before, so cached
    } catch (const std::exception &) {
        fit.fullWidth = 0;
    }
    // The city's start that the printed line kept; the rest was cut.
    const QString city0 = TrimBlanks(city);
    qsizetype kept = 0;
    while (kept < city0.size() && kept < printed.size() && city0.at(kept) == printed.at(kept))
        ++kept;
    fit.cut = printed.isEmpty() ? city0 : city0.mid(kept);
}

} // namespace

bool ComposeAddressLines(SpoolReader &reader, TextMeasurer &measurer, double widest,
                         AddressLines &lines, QString &substitute, CityLineFit *fit,
                         QString *barCode)
{
    for (QString &line : lines) {
        line = QLatin1String("");
    }

    SpoolReader::Values v;
    if (reader.ReadNextRecord(v, substitute)) {
        reader.setSpoolExhausted(true);
        substitute = QLatin1String("");
        return true;
    }

    QString state = v[State];
    if (state.size() == 2) {
        state = state.toUpper();
    }

    lines[0] = TrimTrailingBlanks(v[CarrierRoute]);
    if (barCode)
        *barCode = v[BarCode];

    const QLatin1Char blank(' ');
    if (v[Middle].isEmpty()) {
        lines[1] = v[First] + blank + v[Last];
    } else if (v[Middle].size() == 1) {
        lines[1] = v[First] + blank + v[Middle] + QLatin1String(". ") + v[Last];
    } else {
        lines[1] = v[First] + blank + v[Middle] + blank + v[Last];
    }

    const auto cityLine = [&]() -> QString {
        QString line;
        try {
            line = FitCityStateZip(v[City], state, v[Zip], widest, measurer);
        } catch (const std::exception &error) {
            // The record still prints, without its city line.
            qCWarning(lcRecords) << "Measuring the city line failed:" << error.what();
            line = QLatin1String("");
        }
        if (fit)
            describeFit(v[City], state, v[Zip], line, measurer, *fit);
        return line;
    };
    lines[3] = v[Street1];
    if (v[Street2].isEmpty()) {
        lines[4] = cityLine();
    } else {
        lines[4] = v[Street2];
        lines[5] = cityLine();
    }
    lines[9] = v[Zip];

    // Close up lines 2 to 6. Emptiness is tested before trimming, so a line
    // of blanks keeps its place and becomes an empty line.
    int kept = 1;
    for (int i = 1; i <= 5; ++i) {
        if (!lines[size_t(i)].isEmpty()) {
            lines[size_t(kept)] = TrimBlanks(lines[size_t(i)]);
            ++kept;
        }
    }
    for (int i = kept; i <= 5; ++i) {
        lines[size_t(i)] = QLatin1String("");
    }
    return false;
}

QString ReplaceTokens(const QString &text, const QString &list, const QString &pairSeparator,
                      const QString &entrySeparator)
{
    // Every token starts "<<": a text without one (most item texts, every
    // address) has nothing to replace, whatever the list holds.
    if (!text.contains(QLatin1String("<<")))
        return text;
    QString result = text;
    qint64 work = 0;

    // The list is walked in place: taking the rest of it apart entry by
    // entry as a new string each time would copy it once an entry, which
    // for a list of many entries (a CSV file of thousands of columns) is
    // quadratic time.
    qsizetype pos = 0; // where the rest of the list starts
    const auto restIsBlank = [&] {
        for (qsizetype i = pos; i < list.size(); ++i) {
            if (list.at(i) != QLatin1Char(' '))
                return false;
        }
        return true;
    };
    while (!restIsBlank()) {
        const qsizetype at = entrySeparator.isEmpty() ? -1 : list.indexOf(entrySeparator, pos);
        const QString entry = list.mid(pos, at < 0 ? -1 : at - pos);
        // Strictly further each round: the separator at least is passed.
        pos = at < 0 ? list.size() : at + entrySeparator.size();
        if (pairSeparator.isEmpty() || !entry.contains(pairSeparator)) {
            continue;
        }
        const QString token =
            QLatin1String("<<") + TextBefore(entry, pairSeparator) + QLatin1String(">>");
        const QString value = TextAfter(entry, pairSeparator);

        if (value.contains(token)) {
            // Replacing the first occurrence again and again would never end;
            // each occurrence gets the value once.
            const qint64 grown =
                result.size() + qint64(result.count(token)) * (value.size() - token.size());
            work += grown;
            if (grown > ReplaceMaxLength || work > ReplaceWorkBudget) {
                qCWarning(lcRecords).noquote()
                    << "The substitution list makes the text grow too much; replacement stopped at"
                    << token;
                return result;
            }
            result.replace(token, value);
            continue;
        }

        // The first occurrence each round, as a value may complete a new
        // token with the text around it. No occurrence can start more than a
        // token's length before the last one, so the search resumes there.
        qsizetype from = 0;
        for (;;) {
            const qsizetype at = result.indexOf(token, from);
            if (at < 0) {
                break;
            }
            result.replace(at, token.size(), value);
            work += result.size();
            if (result.size() > ReplaceMaxLength || work > ReplaceWorkBudget) {
                qCWarning(lcRecords).noquote()
                    << "The substitution list makes the text grow too much; replacement stopped at"
                    << token;
                return result;
            }
            from = qMax<qsizetype>(0, at - (token.size() - 1));
        }
    }
    return result;
}

} // namespace quirra
