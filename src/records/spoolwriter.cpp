// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#include "records/spoolwriter.h"

#include "model/error.h"
#include "records/logging_p.h"
#include "records/record.h"
#include "records/sharedspool.h"

#include <QCoreApplication>

namespace quirra {

namespace {

constexpr qsizetype BufferSize = 64 * 1024;

} // namespace

SpoolWriter::SpoolWriter() : m_yield(&SpoolWriter::processPendingEvents)
{
    m_buffer.reserve(BufferSize + 4096);
}

SpoolWriter::~SpoolWriter()
{
    if (!m_open) {
        return;
    }
    try {
        closeFile();
    } catch (const Error &error) {
        qCWarning(lcRecords).noquote() << error.message();
    }
}

void SpoolWriter::processPendingEvents()
{
    if (QCoreApplication::instance()) {
        QCoreApplication::processEvents();
    }
}

void SpoolWriter::yieldOnce()
{
    if (m_yield) {
        m_yield();
    }
}

void SpoolWriter::openSpool(QIODevice::OpenMode mode)
{
    const QString path = SharedSpool::instance().spoolPath();
    if (path.isEmpty()) {
        throw Error(QStringLiteral("Cannot write the record spool: no spool file has been made. "
                                   "Create the control before feeding it records."));
    }
    m_file.setFileName(path);
    // Owner-only, like the temporary file it normally replaces: the spool
    // holds names and addresses. Unbuffered, since the writer buffers itself.
    if (!m_file.open(mode | QIODevice::Unbuffered,
                     QFileDevice::ReadOwner | QFileDevice::WriteOwner)) {
        throw Error(QStringLiteral("Cannot open the record spool \"%1\" for writing: %2. "
                                   "Check that the temporary folder exists and has room.")
                        .arg(path, m_file.errorString()));
    }
    m_buffer.clear();
    m_open = true;
}

void SpoolWriter::writeBuffer()
{
    if (m_buffer.isEmpty()) {
        return;
    }
    const qint64 written = m_file.write(m_buffer);
    const qsizetype wanted = m_buffer.size();
    m_buffer.clear();
    if (written != wanted) {
        const QString reason = m_file.errorString();
        const QString path = m_file.fileName();
        m_file.close();
        m_open = false;
        throw Error(QStringLiteral("Cannot write the record spool \"%1\": %2. "
                                   "Free some room in the temporary folder and start again.")
                        .arg(path, reason));
    }
}

void SpoolWriter::closeFile()
{
    // A failed write has closed the file already: the writer is closed
    // either way.
    writeBuffer();
    m_file.close();
    m_open = false;
}

void SpoolWriter::CreateSpool()
{
    openSpool(QIODevice::WriteOnly | QIODevice::Truncate);
    m_buffer.append(Record::spoolHeaderLine().toUtf8());
    m_buffer.append("\r\n", 2);
    // Written at once, so a folder that takes no data fails here, at the
    // start of the document, not records later.
    writeBuffer();
    m_started = true;
    yieldOnce();
}

void SpoolWriter::StartDoc()
{
    if (!m_open) {
        CreateSpool();
    }
}

void SpoolWriter::NewPiece(const Record &record)
{
    if (!m_open) {
        if (m_started) {
            openSpool(QIODevice::WriteOnly | QIODevice::Append);
        } else {
            CreateSpool();
        }
    }
    const QString problem = record.spoolProblem();
    if (Q_UNLIKELY(!problem.isEmpty())) {
        qCWarning(lcRecords).noquote() << problem;
    }
    record.appendSpoolLine(m_buffer);
    if (m_buffer.size() >= BufferSize) {
        writeBuffer();
    }
    yieldOnce();
}

void SpoolWriter::EndDoc()
{
    if (m_open) {
        closeFile();
    }
    yieldOnce();
}

} // namespace quirra
