// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#include "dialogs/layoutcanvas.h"

#include "dialogs/layoutitemlabel.h"
#include "records/intelligentmail.h"
#include "settings/units.h"

#include <QKeyEvent>
#include <QLabel>
#include <QMouseEvent>
#include <QTextEdit>
#include <QTimer>

#include <cmath>

namespace quirra {

namespace {

// A label's alignment code: 0 left, 1 right, 2 centre. A fully justified
// item has no code of its own and counts as left aligned.
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

// The font a label shows: the true size at the display scale, plus 0.9999
// so that a scaled size is in effect rounded up, never down.
QFont labelFont(const ItemFont &font, float scale)
{
    QFont result(font.Name);
    if (font.Size > 0 && std::isfinite(font.Size))
        result.setPointSizeF(double(float(font.Size) * scale + 0.9999f));
    result.setBold(font.Bold);
    result.setItalic(font.Italic);
    result.setUnderline(font.Underline);
    result.setStrikeOut(font.Strikethrough);
    return result;
}

// An item length on the piece; a length that is no number is taken as 0,
// so a broken item lies in the corner instead of nowhere.
double displayTwips(float inches, float scale)
{
    const double twips = InchesToDisplayTwips(double(inches), scale);
    return std::isfinite(twips) ? twips : 0.0;
}

// Inches of a display length; a scale that is no positive number counts as
// 1, as the fields take it.
float displayTwipsToInches(double twips, float scale)
{
    const double s = double(scale);
    return float(twips / (s > 0 && std::isfinite(s) ? s : 1.0) / 1440.0);
}

template <typename Array> int indexIn(const Array &array, const QObject *object)
{
    for (size_t i = 0; i < array.size(); ++i) {
        if (array[i] == object)
            return int(i);
    }
    return -1;
}

} // namespace

LayoutCanvas::LayoutCanvas(QWidget *parent) : QFrame(parent)
{
    setObjectName(QStringLiteral("piece_frame"));
    // White paper; inside it everything is placed by hand, to the twip: it
    // is a drawing at scale.
    QPalette paper = palette();
    paper.setColor(QPalette::Window, Qt::white);
    paper.setColor(QPalette::WindowText, Qt::black);
    paper.setColor(QPalette::Base, Qt::white);
    paper.setColor(QPalette::Text, Qt::black);
    setPalette(paper);
    // Its own role, not the grey ground's that children otherwise inherit.
    setBackgroundRole(QPalette::Window);
    setAutoFillBackground(true);

    for (int i = 0; i < ItemCount; ++i) {
        auto *label = new LayoutItemLabel(this);
        label->setObjectName(QStringLiteral("item"));
        label->setProperty("index", i + 1);
        label->setCursor(Qt::SizeAllCursor);
        label->installEventFilter(this);
        m_items[size_t(i)].label = label;
    }
    for (int k = 0; k < LayoutGeometry::HandleCount; ++k) {
        auto *handle = new QLabel(this);
        handle->setObjectName(QStringLiteral("dot"));
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
        auto *editor = new QTextEdit(this);
        editor->setObjectName(QStringLiteral("edit_txt"));
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
        connect(editor, &QTextEdit::textChanged, this, [this, a, editor] {
            // Typing shows in the label at once.
            if (a == m_editing && stateOf(m_current))
                setItemText(m_current, itemText(editor->toPlainText()));
        });
        m_editors[size_t(a)] = editor;
    }
}

void LayoutCanvas::setPiece(float pieceWidth, float pieceHeight, float scale, double twipsPerPixel)
{
    hideEditors();
    m_twipsPerPixel = twipsPerPixel;
    m_geometry = LayoutGeometry(InchesToDisplayTwips(double(pieceWidth), scale),
                                InchesToDisplayTwips(double(pieceHeight), scale), scale);
    setFixedSize(toPixels(m_geometry.frameWidth()), toPixels(m_geometry.frameHeight()));
}

void LayoutCanvas::startEditing()
{
    if (m_state == MouseState::Loading)
        m_state = MouseState::Idle;
}

// --- the items -----------------------------------------------------------------

LayoutCanvas::ItemState *LayoutCanvas::stateOf(int index)
{
    return index >= 1 && index <= ItemCount ? &m_items[size_t(index - 1)] : nullptr;
}

const LayoutCanvas::ItemState *LayoutCanvas::item(int index) const
{
    return index >= 1 && index <= ItemCount ? &m_items[size_t(index - 1)] : nullptr;
}

void LayoutCanvas::loadItem(int index, const Item &item)
{
    ItemState *s = stateOf(index);
    if (!s)
        return;
    const float scale = m_geometry.scale();
    s->box = QRectF(displayTwips(item.Left, scale), displayTwips(item.Top, scale),
                    displayTwips(item.Width, scale), displayTwips(item.Height, scale));
    s->text = item.Text;
    s->align = item.HorzAlign;
    s->border = item.Border;
    s->font = item.Font;
    s->visible = item.Visible;
    applyBox(index);
    applyLook(index);
    s->label->setVisible(s->visible);
}

void LayoutCanvas::copyItemBack(int index, Item &item) const
{
    const ItemState *s = this->item(index);
    if (!s)
        return;
    const float scale = m_geometry.scale();
    item.Left = displayTwipsToInches(s->box.left(), scale);
    item.Top = displayTwipsToInches(s->box.top(), scale);
    item.Width = displayTwipsToInches(s->box.width(), scale);
    item.Height = displayTwipsToInches(s->box.height(), scale);
    item.Text = s->text;
    item.HorzAlign = s->align;
    item.Border = s->border;
    item.Visible = s->visible;
    item.Font.Name = s->font.Name;
    item.Font.Size = s->font.Size;
    item.Font.Bold = s->font.Bold;
    item.Font.Italic = s->font.Italic;
    item.Font.Underline = s->font.Underline;
    item.Font.Strikethrough = s->font.Strikethrough;
}

void LayoutCanvas::setItemBox(int index, const QRectF &box)
{
    if (ItemState *s = stateOf(index)) {
        s->box = box;
        applyBox(index);
    }
}

void LayoutCanvas::setAddressBarcode(bool on)
{
    ItemState *s = stateOf(1);
    if (!s)
        return;
    const double pixelsPerTwip = m_geometry.scale() / m_twipsPerPixel;
    s->label->setBarcodeBand(
        on ? QSize(int(std::lround(IntelligentMailBarcode::widthTwips() * pixelsPerTwip)),
                   int(std::lround(IntelligentMailBarcode::heightTwips() * pixelsPerTwip)))
           : QSize());
}

void LayoutCanvas::setItemText(int index, const QString &text)
{
    ItemState *s = stateOf(index);
    if (!s)
        return;
    s->text = text;
    s->label->setText(shownText(text));
    Q_EMIT textChanged(index);
}

void LayoutCanvas::setItemAlignment(int index, eHorzAlign align)
{
    if (ItemState *s = stateOf(index)) {
        s->align = align;
        applyLook(index);
    }
}

void LayoutCanvas::setItemBorder(int index, qint16 border)
{
    if (ItemState *s = stateOf(index)) {
        s->border = border;
        applyLook(index);
    }
}

void LayoutCanvas::setItemFont(int index, const ItemFont &font)
{
    if (ItemState *s = stateOf(index)) {
        s->font = font;
        applyLook(index);
    }
}

void LayoutCanvas::setItemVisible(int index, bool visible)
{
    ItemState *s = stateOf(index);
    if (!s)
        return;
    s->visible = visible;
    s->label->setVisible(visible);
    if (visible) {
        // An item shown again is made big enough to be seen and taken.
        s->box = LayoutGeometry::shownAgain(s->box);
        applyBox(index);
    }
}

int LayoutCanvas::toPixels(double twips) const
{
    return int(std::lround(twips / m_twipsPerPixel));
}

QPointF LayoutCanvas::pieceTwips(QWidget *child, const QMouseEvent *event) const
{
    // The mouse on the piece, from the pixel the child was hit at: exact to
    // the pixel, whatever fraction of a pixel the child's place rounds off.
    return (event->position() + QPointF(child->pos())) * m_twipsPerPixel;
}

void LayoutCanvas::applyBox(int index)
{
    const ItemState &s = m_items[size_t(index - 1)];
    // Edges are rounded on their own, so neighbouring boxes meet where their
    // twips meet.
    const int left = toPixels(s.box.left());
    const int top = toPixels(s.box.top());
    s.label->setGeometry(left, top, toPixels(s.box.right()) - left, toPixels(s.box.bottom()) - top);
}

void LayoutCanvas::applyLook(int index)
{
    const ItemState &s = m_items[size_t(index - 1)];
    s.label->setText(shownText(s.text));
    s.label->setAlignment(labelAlignment(s.align));
    s.label->setBordered(s.border != 0);
    s.label->setFont(labelFont(s.font, m_geometry.scale()));
    s.label->setProperty("Tag", QString::number(s.font.Size, 'g', 6));
}

// --- the selection and the handles -------------------------------------------

void LayoutCanvas::select(int index)
{
    m_current = stateOf(index) ? index : 0;
    if (m_current)
        placeHandles(m_current);
    else
        hideHandles();
}

void LayoutCanvas::placeHandles(int index)
{
    if (m_state == MouseState::Loading)
        return;
    const ItemState *s = item(index);
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

void LayoutCanvas::hideHandles()
{
    for (QLabel *handle : m_handles)
        handle->hide();
}

void LayoutCanvas::sendToBack(int index)
{
    const ItemState *s = item(index);
    if (!s)
        return;
    // Handles first, then the item: the handles end up under every item and
    // may be hidden by them. That is the order the command has always had.
    for (QLabel *handle : m_handles)
        handle->lower();
    s->label->lower();
    hideEditors();
}

// --- the in-place editors ----------------------------------------------------

void LayoutCanvas::editText(int index)
{
    const ItemState *s = item(index);
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

void LayoutCanvas::hideEditors()
{
    m_editing = -1;
    for (QTextEdit *editor : m_editors)
        editor->hide();
}

bool LayoutCanvas::editorEvent(int a, QEvent *event)
{
    QTextEdit *editor = m_editors[size_t(a)];
    switch (event->type()) {
    case QEvent::FocusIn:
        QTimer::singleShot(0, editor, &QTextEdit::selectAll);
        return false;
    case QEvent::FocusOut:
        if (static_cast<QFocusEvent *>(event)->reason() != Qt::PopupFocusReason && a == m_editing)
            hideEditors();
        return false;
    case QEvent::KeyPress:
        // Escape ends the typing, not the dialog.
        if (static_cast<QKeyEvent *>(event)->key() == Qt::Key_Escape) {
            Q_EMIT editingEscaped();
            hideEditors();
            return true;
        }
        return false;
    default:
        return false;
    }
}

// --- the mouse ---------------------------------------------------------------

bool LayoutCanvas::itemMouse(int index, QEvent *event)
{
    ItemState &s = m_items[size_t(index - 1)];
    const auto *mouse = static_cast<QMouseEvent *>(event);
    const QPointF at = pieceTwips(s.label, mouse) - s.box.topLeft(); // relative to the item
    switch (event->type()) {
    case QEvent::MouseButtonPress:
        Q_EMIT itemPressed(index);
        hideHandles();
        m_state = MouseState::Dragging;
        m_current = index;
        m_itemDown = at;
        s.label->raise();
        if (mouse->button() == Qt::RightButton) {
            m_state = MouseState::Idle;
            m_itemDown = QPointF();
            Q_EMIT itemMenuRequested(index, mouse->globalPosition().toPoint());
        }
        return true;
    case QEvent::MouseMove:
        if (m_state == MouseState::Dragging) {
            s.box.moveTopLeft(m_geometry.dragged(s.box, at, m_itemDown));
            applyBox(index);
        }
        return true;
    case QEvent::MouseButtonRelease: {
        // The click that follows a press selects the item, wherever the
        // keep-out left it under the mouse.
        const bool click = m_state == MouseState::Dragging;
        m_state = MouseState::Idle;
        m_itemDown = QPointF();
        if (click)
            Q_EMIT itemClicked(index);
        return true;
    }
    case QEvent::MouseButtonDblClick:
        // A double click edits the text; the release after it clicks nothing.
        m_state = MouseState::Idle;
        m_itemDown = QPointF();
        m_current = index;
        Q_EMIT itemDoubleClicked(index);
        return true;
    default:
        return false;
    }
}

bool LayoutCanvas::handleMouse(int handle, QEvent *event)
{
    const auto *mouse = static_cast<QMouseEvent *>(event);
    switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
        m_state = stateOf(m_current) ? MouseState::Sizing : MouseState::Idle;
        return true;
    case QEvent::MouseMove: {
        ItemState *s = stateOf(m_current);
        if (m_state != MouseState::Sizing || !s)
            return true; // not held, or a step is still running
        m_state = MouseState::Resizing;
        // The mouse relative to the handle's own corner as it is drawn, not
        // to the press: the handle's corner follows the mouse, and an edge
        // the mouse does not move along stays where it is.
        s->box = m_geometry.resized(handle, s->box, mouse->position() * m_twipsPerPixel);
        applyBox(m_current);
        placeHandles(m_current);
        m_state = MouseState::Sizing;
        return true;
    }
    case QEvent::MouseButtonRelease:
        if (m_state == MouseState::Sizing) {
            m_state = MouseState::Idle;
            Q_EMIT itemResized(m_current, LayoutGeometry::fieldsOfHandle(handle));
        }
        return true;
    default:
        return false;
    }
}

bool LayoutCanvas::eventFilter(QObject *watched, QEvent *event)
{
    switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseMove:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
        if (m_state == MouseState::Loading)
            break;
        for (int i = 0; i < ItemCount; ++i) {
            if (m_items[size_t(i)].label == watched)
                return itemMouse(i + 1, event);
        }
        if (const int k = indexIn(m_handles, watched); k >= 0)
            return handleMouse(k + 1, event);
        break;
    default:
        break;
    }
    if (const int a = indexIn(m_editors, watched); a >= 0 && editorEvent(a, event))
        return true;
    return QFrame::eventFilter(watched, event);
}

} // namespace quirra
