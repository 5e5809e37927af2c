// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#pragma once

#include "printing/cupsjob.h"
#include "surface/printtarget.h"

#include <QString>

class QPrinter;

namespace quirra {

/**
 * @brief Prints to a QPrinter: one of the system's printers, or a PDF file
 * when the printer's output file name is set.
 *
 * The printer is used full page, so its (0, 0) is the paper's corner, as
 * for a PDF file; the page engine moves every piece by the printable origin.
 */
class PrinterTarget : public PrintTarget
{
public:
    /** @brief Prints on printer, which must outlive the target. */
    explicit PrinterTarget(QPrinter &printer);
    ~PrinterTarget() override;

    /** @brief Asks the printer for the paper and orientation and reports what it took. */
    QPageLayout acceptedLayout(const QPageLayout &wanted) override;
    QPagedPaintDevice *beginDocument(const QPageLayout &firstPage) override;
    void abortDocument() override;
    void endDocument(bool aborted) override;

    /**
     * @brief Chooses the system printer by name. A name that no printer has
     * is kept, and printing to the system's printers fails until another
     * name is chosen (a PDF file still prints): QPrinter alone would keep
     * its previous printer and print there without a word.
     */
    void setPrinterName(const QString &name);

    /**
     * @brief Why the last document did not reach the printer, in the
     * queue's own words (not accepting jobs, stopped, the job refused or
     * aborted); empty when it did, or nothing was printed yet.
     */
    QString failure() const override { return m_failure; }

    /**
     * @brief The file the next document for a system printer is written to
     * before it is handed to CUPS as one job: a new, empty file in the
     * temporary directory, made on the first call. A host that may be
     * interrupted removes it then; the target removes it after the job.
     */
    QString printFile();

    /** @brief How long to follow a job for CUPS stopping it; 3 s by default. */
    void setJobWatchMs(int ms) { m_jobWatchMs = ms; }

private:
    bool startPrintFile();
    void finishPrintFile(bool aborted);

    QPrinter &m_printer;
    QString m_missingPrinter; // a name asked for that no printer has
    QString m_failure;
    QString m_printFile;
    QString m_queue; // the system printer of the document being written
    QList<cupsjob::Option> m_options;
    int m_jobWatchMs = 3000;
};

} // namespace quirra
