// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#include "surface/printertarget.h"

#include "surface/logging_p.h"

#include <QPrinter>
#include <QPrinterInfo>

namespace quirra {

PrinterTarget::PrinterTarget(QPrinter &printer) : m_printer(printer) {}

PrinterTarget::~PrinterTarget() = default;

QPageLayout PrinterTarget::acceptedLayout(const QPageLayout &wanted)
{
    m_printer.setFullPage(true);
    m_printer.setPageOrientation(wanted.orientation());
    if (!m_printer.setPageSize(wanted.pageSize()))
        qCInfo(lcSurface) << "the printer has no paper" << wanted.pageSize().name();
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
    if (!m_missingPrinter.isEmpty() && m_printer.outputFormat() == QPrinter::NativeFormat) {
        qCWarning(lcSurface) << "there is no printer named" << m_missingPrinter;
        return nullptr;
    }
    if (!m_printer.isValid()) {
        qCWarning(lcSurface) << "printer" << m_printer.printerName() << "is not available";
        return nullptr;
    }
    m_printer.setFullPage(true);
    m_printer.setPageOrientation(firstPage.orientation());
    m_printer.setPageSize(firstPage.pageSize());
    m_printer.setPageMargins(QMarginsF(0, 0, 0, 0), QPageLayout::Point);
    return &m_printer;
}

void PrinterTarget::abortDocument()
{
    m_printer.abort();
}

void PrinterTarget::endDocument(bool) {}

} // namespace quirra
