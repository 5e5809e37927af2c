// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <array>

namespace quirra {

class SpoolReader;
class TextMeasurer;

/**
 * @brief The ten address lines of one record; element 0 is line 1.
 *
 * Line 1 is the carrier route; lines 2 to 6 hold the address proper, closed
 * up from line 2; lines 7 to 9 are always empty; line 10 holds the zip. The
 * print run prints lines 2 up to the last non-empty one of 2 to 9.
 */
using AddressLines = std::array<QString, 10>;

/** @brief The widest city line the print run allows, in twips (1440 per inch). */
constexpr double DefaultWidestCityLine = 3500;

/** @brief How the city, state and zip line of a record came out. */
struct CityLineFit
{
    QString full;           ///< the whole line, two blanks apart; empty when the record has none
    QString printed;        ///< the line printed; empty when it was left out
    QString cut;            ///< what was cut from the city; empty when nothing was
    double fullWidth = 0;   ///< the whole line's width, in twips
    bool shortened = false; ///< printed is not the whole line (or there is none)
};

/**
 * @brief Reads the next record from the spool and turns it into address
 * lines and its substitution list.
 *
 * The name line is first, middle, last; a one-letter middle name becomes an
 * initial with a full stop ("John Q. Public"). A two-letter state is upper
 * cased. The city line is fitted by FitCityStateZip(). Lines 2 to 6 are then
 * closed up: a line is kept when it is not the empty text (a line of blanks
 * counts, and is trimmed to nothing), so the block has no gaps.
 *
 * A part that fails (a measurement that throws) is left empty and the rest
 * is still composed.
 *
 * @param reader the spool reader (opened on first use)
 * @param measurer measures candidate city lines, in twips
 * @param widest the widest city line allowed, in twips
 * @param lines receives the ten lines; all empty at the end of the spool
 * @param substitute receives the record's substitution list
 * @param fit when given, receives how the city line came out
 * @param barCode when given, receives the record's bar code field
 * @return true when the spool had no further record (the reader's end mark
 * is then set), false when lines were composed.
 */
bool ComposeAddressLines(SpoolReader &reader, TextMeasurer &measurer, double widest,
                         AddressLines &lines, QString &substitute, CityLineFit *fit = nullptr,
                         QString *barCode = nullptr);

/**
 * @brief The city, state and zip line that fits in widest twips.
 *
 * Tried in turn: city, state and zip two blanks apart, taken when no wider
 * than widest; then one blank apart, taken only when exactly as wide as
 * widest (narrower does not end the search there); then the city cut to
 * ever fewer characters, one blank apart, taken when strictly narrower than
 * widest. The empty text when nothing fits. Each candidate is trimmed.
 *
 * The cut starts from the full city, so its trailing comma goes first. For a
 * city of more than 128 characters the cut first bisects towards the
 * fitting length and then walks down from a little above it, which gives
 * the same line for any measurer whose widths grow with the text, and keeps
 * a runaway value from taking quadratic time.
 *
 * @param widest the widest line allowed, in twips
 * @param measurer measures candidates, in twips; widths are compared in
 * whole twips (halves away from zero), as the surface's measure returns them
 */
QString FitCityStateZip(const QString &city, const QString &state, const QString &code,
                        double widest, TextMeasurer &measurer);

/**
 * @brief Replaces the tokens "<<name>>" in text with the values of a
 * substitution list.
 *
 * The list holds entries separated by entrySeparator, each a name,
 * pairSeparator and a value; an entry without pairSeparator is skipped.
 * Entries apply in list order (a value holding a later entry's token is
 * replaced again by that entry), case-sensitively, names and values taken
 * with their blanks. Each token is replaced at its first occurrence until
 * none is left. A value that holds its own token is put in once for each
 * occurrence instead, and the total work is capped, so no list can keep the
 * replacement going without end; an unknown token stays as written.
 */
QString ReplaceTokens(const QString &text, const QString &list,
                      const QString &pairSeparator = QStringLiteral("^"),
                      const QString &entrySeparator = QStringLiteral("|"));

} // namespace quirra
