// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#include "dialogs/piece_layout_edit_form.h"

#include "dialogs/numberkeyfilter.h"

#include "dialogs/beep.h"
#include "dialogs/fontchooser.h"
#include "dialogs/layoutitemlabel.h"
#include "dialogs/logging_p.h"
#include "dialogs/numberfield.h"
#include "settings/defaultlayout.h"
#include "settings/settings.h"
#include "settings/units.h"

#include <QAction>
#include <QCheckBox>
#include <QFrame>
#include <QGridLayout>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QMouseEvent>
#include <QPushButton>
#include <QScreen>
#include <QScrollBar>
#include <QStyle>
#include <QTextEdit>
#include <QTimer>
#include <QVBoxLayout>

#include <cmath>
#include <limits>

namespace quirra {

namespace {

// What item_lbl shows for items 1..5 (Address, Return, Stamp, Message1, Message2).
const char *const ItemTitles[] = {
    QT_TRANSLATE_NOOP("quirra::piece_layout_edit_form", "Delivery Address"),
    QT_TRANSLATE_NOOP("quirra::piece_layout_edit_form", "Return Address"),
    QT_TRANSLATE_NOOP("quirra::piece_layout_edit_form", "Stamp"),
    QT_TRANSLATE_NOOP("quirra::piece_layout_edit_form", "Message 1"),
    QT_TRANSLATE_NOOP("quirra::piece_layout_edit_form", "Message 2"),
};

// The Display menu's entries, in the same order.
const char *const DisplayCaptions[] = {
    QT_TRANSLATE_NOOP("quirra::piece_layout_edit_form", "Delivery &Address"),
    QT_TRANSLATE_NOOP("quirra::piece_layout_edit_form", "&Return Address"),
    QT_TRANSLATE_NOOP("quirra::piece_layout_edit_form", "&Stamp"),
    QT_TRANSLATE_NOOP("quirra::piece_layout_edit_form", "Message &1"),
    QT_TRANSLATE_NOOP("quirra::piece_layout_edit_form", "Message &2"),
};

const char *const JustifyCaptions[] = {
    QT_TRANSLATE_NOOP("quirra::piece_layout_edit_form", "&Left Justify"),
    QT_TRANSLATE_NOOP("quirra::piece_layout_edit_form", "&Center Justify"),
    QT_TRANSLATE_NOOP("quirra::piece_layout_edit_form", "&Right Justify"),
    QT_TRANSLATE_NOOP("quirra::piece_layout_edit_form", "&Full Justify"),
};

// The four position fields, in the panel's order.
struct FieldDefinition
{
    const char *name;
    const char *stepper;
    const char *caption;
    LayoutGeometry::Field which;
};

constexpr FieldDefinition FieldDefinitions[] = {
    {"top_txt", "top_scr", QT_TRANSLATE_NOOP("quirra::piece_layout_edit_form", "Top:"),
     LayoutGeometry::TopField},
    {"left_txt", "left_scr", QT_TRANSLATE_NOOP("quirra::piece_layout_edit_form", "Left:"),
     LayoutGeometry::LeftField},
    {"height_txt", "height_scr", QT_TRANSLATE_NOOP("quirra::piece_layout_edit_form", "Height:"),
     LayoutGeometry::HeightField},
    {"width_txt", "width_scr", QT_TRANSLATE_NOOP("quirra::piece_layout_edit_form", "Width:"),
     LayoutGeometry::WidthField},
};

// The steppers are scroll bars kept at 0; one arrow click moves them by 50.
constexpr int StepperRange = 50;

// A label's alignment code: 0 left, 1 right, 2 centre. A fully justified
// item has no code of its own and opens the left-aligned editor.
int alignmentCode(eHorzAlign align)
{
    switch (align) {
    case haRight:
        return 1;
    case haCenter:
        return 2;
    default:
        return 0;
    }
}

Qt::Alignment labelAlignment(eHorzAlign align)
{
    switch (align) {
    case haRight:
        return Qt::AlignRight | Qt::AlignTop;
    case haCenter:
        return Qt::AlignHCenter | Qt::AlignTop;
    case haFull:
        return Qt::AlignJustify | Qt::AlignTop;
    default:
        return Qt::AlignLeft | Qt::AlignTop;
    }
}

// Item texts break lines with a carriage return and line feed; a label and
// an editor break them with a line feed.
QString shownText(const QString &text)
{
    QString shown = text;
    shown.replace(QLatin1String("\r\n"), QLatin1String("\n"));
    shown.replace(u'\r', u'\n');
    return shown;
}

QString itemText(const QString &shown)
{
    QString text = shown;
    text.replace(QLatin1String("\n"), QLatin1String("\r\n"));
    return text;
}

// The size a label asks for: the true size at the display scale, plus
// 0.9999 so that a scaled size is in effect rounded up, never down.
double displayFontSize(double trueSize)
{
    return double(float(trueSize) * display_scale + 0.9999f);
}

QFont labelFont(const ItemFont &font)
{
    QFont result(font.Name);
    if (font.Size > 0 && std::isfinite(font.Size))
        result.setPointSizeF(displayFontSize(font.Size));
    result.setBold(font.Bold);
    result.setItalic(font.Italic);
    result.setUnderline(font.Underline);
    result.setStrikeOut(font.Strikethrough);
    return result;
}

QString sizeText(double size)
{
    return QString::number(size, 'g', 6);
}

// Inches of a display length; a scale that is no positive number counts as
// 1, as the fields take it.
double displayTwipsToInches(double twips)
{
    const double scale = double(display_scale);
    return twips / (scale > 0 && std::isfinite(scale) ? scale : 1.0) / 1440.0;
}

// An item length on the piece; a length that is no number is taken as 0,
// so a broken item lies in the corner instead of nowhere.
double displayTwips(float inches)
{
    const double twips = InchesToDisplayTwips(double(inches));
    return std::isfinite(twips) ? twips : 0.0;
}

double fieldValue(LayoutGeometry::Field which, const QRectF &box)
{
    switch (which) {
    case LayoutGeometry::TopField:
        return box.top();
    case LayoutGeometry::LeftField:
        return box.left();
    case LayoutGeometry::HeightField:
        return box.height();
    case LayoutGeometry::WidthField:
        return box.width();
    default:
        return 0;
    }
}

void setFieldValue(LayoutGeometry::Field which, QRectF &box, double twips)
{
    switch (which) {
    case LayoutGeometry::TopField:
        box.moveTop(twips);
        break;
    case LayoutGeometry::LeftField:
        box.moveLeft(twips);
        break;
    case LayoutGeometry::HeightField:
        box.setHeight(twips);
        break;
    case LayoutGeometry::WidthField:
        box.setWidth(twips);
        break;
    default:
        break;
    }
}

} // namespace

piece_layout_edit_form::piece_layout_edit_form(QWidget *parent) : QDialog(parent)
{
    // Load: nothing places handles until the first activation.
    m_loading = true;
    if (const QScreen *screen = QGuiApplication::primaryScreen()) {
        if (screen->logicalDotsPerInchX() > 0)
            m_twipsPerPixel = 1440.0 / screen->logicalDotsPerInchX();
    }
    buildWidgets();
    m_accepted->setChecked(false);
    m_dragging = false;
    hideHandles();
    centreOnScreen();
}

piece_layout_edit_form::~piece_layout_edit_form() = default;

void piece_layout_edit_form::buildWidgets()
{
    setObjectName(QStringLiteral("piece_layout_edit_form"));
    setWindowTitle(tr("Piece Layout"));

    auto *menuBar = new QMenuBar(this);
    menuBar->setObjectName(QStringLiteral("menu_bar"));

    // The piece: white paper on a grey ground. Inside it everything is
    // placed by hand, to the twip: it is a drawing at scale.
    auto *pieceArea = new QFrame(this);
    pieceArea->setObjectName(QStringLiteral("piece_area"));
    pieceArea->setFrameShape(QFrame::StyledPanel);
    pieceArea->setFrameShadow(QFrame::Sunken);
    pieceArea->setBackgroundRole(QPalette::Mid);
    pieceArea->setAutoFillBackground(true);
    m_pieceFrame = new QFrame(pieceArea);
    m_pieceFrame->setObjectName(QStringLiteral("piece_frame"));
    QPalette paper = m_pieceFrame->palette();
    paper.setColor(QPalette::Window, Qt::white);
    paper.setColor(QPalette::WindowText, Qt::black);
    paper.setColor(QPalette::Base, Qt::white);
    paper.setColor(QPalette::Text, Qt::black);
    m_pieceFrame->setPalette(paper);
    // Its own role, not the grey ground's that children otherwise inherit.
    m_pieceFrame->setBackgroundRole(QPalette::Window);
    m_pieceFrame->setAutoFillBackground(true);
    // The editor keeps 360 twips (24 pixels) of the screen's width beside a
    // piece fitted to it: the ground's margins and the form's stay within.
    auto *areaLayout = new QGridLayout(pieceArea);
    areaLayout->setContentsMargins(7, 7, 7, 7);
    areaLayout->addWidget(m_pieceFrame, 0, 0, Qt::AlignCenter);

    for (int i = 0; i < ItemCount; ++i) {
        auto *label = new LayoutItemLabel(m_pieceFrame);
        label->setObjectName(QStringLiteral("item_%1").arg(i + 1));
        label->setProperty("index", i + 1);
        label->setCursor(Qt::SizeAllCursor);
        label->setToolTip(tr(ItemTitles[i]));
        label->installEventFilter(this);
        m_items[size_t(i)].label = label;
    }
    for (int k = 0; k < LayoutGeometry::HandleCount; ++k) {
        auto *handle = new QLabel(m_pieceFrame);
        handle->setObjectName(QStringLiteral("dot_%1").arg(k + 1));
        handle->setProperty("index", k + 1);
        QPalette ink = handle->palette();
        ink.setColor(QPalette::Window, Qt::black);
        handle->setPalette(ink);
        handle->setBackgroundRole(QPalette::Window);
        handle->setAutoFillBackground(true);
        handle->setCursor(LayoutGeometry::handleCursor(k + 1));
        handle->installEventFilter(this);
        handle->hide();
        m_handles[size_t(k)] = handle;
    }
    const Qt::Alignment editorAlignment[] = {Qt::AlignLeft, Qt::AlignRight, Qt::AlignHCenter};
    for (int a = 0; a < 3; ++a) {
        auto *editor = new QTextEdit(m_pieceFrame);
        editor->setObjectName(QStringLiteral("edit_txt_%1").arg(a));
        editor->setProperty("index", a);
        editor->setAcceptRichText(false);
        editor->setFrameShape(QFrame::NoFrame);
        editor->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        editor->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        editor->setLineWrapMode(QTextEdit::WidgetWidth);
        editor->document()->setDocumentMargin(0);
        QTextOption option = editor->document()->defaultTextOption();
        option.setAlignment(editorAlignment[a]);
        option.setWrapMode(QTextOption::WordWrap);
        editor->document()->setDefaultTextOption(option);
        // A faint tint tells the box being typed in from the labels.
        QPalette tint = editor->palette();
        tint.setColor(QPalette::Base, QColor(255, 255, 225));
        editor->setPalette(tint);
        editor->installEventFilter(this);
        editor->hide();
        connect(editor, &QTextEdit::textChanged, this, [this, a] { onEditorChanged(a); });
        m_editors[size_t(a)] = editor;
    }

    m_pieceWidth = new QLabel(this);
    m_pieceWidth->setObjectName(QStringLiteral("piece_width_txt"));
    m_pieceWidth->hide();
    m_pieceHeight = new QLabel(this);
    m_pieceHeight->setObjectName(QStringLiteral("piece_height_txt"));
    m_pieceHeight->hide();
    m_accepted = new QCheckBox(this);
    m_accepted->setObjectName(QStringLiteral("data_was_accepted_chk"));
    m_accepted->hide();

    // The selected item's name and its four fields.
    auto *position = new QFrame(this);
    position->setObjectName(QStringLiteral("position_frame"));
    position->setFrameShape(QFrame::StyledPanel);
    // The item's name beside its four fields, two by two: narrow enough for
    // the piece's width on a small screen.
    auto *positionLayout = new QGridLayout(position);
    positionLayout->setHorizontalSpacing(6);
    m_itemName = new QLabel(position);
    m_itemName->setObjectName(QStringLiteral("item_lbl"));
    QFont bold = m_itemName->font();
    bold.setBold(true);
    m_itemName->setFont(bold);
    m_itemName->setMinimumWidth(QFontMetrics(bold).horizontalAdvance(tr(ItemTitles[0])) +
                                QFontMetrics(bold).averageCharWidth());
    positionLayout->addWidget(m_itemName, 0, 0, 2, 1, Qt::AlignVCenter);
    const int stepperWidth = style()->pixelMetric(QStyle::PM_ScrollBarExtent);
    for (int f = 0; f < int(std::size(FieldDefinitions)); ++f) {
        const FieldDefinition &d = FieldDefinitions[f];
        Field field;
        field.which = d.which;
        auto *caption = new QLabel(tr(d.caption), position);
        caption->setObjectName(QLatin1String(d.name).chopped(4) + QLatin1String("_lbl"));
        field.edit = new QLineEdit(position);
        field.edit->setObjectName(QLatin1String(d.name));
        field.edit->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
        field.edit->setFixedWidth(field.edit->fontMetrics().horizontalAdvance(u'0') * 7);
        field.edit->setAccessibleName(caption->text().chopped(1));
        field.edit->installEventFilter(this);
        caption->setBuddy(field.edit);
        field.stepper = new QScrollBar(Qt::Vertical, position);
        field.stepper->setObjectName(QLatin1String(d.stepper));
        field.stepper->setRange(-StepperRange, StepperRange);
        field.stepper->setSingleStep(StepperRange);
        field.stepper->setPageStep(StepperRange);
        field.stepper->setValue(0);
        field.stepper->setFocusPolicy(Qt::NoFocus);
        field.stepper->setFixedSize(stepperWidth, field.edit->sizeHint().height());
        field.stepper->setAccessibleName(field.edit->accessibleName());
        connect(field.edit, &QLineEdit::textChanged, this,
                [this, f] { onFieldChanged(m_fields[size_t(f)]); });
        connect(field.stepper, &QScrollBar::valueChanged, this,
                [this, f](int value) { onStepper(m_fields[size_t(f)], value); });
        auto *pair = new QHBoxLayout;
        pair->setSpacing(0);
        pair->addWidget(field.edit);
        pair->addWidget(field.stepper);
        // Top and Left in the first row, Height and Width in the second.
        const int row = f / 2;
        const int column = 1 + (f % 2) * 2;
        positionLayout->addWidget(caption, row, column);
        positionLayout->addLayout(pair, row, column + 1);
        m_fields[size_t(f)] = field;
    }

    auto *buttonFrame = new QFrame(this);
    buttonFrame->setObjectName(QStringLiteral("button_frame"));
    auto *buttonLayout = new QHBoxLayout(buttonFrame);
    buttonLayout->setContentsMargins(0, 0, 0, 0);
    m_ok = new QPushButton(tr("OK"), buttonFrame);
    m_ok->setObjectName(QStringLiteral("ok_btn"));
    m_ok->setDefault(true);
    auto *cancel = new QPushButton(tr("Cancel"), buttonFrame);
    cancel->setObjectName(QStringLiteral("cancel_btn"));
    connect(m_ok, &QPushButton::clicked, this, &piece_layout_edit_form::accept);
    connect(cancel, &QPushButton::clicked, this, &piece_layout_edit_form::reject);
    buttonLayout->addWidget(m_ok);
    buttonLayout->addWidget(cancel);

    auto *bottom = new QHBoxLayout;
    bottom->setContentsMargins(3, 0, 3, 0);
    bottom->addWidget(position);
    bottom->addStretch(1);
    bottom->addWidget(buttonFrame, 0, Qt::AlignBottom);

    auto *layout = new QVBoxLayout(this);
    const QMargins margins = layout->contentsMargins();
    layout->setContentsMargins(3, margins.top(), 3, margins.bottom());
    layout->setMenuBar(menuBar);
    layout->addWidget(pieceArea, 1);
    layout->addLayout(bottom);

    QWidget *previous = m_fields[0].edit;
    for (size_t f = 1; f < m_fields.size(); ++f) {
        setTabOrder(previous, m_fields[f].edit);
        previous = m_fields[f].edit;
    }
    setTabOrder(previous, m_ok);
    setTabOrder(m_ok, cancel);

    buildMenus(menuBar);
}

void piece_layout_edit_form::buildMenus(QMenuBar *menuBar)
{
    const auto entry = [this](QMenu *menu, const char *name, const QString &caption,
                              void (piece_layout_edit_form::*command)()) {
        QAction *action = menu->addAction(caption);
        action->setObjectName(QLatin1String(name));
        connect(action, &QAction::triggered, this, command);
        return action;
    };
    const auto bar = [](QMenu *menu, const char *name) {
        menu->addSeparator()->setObjectName(QLatin1String(name));
    };

    QMenu *edit = menuBar->addMenu(tr("&Edit"));
    edit->setObjectName(QStringLiteral("edit_mnu"));
    entry(edit, "edit_clear_mnu", tr("&Clear"), &piece_layout_edit_form::editClear);
    entry(edit, "edit_modify_mnu", tr("&Modify"), &piece_layout_edit_form::editModify);
    bar(edit, "edit_bar_1_mnu");
    entry(edit, "edit_bring_to_front_mnu", tr("&Bring To Front"),
          &piece_layout_edit_form::editBringToFront);
    entry(edit, "edit_send_to_back_mnu", tr("Se&nd To Back"),
          &piece_layout_edit_form::editSendToBack);
    bar(edit, "edit_bar_2_mnu");
    entry(edit, "edit_default_mnu", tr("Default"), &piece_layout_edit_form::editDefault);

    m_formatMenu = menuBar->addMenu(tr("F&ormat"));
    m_formatMenu->setObjectName(QStringLiteral("format_mnu"));
    connect(m_formatMenu, &QMenu::aboutToShow, this, &piece_layout_edit_form::formatOpening);
    for (int i = 0; i < int(m_justify.size()); ++i) {
        QAction *action = m_formatMenu->addAction(tr(JustifyCaptions[i]));
        action->setObjectName(QStringLiteral("format_justify_mnu_%1").arg(i));
        action->setProperty("index", i);
        action->setCheckable(true);
        connect(action, &QAction::triggered, this, [this, i] { formatJustify(i); });
        m_justify[size_t(i)] = action;
    }
    bar(m_formatMenu, "format_bar_1_mnu");
    entry(m_formatMenu, "format_font_mnu", tr("&Font"), &piece_layout_edit_form::formatFont);
    bar(m_formatMenu, "format_bar_2_mnu");
    m_borders = entry(m_formatMenu, "format_borders_mnu", tr("Borders"),
                      &piece_layout_edit_form::formatBorders);
    m_borders->setCheckable(true);

    QMenu *display = menuBar->addMenu(tr("&Display"));
    display->setObjectName(QStringLiteral("display_mnu"));
    connect(display, &QMenu::aboutToShow, this, &piece_layout_edit_form::displayOpening);
    for (int i = 0; i < ItemCount; ++i) {
        QAction *action = display->addAction(tr(DisplayCaptions[i]));
        action->setObjectName(QStringLiteral("display_item_mnu_%1").arg(i + 1));
        action->setProperty("index", i + 1);
        action->setCheckable(true);
        connect(action, &QAction::triggered, this, [this, i] { displayItem(i + 1); });
        m_display[size_t(i)] = action;
    }
}

void piece_layout_edit_form::centreOnScreen()
{
    layout()->activate();
    adjustSize();
    const QScreen *screen = QGuiApplication::primaryScreen();
    if (!screen)
        return;
    const QRect available = screen->availableGeometry();
    move(available.x() + (available.width() - width()) / 2,
         available.y() + (available.height() - height()) / 2);
}

// --- loading and copying back ---------------------------------------------

void piece_layout_edit_form::loadItems(float pieceWidth, float pieceHeight,
                                       const std::array<Item, ItemCount> &items)
{
    hideEditors();
    m_geometry = LayoutGeometry(InchesToDisplayTwips(double(pieceWidth)),
                                InchesToDisplayTwips(double(pieceHeight)));
    m_pieceFrame->setFixedSize(toPixels(m_geometry.frameWidth()),
                               toPixels(m_geometry.frameHeight()));
    // The ground round the piece asks for the new size now, not when its
    // layout gets round to it: the form is sized and centred on it below.
    m_pieceFrame->parentWidget()->updateGeometry();
    const NumberField inches(NumberField::Measure, 0, 0);
    m_pieceWidth->setText(inches.initialText(double(pieceWidth)));
    m_pieceHeight->setText(inches.initialText(double(pieceHeight)));
    for (int i = 0; i < ItemCount; ++i)
        loadItem(i + 1, items[size_t(i)]);
    qCDebug(lcDialogs) << "layout editor on a piece of" << pieceWidth << "x" << pieceHeight
                       << "inches at the scale" << display_scale;
    if (!m_loading) {
        // Loaded into a form already shown: select afresh.
        selectFirstVisible();
    } else {
        centreOnScreen();
    }
}

void piece_layout_edit_form::loadItem(int index, const Item &item)
{
    ItemState &s = *stateOf(index);
    s.box = QRectF(displayTwips(item.Left), displayTwips(item.Top), displayTwips(item.Width),
                   displayTwips(item.Height));
    s.text = item.Text;
    s.align = item.HorzAlign;
    s.border = item.Border;
    s.font = item.Font;
    s.visible = item.Visible;
    applyBox(index);
    applyLook(index);
    s.label->setVisible(s.visible);
}

void piece_layout_edit_form::copyItemsBack(std::array<Item, ItemCount> &items) const
{
    for (int i = 0; i < ItemCount; ++i) {
        const ItemState &s = m_items[size_t(i)];
        Item &item = items[size_t(i)];
        item.Left = float(displayTwipsToInches(s.box.left()));
        item.Top = float(displayTwipsToInches(s.box.top()));
        item.Width = float(displayTwipsToInches(s.box.width()));
        item.Height = float(displayTwipsToInches(s.box.height()));
        item.Text = s.text;
        item.HorzAlign = s.align;
        item.Border = s.border;
        item.Visible = s.visible;
        item.Font.Name = s.font.Name;
        item.Font.Size = s.font.Size;
        item.Font.Bold = s.font.Bold;
        item.Font.Italic = s.font.Italic;
        item.Font.Underline = s.font.Underline;
        item.Font.Strikethrough = s.font.Strikethrough;
    }
}

bool piece_layout_edit_form::dataWasAccepted() const
{
    return m_accepted->isChecked();
}

QRectF piece_layout_edit_form::itemBox(int index) const
{
    const ItemState *s = stateOf(index);
    return s ? s->box : QRectF();
}

// --- the labels --------------------------------------------------------------

piece_layout_edit_form::ItemState *piece_layout_edit_form::stateOf(int index)
{
    return index >= 1 && index <= ItemCount ? &m_items[size_t(index - 1)] : nullptr;
}

const piece_layout_edit_form::ItemState *piece_layout_edit_form::stateOf(int index) const
{
    return index >= 1 && index <= ItemCount ? &m_items[size_t(index - 1)] : nullptr;
}

int piece_layout_edit_form::toPixels(double twips) const
{
    return int(std::lround(twips / m_twipsPerPixel));
}

QPointF piece_layout_edit_form::frameTwips(QWidget *child, const QMouseEvent *event) const
{
    // The mouse on the piece, from the pixel the child was hit at: exact to
    // the pixel, whatever fraction of a pixel the child's place rounds off.
    return (event->position() + QPointF(child->pos())) * m_twipsPerPixel;
}

void piece_layout_edit_form::applyBox(int index)
{
    const ItemState &s = *stateOf(index);
    // Edges are rounded on their own, so neighbouring boxes meet where their
    // twips meet.
    const int left = toPixels(s.box.left());
    const int top = toPixels(s.box.top());
    s.label->setGeometry(left, top, toPixels(s.box.right()) - left, toPixels(s.box.bottom()) - top);
}

void piece_layout_edit_form::applyLook(int index)
{
    const ItemState &s = *stateOf(index);
    s.label->setText(shownText(s.text));
    s.label->setAlignment(labelAlignment(s.align));
    s.label->setBordered(s.border != 0);
    s.label->setFont(labelFont(s.font));
    s.label->setProperty("Tag", sizeText(s.font.Size));
}

void piece_layout_edit_form::setCaption(int index, const QString &text)
{
    ItemState &s = *stateOf(index);
    s.text = text;
    s.label->setText(shownText(text));
    if (index == m_current)
        refreshFields(index);
}

void piece_layout_edit_form::placeHandles(int index)
{
    if (m_loading)
        return;
    const ItemState *s = stateOf(index);
    if (!s)
        return;
    // The handles move rather than hide and show again: a handle being held
    // must stay visible, or it would let go of the mouse.
    const int size = std::max(1, toPixels(LayoutGeometry::HandleSize));
    s->label->raise();
    for (int k = 1; k <= LayoutGeometry::HandleCount; ++k) {
        const QPointF at = LayoutGeometry::handlePosition(k, s->box);
        QLabel *handle = m_handles[size_t(k - 1)];
        handle->setGeometry(toPixels(at.x()), toPixels(at.y()), size, size);
        handle->show();
        handle->raise();
    }
}

void piece_layout_edit_form::hideHandles()
{
    for (QLabel *handle : m_handles)
        handle->hide();
}

void piece_layout_edit_form::refreshFields(int index, LayoutGeometry::Fields fields)
{
    const ItemState *s = stateOf(index);
    if (!s)
        return;
    m_fieldItem = index;
    // Writing the fields is no typing: the label keeps its exact twips.
    m_refreshing = true;
    for (const Field &field : m_fields) {
        if (fields & field.which)
            field.edit->setText(DisplayTwipsToText(fieldValue(field.which, s->box)));
    }
    m_refreshing = false;
}

void piece_layout_edit_form::selectItem(int index)
{
    if (!stateOf(index))
        return;
    // The field being typed in is finished for its own item first.
    leaveFields();
    m_current = index;
    m_itemName->setText(tr(ItemTitles[index - 1]));
    placeHandles(index);
    refreshFields(index);
}

void piece_layout_edit_form::selectFirstVisible()
{
    for (int i = 1; i <= ItemCount; ++i) {
        if (stateOf(i)->visible) {
            selectItem(i);
            return;
        }
    }
    leaveFields();
    m_current = 0;
    m_itemName->clear();
    hideHandles();
}

void piece_layout_edit_form::leaveFields()
{
    m_ok->setFocus(Qt::OtherFocusReason);
}

void piece_layout_edit_form::activate()
{
    m_accepted->setChecked(false);
    if (m_activated)
        return;
    m_activated = true;
    m_loading = false;
    selectFirstVisible();
}

// --- the mouse ---------------------------------------------------------------

int piece_layout_edit_form::itemIndexOf(const QObject *object) const
{
    for (int i = 0; i < ItemCount; ++i) {
        if (m_items[size_t(i)].label == object)
            return i + 1;
    }
    return 0;
}

int piece_layout_edit_form::handleIndexOf(const QObject *object) const
{
    for (int k = 0; k < int(m_handles.size()); ++k) {
        if (m_handles[size_t(k)] == object)
            return k + 1;
    }
    return 0;
}

int piece_layout_edit_form::fieldIndexOf(const QObject *object) const
{
    for (int f = 0; f < int(m_fields.size()); ++f) {
        if (m_fields[size_t(f)].edit == object)
            return f;
    }
    return -1;
}

int piece_layout_edit_form::editorIndexOf(const QObject *object) const
{
    for (int a = 0; a < int(m_editors.size()); ++a) {
        if (m_editors[size_t(a)] == object)
            return a;
    }
    return -1;
}

bool piece_layout_edit_form::itemMouse(int index, QEvent *event)
{
    ItemState &s = *stateOf(index);
    const auto *mouse = static_cast<QMouseEvent *>(event);
    const QPointF at = frameTwips(s.label, mouse) - s.box.topLeft(); // relative to the item
    switch (event->type()) {
    case QEvent::MouseButtonPress:
        leaveFields();
        m_itemName->setText(tr(ItemTitles[index - 1]));
        hideHandles();
        m_dragging = true;
        m_current = index;
        m_itemDown = at;
        s.label->raise();
        if (mouse->button() == Qt::RightButton) {
            m_dragging = false;
            m_itemDown = QPointF();
            selectItem(index);
            m_formatMenu->popup(mouse->globalPosition().toPoint());
        }
        return true;
    case QEvent::MouseMove:
        if (m_dragging) {
            s.box.moveTopLeft(m_geometry.dragged(s.box, at, m_itemDown));
            applyBox(index);
        }
        return true;
    case QEvent::MouseButtonRelease: {
        // The click that follows a press selects the item, wherever the
        // keep-out left it under the mouse.
        const bool click = m_dragging;
        m_dragging = false;
        m_itemDown = QPointF();
        if (click)
            selectItem(index);
        return true;
    }
    case QEvent::MouseButtonDblClick:
        // A double click edits the text; the release after it clicks nothing.
        m_dragging = false;
        m_itemDown = QPointF();
        m_current = index;
        editModify();
        return true;
    default:
        return false;
    }
}

bool piece_layout_edit_form::handleMouse(int handle, QEvent *event)
{
    const auto *mouse = static_cast<QMouseEvent *>(event);
    switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick: {
        ItemState *s = stateOf(m_current);
        m_sizing = s != nullptr;
        m_handleDown = mouse->position() * m_twipsPerPixel;
        m_busy = false;
        return true;
    }
    case QEvent::MouseMove: {
        ItemState *s = stateOf(m_current);
        if (!m_sizing || m_busy || !s)
            return true;
        m_busy = true;
        // The mouse relative to the handle's own corner as it is drawn, not
        // to the press: the handle's corner follows the mouse, and an edge
        // the mouse does not move along stays where it is.
        const QPointF at = mouse->position() * m_twipsPerPixel;
        s->box = m_geometry.resized(handle, s->box, at);
        applyBox(m_current);
        placeHandles(m_current);
        m_handleDown = at;
        m_busy = false;
        return true;
    }
    case QEvent::MouseButtonRelease:
        if (m_sizing) {
            m_sizing = false;
            m_handleDown = QPointF();
            refreshFields(m_current, LayoutGeometry::fieldsOfHandle(handle));
        }
        return true;
    default:
        return false;
    }
}

// --- the position fields -----------------------------------------------------

float piece_layout_edit_form::upperBound(const Field &field) const
{
    const ItemState *s = stateOf(m_fieldItem);
    return s ? m_geometry.upperBound(field.which, s->box) : 0.0f;
}

bool piece_layout_edit_form::fieldEvent(const Field &field, QEvent *event)
{
    switch (event->type()) {
    case QEvent::KeyPress: {
        // Up and Down step the field as its stepper's arrows do.
        return FilterNumberBoxKey(static_cast<QKeyEvent *>(event), field.stepper);
    }
    case QEvent::KeyRelease: {
        const QString text = field.edit->text();
        const QString checked =
            NumberField(NumberField::Measure, 0, upperBound(field)).checked(text);
        if (checked != text) {
            field.edit->setText(checked);
            field.edit->setCursorPosition(int(checked.size()));
        }
        return false;
    }
    case QEvent::FocusIn:
        // After the click that gave the focus has placed the cursor.
        QTimer::singleShot(0, field.edit, &QLineEdit::selectAll);
        return false;
    case QEvent::FocusOut: {
        if (static_cast<QFocusEvent *>(event)->reason() == Qt::PopupFocusReason)
            return false;
        const ItemState *s = stateOf(m_fieldItem);
        if (!s)
            return false;
        const QString text = field.edit->text();
        const double current = ParseDouble(DisplayTwipsToText(fieldValue(field.which, s->box)));
        const QString completed = LayoutGeometry::completed(text, upperBound(field), current);
        if (completed != text)
            field.edit->setText(completed);
        return false;
    }
    default:
        return false;
    }
}

void piece_layout_edit_form::onFieldChanged(const Field &field)
{
    ItemState *s = stateOf(m_fieldItem);
    if (m_refreshing || !s)
        return;
    const QString text = field.edit->text();
    if (!IsNumeric(text))
        return;
    setFieldValue(field.which, s->box, InchesToDisplayTwips(double(ParseSingle(text))));
    applyBox(m_fieldItem);
    placeHandles(m_fieldItem);
}

void piece_layout_edit_form::onStepper(const Field &field, int value)
{
    // Setting the bar back to 0 below comes back here with 0: nothing to do.
    if (value == 0)
        return;
    if (stateOf(m_fieldItem)) {
        const LayoutGeometry::Step step =
            LayoutGeometry::stepped(field.edit->text(), value, upperBound(field));
        if (step.clamped)
            Beep();
        field.edit->setText(step.text); // moves the label through the field's change
    }
    field.stepper->setValue(0);
    placeHandles(m_current);
}

// --- the in-place editors ----------------------------------------------------

void piece_layout_edit_form::onEditorChanged(int editor)
{
    // Typing shows in the label at once.
    if (editor != m_editing || !stateOf(m_current))
        return;
    setCaption(m_current, itemText(m_editors[size_t(editor)]->toPlainText()));
}

void piece_layout_edit_form::hideEditors()
{
    m_editing = -1;
    for (QTextEdit *editor : m_editors)
        editor->hide();
}

bool piece_layout_edit_form::eventFilter(QObject *watched, QEvent *event)
{
    if (const int index = itemIndexOf(watched)) {
        switch (event->type()) {
        case QEvent::MouseButtonPress:
        case QEvent::MouseMove:
        case QEvent::MouseButtonRelease:
        case QEvent::MouseButtonDblClick:
            return itemMouse(index, event);
        default:
            break;
        }
    } else if (const int handle = handleIndexOf(watched)) {
        switch (event->type()) {
        case QEvent::MouseButtonPress:
        case QEvent::MouseMove:
        case QEvent::MouseButtonRelease:
        case QEvent::MouseButtonDblClick:
            return handleMouse(handle, event);
        default:
            break;
        }
    } else if (const int f = fieldIndexOf(watched); f >= 0) {
        if (fieldEvent(m_fields[size_t(f)], event))
            return true;
    } else if (const int a = editorIndexOf(watched); a >= 0) {
        QTextEdit *editor = m_editors[size_t(a)];
        switch (event->type()) {
        case QEvent::FocusIn:
            QTimer::singleShot(0, editor, &QTextEdit::selectAll);
            break;
        case QEvent::FocusOut:
            if (static_cast<QFocusEvent *>(event)->reason() != Qt::PopupFocusReason &&
                a == m_editing)
                hideEditors();
            break;
        case QEvent::KeyPress:
            // Escape ends the typing, not the dialog.
            if (static_cast<QKeyEvent *>(event)->key() == Qt::Key_Escape) {
                leaveFields();
                hideEditors();
                return true;
            }
            break;
        default:
            break;
        }
    }
    return QDialog::eventFilter(watched, event);
}

void piece_layout_edit_form::showEvent(QShowEvent *event)
{
    QDialog::showEvent(event);
    if (!event->spontaneous())
        activate();
}

// --- the Edit menu -----------------------------------------------------------

void piece_layout_edit_form::editClear()
{
    if (stateOf(m_current))
        setCaption(m_current, QString());
}

void piece_layout_edit_form::editModify()
{
    ItemState *s = stateOf(m_current);
    if (!s)
        return;
    hideEditors();
    const int a = alignmentCode(s->align);
    QTextEdit *editor = m_editors[size_t(a)];
    editor->setGeometry(s->label->geometry());
    editor->setFont(s->label->font());
    editor->setPlainText(shownText(s->text));
    m_editing = a;
    editor->show();
    editor->raise();
    editor->setFocus(Qt::OtherFocusReason);
    hideHandles();
}

void piece_layout_edit_form::editBringToFront()
{
    placeHandles(m_current);
}

void piece_layout_edit_form::editSendToBack()
{
    const ItemState *s = stateOf(m_current);
    if (!s)
        return;
    // Handles first, then the item: the handles end up under every item and
    // may be hidden by them. That is the order the command has always had.
    for (QLabel *handle : m_handles)
        handle->lower();
    s->label->lower();
    hideEditors();
}

void piece_layout_edit_form::editDefault()
{
    leaveFields();
    hideEditors();
    const float width = ParseSingle(m_pieceWidth->text());
    const float height = ParseSingle(m_pieceHeight->text());
    // The labels' own texts and fonts go in, so that typed texts survive.
    std::array<Item, ItemCount> items;
    copyItemsBack(items);
    DefaultLayout(height, width, items[0], items[1], items[2], items[3], items[4]);
    for (int i = 0; i < ItemCount; ++i)
        loadItem(i + 1, items[size_t(i)]);
    selectItem(1);
}

// --- the Format menu ---------------------------------------------------------

void piece_layout_edit_form::formatOpening()
{
    const ItemState *s = stateOf(m_current);
    if (!s)
        return;
    // Full justify is never unchecked here: once chosen it stays checked.
    for (int i = 0; i < 3; ++i)
        m_justify[size_t(i)]->setChecked(false);
    switch (s->align) {
    case haLeft:
        m_justify[0]->setChecked(true);
        break;
    case haCenter:
        m_justify[1]->setChecked(true);
        break;
    case haRight:
        m_justify[2]->setChecked(true);
        break;
    case haFull:
        m_justify[3]->setChecked(true);
        break;
    }
    m_borders->setChecked(s->border != 0);
    selectItem(m_current);
}

void piece_layout_edit_form::formatJustify(int entry)
{
    m_justify[size_t(entry)]->setChecked(true);
    ItemState *s = stateOf(m_current);
    if (!s)
        return;
    // The entries read left, centre, right; the label's codes 0, 2, 1.
    switch (entry) {
    case 0:
        s->align = haLeft;
        break;
    case 1:
        s->align = haCenter;
        break;
    case 2:
        s->align = haRight;
        break;
    default:
        return; // full justify leaves the label as it is
    }
    applyLook(m_current);
}

void piece_layout_edit_form::formatBorders()
{
    ItemState *s = stateOf(m_current);
    if (!s)
        return;
    s->border = m_borders->isChecked() ? 1 : 0;
    applyLook(m_current);
}

void piece_layout_edit_form::formatFont()
{
    ItemState *s = stateOf(m_current);
    if (!s)
        return;
    QFont font(s->font.Name);
    if (s->font.Size > 0 && std::isfinite(s->font.Size))
        font.setPointSizeF(s->font.Size);
    font.setBold(s->font.Bold);
    font.setItalic(s->font.Italic);
    font.setStrikeOut(s->font.Strikethrough);
    font.setUnderline(s->font.Underline);
    if (!ChooseFont(font, this))
        return; // cancelled: the label keeps its font
    s->font.Bold = font.bold();
    s->font.Italic = font.italic();
    s->font.Name = font.family();
    if (font.pointSizeF() > 0)
        s->font.Size = font.pointSizeF();
    else if (font.pixelSize() > 0)
        s->font.Size = font.pixelSize() * 72.0 / 96.0;
    s->font.Strikethrough = font.strikeOut();
    s->font.Underline = font.underline();
    // The colour is not kept: the piece prints in black.
    applyLook(m_current);
}

// --- the Display menu --------------------------------------------------------

void piece_layout_edit_form::displayOpening()
{
    for (int i = 0; i < ItemCount; ++i)
        m_display[size_t(i)]->setChecked(m_items[size_t(i)].visible);
}

void piece_layout_edit_form::displayItem(int index)
{
    ItemState &s = *stateOf(index);
    s.visible = m_display[size_t(index - 1)]->isChecked();
    s.label->setVisible(s.visible);
    if (s.visible) {
        // An item shown again is made big enough to be seen and taken.
        s.box = LayoutGeometry::shownAgain(s.box);
        applyBox(index);
        selectItem(index);
        return;
    }
    if (index == m_current) {
        hideEditors();
        selectFirstVisible();
    }
}

// --- OK and Cancel -----------------------------------------------------------

void piece_layout_edit_form::accept()
{
    m_accepted->setChecked(true);
    QDialog::accept();
}

void piece_layout_edit_form::reject()
{
    m_accepted->setChecked(false);
    QDialog::reject();
}

bool EditPieceLayout(QWidget *parent, float pieceWidth, float pieceHeight,
                     std::array<Item, ItemCount> &items)
{
    // The screen's size in twips: 1440 to the logical inch.
    int screenWidth = std::numeric_limits<qint16>::max();
    int screenHeight = std::numeric_limits<qint16>::max();
    if (const QScreen *screen = QGuiApplication::primaryScreen()) {
        const QRect available = screen->availableGeometry();
        screenWidth = int(std::lround(available.width() * 1440.0 / screen->logicalDotsPerInchX()));
        screenHeight =
            int(std::lround(available.height() * 1440.0 / screen->logicalDotsPerInchY()));
    }
    display_scale = LayoutGeometry::fitScale(pieceWidth, pieceHeight, screenWidth, screenHeight);

    piece_layout_edit_form form(parent);
    form.loadItems(pieceWidth, pieceHeight, items);
    form.exec();
    const bool accepted = form.dataWasAccepted();
    if (accepted)
        form.copyItemsBack(items);
    return accepted;
}

} // namespace quirra
