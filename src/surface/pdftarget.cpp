// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#include "surface/pdftarget.h"

#include "surface/logging_p.h"

#include <QFile>
#include <QPdfWriter>

namespace quirra {

namespace {
// One device unit per twip: the engine's scale to the device is then 1.
constexpr int pdfResolution = 1440;
} // namespace

PdfTarget::PdfTarget(const QString &fileName) : m_fileName(fileName) {}

PdfTarget::~PdfTarget() = default;

void PdfTarget::setFileName(const QString &fileName)
{
    m_fileName = fileName;
}

QPagedPaintDevice *PdfTarget::beginDocument(const QPageLayout &firstPage)
{
    if (m_fileName.isEmpty()) {
        qCWarning(lcSurface) << "no PDF file name is set; nothing can be printed";
        return nullptr;
    }
    m_writer = std::make_unique<QPdfWriter>(m_fileName);
    m_writer->setResolution(pdfResolution);
    m_writer->setCreator(QStringLiteral("QuirraControl"));
    m_writer->setPageLayout(firstPage);
    return m_writer.get();
}

void PdfTarget::endDocument(bool aborted)
{
    m_writer.reset();
    if (aborted)
        QFile::remove(m_fileName);
}

} // namespace quirra
