// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#include "printing/printsurface.h"

#include "printing/printertarget.h"

#include <QPainter>
#include <QPrinter>
#include <QScrollBar>

#include <cmath>

namespace quirra {

namespace {
// Grey ground round the page, in pixels, also when scrolled to an edge.
constexpr int pageGap = 16;
constexpr int shadowDepth = 6;
// A soft grey, so the white page stands out without glaring.
const QColor groundColor(0xb4, 0xb9, 0xbf);
} // namespace

PrintSurface::PrintSurface(QWidget *parent)
    : QAbstractScrollArea(parent), m_printer(std::make_unique<QPrinter>(QPrinter::HighResolution)),
      m_target(std::make_unique<PrinterTarget>(*m_printer))
{
    setPrintTarget(m_target.get());
    setFrameShape(QFrame::NoFrame);
    viewport()->setAutoFillBackground(false);
    viewport()->setAttribute(Qt::WA_OpaquePaintEvent);
    updateScrollBars();
}

PrintSurface::~PrintSurface()
{
    // A document still printing is finished while the printer still exists.
    setAction(SurfaceAction::EndDoc);
}

QPrinter *PrintSurface::printer() const
{
    return m_printer.get();
}

void PrintSurface::setPrinterName(const QString &name)
{
    m_target->setPrinterName(name);
}

QString PrintSurface::printerFailure() const
{
    return m_target->failure();
}

QString PrintSurface::printFile()
{
    return m_target->printFile();
}

QSize PrintSurface::sizeHint() const
{
    return QSize(480, 360);
}

double PrintSurface::pixelsPerInch() const
{
    return logicalDpiX() * zoom() / 100.0;
}

QSize PrintSurface::pagePixels() const
{
    const QSizeF twips = pageSizeTwips(previewPage());
    if (twips.isEmpty())
        return QSize();
    const double scale = pixelsPerInch() / 1440.0;
    return QSize(int(std::lround(twips.width() * scale)), int(std::lround(twips.height() * scale)));
}

QRect PrintSurface::pageRect() const
{
    const QSize page = pagePixels();
    if (page.isEmpty())
        return QRect();
    const QSize view = viewport()->size();
    // Centred while it fits, else placed by the scroll bars.
    const int x = page.width() + 2 * pageGap <= view.width()
                      ? (view.width() - page.width()) / 2
                      : pageGap - horizontalScrollBar()->value();
    const int y = page.height() + 2 * pageGap <= view.height()
                      ? (view.height() - page.height()) / 2
                      : pageGap - verticalScrollBar()->value();
    return QRect(QPoint(x, y), page);
}

void PrintSurface::updateScrollBars()
{
    const QSize page = pagePixels();
    const QSize view = viewport()->size();
    const int extraX = page.isEmpty() ? 0 : page.width() + 2 * pageGap - view.width();
    const int extraY = page.isEmpty() ? 0 : page.height() + 2 * pageGap - view.height();
    horizontalScrollBar()->setRange(0, std::max(0, extraX));
    horizontalScrollBar()->setPageStep(view.width());
    horizontalScrollBar()->setSingleStep(20);
    verticalScrollBar()->setRange(0, std::max(0, extraY));
    verticalScrollBar()->setPageStep(view.height());
    verticalScrollBar()->setSingleStep(20);
}

void PrintSurface::previewChanged()
{
    updateScrollBars();
    viewport()->update();
}

void PrintSurface::resizeEvent(QResizeEvent *event)
{
    QAbstractScrollArea::resizeEvent(event);
    updateScrollBars();
}

void PrintSurface::scrollContentsBy(int, int)
{
    viewport()->update();
}

void PrintSurface::paintEvent(QPaintEvent *)
{
    QPainter painter(viewport());
    painter.fillRect(viewport()->rect(), groundColor);
    const QRect page = pageRect();
    if (page.isEmpty())
        return;
    // A soft shadow: darker close to the page, fading outwards.
    for (int i = shadowDepth; i >= 1; --i)
        painter.fillRect(page.translated(i, i), QColor(0, 0, 0, 24 + 8 * (shadowDepth - i)));
    painter.fillRect(page, Qt::white);
    painter.setClipRect(page);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setRenderHint(QPainter::TextAntialiasing);
    painter.translate(page.topLeft());
    paintPage(painter, previewPage(), pixelsPerInch());
}

} // namespace quirra
