// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#pragma once

#include "dialogs/layoutgeometry.h"
#include "model/item.h"
#include <QFrame>
#include <QPointF>
#include <QRectF>

#include <array>

class QLabel;
class QMouseEvent;
class QTextEdit;

namespace quirra {

class LayoutItemLabel;

/**
 * @brief The layout editor's piece (`piece_frame`): the piece drawn at its
 * display scale, its five items as labels, the eight sizing handles round
 * the selected item and the three in-place text editors, with all the mouse
 * work on them.
 *
 * Children carry their published names; the members of a control array
 * share the array's name and hold their index in the dynamic property
 * "index": the items `item` 1..5 (Address, Return, Stamp, Message1,
 * Message2), the handles `dot` 1..8 (top-left, top-centre, top-right,
 * left-centre, right-centre, bottom-left, bottom-centre, bottom-right) and
 * the editors `edit_txt` 0..2 (left, right and centre aligned). An item
 * label's dynamic property "Tag" holds the item's true font size in points
 * as text.
 *
 * Lengths on the piece are display twips: scale() display twips stand for
 * one twip of the real piece, and the screen shows 1440 twips per logical
 * inch. The canvas owns its scale; nothing else in the process reads it.
 *
 * The mouse: a press on an item selects it and drags it, 50 display twips
 * clear of the piece's edges; a handle's corner follows the mouse while the
 * item's edge keeps its limits. What the selection means beyond the
 * handles (the item's name, the fields, the Format menu) is the form's: it
 * hears of it through the signals.
 */
class LayoutCanvas : public QFrame
{
    Q_OBJECT

public:
    /** @brief What the mouse is doing on the piece. */
    enum class MouseState {
        Loading,  ///< items are being filled in: the handles stay where they are
        Idle,     ///< nothing is held
        Dragging, ///< an item is held and moves with the mouse
        Sizing,   ///< a handle is held
        Resizing, ///< a resize step is running: further moves are ignored
    };

    /** @brief What an item holds besides its box. */
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

    explicit LayoutCanvas(QWidget *parent = nullptr);

    /**
     * @brief A piece of pieceWidth × pieceHeight inches at scale display
     * twips per twip, drawn at twipsPerPixel twips to the screen's pixel.
     */
    void setPiece(float pieceWidth, float pieceHeight, float scale, double twipsPerPixel);

    /** @brief The piece's arithmetic, display twips at scale(). */
    const LayoutGeometry &geometry() const { return m_geometry; }
    /** @brief Display twips per twip of the real piece. */
    float scale() const { return m_geometry.scale(); }
    /** @brief Twips per logical pixel of the screen. */
    double twipsPerPixel() const { return m_twipsPerPixel; }
    /** @brief What the mouse is doing. */
    MouseState mouseState() const { return m_state; }
    /** @brief Ends loading: from now on the handles follow the selected item. */
    void startEditing();

    /** @brief Puts item (Address, Return, ...) into the label index (1..5). */
    void loadItem(int index, const Item &item);
    /** @brief Writes label index's box (inches), text, font, alignment, border and visibility. */
    void copyItemBack(int index, Item &item) const;

    /** @brief Item index (1..5); nullptr outside that range. */
    const ItemState *item(int index) const;
    /** @brief Moves and sizes item index to box (display twips) and follows it with the handles. */
    void setItemBox(int index, const QRectF &box);
    /** @brief Sets item index's text; textChanged() tells of it. */
    void setItemText(int index, const QString &text);
    void setItemAlignment(int index, eHorzAlign align);
    void setItemBorder(int index, qint16 border);
    void setItemFont(int index, const ItemFont &font);
    /** @brief Shows or hides item index; one shown again is made big enough to be seen. */
    void setItemVisible(int index, bool visible);
    /** @brief Shows the room the address barcode takes below the address (item 1). */
    void setAddressBarcode(bool on);

    /** @brief The selected item, 1..5; 0 for none. */
    int current() const { return m_current; }
    /** @brief Makes index (0..5) the selected item and puts the handles round it. */
    void select(int index);
    /** @brief Brings item index to the front, then the handles round it above every item. */
    void placeHandles(int index);
    void hideHandles();
    /** @brief Sends the handles and then item index behind every other item. */
    void sendToBack(int index);

    /** @brief Opens the in-place editor of item index's alignment over it, its text selected. */
    void editText(int index);
    void hideEditors();

Q_SIGNALS:
    /** @brief An item was pressed: the drag begins. */
    void itemPressed(int index);
    /** @brief An item was clicked (pressed and released): it is to be selected. */
    void itemClicked(int index);
    /** @brief An item was right-clicked at globalPos. */
    void itemMenuRequested(int index, const QPoint &globalPos);
    void itemDoubleClicked(int index);
    /** @brief A handle was let go: fields of item index may have changed. */
    void itemResized(int index, LayoutGeometry::Fields fields);
    /** @brief Item index's text changed (by typing or by setItemText()). */
    void textChanged(int index);
    /** @brief Escape was pressed in an in-place editor, which then closes. */
    void editingEscaped();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    ItemState *stateOf(int index);
    int toPixels(double twips) const;
    QPointF pieceTwips(QWidget *child, const QMouseEvent *event) const;
    void applyBox(int index);
    void applyLook(int index);
    bool itemMouse(int index, QEvent *event);
    bool handleMouse(int handle, QEvent *event);
    bool editorEvent(int editor, QEvent *event);

    LayoutGeometry m_geometry;
    double m_twipsPerPixel = 15;
    std::array<ItemState, ItemCount> m_items;
    std::array<QLabel *, LayoutGeometry::HandleCount> m_handles{};
    std::array<QTextEdit *, 3> m_editors{};
    MouseState m_state = MouseState::Loading;
    int m_current = 0;
    int m_editing = -1; // the in-place editor that is open, -1 for none
    QPointF m_itemDown; // where the item was pressed, relative to it (display twips)
};

} // namespace quirra
