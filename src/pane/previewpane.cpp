// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#include "pane/previewpane.h"

#include "dialogs/hostservices.h"
#include "pane/logging_p.h"
#include "printing/printsurface.h"

#include <QEvent>
#include <QFontMetrics>
#include <QGuiApplication>
#include <QIconEngine>
#include <QKeyEvent>
#include <QLabel>
#include <QPainter>
#include <QPainterPath>
#include <QPrintDialog>
#include <QPrinter>
#include <QScrollBar>
#include <QStyle>
#include <QToolButton>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>
#include <limits>
#include <optional>
#include <utility>

namespace quirra {

namespace {
// The row's font against the button height: a small face, as on a compact
// toolbar, that still reads at the default 1/6-inch buttons.
constexpr double FontPerButton = 0.6;
// The paging arrows fill this much of the button's height.
constexpr double IconPerButton = 0.6;
// The grey ground the surface keeps round a page, in pixels on each side:
// a fitted page leaves it in view, so no scroll bar appears.
constexpr int FitGround = 16;
// One notch of a mouse wheel, in eighths of a degree.
constexpr int WheelNotch = 120;

// The row's face: "Small Fonts", the compact bitmap face such button rows
// were drawn in; where it is not installed, the pane's own family.
QFont rowFace(const QFont &paneFont, int pixels)
{
    QFont face = paneFont;
    face.setFamilies({QStringLiteral("Small Fonts"), paneFont.family()});
    face.setPixelSize(pixels);
    return face;
}

/**
 * A paging arrow drawn at whatever size the button asks for, in the
 * palette's button text colour (the disabled one when the button is off).
 */
class ArrowIconEngine : public QIconEngine
{
public:
    enum Shape { ToFirst, Back, Forward, ToLast };
    explicit ArrowIconEngine(Shape shape) : m_shape(shape) {}

    void paint(QPainter *painter, const QRect &rect, QIcon::Mode mode, QIcon::State) override
    {
        const QPalette palette = QGuiApplication::palette();
        const QColor ink = palette.color(
            mode == QIcon::Disabled ? QPalette::Disabled : QPalette::Active, QPalette::ButtonText);
        const qreal side = std::min(rect.width(), rect.height());
        if (side <= 0)
            return;
        const QPointF c = QRectF(rect).center();
        const qreal half = side * 0.4;   // half the arrow's height
        const qreal depth = side * 0.45; // the triangle's width
        const qreal bar = std::max<qreal>(1.0, side * 0.12);
        const bool toLeft = m_shape == ToFirst || m_shape == Back;
        const bool withBar = m_shape == ToFirst || m_shape == ToLast;
        // Centre the triangle and its bar together.
        const qreal total = depth + (withBar ? bar + side * 0.06 : 0);
        const qreal start = c.x() - total / 2;
        QPainterPath path;
        qreal tipX, baseX;
        if (toLeft) {
            const qreal triangleLeft = withBar ? start + bar + side * 0.06 : start;
            if (withBar)
                path.addRect(QRectF(start, c.y() - half, bar, 2 * half));
            tipX = triangleLeft;
            baseX = triangleLeft + depth;
        } else {
            tipX = start + depth;
            baseX = start;
            if (withBar)
                path.addRect(QRectF(tipX + side * 0.06, c.y() - half, bar, 2 * half));
        }
        path.moveTo(tipX, c.y());
        path.lineTo(baseX, c.y() - half);
        path.lineTo(baseX, c.y() + half);
        path.closeSubpath();
        painter->save();
        painter->setRenderHint(QPainter::Antialiasing);
        painter->fillPath(path, ink);
        painter->restore();
    }

    QPixmap pixmap(const QSize &size, QIcon::Mode mode, QIcon::State state) override
    {
        return scaledPixmap(size, mode, state, 1.0);
    }

    QPixmap scaledPixmap(const QSize &size, QIcon::Mode mode, QIcon::State state,
                         qreal scale) override
    {
        if (size.isEmpty())
            return QPixmap();
        QPixmap pixmap(size * scale);
        pixmap.setDevicePixelRatio(scale);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        paint(&painter, QRect(QPoint(), size), mode, state);
        return pixmap;
    }

    QIconEngine *clone() const override { return new ArrowIconEngine(m_shape); }

private:
    Shape m_shape;
};
} // namespace

PreviewPane::PreviewPane(QWidget *parent) : QWidget(parent)
{
    m_surface = new PrintSurface(this);
    m_surface->setObjectName(QStringLiteral("mc_printer"));

    const struct
    {
        PaneLayout::Part part;
        ArrowIconEngine::Shape shape;
        const char *name;
        const char *tip;
    } paging[] = {
        {PaneLayout::First, ArrowIconEngine::ToFirst, "mc_first", QT_TR_NOOP("First page")},
        {PaneLayout::Prev, ArrowIconEngine::Back, "mc_prev", QT_TR_NOOP("Previous page")},
        {PaneLayout::Next, ArrowIconEngine::Forward, "mc_next", QT_TR_NOOP("Next page")},
        {PaneLayout::Last, ArrowIconEngine::ToLast, "mc_last", QT_TR_NOOP("Last page")},
    };
    for (const auto &p : paging) {
        QToolButton *button = makeButton(p.name, tr(p.tip));
        button->setIcon(QIcon(new ArrowIconEngine(p.shape)));
        button->setToolButtonStyle(Qt::ToolButtonIconOnly);
        // Nothing to page through until a preview has run.
        button->setEnabled(false);
        m_parts[p.part] = button;
        connect(button, &QToolButton::clicked, this,
                [this, part = p.part] { pagingClicked(part); });
    }

    QToolButton *printPageButton = makeButton("mc_p_pg", QString());
    //: Short caption of the button that prints the page on show ("print page")
    printPageButton->setText(tr("Pr Pg"));
    connect(printPageButton, &QToolButton::clicked, this, &PreviewPane::printPage);
    m_parts[PaneLayout::PrintPage] = printPageButton;

    QToolButton *printAllButton = makeButton("mc_p_all", QString());
    //: Short caption of the button that prints every page
    printAllButton->setText(tr("Pr All"));
    connect(printAllButton, &QToolButton::clicked, this, &PreviewPane::printAll);
    m_parts[PaneLayout::PrintAll] = printAllButton;

    m_label = new QLabel(this);
    m_label->setObjectName(QStringLiteral("mc_pg_lbl"));
    m_label->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    m_label->setTextFormat(Qt::PlainText);
    m_parts[PaneLayout::PageLabel] = m_label;

    // Ctrl and the wheel zoom wherever the pointer is on the page.
    m_surface->viewport()->installEventFilter(this);

    relayout();
}

PreviewPane::~PreviewPane() = default;

QToolButton *PreviewPane::makeButton(const char *name, const QString &toolTip)
{
    auto *button = new QToolButton(this);
    button->setObjectName(QString::fromLatin1(name));
    button->setToolTip(toolTip);
    button->setAccessibleName(toolTip);
    // Flat until hovered, as on a modern toolbar, with a visible mark on the
    // button that has the focus: the paging rules move it on purpose.
    button->setAutoRaise(true);
    button->setStyleSheet(QStringLiteral(
        "QToolButton { border: 1px solid transparent; border-radius: 3px; padding: 0px;"
        " background: transparent; }"
        "QToolButton:hover { border-color: palette(mid); background: palette(button); }"
        "QToolButton:pressed { background: palette(midlight); }"
        "QToolButton:focus { border-color: palette(highlight); }"));
    return button;
}

PrintSurface *PreviewPane::surface() const
{
    return m_surface;
}

void PreviewPane::setSettings(const PaneSettings &s)
{
    m_settings = s;
    relayout();
    updateToolTips();
}

void PreviewPane::updateToolTips()
{
    // What a click does, said the same way whether or not a dialog comes first.
    const bool ask = m_settings.PrintDialogOnPrint;
    const QString page = ask ? tr("Print the page on show: choose the printer and the copies first")
                             : tr("Print the page on show on the printer");
    const QString all = ask ? tr("Print the whole run: choose the printer, the copies and the "
                                 "pages first")
                            : tr("Print the whole run, every page, on the printer");
    for (const auto &[part, tip] :
         {std::pair{PaneLayout::PrintPage, page}, std::pair{PaneLayout::PrintAll, all}}) {
        m_parts[part]->setToolTip(tip);
        m_parts[part]->setAccessibleDescription(tip);
    }
}

const PaneSettings &PreviewPane::settings() const
{
    return m_settings;
}

QSize PreviewPane::sizeHint() const
{
    return QSize(600, 450);
}

PaneLayout PreviewPane::paneLayout() const
{
    const QSize twips(PaneLayout::twipsFromPixels(width(), logicalDpiX()),
                      PaneLayout::twipsFromPixels(height(), logicalDpiY()));
    return PaneLayout(twips, m_settings);
}

void PreviewPane::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    relayout();
}

void PreviewPane::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    // Where the row's face is missing, it follows the pane's own family.
    if (event->type() == QEvent::FontChange)
        relayout();
}

void PreviewPane::relayout()
{
    const PaneLayout layout = paneLayout();
    const double dpiX = logicalDpiX(), dpiY = logicalDpiY();
    m_surface->setGeometry(PaneLayout::toPixels(layout.surfaceRect(), dpiX, dpiY));

    const int buttonPixels = PaneLayout::pixelsFromTwips(layout.buttonSize(), dpiY);
    m_fontPixels = std::max(1, int(std::lround(buttonPixels * FontPerButton)));
    const QFont rowFont = rowFace(font(), m_fontPixels);
    const int iconPixels = std::max(1, int(std::lround(buttonPixels * IconPerButton)));

    for (int part = 0; part < PaneLayout::PartCount; ++part) {
        QWidget *w = m_parts[part];
        const auto p = PaneLayout::Part(part);
        w->setVisible(layout.isVisible(p));
        if (!layout.isVisible(p))
            continue;
        w->setGeometry(PaneLayout::toPixels(layout.rect(p), dpiX, dpiY));
        if (auto *button = qobject_cast<QToolButton *>(w)) {
            button->setFont(rowFont);
            button->setIconSize(QSize(iconPixels, iconPixels));
        }
    }
    fitLabelFont();
}

void PreviewPane::fitLabelFont()
{
    // The label takes the row's font, made smaller when a long page count
    // would not fit its width.
    QFont labelFont = rowFace(font(), m_fontPixels);
    const int room = m_label->width();
    const int needed = QFontMetrics(labelFont).horizontalAdvance(m_label->text());
    if (needed > room && needed > 0) {
        const int pixels = std::max(1, m_fontPixels * room / needed);
        labelFont.setPixelSize(pixels);
    }
    m_label->setFont(labelFont);
}

void PreviewPane::Navigate(qint16 code)
{
    const int count = m_surface->pageCount();
    int page;
    switch (code) {
    case 2:
        page = m_surface->previewPage() - 1;
        break;
    case 3:
        page = m_surface->previewPage() + 1;
        break;
    case 4:
        page = count;
        break;
    default:
        page = 1;
        break;
    }
    m_surface->setPreviewPage(page);

    // The surface keeps its page in range itself; the pane does not rely on it.
    int shown = m_surface->previewPage();
    if (shown < 1)
        shown = 1;
    if (shown > count)
        shown = count;

    m_parts[PaneLayout::First]->setEnabled(shown > 1);
    m_parts[PaneLayout::Prev]->setEnabled(shown > 1);
    m_parts[PaneLayout::Next]->setEnabled(shown < count);
    m_parts[PaneLayout::Last]->setEnabled(shown < count);
    m_label->setText(tr("Page %1 of %2").arg(shown).arg(count));
    fitLabelFont();
    giveFocus(code == 2);
}

void PreviewPane::giveFocus(bool afterPrevious)
{
    // After going back the focus stays on "previous", so that repeated
    // presses keep paging back; otherwise it waits on "next".
    QWidget *prev = m_parts[PaneLayout::Prev];
    QWidget *next = m_parts[PaneLayout::Next];
    QWidget *first = afterPrevious ? prev : next;
    QWidget *second = afterPrevious ? next : prev;
    // A hidden button is never given the focus: keys would reach a button
    // the user cannot see.
    for (QWidget *candidate : {first, second}) {
        if (candidate->isEnabled() && !candidate->isHidden()) {
            candidate->setFocus(Qt::OtherFocusReason);
            return;
        }
    }
}

void PreviewPane::pagingClicked(PaneLayout::Part part)
{
    const int page = m_surface->previewPage();
    switch (part) {
    case PaneLayout::First:
        Navigate(1);
        break;
    case PaneLayout::Prev:
        if (page >= 2)
            Navigate(2);
        break;
    case PaneLayout::Next:
        if (page < m_surface->pageCount())
            Navigate(3);
        break;
    default:
        Navigate(4);
        break;
    }
}

std::optional<std::pair<int, int>> PreviewPane::askToPrint(bool wholeRun)
{
    QPrinter *printer = m_surface->printer();
    QPrintDialog dialog(printer, this);
    dialog.setObjectName(QStringLiteral("print_dialog"));
    dialog.setWindowTitle(wholeRun ? tr("Print the run") : tr("Print the page on show"));
    // For one page the printer and the copies are the choice; the run's
    // pages are offered as the preview shows them, every one unless picked.
    QAbstractPrintDialog::PrintDialogOptions options =
        QAbstractPrintDialog::PrintToFile | QAbstractPrintDialog::PrintCollateCopies;
    if (wholeRun) {
        options |= QAbstractPrintDialog::PrintPageRange;
        printer->setPrintRange(QPrinter::AllPages);
        dialog.setMinMax(1, std::max(1, m_surface->pageCount()));
    }
    dialog.setOptions(options);
    if (dialog.exec() != QDialog::Accepted)
        return std::nullopt;
    // The printer chosen is one that exists: a name asked for earlier that
    // no printer has no longer stands in the way.
    if (printer->outputFormat() == QPrinter::NativeFormat)
        m_surface->setPrinterName(printer->printerName());
    if (wholeRun && printer->printRange() == QPrinter::PageRange)
        return std::pair(printer->fromPage(), printer->toPage());
    return std::pair(0, 0);
}

void PreviewPane::printPage()
{
    if (m_settings.PrintDialogOnPrint && !askToPrint(false)) {
        giveFocus(false);
        return;
    }
    m_surface->setAction(SurfaceAction::PrintPage);
    if (const int error = m_surface->errorCode()) {
        qCWarning(lcPane) << "the page on show could not be printed, error" << error;
        // Told as a failed run is told: the host shows it.
        HostServices::of(this).message(QStringLiteral("Ptr.error = ") + QString::number(error),
                                       this);
    }
    giveFocus(false);
}

void PreviewPane::printAll()
{
    std::optional<std::pair<int, int>> pages(std::pair(0, 0));
    if (m_settings.PrintDialogOnPrint)
        pages = askToPrint(true);
    if (pages)
        Q_EMIT printAllRequested(pages->first, pages->second);
    giveFocus(false);
}

int PreviewPane::fittingZoom(const PrintSurface &surface, Fit fit)
{
    const QSizeF twips = surface.pageSizeTwips(surface.previewPage());
    if (twips.isEmpty())
        return surface.zoom();
    // The surface shows a page at its logical resolution times the zoom;
    // the largest whole zoom that fits rounds down.
    const double pixelsPerTwipAt100 = surface.logicalDpiX() / double(PaneLayout::TwipsPerInch);
    const QSize view = surface.maximumViewportSize();
    const auto zoomFor = [&](double room, double length) {
        return int(std::floor(100.0 * std::max(0.0, room) / (length * pixelsPerTwipAt100)));
    };
    int width = zoomFor(view.width() - 2 * FitGround, twips.width());
    int zoom = width;
    if (fit == Fit::Page) {
        zoom = std::min(width, zoomFor(view.height() - 2 * FitGround, twips.height()));
    } else if (twips.height() * pixelsPerTwipAt100 * width / 100.0 + 2 * FitGround >
               view.height()) {
        // Taller than the view: the vertical scroll bar takes its share of the width.
        const int bar = surface.style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr,
                                                     surface.verticalScrollBar());
        zoom = zoomFor(view.width() - bar - 2 * FitGround, twips.width());
    }
    // The surface keeps the zoom within its limits when it is set.
    return std::clamp(zoom, 1, int(std::numeric_limits<short>::max()));
}

void PreviewPane::zoomBy(int steps, QPoint anchor)
{
    const int before = m_surface->zoom();
    const QRect page = m_surface->pageRect();
    if (anchor.isNull())
        anchor = m_surface->viewport()->rect().center();
    m_surface->setZoom(before + steps * ZoomStep);
    const int after = m_surface->zoom();
    if (after == before)
        return;
    if (!page.isEmpty()) {
        // The spot of the page under the anchor stays under it, as far as the
        // scroll bars reach.
        const double scale = double(after) / before;
        const QPointF spot = QPointF(anchor - page.topLeft()) * scale;
        QScrollBar *h = m_surface->horizontalScrollBar();
        QScrollBar *v = m_surface->verticalScrollBar();
        h->setValue(int(std::lround(FitGround + spot.x() - anchor.x())));
        v->setValue(int(std::lround(FitGround + spot.y() - anchor.y())));
    }
    Q_EMIT zoomChanged(after);
}

void PreviewPane::keyPressEvent(QKeyEvent *event)
{
    // Keys the buttons and the page leave unused come here. Plus is also
    // taken without Shift, from the key it shares with "=".
    if (event->modifiers() & Qt::ControlModifier) {
        switch (event->key()) {
        case Qt::Key_Plus:
        case Qt::Key_Equal:
            zoomBy(1);
            return;
        case Qt::Key_Minus:
            zoomBy(-1);
            return;
        default:
            break;
        }
    }
    QWidget::keyPressEvent(event);
}

bool PreviewPane::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_surface->viewport() && event->type() == QEvent::Wheel) {
        auto *wheel = static_cast<QWheelEvent *>(event);
        if (wheel->modifiers() & Qt::ControlModifier) {
            // A fine wheel (a touchpad) zooms once its turns make a notch.
            m_wheelAngle += wheel->angleDelta().y();
            const int steps = m_wheelAngle / WheelNotch;
            m_wheelAngle -= steps * WheelNotch;
            if (steps != 0)
                zoomBy(steps, wheel->position().toPoint());
            return true;
        }
    }
    return QWidget::eventFilter(watched, event);
}

} // namespace quirra
