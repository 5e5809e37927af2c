// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QString>
#include <QStringList>

#include <array>

namespace quirra {

/** @brief The fields a host can set on the control for one recipient. */
enum class AddressField : int {
    FirstName,
    MiddleName,
    LastName,
    Address1,
    Address2,
    City,
    State,
    Zip,
    Substitute,
    BarCode,
};
constexpr int AddressFieldCount = 10;

/** @brief One recipient as read from a row: the fields plus the substitution list. */
struct AddressRow
{
    std::array<QString, AddressFieldCount> fields;
    QString &operator[](AddressField f) { return fields[int(f)]; }
    const QString &operator[](AddressField f) const { return fields[int(f)]; }
};

/**
 * @brief Matches a CSV file's columns to the recipient's fields.
 *
 * Columns are matched by name, case-insensitively: the record's own names
 * (nm_first, addr_1, ...) and the plain ones (first, middle, last, address1,
 * address2, city, state, zip). A column named substitute is passed on as the
 * substitution list; every other column becomes an entry of it, so an item
 * text holding <<salutation>> is filled from a salutation column.
 */
class AddressColumns
{
public:
    /**
     * @brief Reads the header row.
     * @return false with a message when no column names an address field,
     * a field is named twice, or a column name cannot be a substitution name.
     */
    bool setHeader(const QStringList &header, QString *error);

    /**
     * @brief Turns one data row into a recipient.
     * @return false with a message naming the column when a value cannot be
     * printed (a double quote or a line break) or the row's length differs
     * from the header's.
     */
    bool mapRow(const QStringList &row, AddressRow &out, QString *error) const;

    /** @brief The names accepted for the address fields, for messages and help. */
    static QString acceptedNames();

private:
    struct Column
    {
        QString name;
        int field = -1; // an AddressField, or -1 for a substitution entry
    };
    QList<Column> m_columns;
};

} // namespace quirra
