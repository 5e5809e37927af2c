// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QPageLayout>
#include <QString>

class QPagedPaintDevice;

namespace quirra {

/**
 * @brief Where a printed document goes: a printer, a PDF file, ...
 *
 * The page engine asks its target for a paint device when a print document
 * starts, paints each page on it in twips scaled to the device, and hands it
 * back when the document ends. The page's (0, 0) on the device must be the
 * paper's top-left corner; the engine itself moves everything by the
 * printable origin.
 */
class PrintTarget
{
public:
    virtual ~PrintTarget();

    /**
     * @brief The page layout the output takes when asked for wanted (a
     * printer may not have the paper); the wanted layout by default.
     */
    virtual QPageLayout acceptedLayout(const QPageLayout &wanted);

    /**
     * @brief Opens the output for a document whose first page has the given
     * layout (margins 0).
     * @return the device to paint on, owned by the target, or nullptr when the
     * output cannot be opened
     */
    virtual QPagedPaintDevice *beginDocument(const QPageLayout &firstPage) = 0;

    /** @brief Called while the painter is still active when the document is dropped. */
    virtual void abortDocument();

    /**
     * @brief Called after the painter on the device has ended (or failed to
     * begin); aborted is true when the document was dropped.
     */
    virtual void endDocument(bool aborted) = 0;

    /**
     * @brief Why the last document did not reach its output although it was
     * painted whole (a printer queue refused it); empty by default.
     */
    virtual QString failure() const;
};

} // namespace quirra
