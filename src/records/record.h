// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

#include <array>

namespace quirra {

/**
 * @brief The eleven fields of a recipient's record, in their fixed order,
 * which is also the order of the spool's columns. Each is named after its
 * column.
 */
enum class RecordField : int {
    nm_first = 0, ///< first name
    nm_middle,    ///< middle name or initial
    nm_last,      ///< last name
    addr_1,       ///< first street line
    addr_2,       ///< second street line (may be empty)
    city,
    state,      ///< a two-letter code as a rule
    zip,        ///< postal code
    carrier_r,  ///< carrier route; no public setter, normally empty
    bar_code,   ///< bar code; no public setter, normally empty
    substitute, ///< the substitution list: name^value entries separated by "|"
};

/** @brief How many fields a record has (and columns the spool has). */
constexpr int RecordFieldCount = 11;

/** @brief The eleven column names, "nm_first" to "substitute", in field order. */
const QStringList &RecordColumnNames();

/**
 * @brief One recipient: eleven texts in fixed order.
 *
 * The control fills it through its field setters and appends it to the spool
 * with NewPiece. Fields keep their values until they are set again or the
 * record is cleared.
 */
class Record
{
public:
    /** @brief A record with all eleven fields empty. */
    Record();

    /**
     * @brief Stores value in field, without its leading and trailing blanks.
     * A null value is stored as the empty text.
     */
    void setValue(RecordField field, const QString &value);

    /** @brief The stored value of field (never null). */
    const QString &value(RecordField field) const;

    /** @brief Sets all eleven fields to the empty text. */
    void clear();

    /**
     * @brief The record as one spool line, without its line end.
     *
     * Each value in double quotes, separated by commas. When both the city
     * and the state hold something, the city gets a trailing comma inside its
     * quotes: the city line of the address reads "Springfield,  IL  62704"
     * from it. Values are written as they stand; see spoolProblem().
     */
    QString spoolLine() const;

    /**
     * @brief Appends spoolLine() and a CR LF to out, as UTF-8.
     *
     * The writer's fast path: no intermediate text is built.
     */
    void appendSpoolLine(QByteArray &out) const;

    /**
     * @brief Why this record cannot travel through the spool intact, or the
     * empty text when it can.
     *
     * The spool does not escape anything, so a double quote or a line break
     * inside a value shifts every later column when the spool is read back.
     * The message names the first such field.
     */
    QString spoolProblem() const;

    /** @brief The spool's header line, without its line end. */
    static QString spoolHeaderLine();

    bool operator==(const Record &other) const { return m_values == other.m_values; }
    bool operator!=(const Record &other) const { return !(*this == other); }

private:
    std::array<QString, RecordFieldCount> m_values;
};

} // namespace quirra
