// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#include "dialogs/piece_layout_edit_form.h"

#include "dialogs/hostservices.h"
#include "dialogs/layoutcanvas.h"
#include "dialogs/layoutitemlabel.h"
#include "dialogs/logging_p.h"
#include "dialogs/numberkeyfilter.h"
#include "model/fontconversion.h"
#include "model/piecemodel.h"
#include "settings/defaultlayout.h"
#include "settings/settings.h"
#include "settings/units.h"

#include <QAction>
#include <QFrame>
#include <QGridLayout>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QScreen>
#include <QScrollBar>
#include <QStyle>
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

} // namespace

piece_layout_edit_form::piece_layout_edit_form(QWidget *parent) : QDialog(parent)
{
    if (const QScreen *screen = QGuiApplication::primaryScreen()) {
        if (screen->logicalDotsPerInchX() > 0)
            m_twipsPerPixel = 1440.0 / screen->logicalDotsPerInchX();
    }
    buildWidgets();
    connectCanvas();
    centreOnScreen();
}

piece_layout_edit_form::~piece_layout_edit_form() = default;

void piece_layout_edit_form::buildWidgets()
{
    setObjectName(QStringLiteral("piece_layout_edit_form"));
    setWindowTitle(tr("Piece Layout"));

    auto *menuBar = new QMenuBar(this);
    menuBar->setObjectName(QStringLiteral("menu_bar"));

    // The piece: white paper on a grey ground.
    auto *pieceArea = new QFrame(this);
    pieceArea->setObjectName(QStringLiteral("piece_area"));
    pieceArea->setFrameShape(QFrame::StyledPanel);
    pieceArea->setFrameShadow(QFrame::Sunken);
    pieceArea->setBackgroundRole(QPalette::Mid);
    pieceArea->setAutoFillBackground(true);
    m_canvas = new LayoutCanvas(pieceArea);
    for (int i = 1; i <= ItemCount; ++i)
        m_canvas->item(i)->label->setToolTip(tr(ItemTitles[i - 1]));
    // The editor keeps 360 twips (24 pixels) of the screen's width beside a
    // piece fitted to it: the ground's margins and the form's stay within.
    auto *areaLayout = new QGridLayout(pieceArea);
    areaLayout->setContentsMargins(7, 7, 7, 7);
    areaLayout->addWidget(m_canvas, 0, 0, Qt::AlignCenter);

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
    buildFields(positionLayout, position);

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

void piece_layout_edit_form::buildFields(QGridLayout *layout, QWidget *panel)
{
    const int stepperWidth = style()->pixelMetric(QStyle::PM_ScrollBarExtent);
    for (int f = 0; f < int(std::size(FieldDefinitions)); ++f) {
        const FieldDefinition &d = FieldDefinitions[f];
        Field field;
        field.which = d.which;
        auto *caption = new QLabel(tr(d.caption), panel);
        caption->setObjectName(QLatin1String(d.name).chopped(4) + QLatin1String("_lbl"));
        field.edit = new QLineEdit(panel);
        field.edit->setObjectName(QLatin1String(d.name));
        field.edit->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
        field.edit->setFixedWidth(field.edit->fontMetrics().horizontalAdvance(u'0') * 7);
        field.edit->setAccessibleName(caption->text().chopped(1));
        field.edit->installEventFilter(this);
        caption->setBuddy(field.edit);
        field.stepper = new QScrollBar(Qt::Vertical, panel);
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
        layout->addWidget(caption, row, column);
        layout->addLayout(pair, row, column + 1);
        m_fields[size_t(f)] = field;
    }
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
    //: Menu command: puts every item back where the piece's default layout has it
    entry(edit, "edit_default_mnu", tr("Default"), &piece_layout_edit_form::editDefault);

    m_formatMenu = menuBar->addMenu(tr("F&ormat"));
    m_formatMenu->setObjectName(QStringLiteral("format_mnu"));
    connect(m_formatMenu, &QMenu::aboutToShow, this, &piece_layout_edit_form::formatOpening);
    for (int i = 0; i < int(m_justify.size()); ++i) {
        QAction *action = m_formatMenu->addAction(tr(JustifyCaptions[i]));
        action->setObjectName(QStringLiteral("format_justify_mnu"));
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
        action->setObjectName(QStringLiteral("display_item_mnu"));
        action->setProperty("index", i + 1);
        action->setCheckable(true);
        connect(action, &QAction::triggered, this, [this, i] { displayItem(i + 1); });
        m_display[size_t(i)] = action;
    }
}

void piece_layout_edit_form::connectCanvas()
{
    connect(m_canvas, &LayoutCanvas::itemPressed, this, [this](int index) {
        leaveFields();
        showName(index);
    });
    connect(m_canvas, &LayoutCanvas::itemClicked, this, &piece_layout_edit_form::selectItem);
    connect(m_canvas, &LayoutCanvas::itemMenuRequested, this, [this](int index, const QPoint &at) {
        selectItem(index);
        m_formatMenu->popup(at);
    });
    connect(m_canvas, &LayoutCanvas::itemDoubleClicked, this, &piece_layout_edit_form::editModify);
    connect(m_canvas, &LayoutCanvas::itemResized, this, &piece_layout_edit_form::refreshFields);
    connect(m_canvas, &LayoutCanvas::textChanged, this, [this](int index) {
        if (index == m_canvas->current())
            refreshFields(index);
    });
    connect(m_canvas, &LayoutCanvas::editingEscaped, this, &piece_layout_edit_form::leaveFields);
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
                                       const std::array<Item, ItemCount> &items, float scale)
{
    m_pieceWidth = pieceWidth;
    m_pieceHeight = pieceHeight;
    m_canvas->setPiece(pieceWidth, pieceHeight, scale, m_twipsPerPixel);
    // The ground round the piece asks for the new size now, not when its
    // layout gets round to it: the form is sized and centred on it below.
    m_canvas->parentWidget()->updateGeometry();
    for (int i = 0; i < ItemCount; ++i)
        m_canvas->loadItem(i + 1, items[size_t(i)]);
    m_canvas->setAddressBarcode(PieceModel::shared().AddressBarcode);
    qCDebug(lcDialogs) << "layout editor on a piece of" << pieceWidth << "x" << pieceHeight
                       << "inches at the scale" << scale;
    if (m_activated) {
        // Loaded into a form already shown: select afresh.
        selectFirstVisible();
    } else {
        centreOnScreen();
    }
}

void piece_layout_edit_form::copyItemsBack(std::array<Item, ItemCount> &items) const
{
    for (int i = 0; i < ItemCount; ++i)
        m_canvas->copyItemBack(i + 1, items[size_t(i)]);
}

int piece_layout_edit_form::currentItem() const
{
    return m_canvas->current();
}

QRectF piece_layout_edit_form::itemBox(int index) const
{
    const LayoutCanvas::ItemState *s = m_canvas->item(index);
    return s ? s->box : QRectF();
}

QSizeF piece_layout_edit_form::pieceSize() const
{
    return QSizeF(m_canvas->geometry().frameWidth(), m_canvas->geometry().frameHeight());
}

float piece_layout_edit_form::displayScale() const
{
    return m_canvas->scale();
}

// --- the selection -----------------------------------------------------------

void piece_layout_edit_form::showName(int index)
{
    if (index >= 1 && index <= ItemCount)
        m_itemName->setText(tr(ItemTitles[index - 1]));
    else
        m_itemName->clear();
}

void piece_layout_edit_form::refreshFields(int index, LayoutGeometry::Fields fields)
{
    const LayoutCanvas::ItemState *s = m_canvas->item(index);
    if (!s)
        return;
    m_fieldItem = index;
    // Writing the fields is no typing: the label keeps its exact twips.
    m_refreshing = true;
    for (const Field &field : m_fields) {
        if (fields & field.which)
            field.edit->setText(DisplayTwipsToText(LayoutGeometry::fieldValue(field.which, s->box),
                                                   m_canvas->scale()));
    }
    m_refreshing = false;
}

void piece_layout_edit_form::selectItem(int index)
{
    if (!m_canvas->item(index))
        return;
    // The field being typed in is finished for its own item first.
    leaveFields();
    showName(index);
    m_canvas->select(index);
    refreshFields(index);
}

void piece_layout_edit_form::selectFirstVisible()
{
    for (int i = 1; i <= ItemCount; ++i) {
        if (m_canvas->item(i)->visible) {
            selectItem(i);
            return;
        }
    }
    leaveFields();
    showName(0);
    m_canvas->select(0);
}

void piece_layout_edit_form::leaveFields()
{
    m_ok->setFocus(Qt::OtherFocusReason);
}

void piece_layout_edit_form::activate()
{
    m_accepted = false;
    if (m_activated)
        return;
    m_activated = true;
    m_canvas->startEditing();
    selectFirstVisible();
}

// --- the position fields -----------------------------------------------------

float piece_layout_edit_form::upperBound(const Field &field) const
{
    const LayoutCanvas::ItemState *s = m_canvas->item(m_fieldItem);
    return s ? m_canvas->geometry().upperBound(field.which, s->box) : 0.0f;
}

bool piece_layout_edit_form::fieldEvent(const Field &field, QEvent *event)
{
    switch (event->type()) {
    case QEvent::KeyPress:
        // Up and Down step the field as its stepper's arrows do.
        return FilterNumberBoxKey(static_cast<QKeyEvent *>(event), field.stepper);
    case QEvent::KeyRelease: {
        // Every key leaves the number as the field shows numbers, within
        // its bounds, the caret at its end.
        const QString text = field.edit->text();
        const QString typed = LayoutGeometry::typed(text, upperBound(field));
        if (typed != text) {
            field.edit->setText(typed);
            field.edit->setCursorPosition(int(typed.size()));
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
        const LayoutCanvas::ItemState *s = m_canvas->item(m_fieldItem);
        if (!s)
            return false;
        const QString text = field.edit->text();
        const double current = ParseDouble(
            DisplayTwipsToText(LayoutGeometry::fieldValue(field.which, s->box), m_canvas->scale()));
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
    const LayoutCanvas::ItemState *s = m_canvas->item(m_fieldItem);
    if (m_refreshing || !s)
        return;
    const QString text = field.edit->text();
    if (!IsNumeric(text))
        return;
    QRectF box = s->box;
    LayoutGeometry::setFieldValue(
        field.which, box, InchesToDisplayTwips(double(ParseSingle(text)), m_canvas->scale()));
    m_canvas->setItemBox(m_fieldItem, box);
    m_canvas->placeHandles(m_fieldItem);
}

void piece_layout_edit_form::onStepper(const Field &field, int value)
{
    // Setting the bar back to 0 below comes back here with 0: nothing to do.
    if (value == 0)
        return;
    if (m_canvas->item(m_fieldItem)) {
        const LayoutGeometry::Step step =
            LayoutGeometry::stepped(field.edit->text(), value, upperBound(field));
        if (step.clamped)
            HostServices::of(this).beep();
        field.edit->setText(step.text); // moves the label through the field's change
    }
    field.stepper->setValue(0);
    m_canvas->placeHandles(m_canvas->current());
}

bool piece_layout_edit_form::eventFilter(QObject *watched, QEvent *event)
{
    for (const Field &field : m_fields) {
        if (field.edit == watched && fieldEvent(field, event))
            return true;
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
    m_canvas->setItemText(m_canvas->current(), QString());
}

void piece_layout_edit_form::editModify()
{
    m_canvas->editText(m_canvas->current());
}

void piece_layout_edit_form::editBringToFront()
{
    m_canvas->placeHandles(m_canvas->current());
}

void piece_layout_edit_form::editSendToBack()
{
    m_canvas->sendToBack(m_canvas->current());
}

void piece_layout_edit_form::editDefault()
{
    leaveFields();
    m_canvas->hideEditors();
    // The labels' own texts and fonts go in, so that typed texts survive.
    std::array<Item, ItemCount> items;
    copyItemsBack(items);
    DefaultLayout(m_pieceHeight, m_pieceWidth, items[0], items[1], items[2], items[3], items[4]);
    for (int i = 0; i < ItemCount; ++i)
        m_canvas->loadItem(i + 1, items[size_t(i)]);
    selectItem(1);
}

// --- the Format menu ---------------------------------------------------------

void piece_layout_edit_form::formatOpening()
{
    const LayoutCanvas::ItemState *s = m_canvas->item(m_canvas->current());
    if (!s)
        return;
    // Full justify is never unchecked here: once chosen it stays checked.
    // The label knows left, centre and right only; a fully justified item
    // is drawn from the left and ticks Left Justify.
    for (int i = 0; i < 3; ++i)
        m_justify[size_t(i)]->setChecked(false);
    switch (s->align) {
    case haCenter:
        m_justify[1]->setChecked(true);
        break;
    case haRight:
        m_justify[2]->setChecked(true);
        break;
    default:
        m_justify[0]->setChecked(true);
        break;
    }
    m_borders->setChecked(s->border != 0);
    selectItem(m_canvas->current());
}

void piece_layout_edit_form::formatJustify(int entry)
{
    m_justify[size_t(entry)]->setChecked(true);
    // The entries read left, centre, right; full justify leaves the label as it is.
    const eHorzAlign aligns[] = {haLeft, haCenter, haRight};
    if (entry < 3)
        m_canvas->setItemAlignment(m_canvas->current(), aligns[entry]);
}

void piece_layout_edit_form::formatBorders()
{
    m_canvas->setItemBorder(m_canvas->current(), m_borders->isChecked() ? 1 : 0);
}

void piece_layout_edit_form::formatFont()
{
    const LayoutCanvas::ItemState *s = m_canvas->item(m_canvas->current());
    if (!s)
        return;
    QFont font = toQFont(s->font);
    if (!HostServices::of(this).chooseFont(font, this))
        return; // cancelled: the label keeps its font
    const ItemFont chosen = toItemFont(font);
    // The colour is not kept: the piece prints in black.
    m_canvas->setItemFont(m_canvas->current(), chosen);
}

// --- the Display menu --------------------------------------------------------

void piece_layout_edit_form::displayOpening()
{
    for (int i = 0; i < ItemCount; ++i)
        m_display[size_t(i)]->setChecked(m_canvas->item(i + 1)->visible);
}

void piece_layout_edit_form::displayItem(int index)
{
    const bool visible = m_display[size_t(index - 1)]->isChecked();
    m_canvas->setItemVisible(index, visible);
    if (visible) {
        selectItem(index);
    } else if (index == m_canvas->current()) {
        m_canvas->hideEditors();
        selectFirstVisible();
    }
}

// --- OK and Cancel -----------------------------------------------------------

void piece_layout_edit_form::accept()
{
    m_accepted = true;
    QDialog::accept();
}

void piece_layout_edit_form::reject()
{
    m_accepted = false;
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
    const float scale =
        LayoutGeometry::fitScale(pieceWidth, pieceHeight, screenWidth, screenHeight);

    piece_layout_edit_form form(parent);
    form.loadItems(pieceWidth, pieceHeight, items, scale);
    form.exec();
    const bool accepted = form.dataWasAccepted();
    if (accepted)
        form.copyItemsBack(items);
    return accepted;
}

} // namespace quirra
