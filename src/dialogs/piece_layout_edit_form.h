// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#pragma once

#include "dialogs/layoutgeometry.h"
#include "model/item.h"
#include <QDialog>
#include <QPointF>
#include <QRectF>

#include <array>

class QAction;
class QGridLayout;
class QLabel;
class QLineEdit;
class QMenu;
class QMenuBar;
class QPushButton;
class QScrollBar;

namespace quirra {

class LayoutCanvas;

/**
 * @brief The layout editor: the piece (a LayoutCanvas, `piece_frame`) with
 * its five items to move and resize with the mouse, the Edit, Format and
 * Display menus, four fields that give the selected item's place and size
 * in inches, and OK and Cancel.
 *
 * Children carry their published object names; the members of a control
 * array share the array's name and hold their index in the dynamic
 * property "index": the menu entries `format_justify_mnu` 0..3 and
 * `display_item_mnu` 1..5, and on the canvas `item`, `dot` and `edit_txt`.
 *
 * The fields: what is typed moves the item at once; when a key is released
 * the text is written back as the number it reads, within its bounds,
 * "#0.##"; a stepper click moves it by 0.03 inch and beeps when a bound
 * stops it. Filling the fields from an item never moves the item, so it
 * keeps the exact place the mouse gave it. A right click on an item opens
 * the Format menu, a double click edits the text in place.
 */
class piece_layout_edit_form : public QDialog
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
     * in the order Address, Return, Stamp, Message1, Message2, drawn at
     * scale display twips per twip of the piece.
     */
    void loadItems(float pieceWidth, float pieceHeight, const std::array<Item, ItemCount> &items,
                   float scale = 1.0f);

    /**
     * @brief Writes every label's box (inches), text, font, alignment,
     * border and visibility into items (same order as loadItems); the
     * items' other fields are left as they are.
     */
    void copyItemsBack(std::array<Item, ItemCount> &items) const;

    /** @brief True once OK was pressed; false after Cancel or on activation. */
    bool dataWasAccepted() const { return m_accepted; }

    /** @brief The selected item, 1..5; 0 when no item is selected. */
    int currentItem() const;

    /** @brief Item index's box on the piece, in display twips (index 1..5). */
    QRectF itemBox(int index) const;

    /** @brief The piece's size in display twips. */
    QSizeF pieceSize() const;

    /** @brief Display twips per twip of the piece, as loadItems() was given it. */
    float displayScale() const;

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
    // One of the four numeric fields.
    struct Field
    {
        LayoutGeometry::Field which = LayoutGeometry::TopField;
        QLineEdit *edit = nullptr;
        QScrollBar *stepper = nullptr;
    };

    void buildWidgets();
    void buildFields(QGridLayout *layout, QWidget *panel);
    void buildMenus(QMenuBar *menuBar);
    void centreOnScreen();
    void connectCanvas();

    void selectFirstVisible();
    void leaveFields();
    void showName(int index);
    void refreshFields(int index, LayoutGeometry::Fields fields = LayoutGeometry::AllFields);

    bool fieldEvent(const Field &field, QEvent *event);
    void onFieldChanged(const Field &field);
    void onStepper(const Field &field, int value);
    float upperBound(const Field &field) const;

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

    LayoutCanvas *m_canvas = nullptr;
    double m_twipsPerPixel = 15;
    float m_pieceWidth = 0;  // inches, as loaded: the Default command lays out for it
    float m_pieceHeight = 0; // inches
    bool m_accepted = false;
    bool m_activated = false;
    bool m_refreshing = false; // the fields are being written from an item
    int m_fieldItem = 0;       // the item whose values the fields hold
    std::array<Field, 4> m_fields;
    std::array<QAction *, 4> m_justify{};
    std::array<QAction *, ItemCount> m_display{};

    QLabel *m_itemName = nullptr;
    QPushButton *m_ok = nullptr;
    QMenu *m_formatMenu = nullptr;
    QAction *m_borders = nullptr;
};

/**
 * @brief The edit-layout routine: runs the editor modally on the five items
 * of a piece of the given size (inches).
 *
 * Fits the editor's scale to the primary screen first. items are in the order
 * Address, Return, Stamp, Message1, Message2 (ArgumentOrder); on OK every
 * item's box, texts, fonts, alignment, border and visibility are written
 * back and true is returned; on Cancel items are untouched.
 *
 * @throws Error when the piece is too large for the editor's 16-bit twips
 * (wider than 22.75 inches or higher than 20.75) or its size is not a number.
 */
bool EditPieceLayout(QWidget *parent, float pieceWidth, float pieceHeight,
                     std::array<Item, ItemCount> &items);

} // namespace quirra
