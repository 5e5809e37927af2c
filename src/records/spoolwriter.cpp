// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#include "records/spoolwriter.h"

#include "model/error.h"
#include "records/logging_p.h"
#include "records/record.h"
#include "records/sharedspool.h"

#include "settings/files.h"

#include <QCoreApplication>
#include <QFileInfo>

#include <cerrno>
#include <unistd.h>

namespace quirra {

namespace {

// A line is rarely longer than this; the buffer is reused for every line.
constexpr qsizetype BufferSize = 4 * 1024;

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
    m_sinceYield = 0;
    if (m_yield) {
        m_yield();
    }
}

void SpoolWriter::openSpool(QIODevice::OpenMode mode)
{
    const QString path = SharedSpool::instance().spoolPath();
    if (path.isEmpty()) {
        // The control could not make its spool: say why (a missing or full
        // temporary directory) rather than only that it is missing.
        const QString why = SharedSpool::instance().creationError();
        throw Error(why.isEmpty()
                        ? QStringLiteral("Cannot write the record spool: no spool file has been "
                                         "made. Create the control before feeding it records.")
                        : why);
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
    // Straight to the descriptor, so the call that fails knows why.
    const int fd = m_file.handle();
    const char *data = m_buffer.constData();
    qsizetype left = m_buffer.size();
    int code = 0;
    while (left > 0) {
        const ssize_t written = ::write(fd, data, size_t(left));
        if (written < 0 && errno == EINTR)
            continue;
        if (written <= 0) {
            code = written < 0 ? errno : ENOSPC;
            break;
        }
        data += written;
        left -= written;
    }
    m_buffer.clear();
    if (code != 0) {
        const QString path = m_file.fileName();
        m_file.close();
        m_open = false;
        const QString folder = QFileInfo(path).absolutePath();
        throw Error(QStringLiteral("Cannot write the record spool \"%1\": %2")
                        .arg(path, TemporaryDirectoryProblem(folder, code)));
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
    // Written through: a full disk fails the record that did not fit.
    record.appendSpoolLine(m_buffer);
    writeBuffer();
    if (++m_sinceYield >= YieldEvery) {
        yieldOnce();
    }
}

void SpoolWriter::EndDoc()
{
    if (m_open) {
        closeFile();
    }
    yieldOnce();
}

} // namespace quirra
