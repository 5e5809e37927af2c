// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#pragma once

#include "records/textmeasurer.h"

#include <QColor>
#include <QRect>
#include <QSize>
#include <QString>

namespace quirra {

/**
 * @brief What the surface is told to do with the document.
 *
 * The numbers are the codes the control has always sent for these actions.
 */
enum class SurfaceAction {
    StartDoc = 3,  ///< open the output (or clear the preview) and begin page 1
    NewPage = 4,   ///< finish the page and begin the next one
    EndDoc = 6,    ///< finish the last page and close the output
    AbortDoc = 7,  ///< drop the document: a printer cancels the job, a PDF file is removed
    PrintPage = 8, ///< send the preview page on show to the printer
};

/**
 * @brief The printing-and-preview surface that the print run draws on.
 *
 * One member per operation the run, the item drawing and the preview pane
 * use. All positions and lengths are whole twips (1440 to the inch) unless a
 * member says otherwise. Positions of text boxes and of the current position
 * are measured from the page body's top-left corner: the printable area's
 * corner moved right by the left margin and down by the top margin. The
 * printable area begins where the printer can first put ink; with all
 * margins 0 the body and the printable area coincide.
 *
 * The surface works in one of two modes, chosen by the preview switch before
 * the document starts: in preview it keeps every page to show later; in print
 * it sends each page to the output as soon as it is finished and keeps none.
 */
class Surface : public TextMeasurer
{
public:
    ~Surface() override;

    /** @brief Preview (true: pages are kept to be shown) or print (false). */
    virtual void setPreview(bool on) = 0;
    /** @brief The preview switch. */
    virtual bool preview() const = 0;

    /**
     * @brief Performs a document action.
     *
     * StartDoc while a document is open ends that one first. NewPage, EndDoc
     * and AbortDoc without an open document do nothing. PrintPage does
     * nothing when no preview page is on show.
     */
    virtual void setAction(SurfaceAction action) = 0;

    /**
     * @brief The outcome of the last StartDoc or PrintPage.
     *
     * 0: fine. 1: the surface has no output to print to. 2: the output could
     * not be opened (no such printer, an output file that cannot be written).
     */
    virtual int errorCode() const = 0;

    /**
     * @brief Page orientation: 0 portrait, 1 landscape.
     *
     * Other values are refused and the old one stays. While a document is
     * open the change takes effect on the next page.
     */
    virtual void setOrientation(int orientation) = 0;
    /** @brief The orientation the output took: 0 portrait, 1 landscape. */
    virtual int orientation() const = 0;

    /**
     * @brief Paper by its paper code (1 Letter, 5 Legal, 9 A4, 20 No. 10
     * envelope, 27 DL, 28 C5, ...; model/papersizes.h), or 256
     * (CustomPaperCode) for the paper setCustomPaperSize() gave.
     *
     * An unknown code, or 256 with no custom size given, is refused and the
     * old paper stays. While a document is open the change takes effect on
     * the next page.
     */
    virtual void setPaperSize(int paperCode) = 0;
    /** @brief The code of the paper the output really took; 256 for a paper no code names. */
    virtual int paperSize() const = 0;

    /**
     * @brief The size of the custom paper, in whole twips, that the next
     * setPaperSize(256) takes; which side comes first does not matter, as
     * orientation is a setting of its own. A side that is not positive
     * clears the custom size.
     *
     * The base class keeps no custom paper, so such a surface refuses 256.
     */
    virtual void setCustomPaperSize(int widthTwips, int heightTwips);
    /**
     * @brief The size of the paper the output really took, in whole twips,
     * upright (the shorter side first).
     *
     * The base class gives the size of paperSize()'s code.
     */
    virtual QSize paperSizeTwips() const;

    /**
     * @brief Page margins, in twips, inside the printable area.
     *
     * The left and top margins move the page body (and with it every text box
     * and the current position); the header is centred in the top margin and
     * the footer in the bottom margin, between the left and right margins.
     * A negative margin is taken as 0.
     */
    virtual void setMarginLeft(int twips) = 0;
    /** @brief The top margin in twips; see setMarginLeft(). */
    virtual void setMarginTop(int twips) = 0;
    /** @brief The right margin in twips; see setMarginLeft(). */
    virtual void setMarginRight(int twips) = 0;
    /** @brief The bottom margin in twips; see setMarginLeft(). */
    virtual void setMarginBottom(int twips) = 0;
    /** @brief The left margin in twips. */
    virtual int marginLeft() const = 0;

    /**
     * @brief Indent, in twips, between a text box's left edge and its text.
     *
     * The frame still goes round the whole box. A negative indent is taken as
     * 0.
     */
    virtual void setIndentLeft(int twips) = 0;
    /** @brief Indent, in twips, between a text box's text and its right edge. */
    virtual void setIndentRight(int twips) = 0;

    /**
     * @brief A line centred in the top margin of every page; empty for none.
     *
     * "%d" in it shows the page number. The line is set with the font that is
     * current when the page begins, so set it before the document starts.
     */
    virtual void setHeader(const QString &text) = 0;
    /** @brief A line centred in the bottom margin of every page; see setHeader(). */
    virtual void setFooter(const QString &text) = 0;
    /** @brief The number that "%d" in the header and footer shows on the first page. */
    virtual void setFirstPageNumber(int number) = 0;

    /**
     * @brief Line style of text-box frames, a Qt::PenStyle value (0 none,
     * 1 solid, 2 dash, 3 dot, 4 dash-dot, 5 dash-dot-dot); others read as 1.
     */
    virtual void setPenStyle(int style) = 0;
    /**
     * @brief Fill of framed text boxes, a Qt::BrushStyle value (0 none,
     * 1 solid, 2 to 14 the shading and hatch patterns), in black under the
     * text; others read as 0.
     */
    virtual void setBrushStyle(int style) = 0;
    /**
     * @brief Width of text-box frames, in twips; 0 is the thinnest line the
     * output can draw, a negative width is taken as 0.
     */
    virtual void setPenWidth(int twips) = 0;

    /** @brief Horizontal current position, in twips from the body's left edge. */
    virtual void setCurrentX(int twips) = 0;
    /** @brief Vertical current position (the top of the next line), in twips from the body's top.
     */
    virtual void setCurrentY(int twips) = 0;
    /** @brief The horizontal current position in twips. */
    virtual int currentX() const = 0;
    /** @brief The vertical current position in twips. */
    virtual int currentY() const = 0;

    /**
     * @brief Draws text with its top-left at the current position and moves
     * the position to the text's end.
     *
     * A line break in the text starts a new line at the body's left edge, one
     * line height lower. Ignored while no document is open.
     */
    virtual void outputText(const QString &text) = 0;

    /** @brief Typeface of the text that follows; an empty name picks the default face. */
    virtual void setFontName(const QString &name) = 0;
    /**
     * @brief Font size in points (20 twips each); fractions of a twip are
     * rounded. A size that is not positive is refused; sizes above 1000
     * points are taken as 1000.
     */
    virtual void setFontSize(double points) = 0;
    /** @brief Bold face for the text that follows. */
    virtual void setFontBold(bool on) = 0;
    /** @brief Italic face for the text that follows. */
    virtual void setFontItalic(bool on) = 0;
    /** @brief Underlined text. */
    virtual void setFontUnderline(bool on) = 0;
    /** @brief Struck-through text. */
    virtual void setFontStrikethrough(bool on) = 0;

    /**
     * @brief Distance between the tops of two lines, in percent of the
     * font's own line height; 0 or less reads as 100, more than 1000 as 1000.
     */
    virtual void setLineSpacing(int percent) = 0;
    /**
     * @brief Alignment in text boxes: 0 left, 1 centre, 2 right, 9 justified
     * (the last line of each paragraph is not stretched); other codes read
     * as left.
     */
    virtual void setTextAlign(int code) = 0;

    /**
     * @brief Lays out a text in a box and, unless layoutOnly, draws it.
     *
     * Lines are separated by CR, CR LF or LF; a break at the very end of the
     * text adds no empty line. With wrap on, words break to fit the box width
     * less the indents (a word longer than the width breaks inside); with
     * wrap off every line stays whole. Text is not clipped to its box: a
     * line wider than the box starts at the box's left edge and runs on past
     * its right edge, and text taller than the box runs on below it, as ink
     * on a sheet would, as far as the clip box (setClipBox()) lets it. With
     * border on, the frame (see setPenStyle(), setPenWidth(),
     * setBrushStyle()) goes round the whole box, its ink inside the box,
     * whatever the text's height. Nothing is drawn while no document is open.
     *
     * @param left, top the box's top-left corner, in twips from the body's corner
     * @param width, height the box's size, in twips
     */
    virtual void textBox(const QString &text, int left, int top, int width, int height, bool wrap,
                         bool layoutOnly, bool border) = 0;
    /** @brief Height, in twips, of the text the last textBox() laid out. */
    virtual int textHeight() const = 0;
    /**
     * @brief Width, in twips, of the widest line the last textBox() laid
     * out, blanks at a line's end left out. A surface that cannot tell
     * answers 0.
     */
    virtual int textWidthLaidOut() const;
    /**
     * @brief Where ink of the text the last layout-only textBox() laid out
     * can land, in twips from the top-left of its box: its lines, and room
     * round them for glyphs that reach past their line (an accent over a
     * capital, an italic's overhang). Empty when the surface cannot tell
     * (the base class, or a character its font does not vouch for): the ink
     * may then land anywhere.
     */
    virtual QRect textInkBounds() const;

    /**
     * @brief Keeps the drawing that follows inside a box (twips from the
     * body's corner, like a text box): text and frames beyond it are cut
     * off, so a piece's overflow never lands on its neighbour. Holds until
     * clearClipBox() or the next page. A surface that cannot clip ignores it.
     */
    virtual void setClipBox(int left, int top, int width, int height);
    /** @brief Drawing is no longer kept inside a box. */
    virtual void clearClipBox();
    /**
     * @brief Fills a rectangle (twips from the body's corner) with a colour,
     * no pen, no font: a barcode's bars, a used slot's shade. Kept inside
     * the clip box; nothing is drawn while no document is open. A surface
     * that cannot draw ignores it.
     */
    virtual void fillRectangle(const QRect &box, QRgb color);
    /** @brief Outlines a rectangle, its line of penTwips inside the box. */
    virtual void outlineRectangle(const QRect &box, QRgb color, int penTwips);
    /**
     * @brief The paper of the page being drawn (or of the next one) as
     * oriented, in twips from the body's corner: the printable area's and
     * the margins' offsets make its corner negative. Empty when the surface
     * does not know its paper.
     */
    virtual QRect paperRect() const;

    /** @brief Pages in the preview, or pages sent to the output by the current print document. */
    virtual int pageCount() const = 0;
    /** @brief Shows a preview page, counted from 1; kept within 1 and the page count. */
    virtual void setPreviewPage(int page) = 0;
    /** @brief The preview page on show, from 1. */
    virtual int previewPage() const = 0;
    /** @brief Preview zoom, in percent of the real size; kept within 10 and 1000. */
    virtual void setZoom(int percent) = 0;
    /** @brief Preview zoom in percent. */
    virtual int zoom() const = 0;
};

} // namespace quirra
