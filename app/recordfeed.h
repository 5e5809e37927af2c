// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QFile>
#include <QString>

#include <functional>

class Quirra;

namespace quirra {

/**
 * @brief Feeds the rows of a CSV file to a control, one recipient each,
 * through the control's published methods: StartDoc, then ClearPiece, the
 * field setters and NewPiece per row (once per copy), then EndDoc.
 */
class RecordFeed
{
public:
    /**
     * @brief Called after each record with the records so far and the bytes
     * of the input read so far; returning false stops the feed.
     */
    using Progress = std::function<bool(qint64 records, qint64 bytes)>;

    /** @brief Feeds control, which must outlive the feed. */
    explicit RecordFeed(Quirra &control);

    /**
     * @brief Opens the CSV file at path, or standard input for "-".
     * @return false with a message when the file cannot be read, or standard
     * input is a terminal.
     */
    bool open(const QString &path, QString *error);

    /** @brief The input as messages name it: the path, or "standard input". */
    QString sourceName() const { return m_name; }

    /** @brief Size of the input file, in bytes; -1 for a pipe. */
    qint64 sourceSize() const { return m_size; }

    /**
     * @brief Feeds every row.
     * @return false with a message naming the file, the line and the column
     * when the input is malformed, has no header or no address column, or
     * holds no record, or when progress stopped it; the control's document
     * then holds the rows before it.
     * @throws Error when the control cannot write its spool.
     */
    bool feed(const Progress &progress, QString *error);
    /**
     * @brief Each row gives as many pieces as this column says (a whole
     * number, 0 or more); empty: one piece a row. The feed fails, naming the
     * line, on any other value, and when the header has no such column.
     */
    void setCopiesColumn(const QString &name) { m_copiesColumn = name; }

    /** @brief Records fed so far. */
    qint64 records() const { return m_records; }

private:
    Quirra &m_control;
    QFile m_file;
    QString m_name;
    qint64 m_size = -1;
    qint64 m_records = 0;
    QString m_copiesColumn;
};

} // namespace quirra
