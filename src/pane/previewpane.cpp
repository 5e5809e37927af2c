// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#include "pane/previewpane.h"

#include "pane/logging_p.h"
#include "printing/printsurface.h"

#include <QEvent>
#include <QFontMetrics>
#include <QGuiApplication>
#include <QIconEngine>
#include <QLabel>
#include <QPainter>
#include <QPainterPath>
#include <QToolButton>

#include <algorithm>
#include <cmath>

namespace quirra {

namespace {
// The row's font against the button height: a small face, as on a compact
// toolbar, that still reads at the default 1/6-inch buttons.
constexpr double FontPerButton = 0.6;
// The paging arrows fill this much of the button's height.
constexpr double IconPerButton = 0.6;

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

    QToolButton *printPageButton = makeButton("mc_p_pg", tr("Print the page on show"));
    //: Short caption of the button that prints the page on show ("print page")
    printPageButton->setText(tr("Pr Pg"));
    connect(printPageButton, &QToolButton::clicked, this, &PreviewPane::printPage);
    m_parts[PaneLayout::PrintPage] = printPageButton;

    QToolButton *printAllButton = makeButton("mc_p_all", tr("Print all pages"));
    //: Short caption of the button that prints every page
    printAllButton->setText(tr("Pr All"));
    connect(printAllButton, &QToolButton::clicked, this, &PreviewPane::printAll);
    m_parts[PaneLayout::PrintAll] = printAllButton;

    m_label = new QLabel(this);
    m_label->setObjectName(QStringLiteral("mc_pg_lbl"));
    m_label->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    m_label->setTextFormat(Qt::PlainText);
    m_parts[PaneLayout::PageLabel] = m_label;

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

void PreviewPane::printPage()
{
    m_surface->setAction(SurfaceAction::PrintPage);
    if (m_surface->errorCode() != 0)
        qCWarning(lcPane) << "the page on show could not be printed, error"
                          << m_surface->errorCode();
    giveFocus(false);
}

void PreviewPane::printAll()
{
    Q_EMIT printAllRequested();
    giveFocus(false);
}

} // namespace quirra
