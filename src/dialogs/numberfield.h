// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace quirra {

/**
 * @brief The rules of one number box of the customization dialog, apart
 * from any widget: which keys it takes, how its text reads while it is
 * typed, its bounds, and what its spinner makes of it.
 *
 * A measure (margin, pitch, piece size; in the page's unit, inches for
 * everything the catalogue ships) takes decimals and steps by 0.1; a count
 * (pieces across or down) reads whole numbers and steps by 1. Bounds are
 * single-precision, as the values they guard.
 */
class NumberField
{
public:
    /** @brief What a box holds. */
    enum Kind {
        Measure, ///< a length in the page's unit, with decimals
        Count,   ///< a number of pieces, whole
    };

    /** @brief A measure bounded by 0 and 0, until real bounds are given. */
    NumberField() = default;
    /** @brief A box of kind bounded by minimum and maximum (the box's unit). */
    NumberField(Kind kind, float minimum, float maximum);

    /** @brief What the box holds. */
    Kind kind() const { return m_kind; }
    /** @brief The smallest value the box keeps (the box's unit). */
    float minimum() const { return m_minimum; }
    /** @brief The largest value the box keeps (the box's unit). */
    float maximum() const { return m_maximum; }
    /** @brief True for a measure: a "." starts the fraction instead of ending the number. */
    bool allowsDecimals() const { return m_kind == Measure; }
    /** @brief One spinner click: 0.1 (the box's unit) for a measure, 1 for a count. */
    double stepSize() const;

    /**
     * @brief The shared key filter: true for Backspace, the digits and ".";
     * any other character is dropped with a beep.
     */
    static bool acceptsCharacter(QChar c);

    /**
     * @brief The value of text as it is being typed, read character by
     * character: digits before the point build the whole part, the k-th digit
     * after it adds digit / 10^k. For a measure a second "." only continues
     * the fraction ("1.2.3" reads 1.23); for a count a "." ends the number
     * ("3.7" reads 3). Any other character is skipped.
     */
    double read(const QString &text) const;

    /**
     * @brief The text after a key was released: the minimum, formatted
     * "#0.##", when text reads below it; the maximum when above it;
     * otherwise text itself, as typed.
     */
    QString checked(const QString &text) const;

    /** @brief A spinner's outcome: the box's new text, and whether a bound stopped it. */
    struct Stepped
    {
        QString text;         ///< "#0.##" for a measure, "#0" for a count
        bool clamped = false; ///< a bound replaced the value: the box beeps
    };

    /**
     * @brief The box's number after its spinner moved to scrollValue: up
     * (a negative value, as on a vertical bar) adds one step per unit, down
     * subtracts; a value past a bound becomes the bound.
     */
    Stepped stepped(const QString &text, int scrollValue) const;

    /**
     * @brief The text a box shows for a stored value: a measure as decimal
     * text with up to seven significant digits (0.1875 stays 0.1875), a
     * count as a whole number.
     */
    QString initialText(double value) const;

    /**
     * @brief A measure's text as the piece stores it when the dialog is
     * accepted: the decimal number it is, or, for text that is no plain
     * number ("1.2.3"), what the box read while it was typed.
     */
    float measureValue(const QString &text) const;

    /**
     * @brief A count's text as the piece stores it when the dialog is
     * accepted: rounded to a whole number (halves to even), a number beyond
     * 16 bits as the nearest bound.
     */
    qint16 countValue(const QString &text) const;

private:
    // A value past a bound becomes that bound; clamped tells which happened.
    double bounded(double value, bool &clamped) const;

    Kind m_kind = Measure;
    float m_minimum = 0;
    float m_maximum = 0;
};

} // namespace quirra
