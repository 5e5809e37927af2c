// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#include "surface/pageengine_p.h"

#include "surface/logging_p.h"
#include "surface/pagehelpers_p.h"
#include "surface/papercodes.h"
#include "surface/printtarget.h"
#include "surface/textblock_p.h"

#include <QPagedPaintDevice>

#include <algorithm>

namespace quirra {

using namespace pageengine;

void PageEngine::Private::takeLayout(const QPageLayout &wanted, int wantedCode)
{
    // Printing asks the output what it will really take; a preview takes any paper.
    const QPageLayout taken = (!preview && target) ? target->acceptedLayout(wanted) : wanted;
    orientation = taken.orientation();
    const QPageSize takenSize = taken.pageSize();
    if (takenSize.isValid() && !takenSize.isEquivalentTo(wanted.pageSize())) {
        pageSize = takenSize;
        paperCode = paperCodeForPageSize(takenSize);
    } else {
        pageSize = wanted.pageSize();
        paperCode = wantedCode;
    }
}

QSizeF PageEngine::Private::printableSize() const
{
    const QSizeF paper = paperTwips(pageLayout);
    return QSizeF(std::max(0.0, paper.width() - 2.0 * originLeft),
                  std::max(0.0, paper.height() - 2.0 * originTop));
}

void PageEngine::Private::startDoc(PageEngine *q)
{
    if (docOpen)
        endDoc(q, false);
    error = NoError;
    pagesInDoc = 0;
    docIsPreview = preview;
    pageLayout = wantedLayout();
    if (docIsPreview) {
        pages.clear();
        dropSource();
        previewPage = 1;
        docOpen = true;
        beginPage();
        q->previewChanged();
        return;
    }
    if (!target) {
        qCWarning(lcSurface) << "printing was asked for but no printer or file is set";
        error = NoOutput;
        return;
    }
    device = target->beginDocument(pageLayout);
    if (!device) {
        error = CannotOpen;
        return;
    }
    if (!painter.begin(device)) {
        qCWarning(lcSurface) << "the printer or output file cannot be opened";
        error = CannotOpen;
        device = nullptr;
        target->endDocument(false);
        return;
    }
    docOpen = true;
    beginPage();
}

void PageEngine::Private::beginPage()
{
    const QPageLayout previous = pageLayout;
    pageLayout = wantedLayout();
    if (docIsPreview) {
        recording = QPicture();
        painter.begin(&recording);
        painter.translate(originLeft, originTop);
    } else {
        if (pagesInDoc > 0) {
            if (!pageLayout.isEquivalentTo(previous))
                device->setPageLayout(pageLayout);
            device->newPage();
        }
        // Device units per twip; a new page may come with a new resolution
        // on some printers, so the scale is set on every page.
        painter.resetTransform();
        painter.scale(device->logicalDpiX() / twipsPerInch, device->logicalDpiY() / twipsPerInch);
        painter.translate(originLeft, originTop);
    }
    ++pagesInDoc;
    if (pageObserver)
        pageObserver(pagesInDoc);
    currentX = 0;
    currentY = 0;
    painter.setClipping(false); // a clip belongs to a piece, never to the next page
    drawMarginLine(header, true);
    drawMarginLine(footer, false);
}

void PageEngine::Private::endPage()
{
    if (docIsPreview) {
        painter.end();
        pages.emplace_back(recording, pageLayout);
        recording = QPicture();
    }
}

void PageEngine::Private::newPage()
{
    if (!docOpen)
        return;
    endPage();
    beginPage();
}

void PageEngine::Private::endDoc(PageEngine *q, bool aborted)
{
    if (!docOpen)
        return;
    docOpen = false;
    if (docIsPreview) {
        endPage();
        if (aborted)
            pages.clear();
        previewPage = pages.empty() ? 1 : std::clamp(previewPage, 1, int(pages.size()));
        q->previewChanged();
        return;
    }
    if (aborted)
        target->abortDocument();
    painter.end();
    device = nullptr;
    target->endDocument(aborted);
    if (!aborted && !target->failure().isEmpty())
        error = NotPrinted;
}

void PageEngine::Private::printPreviewPage()
{
    if (docOpen) {
        qCWarning(lcSurface) << "a preview page cannot be printed while a document is open";
        return;
    }
    const RecordedPage *shown = previewPageAt(previewPage);
    if (!shown)
        return;
    error = NoError;
    if (!target) {
        qCWarning(lcSurface) << "printing was asked for but no printer or file is set";
        error = NoOutput;
        return;
    }
    const RecordedPage page = *shown; // drawing it again may not push it out of the cache
    QPagedPaintDevice *out = target->beginDocument(page.layout);
    if (!out) {
        error = CannotOpen;
        return;
    }
    QPainter p;
    if (!p.begin(out)) {
        qCWarning(lcSurface) << "the printer or output file cannot be opened";
        error = CannotOpen;
        target->endDocument(false);
        return;
    }
    p.scale(out->logicalDpiX() / twipsPerInch, out->logicalDpiY() / twipsPerInch);
    playPicture(p, page.picture());
    p.end();
    target->endDocument(false);
}

int PageEngine::Private::previewPageCount() const
{
    return std::max(int(pages.size()) + (docOpen && docIsPreview ? 1 : 0), sourcePages);
}

void PageEngine::Private::dropSource()
{
    source = nullptr;
    sourcePages = 0;
    drawn.clear();
}

const RecordedPage *PageEngine::Private::previewPageAt(int page)
{
    if (page >= 1 && page <= int(pages.size()))
        return &pages[size_t(page - 1)];
    if (page < 1 || page > sourcePages || !source)
        return nullptr;
    const auto kept = std::find_if(drawn.begin(), drawn.end(),
                                   [page](const auto &entry) { return entry.first == page; });
    if (kept != drawn.end()) {
        std::rotate(drawn.begin(), kept, kept + 1);
        return &drawn.front().second;
    }
    if (!scratch)
        scratch = std::make_unique<PageEngine>();
    scratch->setPreview(true);
    scratch->setPrintableOrigin(sourceOrigin.x(), sourceOrigin.y());
    source(page, *scratch);
    std::vector<RecordedPage> &made = scratch->d->pages;
    if (made.empty() || scratch->d->docOpen) {
        qCWarning(lcSurface) << "preview page" << page << "could not be drawn";
        return nullptr;
    }
    drawn.emplace_front(page, std::move(made.front()));
    made.clear();
    if (drawn.size() > drawnPagesKept)
        drawn.pop_back();
    return &drawn.front().second;
}

void PageEngine::Private::drawMarginLine(const QString &line, bool top)
{
    if (line.isEmpty())
        return;
    QString shown = line;
    shown.replace(QLatin1String("%d"), QString::number(qint64(firstPageNumber) + pagesInDoc - 1));
    const QSizeF area = printableSize();
    const double spanWidth = area.width() - marginLeft - marginRight;
    auto block = text.layOut(shown, spanWidth, false, Qt::AlignHCenter, 100);
    double y;
    if (top) {
        y = std::max(0.0, (marginTop - block->height()) / 2.0);
    } else {
        y = area.height() - marginBottom + (marginBottom - block->height()) / 2.0;
        y = std::min(y, area.height() - block->height());
    }
    painter.setPen(Qt::black);
    block->draw(painter, QPointF(marginLeft, y));
}

void PageEngine::Private::drawFrame(const QRectF &box)
{
    if (penStyle == Qt::NoPen && brushStyle == Qt::NoBrush)
        return;
    if (brushStyle != Qt::NoBrush)
        painter.fillRect(box, QBrush(Qt::black, brushStyle));
    if (penStyle == Qt::NoPen)
        return;
    // The frame's ink stays inside the box: the line runs half a pen width in.
    const double half = penWidth / 2.0;
    const QRectF line = box.adjusted(half, half, -half, -half);
    if (line.width() < 0 || line.height() < 0) {
        painter.fillRect(box, Qt::black);
        return;
    }
    QPen pen(Qt::black, penWidth, penStyle, Qt::SquareCap, Qt::MiterJoin);
    painter.setPen(pen);
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(line);
}

} // namespace quirra
