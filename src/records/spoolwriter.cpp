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

#include <algorithm>
#include <cerrno>
#include <utility>
#include <vector>

#include <fcntl.h>
#include <unistd.h>

namespace quirra {

namespace {

// Room on the disk is set aside this much at a time, past the end of the file.
constexpr qint64 ReserveStep = 1024 * 1024;

// Every writer of the process, for flushAll(); the control lives on one thread.
std::vector<SpoolWriter *> &allWriters()
{
    static std::vector<SpoolWriter *> writers;
    return writers;
}

} // namespace

SpoolWriter::SpoolWriter() : m_yield(&SpoolWriter::processPendingEvents)
{
    m_buffer.reserve(BatchBytes + 4096);
    allWriters().push_back(this);
}

SpoolWriter::~SpoolWriter()
{
    auto &writers = allWriters();
    writers.erase(std::remove(writers.begin(), writers.end(), this), writers.end());
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

void SpoolWriter::flushAll()
{
    for (SpoolWriter *writer : allWriters()) {
        if (!writer->m_open || writer->m_buffer.isEmpty())
            continue;
        try {
            writer->writeBuffer();
        } catch (const Error &error) {
            writer->m_pendingError = error.message();
        }
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
    m_offset = m_file.size();
    m_reserved = m_offset;
    m_canReserve = true;
}

bool SpoolWriter::reserveBatch()
{
    // Once the file has room on the disk, writing into it cannot run out of
    // space: the line that does not fit fails here, in its own NewPiece.
    const qint64 end = m_offset + m_buffer.size();
    if (end <= m_reserved || !m_canReserve)
        return true;
    const int fd = m_file.handle();
    for (const qint64 want : {std::max(end, m_reserved + ReserveStep), end}) {
        int result;
        do {
            result = ::fallocate(fd, FALLOC_FL_KEEP_SIZE, m_reserved, want - m_reserved);
        } while (result != 0 && errno == EINTR);
        if (result == 0) {
            m_reserved = want;
            return true;
        }
        if (errno != ENOSPC && errno != EDQUOT) {
            // A file system that sets no room aside: each line is written
            // through, and a full disk fails the write itself.
            m_canReserve = false;
            return true;
        }
    }
    return false;
}

void SpoolWriter::failWith(int code)
{
    const QString path = m_file.fileName();
    m_file.close();
    m_open = false;
    m_buffer.clear();
    const QString folder = QFileInfo(path).absolutePath();
    throw Error(QStringLiteral("Cannot write the record spool \"%1\": %2")
                    .arg(path, TemporaryDirectoryProblem(folder, code)));
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
    if (code != 0)
        failWith(code);
    m_offset += m_buffer.size();
    m_buffer.clear();
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
    m_pendingError.clear(); // its records are gone with the old document
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

void SpoolWriter::raisePending()
{
    if (Q_UNLIKELY(!m_pendingError.isEmpty())) {
        const QString message = std::exchange(m_pendingError, QString());
        throw Error(message);
    }
}

void SpoolWriter::NewPiece(const Record &record)
{
    raisePending();
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
    const qsizetype before = m_buffer.size();
    record.appendSpoolLine(m_buffer);
    if (!reserveBatch()) {
        // The lines before it have their room; this one fails.
        const int code = errno;
        m_buffer.truncate(before);
        writeBuffer();
        failWith(code);
    }
    if (!m_canReserve || m_buffer.size() >= BatchBytes)
        writeBuffer();
    if (++m_sinceYield >= YieldEvery) {
        writeBuffer();
        yieldOnce();
    }
}

void SpoolWriter::EndDoc()
{
    if (m_open) {
        closeFile();
    }
    raisePending();
    yieldOnce();
}

} // namespace quirra
