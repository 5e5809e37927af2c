// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#include "surface/pageengine_p.h"

#include "surface/logging_p.h"
#include "surface/pagehelpers_p.h"
#include "surface/papercodes.h"
#include "surface/printtarget.h"
#include "surface/textblock_p.h"
#include "surface/textformatter_p.h"

#include <QPageLayout>
#include <QPagedPaintDevice>
#include <QPainter>
#include <QPicture>

#include <algorithm>
#include <cmath>
#include <vector>

namespace quirra {

using namespace pageengine;

PageEngine::PageEngine() : d(std::make_unique<Private>())
{
    d->pageLayout = d->wantedLayout();
}

PageEngine::~PageEngine()
{
    if (d->docOpen)
        d->endDoc(this, false);
}

void PageEngine::setPrintTarget(PrintTarget *target)
{
    if (d->docOpen && !d->docIsPreview) {
        qCWarning(lcSurface) << "the output cannot change while a document prints";
        return;
    }
    d->target = target;
}

PrintTarget *PageEngine::printTarget() const
{
    return d->target;
}

void PageEngine::setPrintableOrigin(int leftTwips, int topTwips)
{
    d->originLeft = std::max(0, leftTwips);
    d->originTop = std::max(0, topTwips);
}

int PageEngine::printableLeft() const
{
    return d->originLeft;
}

int PageEngine::printableTop() const
{
    return d->originTop;
}

QSizeF PageEngine::pageSizeTwips(int page) const
{
    if (page >= 1 && page <= int(d->pages.size()))
        return paperTwips(d->pages[size_t(page - 1)].layout);
    const RecordedPage *drawn = d->previewPageAt(page);
    return drawn ? paperTwips(drawn->layout) : QSizeF();
}

void PageEngine::paintPage(QPainter &painter, int page, double dotsPerInch) const
{
    const RecordedPage *shown = dotsPerInch > 0 ? d->previewPageAt(page) : nullptr;
    if (!shown)
        return;
    painter.save();
    painter.scale(dotsPerInch / twipsPerInch, dotsPerInch / twipsPerInch);
    playPicture(painter, shown->picture());
    painter.restore();
}

double PageEngine::TextWidth(const QString &text)
{
    return d->text.textWidth(text);
}

void PageEngine::setPreview(bool on)
{
    d->preview = on;
}

bool PageEngine::preview() const
{
    return d->preview;
}

void PageEngine::setAction(SurfaceAction action)
{
    switch (action) {
    case SurfaceAction::StartDoc:
        d->startDoc(this);
        break;
    case SurfaceAction::NewPage:
        d->newPage();
        break;
    case SurfaceAction::EndDoc:
        d->endDoc(this, false);
        break;
    case SurfaceAction::AbortDoc:
        d->endDoc(this, true);
        break;
    case SurfaceAction::PrintPage:
        d->printPreviewPage();
        break;
    default:
        qCWarning(lcSurface) << "document action" << int(action) << "is not known; ignored";
        break;
    }
}

int PageEngine::errorCode() const
{
    return d->error;
}

void PageEngine::setOrientation(int orientation)
{
    if (orientation != 0 && orientation != 1) {
        qCWarning(lcSurface) << "orientation" << orientation << "is neither 0 nor 1; ignored";
        return;
    }
    QPageLayout wanted = d->wantedLayout();
    wanted.setOrientation(orientation == 1 ? QPageLayout::Landscape : QPageLayout::Portrait);
    d->takeLayout(wanted, d->paperCode);
}

int PageEngine::orientation() const
{
    return d->orientation == QPageLayout::Landscape ? 1 : 0;
}

void PageEngine::setPaperSize(int paperCode)
{
    const QPageSize size = pageSizeForPaper(paperCode, d->customPaper);
    if (!size.isValid()) {
        qCWarning(lcSurface) << "paper code" << paperCode << "has no size; the paper stays";
        return;
    }
    QPageLayout wanted = d->wantedLayout();
    wanted.setPageSize(size);
    d->takeLayout(wanted, paperCode);
}

int PageEngine::paperSize() const
{
    return d->paperCode;
}

void PageEngine::setCustomPaperSize(int widthTwips, int heightTwips)
{
    d->customPaper = widthTwips > 0 && heightTwips > 0 ? QSize(widthTwips, heightTwips) : QSize();
}

QSize PageEngine::paperSizeTwips() const
{
    return uprightTwips(d->pageSize);
}

void PageEngine::setMarginLeft(int twips)
{
    d->marginLeft = std::max(0, twips);
}

void PageEngine::setMarginTop(int twips)
{
    d->marginTop = std::max(0, twips);
}

void PageEngine::setMarginRight(int twips)
{
    d->marginRight = std::max(0, twips);
}

void PageEngine::setMarginBottom(int twips)
{
    d->marginBottom = std::max(0, twips);
}

int PageEngine::marginLeft() const
{
    return d->marginLeft;
}

void PageEngine::setIndentLeft(int twips)
{
    d->indentLeft = std::max(0, twips);
}

void PageEngine::setIndentRight(int twips)
{
    d->indentRight = std::max(0, twips);
}

void PageEngine::setHeader(const QString &text)
{
    d->header = text;
}

void PageEngine::setFooter(const QString &text)
{
    d->footer = text;
}

void PageEngine::setFirstPageNumber(int number)
{
    d->firstPageNumber = number;
}

void PageEngine::setPenStyle(int style)
{
    if (style < Qt::NoPen || style > Qt::DashDotDotLine) {
        qCWarning(lcSurface) << "pen style" << style << "is not known; frames are solid";
        style = Qt::SolidLine;
    }
    d->penStyle = Qt::PenStyle(style);
}

void PageEngine::setBrushStyle(int style)
{
    if (style < Qt::NoBrush || style > Qt::DiagCrossPattern) {
        qCWarning(lcSurface) << "brush style" << style << "is not known; boxes are not filled";
        style = Qt::NoBrush;
    }
    d->brushStyle = Qt::BrushStyle(style);
}

void PageEngine::setPenWidth(int twips)
{
    d->penWidth = std::max(0, twips);
}

void PageEngine::setCurrentX(int twips)
{
    d->currentX = twips;
}

void PageEngine::setCurrentY(int twips)
{
    d->currentY = twips;
}

int PageEngine::currentX() const
{
    return d->currentX;
}

int PageEngine::currentY() const
{
    return d->currentY;
}

void PageEngine::outputText(const QString &text)
{
    if (!d->docOpen)
        return;
    const QStringList lines = TextBlock::splitLines(text);
    d->painter.setPen(Qt::black);
    for (qsizetype i = 0; i < lines.size(); ++i) {
        if (i > 0) {
            d->currentX = 0;
            d->currentY = clampToInt(d->currentY + d->text.lineHeight() * d->lineSpacing / 100.0);
        }
        auto block = d->text.layOut(lines.at(i), 0, false, Qt::AlignLeft, 100);
        block->draw(d->painter, QPointF(double(d->marginLeft) + d->currentX,
                                        double(d->marginTop) + d->currentY));
        d->currentX = clampToInt(d->currentX + block->lastLineAdvance());
    }
}

void PageEngine::setFontName(const QString &name)
{
    d->text.setFamily(name.trimmed());
}

void PageEngine::setFontSize(double points)
{
    if (!(points > 0)) {
        qCWarning(lcSurface) << "font size" << points << "is not a positive number; ignored";
        return;
    }
    if (points > maxFontPoints) {
        qCWarning(lcSurface) << "font size" << points << "points is taken as" << maxFontPoints;
        points = maxFontPoints;
    }
    d->text.setSizeTwips(int(std::lround(points * twipsPerPoint)));
}

void PageEngine::setFontBold(bool on)
{
    d->text.setBold(on);
}

void PageEngine::setFontItalic(bool on)
{
    d->text.setItalic(on);
}

void PageEngine::setFontUnderline(bool on)
{
    d->text.setUnderline(on);
}

void PageEngine::setFontStrikethrough(bool on)
{
    d->text.setStrikeOut(on);
}

void PageEngine::setLineSpacing(int percent)
{
    d->lineSpacing = percent <= 0 ? 100 : std::min(percent, maxLineSpacing);
}

void PageEngine::setTextAlign(int code)
{
    d->alignment = TextFormatter::alignmentForCode(code);
}

QRect PageEngine::Private::inkBounds(const QString &laidOut, const TextBlock &block,
                                     double textWidth)
{
    const double room = text.inkRoom(laidOut);
    if (room < 0)
        return QRect();
    // Lines start at the indent and fill the width, or run on past it; one
    // that a wrap could not break, centred or set right, starts before it by
    // as much. Each line's glyphs stand on its baseline.
    const double over = std::max(0.0, block.naturalWidth() - textWidth);
    const double lines = std::max(block.lineCount(), 1);
    const double pitch = text.lineHeight() * lineSpacing / 100.0;
    const QRectF ink(QPointF(indentLeft - over - room, -room),
                     QPointF(indentLeft + std::max(textWidth, block.naturalWidth()) + room,
                             (lines - 1) * pitch + text.lineHeight() + room));
    constexpr double farTwips = 1e9; // far past any paper, well inside an int
    if (ink.left() > -farTwips && ink.right() < farTwips && ink.bottom() < farTwips)
        return ink.toAlignedRect();
    return QRect();
}

void PageEngine::textBox(const QString &text, int left, int top, int width, int height, bool wrap,
                         bool layoutOnly, bool border)
{
    width = std::max(0, width);
    height = std::max(0, height);
    const double textWidth = double(width) - d->indentLeft - d->indentRight;
    auto block = d->text.layOut(text, textWidth, wrap, d->alignment, d->lineSpacing);
    d->textHeight = clampToInt(block->height());
    d->textWidth = clampToInt(block->naturalWidth());
    if (layoutOnly)
        d->textInk = d->inkBounds(text, *block, textWidth);
    if (layoutOnly || !d->docOpen)
        return;
    const QRectF box(double(d->marginLeft) + left, double(d->marginTop) + top, width, height);
    if (border)
        d->drawFrame(box);
    if (block->lineCount() > 0) {
        d->painter.setPen(Qt::black);
        block->draw(d->painter, box.topLeft() + QPointF(d->indentLeft, 0));
    }
}

int PageEngine::textHeight() const
{
    return d->textHeight;
}

int PageEngine::textWidthLaidOut() const
{
    return d->textWidth;
}

QRect PageEngine::textInkBounds() const
{
    return d->textInk;
}

void PageEngine::setClipBox(int left, int top, int width, int height)
{
    if (d->docOpen)
        d->painter.setClipRect(QRectF(double(d->marginLeft) + left, double(d->marginTop) + top,
                                      std::max(0, width), std::max(0, height)));
}

void PageEngine::clearClipBox()
{
    if (d->docOpen)
        d->painter.setClipping(false);
}

QPainter *PageEngine::bodyPainter(QPoint &bodyCorner) const
{
    bodyCorner = QPoint(d->marginLeft, d->marginTop);
    return d->docOpen ? &d->painter : nullptr;
}

QRect PageEngine::paperRect() const
{
    const QSizeF paper = paperTwips(d->wantedLayout());
    return QRect(-d->originLeft - d->marginLeft, -d->originTop - d->marginTop,
                 clampToInt(paper.width()), clampToInt(paper.height()));
}

int PageEngine::pageCount() const
{
    if (d->preview)
        return d->previewPageCount();
    return d->docIsPreview ? 0 : d->pagesInDoc;
}

void PageEngine::setPreviewPage(int page)
{
    const int last = std::max(1, std::max(int(d->pages.size()), d->sourcePages));
    const int shown = std::clamp(page, 1, last);
    if (shown != d->previewPage) {
        d->previewPage = shown;
        previewChanged();
    }
}

int PageEngine::previewPage() const
{
    return d->previewPage;
}

void PageEngine::setZoom(int percent)
{
    const int zoom = std::clamp(percent, minZoom, maxZoom);
    if (zoom != d->zoom) {
        d->zoom = zoom;
        previewChanged();
    }
}

int PageEngine::zoom() const
{
    return d->zoom;
}

void PageEngine::previewChanged() {}

void PageEngine::setPageObserver(std::function<void(int pagesBegun)> observer)
{
    d->pageObserver = std::move(observer);
}

std::function<void(int pagesBegun)> PageEngine::pageObserver() const
{
    return d->pageObserver;
}

void PageEngine::setPageSource(int count, PageSource source)
{
    const bool first = !d->source;
    if (!source || count < 1) {
        d->dropSource();
    } else {
        d->source = std::move(source);
        d->sourcePages = count;
        d->sourceOrigin = QPoint(d->originLeft, d->originTop);
    }
    if (first)
        previewChanged();
}

} // namespace quirra
