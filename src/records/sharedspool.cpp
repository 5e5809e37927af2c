// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#include "records/sharedspool.h"

#include "settings/files.h"

namespace quirra {

SharedSpool &SharedSpool::instance()
{
    static SharedSpool spool;
    return spool;
}

void SharedSpool::reset()
{
    SharedSpool &spool = instance();
    spool.m_reader.close();
    spool.m_reader.setSpoolExhausted(false);
    spool.m_reader.setPath(QString());
}

QString SharedSpool::makeNewSpoolFile()
{
    const QString path = MakeTempFileName(QStringLiteral("qzv"));
    setSpoolPath(path);
    return path;
}

} // namespace quirra
