// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#pragma once

#include "surface/pageengine.h"

#include <QAbstractScrollArea>

#include <memory>

class QPrinter;

namespace quirra {

class PrinterTarget;

/**
 * @brief The printing-and-preview surface as a widget: shows the preview
 * page on show at the zoom and prints on its QPrinter.
 *
 * The page sits centred on a grey ground with a soft shadow; a page larger
 * than the widget scrolls. Print documents and PrintPage go to printer():
 * a system printer, or a PDF file when its output file name is set.
 */
class PrintSurface : public QAbstractScrollArea, public PageEngine
{
    Q_OBJECT

public:
    explicit PrintSurface(QWidget *parent = nullptr);
    ~PrintSurface() override;

    /** @brief The printer that print documents and PrintPage go to. */
    QPrinter *printer() const;

    /**
     * @brief Chooses the system printer that print documents go to, by its
     * name. Use this rather than printer()->setPrinterName(): for a name no
     * printer has, QPrinter keeps its previous printer and would print
     * there, while here the next print document fails with error code 2 (a
     * run shows "Ptr.error = 2") until a printer that exists is chosen.
     */
    void setPrinterName(const QString &name);

    /**
     * @brief Why the last print document did not reach the system printer,
     * in the queue's own words (not accepting jobs, stopped, job refused or
     * aborted); empty when it did.
     */
    QString printerFailure() const;

    /**
     * @brief The temporary file the next print document for a system
     * printer is written to before it goes to the spooler (made now if need
     * be), for a host to remove should it be interrupted.
     */
    QString printFile();

    /** @brief The rectangle, in viewport pixels, where the page on show is painted; empty without
     * pages. */
    QRect pageRect() const;

    QSize sizeHint() const override;

protected:
    void previewChanged() override;
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void scrollContentsBy(int dx, int dy) override;

private:
    QSize pagePixels() const;
    double pixelsPerInch() const;
    void updateScrollBars();

    std::unique_ptr<QPrinter> m_printer;
    std::unique_ptr<PrinterTarget> m_target;
};

} // namespace quirra
