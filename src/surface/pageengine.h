// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#pragma once

#include "surface/surface.h"

#include <QSizeF>

#include <functional>
#include <memory>

class QPainter;

namespace quirra {

class PrintTarget;

/**
 * @brief The surface's pages, on Qt Gui alone.
 *
 * In preview a document's pages are recorded, each as a picture in twips
 * with the paper it was begun on, and any of them can be painted later at
 * any resolution; a long preview records its first page and has the others
 * drawn when shown (setPageSource()). In print each page is painted
 * straight onto the print target's device and nothing of it is kept, so a
 * run of any length prints in the same memory.
 *
 * Text is laid out in twips without looking at a device (see setFontSize()):
 * the preview, a PDF file and a printer break every line alike. The
 * surface's (0, 0) is the printable area's top-left corner, which lies
 * setPrintableOrigin() away from the paper's corner on every output.
 *
 * Fonts need a QGuiApplication (the offscreen platform will do).
 */
class PageEngine : public Surface
{
public:
    PageEngine();
    ~PageEngine() override;
    PageEngine(const PageEngine &) = delete;
    PageEngine &operator=(const PageEngine &) = delete;

    /**
     * @brief The output of print documents and of PrintPage; not owned, may
     * be nullptr (printing then fails with error code 1).
     */
    void setPrintTarget(PrintTarget *target);
    /** @brief The output of print documents. */
    PrintTarget *printTarget() const;

    /**
     * @brief Where the printable area starts, in twips from the paper's
     * top-left corner: the strip at the left and top edges the printer cannot
     * reach. The printable area ends as far from the right and bottom edges.
     * Negative values are taken as 0. Applies from the next page begun.
     */
    void setPrintableOrigin(int leftTwips, int topTwips);
    /** @brief The printable area's left offset from the paper's edge, in twips. */
    int printableLeft() const;
    /** @brief The printable area's top offset from the paper's edge, in twips. */
    int printableTop() const;

    /**
     * @brief The paper of a preview page (from 1), in twips, as oriented;
     * empty for a page that does not exist.
     */
    QSizeF pageSizeTwips(int page) const;

    /**
     * @brief Paints a finished preview page, the paper's top-left corner at
     * the painter's origin, at dotsPerInch painter units per inch. The
     * paper itself is not filled. Does nothing for a page that does not
     * exist or is still being recorded.
     */
    void paintPage(QPainter &painter, int page, double dotsPerInch) const;

    /**
     * @brief Draws one preview page on demand: it runs a document of that
     * page alone (StartDoc to EndDoc) on the surface it is given, whose first
     * page becomes the page.
     */
    using PageSource = std::function<void(int page, Surface &surface)>;

    /**
     * @brief Lets the preview have count pages while only those recorded so
     * far are kept: any other page is drawn by source when it is painted or
     * printed, and the last few drawn are kept for paging back and forth.
     * The next preview document drops the source.
     */
    void setPageSource(int count, PageSource source);

    /**
     * @brief Width, in twips, of the widest line of text in the current
     * font, measured as the text boxes set it; blanks at a line's end do not
     * count.
     */
    double TextWidth(const QString &text) override;

    // Surface
    void setPreview(bool on) override;
    bool preview() const override;
    void setAction(SurfaceAction action) override;
    int errorCode() const override;
    void setOrientation(int orientation) override;
    int orientation() const override;
    void setPaperSize(int paperCode) override;
    int paperSize() const override;
    void setCustomPaperSize(int widthTwips, int heightTwips) override;
    QSize paperSizeTwips() const override;
    void setMarginLeft(int twips) override;
    void setMarginTop(int twips) override;
    void setMarginRight(int twips) override;
    void setMarginBottom(int twips) override;
    int marginLeft() const override;
    void setIndentLeft(int twips) override;
    void setIndentRight(int twips) override;
    void setHeader(const QString &text) override;
    void setFooter(const QString &text) override;
    void setFirstPageNumber(int number) override;
    void setPenStyle(int style) override;
    void setBrushStyle(int style) override;
    void setPenWidth(int twips) override;
    void setCurrentX(int twips) override;
    void setCurrentY(int twips) override;
    int currentX() const override;
    int currentY() const override;
    void outputText(const QString &text) override;
    void setFontName(const QString &name) override;
    void setFontSize(double points) override;
    void setFontBold(bool on) override;
    void setFontItalic(bool on) override;
    void setFontUnderline(bool on) override;
    void setFontStrikethrough(bool on) override;
    void setLineSpacing(int percent) override;
    void setTextAlign(int code) override;
    void textBox(const QString &text, int left, int top, int width, int height, bool wrap,
                 bool layoutOnly, bool border) override;
    int textHeight() const override;
    int textWidthLaidOut() const override;
    QRect textInkBounds() const override;
    void setClipBox(int left, int top, int width, int height) override;
    void clearClipBox() override;
    void fillRectangle(const QRect &box, QRgb color) override;
    void outlineRectangle(const QRect &box, QRgb color, int penTwips) override;
    QRect paperRect() const override;
    int pageCount() const override;
    void setPreviewPage(int page) override;
    int previewPage() const override;
    void setZoom(int percent) override;
    int zoom() const override;

    /**
     * @brief Called each time the document begins a page, with the number of
     * pages begun so far in this document: a host shows progress with it
     * while a long run keeps the thread busy. Empty: nobody is told.
     */
    void setPageObserver(std::function<void(int pagesBegun)> observer);
    /** @brief The observer setPageObserver() gave; empty when none. */
    std::function<void(int pagesBegun)> pageObserver() const;

protected:
    /**
     * @brief Called when what a preview pane shows has changed: the preview
     * pages, the page on show or the zoom.
     */
    virtual void previewChanged();

    /**
     * @brief The painter of the open document and, in bodyCorner, the
     * body's corner in its twips; nullptr while no document is open.
     */
    QPainter *bodyPainter(QPoint &bodyCorner) const;

private:
    class Private;
    std::unique_ptr<Private> d;
};

} // namespace quirra
