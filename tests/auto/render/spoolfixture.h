// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#pragma once

#include "records/record.h"
#include "records/sharedspool.h"
#include "records/spoolwriter.h"
#include "settings/files.h"

#include <QStringList>

// Writes recipients to a fresh shared spool and removes it at the end.
struct SpoolFixture
{
    SpoolFixture()
    {
        quirra::SharedSpool::reset();
        quirra::SharedSpool::instance().makeNewSpoolFile();
    }
    ~SpoolFixture() { quirra::DeleteFileAndWait(quirra::SharedSpool::instance().spoolPath()); }

    // first, middle, last, addr1, addr2, city, state, zip, substitute
    void add(const QStringList &v)
    {
        using quirra::RecordField;
        static const RecordField order[] = {RecordField::nm_first, RecordField::nm_middle,
                                            RecordField::nm_last,  RecordField::addr_1,
                                            RecordField::addr_2,   RecordField::city,
                                            RecordField::state,    RecordField::zip,
                                            RecordField::substitute};
        quirra::Record r;
        for (int i = 0; i < v.size() && i < 9; ++i)
            r.setValue(order[i], v.at(i));
        if (!writer.isSpoolOpen())
            writer.setYieldHook({});
        writer.NewPiece(r);
    }
    void addNumbered(int count)
    {
        for (int i = 1; i <= count; ++i) {
            add({QStringLiteral("Name%1").arg(i), QString(), QStringLiteral("Person"),
                 QStringLiteral("%1 Main St").arg(i), QString(), QStringLiteral("Springfield"),
                 QStringLiteral("IL"), QStringLiteral("62704")});
        }
    }
    void close() { writer.EndDoc(); }

    quirra::SpoolWriter writer;
};
