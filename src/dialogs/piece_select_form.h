// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QDialog>
#include <QString>

#include <memory>

class QButtonGroup;
class QCheckBox;
class QComboBox;
class QFrame;
class QLabel;
class QLineEdit;
class QListWidget;

namespace quirra {

class Catalogue;
class SheetPreview;

/**
 * @brief The dialog that picks the mail piece from the catalogue: paper kind
 * (cut sheet or continuous), product, piece, with the piece's facts beside
 * the list.
 *
 * Every child carries its published object name. The two paper kind
 * buttons are both named "paper_opt" and carry their index (1 cut sheet,
 * 2 continuous) in the property "index"; the QButtonGroup "paper_opt" holds
 * them under those ids. The hidden label "piece_txt" holds the piece name,
 * the dialog's input and output; the hidden check box
 * "data_was_accepted_chk" tells OK from Cancel.
 *
 * A busy flag makes every handler ignore the change and click events that
 * its own updates of other widgets raise.
 *
 * Beyond those: the line edit "search_txt" lists, as one types, every
 * piece whose name, brand, part or product holds the words typed (an empty
 * search shows the chosen piece among its product's again); "sheet_preview" draws the
 * chosen sheet small beside the Info box; "family_txt" shows its product.
 */
class piece_select_form : public QDialog
{
    Q_OBJECT

public:
    /** @brief Builds the form on Catalogue::system(); its current file is the laser/ink-jet
     * catalogue. */
    explicit piece_select_form(QWidget *parent = nullptr);
    /** @brief Builds the form on the catalogue given. */
    explicit piece_select_form(std::shared_ptr<const Catalogue> catalogue,
                               QWidget *parent = nullptr);
    ~piece_select_form() override;

    /**
     * @brief Sets "piece_txt" to name. A new name selects its paper kind,
     * product and piece and shows its facts, all from the master catalogue.
     */
    void setPieceName(const QString &name);
    /** @brief The text of "piece_txt": the piece chosen last. */
    QString pieceName() const;
    /** @brief True once OK was pressed; false after Cancel. */
    bool dataWasAccepted() const;
    /** @brief The catalogue file the lists and facts are read from now (full path, or empty). */
    QString currentFile() const { return m_currentFile; }

    /**
     * @brief Activation: selects "Cut &Sheet" (which fills the lists) when
     * no paper kind is selected yet. Runs whenever the form is shown.
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
    void buildWidgets();
    template <typename Work> void unlessBusy(Work work);

    void onPieceNameChanged();
    void showPiece(const QString &name);
    void onPaperKind(int index, bool checked);
    void onProductChanged();
    void onPieceClicked();
    void onSearch();
    void openDetails();

    void fillProducts(const QStringList &entries);
    void fillPieces(const QStringList &entries);
    void selectMatchingProduct(const QString &product);
    void selectMatchingPiece(const QString &name);
    void showFacts(const QString &name);

    std::shared_ptr<const Catalogue> m_catalogue;
    QString m_currentFile;
    bool m_busy = false;

    QButtonGroup *m_paper = nullptr;
    QComboBox *m_products = nullptr;
    QListWidget *m_pieces = nullptr;
    QLabel *m_pieceName = nullptr;
    QFrame *m_facts = nullptr;
    QLabel *m_type = nullptr;
    QLabel *m_size = nullptr;
    QLabel *m_pageSize = nullptr;
    QLabel *m_layout = nullptr;
    QLabel *m_family = nullptr;
    QLineEdit *m_search = nullptr;
    SheetPreview *m_sheet = nullptr;
    QCheckBox *m_accepted = nullptr;
};

/**
 * @brief Opens the piece selection dialog modally on pieceName.
 *
 * On OK pieceName becomes the chosen piece's name; on Cancel it is left as
 * it was. The caller loads the piece's geometry from the master catalogue.
 *
 * @return true when the user accepted.
 */
bool ShowPieceSelectDialog(QWidget *parent, QString &pieceName);
/** @brief The same on the catalogue given. */
bool ShowPieceSelectDialog(QWidget *parent, QString &pieceName,
                           std::shared_ptr<const Catalogue> catalogue);

} // namespace quirra
