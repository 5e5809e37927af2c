// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>
#include <QStringDecoder>
#include <QStringList>

class QIODevice;

namespace quirra {

/**
 * @brief Reads comma-separated values (RFC 4180) row by row from a device.
 *
 * UTF-8 text, an optional byte-order mark, fields in double quotes with
 * doubled quotes inside, quoted fields that span lines, CR LF, LF or CR line
 * ends. Only one row is held at a time, so a file of any length streams.
 * Malformed input (an unclosed quote, text after a closing quote, bytes that
 * are not UTF-8, a field of more than MaxFieldBytes) stops the reader with a
 * message that names the line and the column and says what to do.
 */
class CsvReader
{
public:
    /** @brief The longest field accepted, in bytes; a longer one is an error, not a memory sink. */
    static constexpr qsizetype MaxFieldBytes = 1 << 20;

    /** @brief Reads from device, which must be open; the reader does not own it. */
    explicit CsvReader(QIODevice *device);

    /**
     * @brief Reads the next row into fields.
     * @return false at the end of the input or on an error (see error()).
     */
    bool readRow(QStringList &fields);

    /** @brief Why the last readRow() failed; empty at a clean end of input. */
    QString error() const { return m_error; }

    /** @brief The line (from 1) on which the row last read began. */
    qint64 rowLine() const { return m_rowLine; }

    /** @brief Rows read so far, the header included. */
    qint64 rowCount() const { return m_rows; }

    /** @brief Bytes of the input taken so far (for progress), in bytes. */
    qint64 bytesRead() const { return m_consumed + m_pos; }

private:
    bool ensure(qsizetype count); // at least count bytes buffered from m_pos
    int next();                   // the next byte, or -1 at the end
    int peek();
    bool fail(const QString &what);
    bool appendField(QStringList &fields, QByteArray &field);

    QIODevice *m_device;
    QByteArray m_buffer;
    qsizetype m_pos = 0;
    qint64 m_consumed = 0; // bytes of the input before m_buffer
    bool m_eof = false;
    bool m_started = false;
    qint64 m_line = 1;
    qint64 m_rowLine = 1;
    qint64 m_rows = 0;
    QStringDecoder m_decoder{QStringDecoder::Utf8, QStringDecoder::Flag::Stateless};
    QString m_error;
};

} // namespace quirra
