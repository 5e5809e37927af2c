// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#include "recordfeed.h"

#include "console.h"

#include "addresscolumns.h"
#include "csvreader.h"

#include "control/quirra.h"

#include <QFileInfo>

#include <unistd.h>

namespace quirra {

RecordFeed::RecordFeed(Quirra &control) : m_control(control) {}

bool RecordFeed::open(const QString &path, QString *error)
{
    if (path == QLatin1String("-")) {
        if (isatty(STDIN_FILENO)) {
            *error = Cli::tr("no CSV file given and standard input is a terminal; name a "
                             "file or pipe one in");
            return false;
        }
        m_name = Cli::tr("standard input");
        if (!m_file.open(STDIN_FILENO, QIODevice::ReadOnly)) {
            *error = Cli::tr("cannot read standard input: %1").arg(m_file.errorString());
            return false;
        }
        m_size = -1;
        return true;
    }
    m_name = path;
    const QFileInfo info(path);
    if (info.isDir()) {
        *error = Cli::tr("%1: is a folder; name the CSV file").arg(path);
        return false;
    }
    m_file.setFileName(path);
    if (!m_file.open(QIODevice::ReadOnly)) {
        *error = Cli::tr("%1: cannot read the file: %2").arg(path, m_file.errorString());
        return false;
    }
    m_size = m_file.isSequential() ? -1 : m_file.size();
    return true;
}

// More pieces than this of one record is a mistake in the column, not a mailing.
constexpr qlonglong MostCopies = 100000;

bool RecordFeed::feed(const Progress &progress, QString *error)
{
    CsvReader reader(&m_file);
    AddressColumns columns;
    QStringList fields;
    QString problem;
    if (!reader.readRow(fields)) {
        if (reader.error().isEmpty())
            *error = Cli::tr("%1: the file is empty; it needs a header row naming its "
                             "columns: %2")
                         .arg(m_name, AddressColumns::acceptedNames());
        else
            *error = QStringLiteral("%1: %2").arg(m_name, reader.error());
        return false;
    }
    if (!columns.setHeader(fields, &problem)) {
        *error = QStringLiteral("%1: line %2: %3")
                     .arg(m_name, QString::number(reader.rowLine()), problem);
        return false;
    }

    // The control's setters, in the order of the record's fields.
    using Setter = void (Quirra::*)(const QString &);
    static const std::pair<AddressField, Setter> setters[] = {
        {AddressField::FirstName, &Quirra::FirstName},
        {AddressField::MiddleName, &Quirra::MiddleName},
        {AddressField::LastName, &Quirra::LastName},
        {AddressField::Address1, &Quirra::Address1},
        {AddressField::Address2, &Quirra::Address2},
        {AddressField::City, &Quirra::city},
        {AddressField::State, &Quirra::State},
        {AddressField::Zip, &Quirra::zip},
        {AddressField::Substitute, &Quirra::Substitute},
        {AddressField::BarCode, &Quirra::BarCode},
    };

    qsizetype copiesAt = -1;
    if (!m_copiesColumn.isEmpty()) {
        for (qsizetype i = 0; i < fields.size() && copiesAt < 0; ++i)
            if (fields.at(i).trimmed().compare(m_copiesColumn, Qt::CaseInsensitive) == 0)
                copiesAt = i;
        if (copiesAt < 0) {
            *error = Cli::tr("%1: no column is named \"%2\" (--copies-column); the "
                             "columns are %3")
                         .arg(m_name, m_copiesColumn, fields.join(QStringLiteral(", ")));
            return false;
        }
    }

    m_control.StartDoc();
    AddressRow row;
    while (reader.readRow(fields)) {
        if (fields.size() == 1 && fields.first().isEmpty())
            continue; // a blank line
        if (!columns.mapRow(fields, row, &problem)) {
            *error = QStringLiteral("%1: line %2: %3")
                         .arg(m_name, QString::number(reader.rowLine()), problem);
            return false;
        }
        qlonglong copies = 1;
        if (copiesAt >= 0) {
            bool ok = false;
            const QString value = fields.value(copiesAt).trimmed();
            copies = value.toLongLong(&ok);
            if (!ok || copies < 0 || copies > MostCopies) {
                m_control.EndDoc();
                *error = Cli::tr("%1: line %2: the copies column \"%3\" holds \"%4\"; "
                                 "give a whole number, 0 to %5")
                             .arg(m_name, QString::number(reader.rowLine()), m_copiesColumn, value,
                                  QString::number(MostCopies));
                return false;
            }
        }
        m_control.ClearPiece();
        for (const auto &[field, setter] : setters) {
            const QString &value = row[field];
            if (!value.isEmpty())
                (m_control.*setter)(value);
        }
        for (qlonglong copy = 0; copy < copies; ++copy)
            m_control.NewPiece();
        ++m_records;
        if (progress && !progress(m_records, reader.bytesRead())) {
            m_control.EndDoc();
            *error = Cli::tr("%1: stopped after %2 records").arg(m_name).arg(m_records);
            return false;
        }
    }
    m_control.EndDoc();
    if (!reader.error().isEmpty()) {
        *error = QStringLiteral("%1: %2").arg(m_name, reader.error());
        return false;
    }
    if (m_records == 0) {
        *error = Cli::tr("%1: no records after the header row; nothing to print").arg(m_name);
        return false;
    }
    return true;
}

} // namespace quirra
