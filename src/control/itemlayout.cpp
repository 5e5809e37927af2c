// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#include "control/itemlayout.h"

#include "catalogue/piececatalogue.h"
#include "catalogue/pieceentry.h"
#include "catalogue/pieceloader.h"
#include "control/calibrationfields.h"
#include "control/logging_p.h"
#include "control/quirra.h"
#include "dialogs/piece_customization_form.h"
#include "dialogs/piece_layout_edit_form.h"
#include "dialogs/piece_select_form.h"
#include "model/error.h"

#include <QEvent>
#include <QFrame>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QMessageBox>
#include <QMouseEvent>
#include <QPushButton>
#include <QVBoxLayout>

#include <algorithm>
#include <cmath>

namespace quirra {

namespace {

struct ItemCode
{
    const char *code;
    ItemId id;
    const char *shape;
    const char *label;
    const char *caption; // also the name lblItem shows
};

// The page's own order of the items; the views follow it.
constexpr ItemCode Codes[ItemCount] = {
    {"Add", ItemId::Address, "shpAdd", "lblAdd", "Address"},
    {"Ret", ItemId::Return, "shpRet", "lblRet", "Return"},
    {"M1", ItemId::Message1, "shpM1", "lblM1", "Message 1"},
    {"M2", ItemId::Message2, "shpM2", "lblM2", "Message 2"},
    {"Stamp", ItemId::Stamp, "shpStamp", "lblStamp", "Stamp"},
};

int codeIndex(const QString &code)
{
    for (int i = 0; i < ItemCount; ++i) {
        if (code == QLatin1String(Codes[i].code))
            return i;
    }
    return -1;
}

// Pixels kept free round the miniature inside its frame.
constexpr int MiniatureMargin = 10;

QLabel *namedLabel(const char *name, const QString &text, QWidget *parent)
{
    auto *label = new QLabel(text, parent);
    label->setObjectName(QLatin1String(name));
    return label;
}

// "Top = 1.235"; a length too large for the page's rounding says so.
QString lengthText(const QString &prefix, float inches)
{
    try {
        return prefix + ItemLayout::roundedInches(inches);
    } catch (const Error &e) {
        qCWarning(lcControl).noquote() << prefix << e.message();
        return prefix + ItemLayout::tr("Overflow");
    }
}

QPushButton *namedButton(const char *name, const QString &text, QWidget *parent)
{
    auto *button = new QPushButton(text, parent);
    button->setObjectName(QLatin1String(name));
    return button;
}

} // namespace

ItemLayout::ItemLayout(QWidget *parent) : QWidget(parent)
{
    buildWidgets();
    setSelectedControls({});
}

ItemLayout::~ItemLayout() = default;

void ItemLayout::buildWidgets()
{
    setObjectName(QStringLiteral("ItemLayout"));

    m_frame = new QGroupBox(tr("Piece"), this);
    m_frame->setObjectName(QStringLiteral("frmPiece"));
    m_area = new QWidget(m_frame);
    m_area->setObjectName(QStringLiteral("piece_area"));
    m_area->setMinimumSize(340, 220);
    m_area->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    m_area->installEventFilter(this);
    auto *frameLayout = new QVBoxLayout(m_frame);
    frameLayout->addWidget(m_area);

    m_pieceBox = new QFrame(m_area);
    m_pieceBox->setObjectName(QStringLiteral("piecebox"));
    m_pieceBox->setStyleSheet(
        QStringLiteral("#piecebox { background: white; border: 1px solid #404040; }"));

    QFont captionFont(QStringLiteral("Times New Roman"));
    captionFont.setPointSize(8);
    for (int i = 0; i < ItemCount; ++i) {
        auto *shape = new QFrame(m_pieceBox);
        shape->setObjectName(QLatin1String(Codes[i].shape));
        m_views[i].shape = shape;
    }
    // The captions lie above every shape, so an item under another stays
    // pickable by its label.
    for (int i = 0; i < ItemCount; ++i) {
        QLabel *caption = namedLabel(Codes[i].label, tr(Codes[i].caption), m_pieceBox);
        caption->setFont(captionFont);
        caption->setCursor(Qt::PointingHandCursor);
        caption->setToolTip(tr("Click to pick the item, double-click to edit the layout"));
        caption->installEventFilter(this);
        m_views[i].caption = caption;
    }

    m_pieceName = namedLabel("lblPName", QString(), this);
    QFont bold = m_pieceName->font();
    bold.setBold(true);
    m_pieceName->setFont(bold);
    m_pieceName->setWordWrap(true);
    m_pieceButton = namedButton("btnDotDotDot", QStringLiteral("..."), this);
    m_pieceButton->setToolTip(tr("Choose another piece from the catalogue"));
    m_pieceButton->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    m_pieceButton->setFixedWidth(m_pieceButton->fontMetrics().horizontalAdvance(u'x') * 5);
    m_pieceHeight = namedLabel("lblPHeight", tr("Height = 2.3"), this);
    m_pieceWidth = namedLabel("lblPWidth", tr("Width = 3.4"), this);

    m_itemName = namedLabel("lblItem", QString(), this);
    m_itemName->setFont(bold);
    m_itemTop = namedLabel("lblItop", QString(), this);
    m_itemLeft = namedLabel("lblIleft", QString(), this);
    m_itemHeight = namedLabel("lblIheight", QString(), this);
    m_itemWidth = namedLabel("lblIwidth", QString(), this);

    m_layoutButton = namedButton("btnPieceLayout", tr("Piece Layout"), this);
    m_customButton = namedButton("btnPieceCust", tr("Piece Customization"), this);
    connect(m_layoutButton, &QPushButton::clicked, this, &ItemLayout::editLayout);
    connect(m_customButton, &QPushButton::clicked, this, &ItemLayout::customizePiece);
    connect(m_pieceButton, &QPushButton::clicked, this, &ItemLayout::choosePiece);

    auto *nameRow = new QHBoxLayout;
    nameRow->addWidget(m_pieceName, 1);
    nameRow->addWidget(m_pieceButton, 0, Qt::AlignTop);

    auto *side = new QVBoxLayout;
    side->addLayout(nameRow);
    side->addWidget(m_pieceHeight);
    side->addWidget(m_pieceWidth);
    side->addSpacing(12);
    side->addWidget(m_itemName);
    side->addWidget(m_itemTop);
    side->addWidget(m_itemLeft);
    side->addWidget(m_itemHeight);
    side->addWidget(m_itemWidth);
    side->addStretch(1);
    side->addWidget(m_layoutButton);
    side->addWidget(m_customButton);

    // The side column is as wide as its widest button, and a long piece
    // name wraps within it.
    const int sideWidth =
        std::max(m_customButton->sizeHint().width(), fontMetrics().horizontalAdvance(u'x') * 24);
    m_pieceName->setMinimumWidth(sideWidth - m_pieceButton->width() - 6);
    m_layoutButton->setMinimumWidth(sideWidth);

    // The printer's offsets and stretch, under the miniature.
    m_calibration = new CalibrationFields(this);
    connect(m_calibration, &CalibrationFields::edited, this,
            [this](const QString &name, float value) {
                CalibrationFields::store(m_copy.model(), name, value);
                setChanged(true);
            });
    auto *main = new QVBoxLayout;
    main->addWidget(m_frame, 1);
    main->addWidget(m_calibration);

    auto *layout = new QHBoxLayout(this);
    layout->addLayout(main, 1);
    layout->addLayout(side);
}

void ItemLayout::setSelectedControls(const QList<Quirra *> &controls)
{
    m_controls.clear();
    for (Quirra *control : controls) {
        if (control)
            m_controls.append(control);
    }
    const bool any = !m_controls.isEmpty();
    m_copy = LayoutCopy();
    if (any) {
        const Quirra &control = *m_controls.first();
        m_copy.readFrom(control);
        m_copy.model().PrinterScaleX = control.PrinterScaleX();
        m_copy.model().PrinterScaleY = control.PrinterScaleY();
    }
    for (QPushButton *button : {m_layoutButton, m_customButton, m_pieceButton})
        button->setEnabled(any);
    m_frame->setEnabled(any);
    m_calibration->setEnabled(any);
    setChanged(false);
    refresh();
}

QList<Quirra *> ItemLayout::selectedControls() const
{
    QList<Quirra *> alive;
    for (const QPointer<Quirra> &control : m_controls) {
        if (control)
            alive.append(control);
    }
    return alive;
}

void ItemLayout::applyChanges()
{
    const QList<Quirra *> controls = selectedControls();
    if (controls.isEmpty()) {
        qCInfo(lcControl) << "nothing to apply: the property page has no control";
        return;
    }
    Quirra &control = *controls.first();
    m_copy.writeTo(control);
    control.PrinterScaleX(m_copy.model().PrinterScaleX);
    control.PrinterScaleY(m_copy.model().PrinterScaleY);
}

void ItemLayout::setChanged(bool changed)
{
    if (m_changed == changed)
        return;
    m_changed = changed;
    Q_EMIT changedMarkChanged(changed);
}

void ItemLayout::selectItem(const QString &code)
{
    if (codeIndex(code) < 0)
        return;
    m_selected = code;
    styleShapes();
    showItemInfo();
}

QString ItemLayout::roundedInches(float inches)
{
    // Thousandths as a 16-bit whole number, as the page always showed them;
    // 0.001 in double precision, printed with the 15 digits a double shows.
    const float thousandths = inches * 1000.0f;
    if (!std::isfinite(thousandths))
        throw Error(QStringLiteral("Overflow: the length %1 is not a number of inches")
                        .arg(double(inches)));
    const qint16 whole = toInt16Checked(qint64(std::nearbyint(double(thousandths))),
                                        "a length in thousandths of an inch");
    return QString::number(whole * 0.001, 'g', 15);
}

// --- The buttons -------------------------------------------------------------

bool ItemLayout::editLayout()
{
    PieceModel &model = m_copy.model();
    std::array<Item, ItemCount> items;
    for (int i = 0; i < ItemCount; ++i)
        items[i] = model.item(ArgumentOrder[i]);
    bool accepted = false;
    try {
        accepted = EditPieceLayout(this, model.piece.PieceWidth, model.piece.PieceHeight, items);
    } catch (const Error &e) {
        // A piece the editor cannot show (too large, no size): the page
        // stays as it was and says why.
        qCWarning(lcControl).noquote() << e.message();
        QMessageBox box(QMessageBox::Warning, tr("Piece Layout"), e.message(), QMessageBox::Ok,
                        this);
        box.setObjectName(QStringLiteral("layout_error_box"));
        box.exec();
    }
    if (accepted) {
        for (int i = 0; i < ItemCount; ++i)
            model.item(ArgumentOrder[i]) = items[i];
    }
    refresh();
    return accepted;
}

void ItemLayout::customizePiece()
{
    Piece &piece = m_copy.model().piece;
    PieceSpec entry = PieceEntryOf(piece);
    entry.IsCustom = piece.IsCustom != 0;
    if (ShowPieceCustomizationDialog(this, entry)) {
        setChanged(true);
        // The page takes the name and the whole geometry; the items stay
        // where the developer put them, for the layout editor to adjust.
        piece.PieceName = entry.Name;
        CopyPieceSpec(entry, piece);
    }
    refresh();
}

void ItemLayout::choosePiece()
{
    PieceModel &model = m_copy.model();
    QString name = model.piece.PieceName;
    const auto catalogue = Catalogue::system();
    if (ShowPieceSelectDialog(this, name, catalogue)) {
        setChanged(true);
        // As the control does: a name the catalogue has lost falls back on
        // the default envelope, and the items are laid out afresh.
        const PieceSpec entry = catalogue->pieceOrDefault(name);
        model.piece.PieceName = entry.Name.isEmpty() ? name : entry.Name;
        ApplyPieceSpec(entry, model);
    }
    refresh();
}

// --- Drawing -----------------------------------------------------------------

void ItemLayout::refresh()
{
    layoutMiniature();
    styleShapes();
    showPieceInfo();
    showItemInfo();
    m_calibration->showValues(m_copy.model());
}

void ItemLayout::layoutMiniature()
{
    const Piece &piece = m_copy.model().piece;
    const QRect room = m_area->rect().adjusted(MiniatureMargin, MiniatureMargin, -MiniatureMargin,
                                               -MiniatureMargin);
    const bool drawable = piece.PieceWidth > 0 && piece.PieceHeight > 0 && room.width() > 0 &&
                          room.height() > 0 && std::isfinite(piece.PieceWidth) &&
                          std::isfinite(piece.PieceHeight);
    m_pieceBox->setVisible(drawable);
    if (!drawable)
        return;

    // Pixels per inch: the whole piece fits the frame, in proportion.
    const double scale = std::min(room.width() / double(piece.PieceWidth),
                                  room.height() / double(piece.PieceHeight));
    const QSize size(std::max(1, int(std::lround(piece.PieceWidth * scale))),
                     std::max(1, int(std::lround(piece.PieceHeight * scale))));
    m_pieceBox->setGeometry(QRect(QPoint(room.x() + (room.width() - size.width()) / 2,
                                         room.y() + (room.height() - size.height()) / 2),
                                  size));

    const auto px = [scale](float inches) {
        const double value = inches * scale;
        return std::isfinite(value) ? int(std::lround(std::clamp(value, -1e6, 1e6))) : 0;
    };
    // Each caption sits in its shape's top-left corner, kept on the piece;
    // one that would cover a caption already placed moves down below it, so
    // that items stacked on a small label stay readable and pickable.
    QList<QRect> placed;
    const QRect inside = m_pieceBox->rect().adjusted(1, 1, -1, -1);
    for (int i = 0; i < ItemCount; ++i) {
        const Item &item = m_copy.model().item(Codes[i].id);
        const QRect box(px(item.Left), px(item.Top), std::max(1, px(item.Width)),
                        std::max(1, px(item.Height)));
        m_views[i].shape->setGeometry(box);
        QLabel *caption = m_views[i].caption;
        caption->adjustSize();
        QRect where(box.topLeft() + QPoint(3, 1), caption->size());
        for (int tries = 0; tries < ItemCount; ++tries) {
            where.moveRight(std::min(where.right(), inside.right()));
            where.moveLeft(std::max(where.left(), inside.left()));
            where.moveBottom(std::min(where.bottom(), inside.bottom()));
            where.moveTop(std::max(where.top(), inside.top()));
            const auto covered = std::find_if(placed.cbegin(), placed.cend(),
                                              [&](const QRect &r) { return r.intersects(where); });
            if (covered == placed.cend())
                break;
            where.moveTop(covered->bottom() + 1);
        }
        caption->move(where.topLeft());
        placed.append(where);
    }
}

void ItemLayout::styleShapes()
{
    const int selected = codeIndex(m_selected);
    for (int i = 0; i < ItemCount; ++i) {
        const Item &item = m_copy.model().item(Codes[i].id);
        // A hidden item is drawn dashed, the picked one in blue.
        const QString line = item.Visible ? QStringLiteral("solid") : QStringLiteral("dashed");
        const QString border =
            i == selected
                ? QStringLiteral("2px %1 #1d5fbf; background: rgba(29, 95, 191, 36)").arg(line)
                : QStringLiteral("1px %1 %2; background: transparent")
                      .arg(line,
                           item.Visible ? QStringLiteral("#5a5a5a") : QStringLiteral("#a0a0a0"));
        m_views[i].shape->setStyleSheet(
            QStringLiteral("#%1 { border: %2; }").arg(QLatin1String(Codes[i].shape), border));
        // A caption keeps the lines of other shapes from crossing its text.
        const QString colour = i == selected  ? QStringLiteral("#1d5fbf")
                               : item.Visible ? QStringLiteral("black")
                                              : QStringLiteral("#808080");
        m_views[i].caption->setStyleSheet(
            QStringLiteral("color: %1; background: rgba(255, 255, 255, 210);").arg(colour));
    }
    // The picked item lies on top of the others, every caption above all.
    if (selected >= 0)
        m_views[selected].shape->raise();
    for (const ItemView &view : m_views)
        view.caption->raise();
}

void ItemLayout::showPieceInfo()
{
    const Piece &piece = m_copy.model().piece;
    m_pieceName->setText(m_controls.isEmpty() ? QString() : piece.PieceName);
    if (m_controls.isEmpty()) {
        m_pieceHeight->clear();
        m_pieceWidth->clear();
        return;
    }
    m_pieceHeight->setText(lengthText(tr("Height = "), piece.PieceHeight));
    m_pieceWidth->setText(lengthText(tr("Width = "), piece.PieceWidth));
}

void ItemLayout::showItemInfo()
{
    const int index = codeIndex(m_selected);
    if (m_controls.isEmpty() || index < 0) {
        for (QLabel *label : {m_itemName, m_itemTop, m_itemLeft, m_itemHeight, m_itemWidth})
            label->clear();
        return;
    }
    const Item &item = m_copy.model().item(Codes[index].id);
    m_itemName->setText(tr(Codes[index].caption));
    m_itemHeight->setText(lengthText(tr("Height = "), item.Height));
    m_itemWidth->setText(lengthText(tr("Width = "), item.Width));
    m_itemTop->setText(lengthText(tr("Top = "), item.Top));
    m_itemLeft->setText(lengthText(tr("Left = "), item.Left));
}

int ItemLayout::viewIndexOf(const QObject *caption) const
{
    for (int i = 0; i < ItemCount; ++i) {
        if (m_views[i].caption == caption)
            return i;
    }
    return -1;
}

bool ItemLayout::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_area) {
        if (event->type() == QEvent::Resize)
            layoutMiniature();
        return QWidget::eventFilter(watched, event);
    }
    const int index = viewIndexOf(watched);
    if (index < 0)
        return QWidget::eventFilter(watched, event);
    if (event->type() == QEvent::MouseButtonPress &&
        static_cast<QMouseEvent *>(event)->button() == Qt::LeftButton) {
        selectItem(QLatin1String(Codes[index].code));
        return true;
    }
    if (event->type() == QEvent::MouseButtonDblClick &&
        static_cast<QMouseEvent *>(event)->button() == Qt::LeftButton) {
        // The editor first; then the item is picked and the page marked
        // changed whether or not the editor was confirmed.
        editLayout();
        selectItem(QLatin1String(Codes[index].code));
        setChanged(true);
        return true;
    }
    return QWidget::eventFilter(watched, event);
}

} // namespace quirra
