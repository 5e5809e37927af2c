// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#include "dialogs/piece_select_form.h"

#include "catalogue/catalogue.h"
#include "catalogue/piececatalogue.h"
#include "catalogue/pieceentry.h"
#include "dialogs/logging_p.h"
#include "dialogs/piece_customization_form.h"
#include "dialogs/sheetpreview.h"
#include "settings/strings.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QCoreApplication>
#include <QFormLayout>
#include <QFrame>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMouseEvent>
#include <QPushButton>
#include <QRadioButton>
#include <QScopeGuard>
#include <QVBoxLayout>

#include <functional>

namespace quirra {

namespace {

constexpr int CutSheet = 1;
constexpr int Continuous = 2;

QString familyOf(int paperKind)
{
    return paperKind == Continuous ? DotMatrixFamilySection : LaserFamilySection;
}

// The matching loop of the product and piece lists: rows 1 to count, where
// the first row (0) is never looked at (the fill has selected it already)
// and the last look is one past the end, which reads as empty text. Gives
// the first matching position, or -1.
int matchingRow(int count, const std::function<QString(int)> &rowText, const QString &wanted)
{
    const QString key = wanted.trimmed().toUpper();
    for (int i = 1; i <= count; ++i) {
        if (rowText(i).trimmed().toUpper() == key)
            return i;
    }
    return -1;
}

QLabel *factLabel(const char *name, const QString &caption, QWidget *parent)
{
    auto *label = new QLabel(caption, parent);
    label->setObjectName(QLatin1String(name));
    return label;
}

} // namespace

piece_select_form::piece_select_form(QWidget *parent)
    : piece_select_form(Catalogue::system(), parent)
{
}

piece_select_form::piece_select_form(std::shared_ptr<const Catalogue> catalogue, QWidget *parent)
    : QDialog(parent), m_catalogue(std::move(catalogue))
{
    buildWidgets();
    // Load: the lists are read from the laser/ink-jet catalogue until a
    // piece is named or a paper kind chosen.
    m_currentFile = m_catalogue->path(LaserCatalogueFileName);
    m_busy = false;
}

piece_select_form::~piece_select_form() = default;

void piece_select_form::buildWidgets()
{
    setObjectName(QStringLiteral("piece_select_form"));
    setWindowTitle(tr("Piece Selection"));
    setSizeGripEnabled(true);

    auto *paperLabel = factLabel("printer_lbl", tr("Paper:"), this);
    auto *cutSheet = new QRadioButton(tr("Cut &Sheet"), this);
    auto *continuous = new QRadioButton(tr("Con&tinuous"), this);
    m_paper = new QButtonGroup(this);
    m_paper->setObjectName(QStringLiteral("paper_opt"));
    for (auto [button, index] :
         {std::pair{cutSheet, CutSheet}, std::pair{continuous, Continuous}}) {
        button->setObjectName(QStringLiteral("paper_opt"));
        button->setProperty("index", index);
        m_paper->addButton(button, index);
    }
    connect(m_paper, &QButtonGroup::idToggled, this, &piece_select_form::onPaperKind);
    auto *paperRow = new QHBoxLayout;
    paperRow->addWidget(cutSheet);
    paperRow->addWidget(continuous);
    paperRow->addStretch(1);

    auto *productLabel = factLabel("product_lbl", tr("Pro&duct:"), this);
    m_products = new QComboBox(this);
    m_products->setObjectName(QStringLiteral("product_cbo"));
    m_products->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    m_products->setMinimumContentsLength(24);
    productLabel->setBuddy(m_products);
    // Choosing the product already shown refills the pieces as well.
    connect(m_products, &QComboBox::currentIndexChanged, this,
            &piece_select_form::onProductChanged);
    connect(m_products, &QComboBox::activated, this, &piece_select_form::onProductChanged);
    auto *productNote = factLabel("product_txt", QString(), this);
    productNote->hide();

    auto *pieceLabel = factLabel("piece_lbl", tr("&Piece:"), this);
    m_pieces = new QListWidget(this);
    m_pieces->setObjectName(QStringLiteral("piece_lst"));
    m_pieces->setSelectionMode(QAbstractItemView::SingleSelection);
    // Rows of one height keep a list of a brand's hundreds of pieces quick.
    m_pieces->setUniformItemSizes(true);
    // Wide enough for a long name ("Size 7 3/4 Monarch - Envelope").
    m_pieces->setMinimumWidth(m_pieces->fontMetrics().horizontalAdvance(u'x') * 34);
    pieceLabel->setBuddy(m_pieces);
    connect(m_pieces, &QListWidget::currentRowChanged, this, &piece_select_form::onPieceClicked);
    connect(m_pieces, &QListWidget::itemClicked, this, &piece_select_form::onPieceClicked);

    m_search = new QLineEdit(this);
    m_search->setObjectName(QStringLiteral("search_txt"));
    m_search->setPlaceholderText(tr("Search part, brand or product"));
    m_search->setClearButtonEnabled(true);
    connect(m_search, &QLineEdit::textChanged, this, &piece_select_form::onSearch);

    m_pieceName = factLabel("piece_txt", QString(), this);
    m_pieceName->hide();

    auto *infoLabel = factLabel("info_lbl", tr("Info:"), this);
    m_facts = new QFrame(this);
    m_facts->setObjectName(QStringLiteral("piece_information_frame"));
    m_facts->setFrameShape(QFrame::StyledPanel);
    m_facts->setFrameShadow(QFrame::Sunken);
    m_facts->setToolTip(tr("Double-click to see the piece's details"));
    m_facts->setMinimumWidth(m_facts->fontMetrics().horizontalAdvance(u'x') * 30);
    auto *facts = new QFormLayout(m_facts);
    facts->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    auto *typeLabel = factLabel("type_lbl", tr("Type:"), m_facts);
    m_type = factLabel("type_txt", QString(), m_facts);
    auto *sizeLabel = factLabel("size_lbl", tr("Size:"), m_facts);
    m_size = factLabel("size_txt", QString(), m_facts);
    auto *pageLabel = factLabel("page_size_lbl", tr("Page Size:"), m_facts);
    m_pageSize = factLabel("page_size_txt", QString(), m_facts);
    auto *layoutLabel = factLabel("layout_lbl", tr("Layout:"), m_facts);
    m_layout = factLabel("layout_txt", QString(), m_facts);
    auto *familyLabel = factLabel("family_lbl", tr("Product:"), m_facts);
    m_family = factLabel("family_txt", QString(), m_facts);
    m_family->setWordWrap(true);
    // A long page description wraps rather than widening the dialog.
    m_pageSize->setWordWrap(true);
    facts->addRow(typeLabel, m_type);
    facts->addRow(sizeLabel, m_size);
    facts->addRow(pageLabel, m_pageSize);
    facts->addRow(layoutLabel, m_layout);
    facts->addRow(familyLabel, m_family);
    m_facts->installEventFilter(this);
    for (QLabel *label :
         {typeLabel, m_type, sizeLabel, m_size, pageLabel, m_pageSize, layoutLabel, m_layout}) {
        label->installEventFilter(this);
    }

    m_sheet = new SheetPreview(this);
    m_sheet->setObjectName(QStringLiteral("sheet_preview"));
    m_sheet->setThumbnail(true);
    m_sheet->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Preferred);
    auto *info = new QVBoxLayout;
    info->addWidget(m_facts);
    info->addWidget(m_sheet, 1);

    auto *ok = new QPushButton(tr("O&k"), this);
    ok->setObjectName(QStringLiteral("ok_btn"));
    ok->setDefault(true);
    auto *cancel = new QPushButton(tr("&Cancel"), this);
    cancel->setObjectName(QStringLiteral("cancel_btn"));
    auto *details = new QPushButton(tr("&Details"), this);
    details->setObjectName(QStringLiteral("details_btn"));
    auto *newPiece = new QPushButton(tr("&New Piece"), this);
    newPiece->setObjectName(QStringLiteral("new_piece_btn"));
    connect(ok, &QPushButton::clicked, this, &piece_select_form::accept);
    connect(cancel, &QPushButton::clicked, this, &piece_select_form::reject);
    // A new piece starts from the one selected: both open its details.
    connect(details, &QPushButton::clicked, this, &piece_select_form::openDetails);
    connect(newPiece, &QPushButton::clicked, this, &piece_select_form::openDetails);
    auto *buttons = new QVBoxLayout;
    buttons->addWidget(ok);
    buttons->addWidget(cancel);
    buttons->addSpacing(ok->sizeHint().height() / 2);
    buttons->addWidget(details);
    buttons->addWidget(newPiece);
    buttons->addStretch(1);

    m_accepted = new QCheckBox(this);
    m_accepted->setObjectName(QStringLiteral("data_was_accepted_chk"));
    m_accepted->hide();

    auto *layout = new QGridLayout(this);
    layout->addWidget(paperLabel, 0, 0);
    layout->addLayout(paperRow, 0, 1, 1, 2);
    layout->addWidget(productLabel, 1, 0);
    layout->addWidget(m_products, 1, 1, 1, 2);
    layout->addWidget(pieceLabel, 2, 0);
    layout->addWidget(m_search, 2, 1);
    layout->addWidget(infoLabel, 2, 2);
    layout->addWidget(m_pieces, 3, 0, 1, 2);
    layout->addLayout(info, 3, 2);
    layout->addLayout(buttons, 0, 3, 4, 1);
    layout->setColumnStretch(1, 1);
    layout->setColumnStretch(2, 1);
    layout->setRowStretch(3, 1);

    setTabOrder(cutSheet, continuous);
    setTabOrder(continuous, m_products);
    setTabOrder(m_products, m_search);
    setTabOrder(m_search, m_pieces);
    setTabOrder(m_pieces, ok);
    setTabOrder(ok, cancel);
    setTabOrder(cancel, details);
    setTabOrder(details, newPiece);
}

template <typename Work> void piece_select_form::unlessBusy(Work work)
{
    // The updates a handler makes raise change events of their own; they
    // find the form busy and do nothing.
    if (m_busy)
        return;
    m_busy = true;
    const auto done = qScopeGuard([this] { m_busy = false; });
    work();
}

void piece_select_form::setPieceName(const QString &name)
{
    if (m_pieceName->text() == name)
        return;
    m_pieceName->setText(name);
    onPieceNameChanged();
}

QString piece_select_form::pieceName() const
{
    return m_pieceName->text();
}

bool piece_select_form::dataWasAccepted() const
{
    return m_accepted->isChecked();
}

void piece_select_form::activate()
{
    if (!m_paper->checkedButton())
        m_paper->button(CutSheet)->setChecked(true);
    // The piece chosen before the form was shown is in view.
    if (QListWidgetItem *item = m_pieces->currentItem())
        m_pieces->scrollToItem(item, QAbstractItemView::PositionAtCenter);
}

void piece_select_form::fillProducts(const QStringList &entries)
{
    // Filling selects the first row, which raises a change the busy flag swallows.
    m_products->clear();
    m_products->addItems(entries);
    if (m_products->count() > 0)
        m_products->setCurrentIndex(0);
}

void piece_select_form::fillPieces(const QStringList &entries)
{
    m_pieces->clear();
    m_pieces->addItems(entries);
    if (m_pieces->count() > 0)
        m_pieces->setCurrentRow(0);
}

void piece_select_form::selectMatchingProduct(const QString &product)
{
    const int count = m_products->count();
    const int row = matchingRow(
        count, [this](int i) { return m_products->itemText(i); }, product);
    // A match one past the end has no row to select: the first row stays.
    if (row >= 0 && row < count)
        m_products->setCurrentIndex(row);
}

void piece_select_form::selectMatchingPiece(const QString &name)
{
    const int count = m_pieces->count();
    const int row = matchingRow(
        count,
        [this](int i) {
            const QListWidgetItem *item = m_pieces->item(i);
            return item ? item->text() : QString();
        },
        name);
    if (row >= 0 && row < count)
        m_pieces->setCurrentRow(row);
}

void piece_select_form::onPieceNameChanged()
{
    unlessBusy([this] {
        const QString name = m_pieceName->text();
        if (!name.trimmed().isEmpty())
            showPiece(name);
    });
}

void piece_select_form::showPiece(const QString &name)
{
    m_currentFile = m_catalogue->masterFile();
    const int type = m_catalogue->type(name);
    const QString product = m_catalogue->group(name);
    qCDebug(lcDialogs) << "piece" << name << "of" << product << "paper kind" << type;

    m_paper->button(type == Continuous ? Continuous : CutSheet)->setChecked(true);
    fillProducts(m_catalogue->products(familyOf(type)));
    selectMatchingProduct(product);
    // The pieces are those of the piece's own product, whatever row
    // the product box ended on.
    fillPieces(m_catalogue->pieces(product));
    selectMatchingPiece(name);
    showFacts(name);
}

void piece_select_form::onPaperKind(int index, bool checked)
{
    if (!checked)
        return;
    unlessBusy([this, index] {
        // Both families are listed in the master file, under their own
        // sections; the family's own file name is not what is read.
        m_currentFile = m_catalogue->path(MasterCatalogueFileName);
        fillProducts(m_catalogue->products(familyOf(index)));
        QCoreApplication::processEvents();
        fillPieces(m_catalogue->pieces(m_products->currentText()));
    });
}

void piece_select_form::onProductChanged()
{
    unlessBusy([this] {
        const QString product = m_products->currentText();
        if (product.trimmed().isEmpty()) {
            m_pieces->clear();
            return;
        }
        fillPieces(m_catalogue->pieces(product));
        if (const QListWidgetItem *item = m_pieces->currentItem()) {
            m_pieceName->setText(item->text());
            showFacts(item->text());
        }
    });
}

void piece_select_form::onSearch()
{
    unlessBusy([this] {
        const QString text = m_search->text();
        if (text.trimmed().isEmpty()) {
            // Back to the lists, on the piece chosen.
            if (!m_pieceName->text().trimmed().isEmpty())
                showPiece(m_pieceName->text());
            return;
        }
        fillPieces(m_catalogue->search(text));
        if (const QListWidgetItem *item = m_pieces->currentItem()) {
            m_pieceName->setText(item->text());
            showFacts(item->text());
        }
    });
}

void piece_select_form::onPieceClicked()
{
    unlessBusy([this] {
        if (const QListWidgetItem *item = m_pieces->currentItem()) {
            m_pieceName->setText(item->text());
            showFacts(item->text());
        }
    });
}

void piece_select_form::showFacts(const QString &name)
{
    const CatalogueEntry *entry = m_currentFile.isEmpty() ? nullptr : m_catalogue->entry(name);
    m_facts->setUpdatesEnabled(false);
    m_type->setText(TextAfterLast(name, QStringLiteral(" - ")));
    m_size->setText(entry ? entry->sizeText : QString());
    m_layout->setText(entry ? entry->layoutText : QString());
    m_pageSize->setText(entry ? entry->sheet.PageDesc : QString());
    m_family->setText(entry ? entry->product : QString());
    m_facts->setUpdatesEnabled(true);
    m_sheet->setThumbnail(true, entry && entry->shape != LabelShape::Rectangle);
    m_sheet->setEntry(entry ? entry->sheet : PieceSpec());
}

void piece_select_form::openDetails()
{
    // The details are shown for a look only: what the user changes there
    // is dropped, and this dialog's piece stays as it was.
    PieceSpec entry =
        m_currentFile.isEmpty() ? PieceSpec() : m_catalogue->piece(m_pieceName->text());
    entry.Name = m_pieceName->text();
    ShowPieceCustomizationDialog(this, entry);
}

bool piece_select_form::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::MouseButtonDblClick &&
        static_cast<QMouseEvent *>(event)->button() == Qt::LeftButton) {
        openDetails();
        return true;
    }
    return QDialog::eventFilter(watched, event);
}

void piece_select_form::showEvent(QShowEvent *event)
{
    QDialog::showEvent(event);
    activate();
}

void piece_select_form::accept()
{
    m_accepted->setChecked(true);
    QDialog::accept();
}

void piece_select_form::reject()
{
    m_accepted->setChecked(false);
    QDialog::reject();
}

bool ShowPieceSelectDialog(QWidget *parent, QString &pieceName)
{
    return ShowPieceSelectDialog(parent, pieceName, Catalogue::system());
}

bool ShowPieceSelectDialog(QWidget *parent, QString &pieceName,
                           std::shared_ptr<const Catalogue> catalogue)
{
    piece_select_form form(std::move(catalogue), parent);
    form.setPieceName(pieceName);
    form.exec();
    const bool accepted = form.dataWasAccepted();
    if (accepted)
        pieceName = form.pieceName();
    return accepted;
}

} // namespace quirra
