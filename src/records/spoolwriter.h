// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QFile>
#include <QString>

#include <functional>

namespace quirra {

class Record;

/**
 * @brief Appends one control's records to the spool, one line each.
 *
 * Each control has its own writer; the file it writes is the process's spool
 * (SharedSpool::spoolPath() at the moment the file is opened). The file is
 * UTF-8 text with CR LF line ends: a header line of the eleven quoted column
 * names, then one line of eleven quoted values per record.
 *
 * Each NewPiece() makes room on the disk for its line before it returns,
 * so a full temporary directory is raised by the call whose line does not
 * fit. The lines themselves go to the file in batches: at every yield, when
 * a batch passes BatchBytes, at EndDoc(), and before any spool reader of the
 * process opens the file (see flushAll()). Where the file system cannot
 * set room aside, each line is written through by its own call.
 *
 * The writer yields to event processing after creating the file, after
 * every YieldEvery lines and after closing, so a host feeding many records
 * stays responsive without paying for an event round per record.
 */
class SpoolWriter
{
public:
    /** @brief NewPiece() yields after this many records. */
    static constexpr int YieldEvery = 256;

    /** @brief Lines are written once a batch holds this many bytes. */
    static constexpr qsizetype BatchBytes = 64 * 1024;

    /** @brief Called where the writer yields; an empty hook does nothing. */
    using YieldHook = std::function<void()>;

    /** @brief A writer with no document yet, yielding through processPendingEvents(). */
    SpoolWriter();

    /** @brief Closes the file if open, writing what is buffered; errors are only logged. */
    ~SpoolWriter();

    SpoolWriter(const SpoolWriter &) = delete;
    SpoolWriter &operator=(const SpoolWriter &) = delete;

    /**
     * @brief Starts a document: truncates the spool and writes its header,
     * unless the spool is already open, in which case nothing happens (the
     * records written so far stay, and no second header is written).
     * @throws Error when the spool cannot be opened or written.
     */
    void StartDoc();

    /**
     * @brief Appends record as one line.
     *
     * When the spool is closed it is reopened for appending if this writer
     * has started a document before, and created with its header otherwise.
     * A record whose values hold a double quote or a line break is written as
     * it stands, with a warning in the log (see Record::spoolProblem()).
     *
     * @throws Error when the spool cannot be opened or written.
     */
    void NewPiece(const Record &record);

    /**
     * @brief Closes the spool, keeping the document: a later NewPiece()
     * appends to it, a later StartDoc() truncates it.
     * @throws Error when the buffered lines cannot be written.
     */
    void EndDoc();

    /** @brief True while the spool is open for writing. */
    bool isSpoolOpen() const { return m_open; }

    /** @brief True once this writer has created the spool and written its header. */
    bool isSpoolStarted() const { return m_started; }

    /** @brief Replaces the hook called where the writer yields. */
    void setYieldHook(YieldHook hook) { m_yield = std::move(hook); }

    /**
     * @brief The default yield: processes pending events when an
     * application object exists, else does nothing.
     */
    static void processPendingEvents();

    /**
     * @brief Writes the lines every writer of the process holds, so that a
     * reader opening the spool finds every record made so far. A writer that
     * fails here keeps its error for its own next call.
     */
    static void flushAll();

private:
    void CreateSpool();
    void openSpool(QIODevice::OpenMode mode);
    void writeBuffer();
    bool reserveBatch();
    void raisePending();
    [[noreturn]] void failWith(int code);
    void closeFile();
    void yieldOnce();

    QFile m_file;
    QByteArray m_buffer;
    YieldHook m_yield;
    bool m_open = false;
    bool m_started = false;
    int m_sinceYield = 0;
    qint64 m_offset = 0;   // bytes in the file, the batch not counted
    qint64 m_reserved = 0; // the file's room on the disk, from its start
    bool m_canReserve = true;
    QString m_pendingError; // a failure of flushAll(), raised by the next call
};

} // namespace quirra
