// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#pragma once

#include "catalogue/pieceentry.h"
#include "dialogs/numberfield.h"
#include <QDialog>
#include <QList>
#include <QStringList>

class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;
class QScrollBar;

namespace quirra {

class SheetPreview;

/**
 * @brief The dialog that edits one piece's geometry: page size, margins,
 * pitch, piece size and the number of pieces across and down, with a drawn
 * preview of the sheet.
 *
 * Every child carries its published object name ("top_margin_txt",
 * "nr_across_vscrl", "page_size_cbo", "ok_btn", ...). The eight number boxes
 * share one key filter (digits, "." and Backspace; anything else is dropped
 * with a beep), check their bounds when a key is released, and each has a
 * spinner: a vertical scroll bar kept at 0 that steps its box by 0.1 (a
 * measure) or 1 (a count). Up and Down in a box step it as well.
 *
 * Bounds: every length is kept between 0 and the page's size in its
 * direction (the top margin, the vertical pitch and the piece height by the
 * page height; the side margin, the horizontal pitch and the piece width by
 * the page width); a page without a size (0) allows up to 100. The counts
 * are kept between 1 and 100.
 *
 * Lengths are in the page's unit: the numbers are shown as stored, never
 * converted; the notice only names the unit.
 */
class piece_customization_form : public QDialog
{
    Q_OBJECT

public:
    /** @brief The largest count of pieces across or down a box keeps. */
    static constexpr int MaxCount = 100;
    /** @brief The largest length (the page's unit) a box keeps when the page has no size. */
    static constexpr float NoPageMaximum = 100;

    /**
     * @brief Builds the form and fills the page size box from the catalogue's
     * paper sizes (the built-in list when the catalogue has none).
     */
    explicit piece_customization_form(QWidget *parent = nullptr);
    ~piece_customization_form() override;

    /**
     * @brief The captions the form offers when the catalogue lists no paper
     * size: Letter, Letter landscape, A4, A4 landscape, A5, A5 landscape, B5
     * and Mini. Whatever unit a caption names, its page size is the page's
     * real size in inches, as a piece keeps it.
     */
    static QStringList builtInPageSizes();

    /** @brief Puts the piece into the widgets (lengths in the page's unit). */
    void setEntry(const PieceSpec &entry);

    /**
     * @brief The piece as the widgets hold it, as OK hands it back: every
     * field read from its widget, and IsCustom set.
     */
    PieceSpec acceptedEntry() const;

    /** @brief True once OK was pressed; false after Cancel. */
    bool dataWasAccepted() const;

    /**
     * @brief The rules of the named number box ("top_margin_txt", ...) with
     * the bounds it has now (the page's unit).
     */
    NumberField numberField(const QString &boxName) const;

    /**
     * @brief The first activation: selects the page size row of the piece's
     * page description (the first row when none matches), shows that page's
     * size and unit, draws the preview. Runs on the first showing; later
     * calls do nothing.
     */
    void activate();

public Q_SLOTS:
    /** @brief OK: marks the data accepted and closes. */
    void accept() override;
    /** @brief Cancel (also Escape and closing the window): clears the mark and closes. */
    void reject() override;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void showEvent(QShowEvent *event) override;

private:
    struct Box
    {
        QLineEdit *edit = nullptr;
        QScrollBar *spinner = nullptr;
        NumberField::Kind kind = NumberField::Measure;
        Qt::Orientation axis = Qt::Vertical; // the page size that bounds a length
    };

    void buildWidgets();
    void centreOnScreen();
    int boxIndex(const QObject *object) const;
    NumberField fieldOf(const Box &box) const;
    bool filterKey(const Box &box, QKeyEvent *event);
    void checkBounds(const Box &box);
    void onSpinner(int index, int value);
    void onPageSizeChosen();
    void applyPage(int row);
    void updatePreview();

    bool m_busy = true;
    bool m_activated = false;
    bool m_builtInSizes = false;
    QList<Box> m_boxes;

    QLineEdit *m_name = nullptr;
    QComboBox *m_pageSize = nullptr;
    QLabel *m_pageDesc = nullptr;
    QLabel *m_pageWidth = nullptr;
    QLabel *m_pageHeight = nullptr;
    QLabel *m_unit = nullptr;
    QCheckBox *m_isCustom = nullptr;
    QCheckBox *m_accepted = nullptr;
    SheetPreview *m_preview = nullptr;
};

/**
 * @brief Opens the customization dialog modally on entry.
 *
 * On OK every field is written back into entry (lengths in the page's unit)
 * and IsCustom is set, whether or not anything changed; on Cancel entry is
 * left as it was.
 *
 * @return true when the user accepted.
 */
bool ShowPieceCustomizationDialog(QWidget *parent, PieceSpec &entry);

} // namespace quirra
