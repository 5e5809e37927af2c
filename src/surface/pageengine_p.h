// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#pragma once

#include "surface/pageengine.h"
#include "surface/textformatter_p.h"

#include <QByteArray>
#include <QPageLayout>
#include <QPainter>
#include <QPicture>

#include <deque>
#include <functional>
#include <memory>
#include <vector>

class QPagedPaintDevice;

namespace quirra {

class PrintTarget;

namespace pageengine {

inline constexpr double twipsPerInch = 1440.0;
inline constexpr double twipsPerPoint = 20.0;
inline constexpr double maxFontPoints = 1000.0;
inline constexpr int minZoom = 10;
inline constexpr int maxZoom = 1000;
inline constexpr int maxLineSpacing = 1000;
// Pages a page source drew, kept for paging back and forth.
inline constexpr size_t drawnPagesKept = 4;

// NotPrinted: the pages were painted but the output refused them (a printer
// queue rejected or aborted the job).
enum ErrorCode { NoError = 0, NoOutput = 1, CannotOpen = 2, NotPrinted = 3 };

// A recorded page kept packed: a page of labels records some 16 KB of
// drawing that packs to a fraction of it, and a preview without a page
// source keeps every page. It is unpacked each time it is painted.
struct RecordedPage
{
    RecordedPage(const QPicture &recorded, const QPageLayout &paper)
        : packed(
              qCompress(QByteArray::fromRawData(recorded.data(), qsizetype(recorded.size())), 1)),
          layout(paper)
    {
        packed.squeeze(); // packing leaves room for the worst case
    }
    /** @brief The page in twips, the paper's corner at (0, 0). */
    QPicture picture() const
    {
        const QByteArray data = qUncompress(packed);
        QPicture unpacked;
        unpacked.setData(data.constData(), uint(data.size()));
        return unpacked;
    }
    QByteArray packed;
    QPageLayout layout;
};

} // namespace pageengine

class PageEngine::Private
{
public:
    QPageLayout wantedLayout() const
    {
        return QPageLayout(pageSize, orientation, QMarginsF(0, 0, 0, 0));
    }

    void takeLayout(const QPageLayout &wanted, int wantedCode);
    void startDoc(PageEngine *q);
    void newPage();
    void endDoc(PageEngine *q, bool aborted);
    void printPreviewPage();
    void beginPage();
    void endPage();
    void drawMarginLine(const QString &text, bool top);
    void drawFrame(const QRectF &box);
    /** @brief textInkBounds() of text laid out as block, lines textWidth wide. */
    QRect inkBounds(const QString &text, const TextBlock &block, double textWidth);
    QSizeF printableSize() const;
    int previewPageCount() const;
    const pageengine::RecordedPage *previewPageAt(int page);
    void dropSource();

    std::function<void(int)> pageObserver;

    // settings
    bool preview = true;
    QPageLayout::Orientation orientation = QPageLayout::Portrait;
    QPageSize pageSize{QPageSize::Letter};
    int paperCode = 1;
    QSize customPaper; // twips; empty: none given
    int originLeft = 0;
    int originTop = 0;
    int marginLeft = 0;
    int marginTop = 0;
    int marginRight = 0;
    int marginBottom = 0;
    int indentLeft = 0;
    int indentRight = 0;
    QString header;
    QString footer;
    int firstPageNumber = 1;
    Qt::PenStyle penStyle = Qt::SolidLine;
    Qt::BrushStyle brushStyle = Qt::NoBrush;
    int penWidth = 10;
    int currentX = 0;
    int currentY = 0;
    TextFormatter text;
    int lineSpacing = 100;
    Qt::Alignment alignment = Qt::AlignLeft;
    int textHeight = 0;
    int textWidth = 0;
    QRect textInk; ///< textInkBounds() of the last text box
    int error = pageengine::NoError;
    PrintTarget *target = nullptr;

    // the open document
    bool docOpen = false;
    bool docIsPreview = true;
    int pagesInDoc = 0;
    QPainter painter;
    QPicture recording;
    QPageLayout pageLayout;
    QPagedPaintDevice *device = nullptr;

    // the preview
    std::vector<pageengine::RecordedPage> pages;
    // pages past those recorded, drawn on demand
    PageSource source;
    int sourcePages = 0;
    QPoint sourceOrigin; // the printable origin when the source was given
    std::deque<std::pair<int, pageengine::RecordedPage>> drawn; // most recent first
    std::unique_ptr<PageEngine> scratch;                        // where the source draws
    int previewPage = 1;
    int zoom = 100;
};

} // namespace quirra
