// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QFile>
#include <QString>

#include <array>

namespace quirra {

/**
 * @brief Reads the spool back, one record at a time, from its header on.
 *
 * A record is simply the next eleven values of the file; record boundaries
 * are not tested, and a record cut short by the end of the file is dropped
 * whole. Values are read as list items: a value in double quotes runs to the
 * closing quote; an unquoted value runs to a comma or a line end and loses
 * its surrounding blanks; a line end separates values as a comma does.
 *
 * The file is read in 64 KiB chunks and only the current record is held, so
 * any number of records can be read back. Any bytes at all (a truncated
 * spool, binary junk, a file that has vanished) end the run early at worst.
 *
 * There is one reader per process (see SharedSpool); the print run reads
 * through it.
 */
class SpoolReader
{
public:
    /** @brief The ten record values read before the substitution list. */
    using Values = std::array<QString, 10>;

    SpoolReader();
    ~SpoolReader();
    SpoolReader(const SpoolReader &) = delete;
    SpoolReader &operator=(const SpoolReader &) = delete;

    /** @brief The spool file the next opening reads. */
    QString path() const { return m_path; }

    /** @brief Names the spool file; a reader already open keeps its file until closed. */
    void setPath(const QString &path) { m_path = path; }

    /**
     * @brief Opens the spool from its start and checks its header.
     *
     * The header must hold the eleven column names exactly (case counts).
     * When it does not, or the file cannot be opened, the reader is closed
     * and the run ends with no pieces and no message.
     *
     * @return true when the run has ended (no usable spool), false when the
     * reader is open and positioned on the first record.
     */
    bool OpenSpoolForReading();

    /**
     * @brief Reads the next record: ten values and the substitution list.
     *
     * Opens the spool first when the reader is not open. At the end of the
     * spool all ten values are set empty, the reader is closed and
     * spoolExhausted() becomes true. The substitution list is read without
     * an end-of-file test: a spool that ends right after a record's tenth
     * value still yields that record, with an empty substitution list.
     *
     * @return true when the run has ended, false when a record was read.
     */
    bool ReadNextRecord(Values &values, QString &substitute);

    /** @brief Closes the file; the next read opens it again from the start. */
    void close();

    /** @brief True while the spool is open for reading with its header accepted. */
    bool isReaderOpen() const { return m_readerOpen; }

    /** @brief True once the current run has met the end of the spool. */
    bool spoolExhausted() const { return m_spoolExhausted; }

    /** @brief Sets or clears the end-of-spool mark (a new run clears it). */
    void setSpoolExhausted(bool exhausted) { m_spoolExhausted = exhausted; }

private:
    bool atEnd();
    bool readValue(QString &value);
    bool fill();
    int peek();
    void skipLineEnd(char first);
    void skipToDelimiter();
    void appendByte(char c);

    QString m_path;
    QFile m_file;
    QByteArray m_chunk;
    qsizetype m_pos = 0;
    qsizetype m_end = 0;
    bool m_fileDone = true;
    QByteArray m_value;
    bool m_valueCut = false;
    bool m_readerOpen = false;
    bool m_spoolExhausted = false;
};

} // namespace quirra
