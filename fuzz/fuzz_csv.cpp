// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
//
// A CSV file of any bytes, read as quirra print reads it: rows through the
// reader, the first as the header of the column mapping, the rest mapped to
// recipients. Every row must take input, and a failure must say why.
#include "addresscolumns.h"
#include "csvreader.h"

#include <QBuffer>

#include <cstdint>
#include <cstdlib>

using namespace quirra;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    QByteArray bytes(reinterpret_cast<const char *>(data), qsizetype(size));
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::ReadOnly);
    CsvReader reader(&buffer);
    AddressColumns columns;
    bool haveHeader = false;
    QStringList fields;
    AddressRow row;
    QString problem;
    qint64 rows = 0;
    while (reader.readRow(fields)) {
        if (++rows > qint64(size) + 1)
            std::abort(); // a row that took no input: the reader would never end
        if (!haveHeader) {
            haveHeader = columns.setHeader(fields, &problem);
            if (!haveHeader && problem.isEmpty())
                std::abort();
            continue;
        }
        if (!columns.mapRow(fields, row, &problem) && problem.isEmpty())
            std::abort();
    }
    if (reader.bytesRead() > qint64(size))
        std::abort();
    return 0;
}
