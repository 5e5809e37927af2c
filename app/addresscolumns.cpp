// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#include "addresscolumns.h"

#include "console.h"

#include <QHash>

namespace quirra {

namespace {

const QHash<QString, AddressField> &fieldNames()
{
    static const QHash<QString, AddressField> names = {
        {QStringLiteral("first"), AddressField::FirstName},
        {QStringLiteral("nm_first"), AddressField::FirstName},
        {QStringLiteral("firstname"), AddressField::FirstName},
        {QStringLiteral("middle"), AddressField::MiddleName},
        {QStringLiteral("nm_middle"), AddressField::MiddleName},
        {QStringLiteral("middlename"), AddressField::MiddleName},
        {QStringLiteral("last"), AddressField::LastName},
        {QStringLiteral("nm_last"), AddressField::LastName},
        {QStringLiteral("lastname"), AddressField::LastName},
        {QStringLiteral("address1"), AddressField::Address1},
        {QStringLiteral("addr_1"), AddressField::Address1},
        {QStringLiteral("address2"), AddressField::Address2},
        {QStringLiteral("addr_2"), AddressField::Address2},
        {QStringLiteral("city"), AddressField::City},
        {QStringLiteral("state"), AddressField::State},
        {QStringLiteral("zip"), AddressField::Zip},
        {QStringLiteral("substitute"), AddressField::Substitute},
        {QStringLiteral("bar_code"), AddressField::BarCode},
        {QStringLiteral("barcode"), AddressField::BarCode},
        {QStringLiteral("imb"), AddressField::BarCode},
    };
    return names;
}

QString describeProblem(const QString &value)
{
    bool lineBreak = false;
    for (const QChar c : value) {
        if (c == u'"')
            return Cli::tr("holds a double quote");
        lineBreak = lineBreak || c == u'\r' || c == u'\n';
    }
    return lineBreak ? Cli::tr("holds a line break") : QString();
}

} // namespace

QString AddressColumns::acceptedNames()
{
    return Cli::tr("first, middle, last, address1, address2, city, state, zip (or "
                   "nm_first, nm_middle, nm_last, addr_1, addr_2), bar_code (or barcode, "
                   "imb), and substitute");
}

bool AddressColumns::setHeader(const QStringList &header, QString *error)
{
    m_columns.clear();
    bool anyAddressField = false;
    QHash<int, QString> taken;
    QHash<QString, int> entryNames;
    for (const QString &raw : header) {
        Column column;
        column.name = raw.trimmed();
        const auto it = fieldNames().constFind(column.name.toLower());
        if (it != fieldNames().constEnd()) {
            column.field = int(*it);
            if (taken.contains(column.field)) {
                *error = Cli::tr("the columns \"%1\" and \"%2\" both name the same field; "
                                 "rename or remove one of them")
                             .arg(taken.value(column.field), column.name);
                return false;
            }
            taken.insert(column.field, column.name);
            if (*it != AddressField::Substitute && *it != AddressField::BarCode)
                anyAddressField = true;
        } else if (column.name.isEmpty()) {
            // An unnamed column cannot be reached by a token; it is left out.
        } else if (column.name.contains(QLatin1Char('^')) ||
                   column.name.contains(QLatin1Char('|')) ||
                   !describeProblem(column.name).isEmpty()) {
            *error = Cli::tr("column %1: the name \"%2\" cannot be used as a substitution "
                             "name (it holds ^, |, a quote or a line break); rename it")
                         .arg(m_columns.size() + 1)
                         .arg(column.name);
            return false;
        } else if (entryNames.contains(column.name)) {
            // Tokens match names exactly, so a second column of the same name
            // could never be reached.
            *error = Cli::tr("columns %1 and %2 are both named \"%3\"; rename one of them")
                         .arg(entryNames.value(column.name))
                         .arg(m_columns.size() + 1)
                         .arg(column.name);
            return false;
        } else {
            entryNames.insert(column.name, int(m_columns.size()) + 1);
        }
        m_columns.append(column);
    }
    if (!anyAddressField) {
        *error = Cli::tr("the header row names no address column; name the columns %1")
                     .arg(acceptedNames());
        return false;
    }
    return true;
}

bool AddressColumns::mapRow(const QStringList &row, AddressRow &out, QString *error) const
{
    if (row.size() != m_columns.size()) {
        *error = Cli::tr("the row has %1 fields but the header has %2; check for a "
                         "missing or extra comma, or a value with a comma that needs "
                         "double quotes")
                     .arg(row.size())
                     .arg(m_columns.size());
        return false;
    }
    out = AddressRow();
    QString entries;
    for (qsizetype i = 0; i < row.size(); ++i) {
        const Column &column = m_columns.at(i);
        const QString &value = row.at(i);
        const QString problem = describeProblem(value);
        if (!problem.isEmpty()) {
            *error = Cli::tr("column %1 (\"%2\") %3, which a printed record cannot "
                             "carry; remove it from the value")
                         .arg(i + 1)
                         .arg(column.name, problem);
            return false;
        }
        if (column.field >= 0) {
            out.fields[column.field] = value;
        } else if (!column.name.isEmpty()) {
            if (value.contains(QLatin1Char('|'))) {
                *error = Cli::tr("column %1 (\"%2\") holds a |, which separates "
                                 "substitution entries; remove it from the value")
                             .arg(i + 1)
                             .arg(column.name);
                return false;
            }
            if (!entries.isEmpty())
                entries += QLatin1Char('|');
            entries += column.name + QLatin1Char('^') + value;
        }
    }
    QString &substitute = out[AddressField::Substitute];
    if (!entries.isEmpty())
        substitute = substitute.isEmpty() ? entries : substitute + QLatin1Char('|') + entries;
    return true;
}

} // namespace quirra
