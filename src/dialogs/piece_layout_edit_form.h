// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#pragma once

#include "dialogs/layoutgeometry.h"
#include "model/item.h"
#include "quirracontrol_export.h"

#include <QDialog>
#include <QPointF>
#include <QRectF>

#include <array>

class QAction;
class QCheckBox;
class QFrame;
class QLabel;
class QLineEdit;
class QMenu;
class QMenuBar;
class QMouseEvent;
class QPushButton;
class QScrollBar;
class QTextEdit;

namespace quirra {

class LayoutItemLabel;

/**
 * @brief The layout editor: the piece drawn at the display scale, its five
 * items as labels to move and resize with the mouse, and four fields that
 * give the selected item's place and size in inches.
 *
 * Children carry their published object names. Control arrays are named
 * with their index: the items `item_1` ... `item_5` (Address, Return,
 * Stamp, Message1, Message2), the handles `dot_1` ... `dot_8` (top-left,
 * top-centre, top-right, left-centre, right-centre, bottom-left,
 * bottom-centre, bottom-right), the in-place editors `edit_txt_0` ...
 * `edit_txt_2` (left, right and centre aligned), the menu entries
 * `format_justify_mnu_0` ... `_3` and `display_item_mnu_1` ... `_5`; each of
 * them also holds its index in the dynamic property "index". An item label's
 * dynamic property "Tag" holds the item's true font size in points as text.
 *
 * Lengths on the piece are display twips: display_scale display twips stand
 * for one twip of the real piece, and the screen shows 1440 twips per
 * logical inch. The fields show inches, "#0.##".
 *
 * The mouse: a press on an item selects it and drags it, 50 display twips
 * clear of the piece's edges; a handle's corner follows the mouse while the
 * item's edge keeps its limits; a right click opens the Format menu, a
 * double click edits the text in place. The fields: what is typed moves the
 * item at once; a number past its bound becomes the bound when the key is
 * released; a stepper click moves it by 0.03 inch and beeps when a bound
 * stops it.
 * Filling the fields from an item never moves the item, so it keeps the
 * exact place the mouse gave it.
 */
class QUIRRACONTROL_EXPORT piece_layout_edit_form : public QDialog
{
    Q_OBJECT

public:
    /** @brief The number of item labels, numbered 1..ItemLabels. */
    static constexpr int ItemLabels = ItemCount;

    /** @brief Builds the form hidden, with nothing loaded, centred on the screen. */
    explicit piece_layout_edit_form(QWidget *parent = nullptr);
    ~piece_layout_edit_form() override;

    /**
     * @brief Loads a piece (width and height in inches) and its five items,
     * in the order Address, Return, Stamp, Message1, Message2, into the
     * labels at the current display_scale.
     */
    void loadItems(float pieceWidth, float pieceHeight, const std::array<Item, ItemCount> &items);

    /**
     * @brief Writes every label's box (inches), text, font, alignment,
     * border and visibility into items (same order as loadItems); the
     * items' other fields are left as they are.
     */
    void copyItemsBack(std::array<Item, ItemCount> &items) const;

    /** @brief True once OK was pressed; false after Cancel or on activation. */
    bool dataWasAccepted() const;

    /** @brief The selected item, 1..5; 0 when no item is selected. */
    int currentItem() const { return m_current; }

    /** @brief Item index's box on the piece, in display twips (index 1..5). */
    QRectF itemBox(int index) const;

    /** @brief The piece's size in display twips. */
    QSizeF pieceSize() const { return QSizeF(m_geometry.frameWidth(), m_geometry.frameHeight()); }

    /** @brief Twips per logical pixel of the screen the form was built for (15 at 96 dpi). */
    double twipsPerPixel() const { return m_twipsPerPixel; }

    /**
     * @brief The activation: clears the outcome, ends loading and selects
     * the first visible item. Runs when the form is shown; later calls only
     * clear the outcome again.
     */
    void activate();

    /**
     * @brief Selects item index (1..5): shows its handles, names it and
     * fills the four fields from it.
     */
    void selectItem(int index);

public Q_SLOTS:
    /** @brief OK: marks the data accepted and hides the form. */
    void accept() override;
    /** @brief Cancel (also Escape and closing the window): clears the mark and hides the form. */
    void reject() override;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void showEvent(QShowEvent *event) override;

private:
    // What a label holds for its item besides its box.
    struct ItemState
    {
        LayoutItemLabel *label = nullptr;
        QRectF box; // display twips
        QString text;
        eHorzAlign align = haLeft;
        qint16 border = 0;
        ItemFont font; // Size is the true size, the label's "Tag"
        bool visible = true;
    };

    // One of the four numeric fields.
    struct Field
    {
        LayoutGeometry::Field which = LayoutGeometry::TopField;
        QLineEdit *edit = nullptr;
        QScrollBar *stepper = nullptr;
    };

    void buildWidgets();
    void buildMenus(QMenuBar *menuBar);
    void centreOnScreen();

    void loadItem(int index, const Item &item);
    void selectFirstVisible();
    void leaveFields();

    ItemState *stateOf(int index);
    const ItemState *stateOf(int index) const;
    int itemIndexOf(const QObject *object) const;
    int handleIndexOf(const QObject *object) const;
    int fieldIndexOf(const QObject *object) const;
    int editorIndexOf(const QObject *object) const;

    int toPixels(double twips) const;
    QPointF frameTwips(QWidget *child, const QMouseEvent *event) const;
    void applyBox(int index);
    void applyLook(int index);
    void setCaption(int index, const QString &text);

    void placeHandles(int index);
    void hideHandles();
    void refreshFields(int index, LayoutGeometry::Fields fields = LayoutGeometry::AllFields);

    bool itemMouse(int index, QEvent *event);
    bool handleMouse(int handle, QEvent *event);
    bool fieldEvent(const Field &field, QEvent *event);
    void onFieldChanged(const Field &field);
    void onStepper(const Field &field, int value);
    float upperBound(const Field &field) const;

    void onEditorChanged(int editor);

    void editClear();
    void editModify();
    void editBringToFront();
    void editSendToBack();
    void editDefault();
    void formatOpening();
    void formatJustify(int entry);
    void formatBorders();
    void formatFont();
    void displayOpening();
    void displayItem(int index);
    void hideEditors();

    LayoutGeometry m_geometry;
    double m_twipsPerPixel = 15;
    std::array<ItemState, ItemCount> m_items;
    std::array<QLabel *, 8> m_handles{};
    std::array<QTextEdit *, 3> m_editors{};
    std::array<Field, 4> m_fields;
    std::array<QAction *, 4> m_justify{};
    std::array<QAction *, ItemCount> m_display{};

    QFrame *m_pieceFrame = nullptr;
    QLabel *m_itemName = nullptr;
    QLabel *m_pieceWidth = nullptr;
    QLabel *m_pieceHeight = nullptr;
    QCheckBox *m_accepted = nullptr;
    QPushButton *m_ok = nullptr;
    QMenu *m_formatMenu = nullptr;
    QAction *m_borders = nullptr;

    bool m_loading = true;
    bool m_activated = false;
    bool m_dragging = false;
    bool m_sizing = false;
    bool m_busy = false;
    bool m_refreshing = false;
    int m_current = 0;
    int m_fieldItem = 0;  // the item whose values the fields hold
    int m_editing = -1;   // the in-place editor that is open, -1 for none
    QPointF m_itemDown;   // where the item was pressed, relative to it (display twips)
    QPointF m_handleDown; // the latest mouse position over the held handle (display twips)
};

/**
 * @brief The edit-layout routine: runs the editor modally on the five items
 * of a piece of the given size (inches).
 *
 * Fits display_scale to the primary screen first. items are in the order
 * Address, Return, Stamp, Message1, Message2 (ArgumentOrder); on OK every
 * item's box, texts, fonts, alignment, border and visibility are written
 * back and true is returned; on Cancel items are untouched.
 *
 * @throws Error when the piece is too large for the editor's 16-bit twips
 * (wider than 22.75 inches or higher than 20.75) or its size is not a number.
 */
QUIRRACONTROL_EXPORT bool EditPieceLayout(QWidget *parent, float pieceWidth, float pieceHeight,
                                          std::array<Item, ItemCount> &items);

} // namespace quirra
