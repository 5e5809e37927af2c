// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#include "csvreader.h"

#include "console.h"

#include <QIODevice>

#include <algorithm>

namespace quirra {

namespace {
constexpr qint64 ChunkBytes = 64 * 1024;
} // namespace

CsvReader::CsvReader(QIODevice *device) : m_device(device) {}

bool CsvReader::ensure(qsizetype count)
{
    while (m_buffer.size() - m_pos < count) {
        if (m_eof)
            return false;
        const QByteArray more = m_device->read(ChunkBytes);
        if (more.isEmpty()) {
            m_eof = true;
            return false;
        }
        // Keep only what is still unread: the buffer never grows past one
        // chunk plus the few bytes of a look-ahead.
        m_consumed += m_pos;
        m_buffer = m_buffer.mid(m_pos) + more;
        m_pos = 0;
    }
    return true;
}

int CsvReader::peek()
{
    if (m_pos >= m_buffer.size() && !ensure(1))
        return -1;
    return static_cast<unsigned char>(m_buffer.at(m_pos));
}

int CsvReader::next()
{
    const int c = peek();
    if (c >= 0)
        ++m_pos;
    return c;
}

bool CsvReader::fail(const QString &what)
{
    m_error = QStringLiteral("line %1: %2").arg(m_line).arg(what);
    m_eof = true;
    m_buffer.clear();
    m_pos = 0;
    return false;
}

bool CsvReader::appendField(QStringList &fields, QByteArray &field)
{
    // Plain ASCII, most fields of most files, reads the same in UTF-8 and
    // Latin-1, and Latin-1 needs no decoder.
    if (std::all_of(field.cbegin(), field.cend(),
                    [](char c) { return static_cast<unsigned char>(c) < 0x80; })) {
        fields.append(QString::fromLatin1(field));
        field.resize(0);
        return true;
    }
    m_decoder.resetState();
    QString text = m_decoder.decode(field);
    if (m_decoder.hasError()) {
        return fail(Cli::tr("column %1: the text is not UTF-8 (a spreadsheet's \"CSV\" in "
                            "a legacy code page?); save the file as \"CSV UTF-8\"")
                        .arg(fields.size() + 1));
    }
    fields.append(std::move(text));
    field.resize(0); // keeps its room for the next field
    return true;
}

bool CsvReader::readRow(QStringList &fields)
{
    fields.clear();
    if (!m_error.isEmpty())
        return false;
    if (!m_started) {
        m_started = true;
        // A byte-order mark is no part of the first column's name. The three
        // bytes may arrive in separate reads from a pipe.
        if (ensure(3) && m_buffer.mid(m_pos, 3) == QByteArray("\xEF\xBB\xBF"))
            m_pos += 3;
    }
    if (peek() < 0)
        return false;

    m_rowLine = m_line;
    QByteArray field;
    bool quoted = false;     // the field began with a quote
    bool afterQuote = false; // the closing quote of a quoted field was read
    auto finishField = [&] {
        quoted = false;
        afterQuote = false;
        return appendField(fields, field);
    };

    for (;;) {
        const int c = next();
        if (c < 0) {
            if (quoted && !afterQuote)
                return fail(Cli::tr("column %1: a quoted field that began on line %2 is "
                                    "never closed; add the closing double quote")
                                .arg(fields.size() + 1)
                                .arg(m_rowLine));
            if (!finishField())
                return false;
            ++m_rows;
            return true;
        }
        if (quoted && !afterQuote) {
            if (c == '"') {
                if (peek() == '"') {
                    next();
                    field.append('"');
                } else {
                    afterQuote = true;
                }
            } else {
                if (c == '\n' || (c == '\r' && peek() != '\n'))
                    ++m_line;
                field.append(char(c));
            }
        } else if (c == ',') {
            if (!finishField())
                return false;
        } else if (c == '\r' || c == '\n') {
            if (c == '\r' && peek() == '\n')
                next();
            if (!finishField())
                return false;
            ++m_line;
            ++m_rows;
            return true;
        } else if (afterQuote) {
            return fail(Cli::tr("column %1: text after the closing quote of a quoted "
                                "field; put the whole value in quotes and double any "
                                "quote inside it")
                            .arg(fields.size() + 1));
        } else if (c == '"' && field.isEmpty()) {
            quoted = true;
        } else {
            field.append(char(c));
            // The rest of an unquoted field at once: a quote inside it is
            // text, so only a comma or a line end stops it.
            const char *from = m_buffer.constData() + m_pos;
            const char *to = m_buffer.constData() + m_buffer.size();
            const char *stop = from;
            while (stop < to && *stop != ',' && *stop != '\r' && *stop != '\n')
                ++stop;
            field.append(from, stop - from);
            m_pos += stop - from;
        }
        if (field.size() > MaxFieldBytes) {
            return fail(Cli::tr("column %1: a field longer than %2 bytes; is this a CSV "
                                "file?")
                            .arg(fields.size() + 1)
                            .arg(MaxFieldBytes));
        }
    }
}

} // namespace quirra
