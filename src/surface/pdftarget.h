// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#pragma once

#include "surface/printtarget.h"

#include <QString>

#include <memory>

class QPdfWriter;

namespace quirra {

/**
 * @brief Prints to a PDF file, one page of the file per page of the document.
 *
 * A PDF page reaches the paper's edge, so every piece lands where it lies on
 * the real sheet. An aborted document leaves no file behind.
 */
class PdfTarget : public PrintTarget
{
public:
    explicit PdfTarget(const QString &fileName = QString());
    ~PdfTarget() override;

    /** @brief The file the next document is written to. */
    void setFileName(const QString &fileName);
    /** @brief The file the next document is written to. */
    QString fileName() const { return m_fileName; }

    QPagedPaintDevice *beginDocument(const QPageLayout &firstPage) override;
    void endDocument(bool aborted) override;

private:
    QString m_fileName;
    std::unique_ptr<QPdfWriter> m_writer;
};

} // namespace quirra
