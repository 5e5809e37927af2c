// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#pragma once

#include "records/record.h"
#include "records/sharedspool.h"
#include "records/spoolwriter.h"

#include <QFile>
#include <QStringList>

// A fresh shared spool per test; records written as "first;middle;last;..."
// in column order (addr_1, addr_2, city, state, zip, carrier_r, bar_code,
// substitute follow).
namespace fixture {

inline const QByteArray Header =
    "\"nm_first\",\"nm_middle\",\"nm_last\",\"addr_1\",\"addr_2\",\"city\",\"state\",\"zip\","
    "\"carrier_r\",\"bar_code\",\"substitute\"\r\n";

// Values past the last column go to setValue all the same: it must drop them.
inline quirra::Record record(const QString &values)
{
    quirra::Record r;
    const QStringList v = values.split(QLatin1Char(';'));
    for (int i = 0; i < v.size(); ++i)
        r.setValue(quirra::RecordField(i), v.at(i));
    return r;
}

inline QString newSpool()
{
    quirra::SharedSpool::reset();
    return quirra::SharedSpool::instance().makeNewSpoolFile();
}

// Writes the records as one document and ends it.
inline void feed(const QStringList &records)
{
    quirra::SpoolWriter writer;
    writer.setYieldHook({});
    for (const QString &r : records)
        writer.NewPiece(record(r));
    writer.EndDoc();
}

// "NameN;;Person;N Main St;;Springfield;IL;62704" for N = 1..count.
inline QStringList numbered(int count)
{
    QStringList records;
    for (int i = 1; i <= count; ++i)
        records.append(QStringLiteral("Name%1;;Person;%1 Main St;;Springfield;IL;62704").arg(i));
    return records;
}

inline QByteArray contents(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("<missing>");
}

inline bool overwrite(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
}

} // namespace fixture
