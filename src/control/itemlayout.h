// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#pragma once

#include "control/layoutcopy.h"
#include "model/item.h"
#include <QList>
#include <QPointer>
#include <QString>
#include <QWidget>

#include <array>

class QFrame;
class QGroupBox;
class QLabel;
class QPushButton;
class Quirra;

namespace quirra {

/**
 * @brief The control's property page: the chosen piece in miniature with its
 * five items, the picked item's place and size, and the buttons that open
 * the layout editor, the customization dialog and the piece selection.
 *
 * A host shows it for the controls the developer selected: it calls
 * setSelectedControls() when the selection changes, which copies the first
 * control's piece and items into the page, and applyChanges() when the
 * developer presses Apply or OK, which writes the copy back through the
 * control's own properties. The dialogs work on the copy only; nothing
 * reaches the control before applyChanges().
 *
 * Children carry their published names: the frame "frmPiece" holding the
 * miniature "piecebox", on it the shapes "shpAdd", "shpRet", "shpM1", "shpM2",
 * "shpStamp" and their caption labels "lblAdd" ... "lblStamp"; "lblPName",
 * "lblPHeight", "lblPWidth"; "lblItem", "lblItop", "lblIleft", "lblIheight",
 * "lblIwidth"; the buttons "btnPieceLayout", "btnPieceCust", "btnDotDotDot";
 * under the miniature the printer's calibration "frmCalibration" with the
 * boxes "txtPrinterLeft", "txtPrinterTop", "txtPrinterScaleX",
 * "txtPrinterScaleY" (inches 0 to 1, percent 90 to 110; a value outside is
 * refused and "lblCalibrationNote" gives the range). A value taken there
 * goes into the working copy and marks the page changed.
 *
 * A click on a caption label picks that item; a double click opens the
 * layout editor and marks the page changed.
 */
class CalibrationFields;

class ItemLayout : public QWidget
{
    Q_OBJECT

public:
    /** @brief An empty page: no control selected, the buttons disabled. */
    explicit ItemLayout(QWidget *parent = nullptr);
    ~ItemLayout() override;

    /**
     * @brief The selection changed: reads the first control's items and piece
     * into the working copy (item by item in the order Address, Message1,
     * Message2, Return, Stamp, then the piece), clears the changed mark and
     * redraws. An empty list leaves the page empty and disabled.
     */
    void setSelectedControls(const QList<Quirra *> &controls);

    /** @brief The controls the page was last given (those still alive). */
    QList<Quirra *> selectedControls() const;

    /**
     * @brief Apply: writes the working copy into the first selected control,
     * PieceName only when it differs, then the piece and the items Address,
     * Return, Message1, Message2, Stamp, then PrinterScaleX and PrinterScaleY.
     * Leaves the changed mark to the host.
     */
    void applyChanges();

    /** @brief The changed mark: set by an accepted piece selection or customization, by a double
     * click on a caption label and by a calibration value taken. */
    bool isChanged() const { return m_changed; }

    /** @brief Sets or clears the changed mark (a host clears it after applying). */
    void setChanged(bool changed);

    /** @brief The picked item: "Add", "Ret", "M1", "M2" or "Stamp". */
    QString selectedItem() const { return m_selected; }

    /** @brief Picks an item by its code ("Add", "Ret", "M1", "M2", "Stamp") and shows its place and
     * size; other codes are ignored. */
    void selectItem(const QString &code);

    /** @brief The working copy of the piece and its items (lengths in inches). */
    const LayoutCopy &workingCopy() const { return m_copy; }

    /**
     * @brief A length as the page shows it: inches × 1000 rounded (halves to
     * even) to a 16-bit whole number, times 0.001, in the shortest form
     * ("1.235" for 1.23456, "2" for 2.0).
     * @throws Error "Overflow" beyond ±32.767 inches.
     */
    static QString roundedInches(float inches);

public Q_SLOTS:
    /** @brief "Piece Layout": runs the layout editor on the working copy. @return true on OK. */
    bool editLayout();
    /** @brief "Piece Customization": edits the working copy's geometry; marks the page changed on
     * OK. */
    void customizePiece();
    /** @brief "...": picks another piece for the working copy, its items laid out afresh; marks the
     * page changed on OK. */
    void choosePiece();

Q_SIGNALS:
    /** @brief The changed mark was set or cleared. */
    void changedMarkChanged(bool changed);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    struct ItemView
    {
        QFrame *shape = nullptr;
        QLabel *caption = nullptr;
    };

    void buildWidgets();
    void refresh();
    void layoutMiniature();
    void styleShapes();
    void showPieceInfo();
    void showItemInfo();
    int viewIndexOf(const QObject *caption) const;

    QList<QPointer<Quirra>> m_controls;
    LayoutCopy m_copy;
    QString m_selected = QStringLiteral("Add");
    bool m_changed = false;

    QGroupBox *m_frame = nullptr;
    QWidget *m_area = nullptr;
    QFrame *m_pieceBox = nullptr;
    std::array<ItemView, ItemCount> m_views; // in the order of the codes
    QLabel *m_pieceName = nullptr;
    QLabel *m_pieceHeight = nullptr;
    QLabel *m_pieceWidth = nullptr;
    QLabel *m_itemName = nullptr;
    QLabel *m_itemTop = nullptr;
    QLabel *m_itemLeft = nullptr;
    QLabel *m_itemHeight = nullptr;
    QLabel *m_itemWidth = nullptr;
    QPushButton *m_layoutButton = nullptr;
    QPushButton *m_customButton = nullptr;
    QPushButton *m_pieceButton = nullptr;
    CalibrationFields *m_calibration = nullptr;
};

} // namespace quirra
