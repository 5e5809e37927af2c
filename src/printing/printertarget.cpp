// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#include "printing/printertarget.h"

#include "model/error.h"
#include "printing/cupsjob.h"
#include "printing/logging_p.h"
#include "settings/files.h"

#include <QFile>
#include <QPrintEngine>

#include <QPrinter>
#include <QPrinterInfo>

namespace quirra {

PrinterTarget::PrinterTarget(QPrinter &printer) : m_printer(printer) {}

PrinterTarget::~PrinterTarget()
{
    if (!m_printFile.isEmpty())
        QFile::remove(m_printFile);
}

QPageLayout PrinterTarget::acceptedLayout(const QPageLayout &wanted)
{
    m_printer.setFullPage(true);
    m_printer.setPageOrientation(wanted.orientation());
    if (!m_printer.setPageSize(wanted.pageSize()))
        qCInfo(lcPrinting) << "the printer has no paper" << wanted.pageSize().name();
    return m_printer.pageLayout();
}

void PrinterTarget::setPrinterName(const QString &name)
{
    if (!name.isEmpty() && QPrinterInfo::printerInfo(name).isNull()) {
        m_missingPrinter = name;
        return;
    }
    m_missingPrinter.clear();
    m_printer.setPrinterName(name);
}

QPagedPaintDevice *PrinterTarget::beginDocument(const QPageLayout &firstPage)
{
    m_failure.clear();
    if (!m_missingPrinter.isEmpty() && m_printer.outputFormat() == QPrinter::NativeFormat) {
        qCWarning(lcPrinting) << "there is no printer named" << m_missingPrinter;
        return nullptr;
    }
    if (!m_printer.isValid()) {
        qCWarning(lcPrinting) << "printer" << m_printer.printerName() << "is not available";
        return nullptr;
    }
    m_printer.setFullPage(true);
    m_printer.setPageOrientation(firstPage.orientation());
    m_printer.setPageSize(firstPage.pageSize());
    m_printer.setPageMargins(QMarginsF(0, 0, 0, 0), QPageLayout::Point);
    if (m_printer.outputFormat() == QPrinter::NativeFormat && !startPrintFile())
        return nullptr;
    return &m_printer;
}

void PrinterTarget::abortDocument()
{
    m_printer.abort();
}

void PrinterTarget::endDocument(bool aborted)
{
    if (!m_queue.isEmpty())
        finishPrintFile(aborted);
}

QString PrinterTarget::printFile()
{
    if (m_printFile.isEmpty()) {
        try {
            m_printFile = MakeTempFileName(QStringLiteral("qzj"));
        } catch (const Error &e) {
            m_failure = e.message();
        }
    }
    return m_printFile;
}

// Qt hands its print file to CUPS and drops the answer: a queue that
// rejects the job, or aborts it, would print nothing without a word. So the
// pages go to a file of the target's own, and the target sends it.
bool PrinterTarget::startPrintFile()
{
    const QString queue = m_printer.printerName();
    m_failure = cupsjob::queueProblem(queue);
    if (!m_failure.isEmpty()) {
        // The run reports it (failure(), error code 2); the log has it for
        // whoever follows the library.
        qCDebug(lcPrinting).noquote() << m_failure;
        if (!m_printFile.isEmpty())
            QFile::remove(m_printFile);
        m_printFile.clear();
        return false;
    }
    if (printFile().isEmpty()) {
        qCWarning(lcPrinting).noquote() << m_failure;
        return false;
    }
    // The options Qt would have sent: the paper, and what a print dialog set.
    m_options.clear();
    const QPageLayout layout = m_printer.pageLayout();
    m_options.append(cupsjob::Option("media", layout.pageSize().key().toUtf8()));
    if (layout.orientation() == QPageLayout::Landscape)
        m_options.append(cupsjob::Option("landscape", QByteArray()));
    if (m_printer.copyCount() > 1) {
        m_options.append(cupsjob::Option("copies", QByteArray::number(m_printer.copyCount())));
        if (m_printer.collateCopies())
            m_options.append(cupsjob::Option("Collate", "True"));
    }
    switch (m_printer.duplex()) {
    case QPrinter::DuplexLongSide:
        m_options.append(cupsjob::Option("sides", "two-sided-long-edge"));
        break;
    case QPrinter::DuplexShortSide:
        m_options.append(cupsjob::Option("sides", "two-sided-short-edge"));
        break;
    case QPrinter::DuplexNone:
        m_options.append(cupsjob::Option("sides", "one-sided"));
        break;
    case QPrinter::DuplexAuto:
        break;
    }
    // Qt's key for the options of its CUPS print dialog (page ranges, ...).
    constexpr auto CupsOptionsKey = QPrintEngine::PrintEnginePropertyKey(0xfe00);
    const QStringList dialog = m_printer.printEngine()->property(CupsOptionsKey).toStringList();
    for (qsizetype i = 0; i + 1 < dialog.size(); i += 2)
        m_options.append(cupsjob::Option(dialog[i].toUtf8(), dialog[i + 1].toUtf8()));

    m_queue = queue;
    m_printer.setOutputFileName(m_printFile); // a PDF file now, same layout
    m_printer.setPageLayout(layout);
    return true;
}

void PrinterTarget::finishPrintFile(bool aborted)
{
    const QString queue = m_queue;
    m_queue.clear();
    // Back to the system printer, for the next document.
    m_printer.setOutputFileName(QString());
    m_printer.setPrinterName(queue);
    if (!aborted) {
        m_failure =
            cupsjob::printFile(queue, m_printFile, m_printer.docName(), m_options, m_jobWatchMs);
        if (!m_failure.isEmpty())
            qCDebug(lcPrinting).noquote() << m_failure;
    }
    QFile::remove(m_printFile);
    m_printFile.clear();
}

} // namespace quirra
