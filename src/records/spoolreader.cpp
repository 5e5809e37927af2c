// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#include "records/spoolreader.h"

#include "records/logging_p.h"
#include "records/record.h"
#include "records/spoolwriter.h"

#include <cstring>

namespace quirra {

namespace {

constexpr qsizetype ChunkSize = 64 * 1024;

// No address value comes near this; a longer one is junk (a quote that never
// closes in a binary file) and is cut rather than grown without end.
constexpr qsizetype MaxValueBytes = 1024 * 1024;

bool isBlank(char c)
{
    return c == ' ' || c == '\t';
}

bool isLineEnd(char c)
{
    return c == '\r' || c == '\n';
}

} // namespace

SpoolReader::SpoolReader()
{
    m_chunk.resize(ChunkSize);
}

SpoolReader::~SpoolReader()
{
    close();
}

void SpoolReader::close()
{
    if (m_file.isOpen()) {
        m_file.close();
    }
    m_readerOpen = false;
    m_fileDone = true;
    m_pos = 0;
    m_end = 0;
}

bool SpoolReader::fill()
{
    if (m_fileDone) {
        return false;
    }
    const qint64 got = m_file.read(m_chunk.data(), ChunkSize);
    if (got <= 0) {
        if (got < 0) {
            qCWarning(lcRecords).noquote()
                << "Reading the spool" << m_file.fileName() << "failed:" << m_file.errorString();
        }
        m_fileDone = true;
        m_pos = 0;
        m_end = 0;
        return false;
    }
    m_pos = 0;
    m_end = got;
    return true;
}

bool SpoolReader::atEnd()
{
    return m_pos >= m_end && !fill();
}

int SpoolReader::peek()
{
    if (atEnd()) {
        return -1;
    }
    return static_cast<unsigned char>(m_chunk.at(m_pos));
}

void SpoolReader::appendByte(char c)
{
    if (m_value.size() < MaxValueBytes) {
        m_value.append(c);
    } else {
        m_valueCut = true;
    }
}

void SpoolReader::skipLineEnd(char first)
{
    // CR LF is one line end; so is a lone CR or a lone LF.
    if (first == '\r' && peek() == '\n') {
        ++m_pos;
    }
}

void SpoolReader::skipToDelimiter()
{
    // After a closing quote, anything up to the next comma or line end is
    // not part of any value.
    while (!atEnd()) {
        const char c = m_chunk.at(m_pos++);
        if (c == ',') {
            return;
        }
        if (isLineEnd(c)) {
            skipLineEnd(c);
            return;
        }
    }
}

bool SpoolReader::readValue(QString &value)
{
    if (atEnd()) {
        return false;
    }
    m_value.clear();
    m_valueCut = false;

    while (!atEnd() && isBlank(m_chunk.at(m_pos))) {
        ++m_pos;
    }

    if (!atEnd() && m_chunk.at(m_pos) == '"') {
        ++m_pos;
        // Most values lie whole inside the chunk: decoded straight from it.
        if (m_pos < m_end) {
            const char *start = m_chunk.constData() + m_pos;
            const qsizetype left = m_end - m_pos;
            if (const void *quote = std::memchr(start, '"', size_t(left))) {
                const qsizetype n = static_cast<const char *>(quote) - start;
                if (n <= MaxValueBytes) {
                    m_pos += n + 1;
                    value = QString::fromUtf8(start, n);
                    skipToDelimiter();
                    return true;
                }
            }
        }
        bool closed = false;
        while (!closed && !atEnd()) {
            const char *start = m_chunk.constData() + m_pos;
            const qsizetype left = m_end - m_pos;
            const void *quote = std::memchr(start, '"', size_t(left));
            const qsizetype n = quote ? static_cast<const char *>(quote) - start : left;
            const qsizetype room = qMax<qsizetype>(0, MaxValueBytes - m_value.size());
            m_value.append(start, qMin(n, room));
            m_valueCut = m_valueCut || n > room;
            m_pos += n;
            if (quote) {
                ++m_pos;
                closed = true;
            }
        }
        if (closed) {
            skipToDelimiter();
        }
    } else {
        while (!atEnd()) {
            const char c = m_chunk.at(m_pos++);
            if (c == ',') {
                break;
            }
            if (isLineEnd(c)) {
                skipLineEnd(c);
                break;
            }
            appendByte(c);
        }
        while (!m_value.isEmpty() && isBlank(m_value.back())) {
            m_value.chop(1);
        }
    }

    if (m_valueCut) {
        qCWarning(lcRecords).noquote()
            << "A value in the spool" << m_file.fileName() << "is longer than" << MaxValueBytes
            << "bytes; the rest of it is dropped.";
    }
    // Bytes that are not UTF-8 become replacement characters.
    value = QString::fromUtf8(m_value);
    return true;
}

bool SpoolReader::OpenSpoolForReading()
{
    close();
    // Lines still held by a writer belong to the spool too.
    SpoolWriter::flushAll();
    m_file.setFileName(m_path);
    if (m_path.isEmpty() || !m_file.open(QIODevice::ReadOnly)) {
        qCWarning(lcRecords).noquote()
            << "Cannot open the spool" << m_path << "for reading:"
            << (m_path.isEmpty() ? QStringLiteral("no spool file is named") : m_file.errorString());
        return true;
    }
    m_fileDone = false;

    std::array<QString, RecordFieldCount> header;
    for (QString &name : header) {
        if (atEnd()) {
            break;
        }
        readValue(name);
    }

    const QStringList &names = RecordColumnNames();
    for (int i = 0; i < RecordFieldCount; ++i) {
        if (header[size_t(i)] != names.at(i)) {
            qCDebug(lcRecords).noquote() << "The spool" << m_path
                                         << "does not start with the column names; nothing "
                                            "to print from it.";
            close();
            return true;
        }
    }
    m_readerOpen = true;
    return false;
}

qint64 SpoolReader::recordOffset() const
{
    return m_readerOpen ? m_file.pos() - (m_end - m_pos) : -1;
}

bool SpoolReader::seekRecord(qint64 offset)
{
    if (!m_readerOpen && OpenSpoolForReading())
        return false;
    if (offset < 0 || offset > m_file.size() || !m_file.seek(offset)) {
        close();
        return false;
    }
    m_pos = 0;
    m_end = 0;
    m_fileDone = false;
    return true;
}

bool SpoolReader::ReadNextRecord(Values &values, QString &substitute)
{
    if (!m_readerOpen && OpenSpoolForReading()) {
        return true;
    }
    for (QString &v : values) {
        if (atEnd()) {
            for (QString &w : values) {
                w = QLatin1String("");
            }
            close();
            m_spoolExhausted = true;
            return true;
        }
        readValue(v);
    }
    // The substitution list is read without an end test: a spool that stops
    // right after the tenth value still gives its record, with no list.
    if (!readValue(substitute)) {
        substitute = QLatin1String("");
    }
    return false;
}

} // namespace quirra
