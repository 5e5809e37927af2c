// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#include "dialogs/piece_customization_form.h"

#include "dialogs/numberkeyfilter.h"

#include "catalogue/catalogue.h"
#include "dialogs/hostservices.h"
#include "dialogs/logging_p.h"
#include "dialogs/sheetpreview.h"
#include "settings/files.h"
#include "settings/settings.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QFrame>
#include <QGridLayout>
#include <QGroupBox>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScreen>
#include <QScrollBar>
#include <QStyle>
#include <QTimer>
#include <QVBoxLayout>

namespace quirra {

namespace {

// The eight number boxes: frame, label, box and spinner names as the form
// publishes them, and the page size that bounds each length.
struct BoxDefinition
{
    const char *frame;
    const char *frameCaption;
    const char *labelName;
    const char *caption;
    const char *boxName;
    const char *spinnerName;
    NumberField::Kind kind;
    Qt::Orientation axis;
};

constexpr BoxDefinition BoxDefinitions[] = {
    {"margin_frame", QT_TRANSLATE_NOOP("quirra::piece_customization_form", "Margin"),
     "Top_margin_lbl", QT_TRANSLATE_NOOP("quirra::piece_customization_form", "&Top:"),
     "top_margin_txt", "top_margin_vscrl", NumberField::Measure, Qt::Vertical},
    {"margin_frame", nullptr, "Side_margin_lbl",
     QT_TRANSLATE_NOOP("quirra::piece_customization_form", "&Side:"), "side_margin_txt",
     "side_margin_vscrl", NumberField::Measure, Qt::Horizontal},
    {"pitch_frame", QT_TRANSLATE_NOOP("quirra::piece_customization_form", "Pitch"),
     "vert_pitch_lbl", QT_TRANSLATE_NOOP("quirra::piece_customization_form", "&Vertical:"),
     "vert_pitch_txt", "vert_pitch_vscrl", NumberField::Measure, Qt::Vertical},
    {"pitch_frame", nullptr, "horiz_pitch_lbl",
     QT_TRANSLATE_NOOP("quirra::piece_customization_form", "&Horizontal:"), "horiz_pitch_txt",
     "horiz_pitch_vscrl", NumberField::Measure, Qt::Horizontal},
    {"piece_frame", QT_TRANSLATE_NOOP("quirra::piece_customization_form", "Piece"), "label_ht_lbl",
     QT_TRANSLATE_NOOP("quirra::piece_customization_form", "H&eight:"), "label_ht_txt",
     "label_ht_vscrl", NumberField::Measure, Qt::Vertical},
    {"piece_frame", nullptr, "lbl_wd_lbl",
     QT_TRANSLATE_NOOP("quirra::piece_customization_form", "&Width:"), "label_wd_txt",
     "label_wd_vscrl", NumberField::Measure, Qt::Horizontal},
    {"number_frame", QT_TRANSLATE_NOOP("quirra::piece_customization_form", "Number:"),
     "nr_across_lbl", QT_TRANSLATE_NOOP("quirra::piece_customization_form", "&Across:"),
     "nr_across_txt", "nr_across_vscrl", NumberField::Count, Qt::Horizontal},
    {"number_frame", nullptr, "nr_down_lbl",
     QT_TRANSLATE_NOOP("quirra::piece_customization_form", "&Down:"), "nr_down_txt",
     "nr_down_vscrl", NumberField::Count, Qt::Vertical},
};
constexpr int BoxCount = int(std::size(BoxDefinitions));

// Indexes into BoxDefinitions, in the order of the PieceSpec's fields.
enum BoxIndex { TopMargin, SideMargin, PitchVert, PitchHorz, Height, Width, Across, Down };

// The page sizes the form offers when the catalogue lists none, with their
// sizes in the unit of their caption.
struct BuiltInPage
{
    const char *caption;
    float width;
    float height;
};

// The sizes are the pages' real sizes in inches, as the piece keeps them
// whatever unit the caption names: the paper printed on follows from them.
constexpr BuiltInPage BuiltInPages[] = {
    {QT_TRANSLATE_NOOP("quirra::piece_customization_form", "Letter (8 ½ x 11 in)"), 8.5f, 11.0f},
    {QT_TRANSLATE_NOOP("quirra::piece_customization_form", "Letter landscape (11 x 8 ½ in)"), 11.0f,
     8.5f},
    {QT_TRANSLATE_NOOP("quirra::piece_customization_form", "A4 (21 x 29.7 cm)"), 8.2677f, 11.6929f},
    {QT_TRANSLATE_NOOP("quirra::piece_customization_form", "A4 landscape (29.7 x 21 cm)"), 11.6929f,
     8.2677f},
    {QT_TRANSLATE_NOOP("quirra::piece_customization_form", "A5 (14.8 x 21 cm)"), 5.8268f, 8.2677f},
    {QT_TRANSLATE_NOOP("quirra::piece_customization_form", "A5 landscape (21 x 14.8 cm)"), 8.2677f,
     5.8268f},
    {QT_TRANSLATE_NOOP("quirra::piece_customization_form", "B5 (18.2 x 25.7 cm)"), 7.1654f,
     10.1181f},
    {QT_TRANSLATE_NOOP("quirra::piece_customization_form", "Mini (4 ¼ x 5 in)"), 4.25f, 5.0f},
};

// A stored length as text, as many digits as a single holds.
QString decimalText(float value)
{
    return NumberField(NumberField::Measure, 0, 0).initialText(double(value));
}

QLabel *hiddenLabel(const char *name, QWidget *parent)
{
    auto *label = new QLabel(parent);
    label->setObjectName(QLatin1String(name));
    label->hide();
    return label;
}

} // namespace

piece_customization_form::piece_customization_form(QWidget *parent) : QDialog(parent)
{
    // Load: busy until the first activation has filled the form, so that
    // filling the page size box does not apply a page.
    m_busy = true;
    buildWidgets();

    QStringList captions = ReadPaperSizeCaptions();
    m_builtInSizes = captions.isEmpty();
    if (m_builtInSizes) {
        qCDebug(lcDialogs) << "no paper sizes in" << PaperCatalogueFile()
                           << "- offering the built-in list";
        captions = builtInPageSizes();
    }
    m_pageSize->addItems(captions);
    m_accepted->setChecked(false);

    centreOnScreen();
}

piece_customization_form::~piece_customization_form() = default;

QStringList piece_customization_form::builtInPageSizes()
{
    QStringList captions;
    for (const BuiltInPage &page : BuiltInPages)
        captions.append(tr(page.caption));
    return captions;
}

void piece_customization_form::buildWidgets()
{
    setObjectName(QStringLiteral("piece_customization_form"));
    setWindowTitle(tr("Piece Customization"));
    setSizeGripEnabled(true);

    auto *nameLabel = new QLabel(tr("&Piece Name:"), this);
    nameLabel->setObjectName(QStringLiteral("label_name_lbl"));
    m_name = new QLineEdit(this);
    m_name->setObjectName(QStringLiteral("label_name_txt"));
    nameLabel->setBuddy(m_name);

    auto *pageLabel = new QLabel(tr("&Page size:"), this);
    pageLabel->setObjectName(QStringLiteral("page_size_lbl"));
    m_pageSize = new QComboBox(this);
    m_pageSize->setObjectName(QStringLiteral("page_size_cbo"));
    m_pageSize->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    m_pageSize->setMinimumContentsLength(16);
    pageLabel->setBuddy(m_pageSize);
    connect(m_pageSize, &QComboBox::currentIndexChanged, this,
            &piece_customization_form::onPageSizeChosen);

    m_pageDesc = hiddenLabel("page_size_txt", this);
    m_pageWidth = hiddenLabel("page_width_txt", this);
    m_pageHeight = hiddenLabel("page_height_txt", this);

    auto *top = new QFormLayout;
    top->addRow(nameLabel, m_name);
    top->addRow(pageLabel, m_pageSize);

    // The four frames of two number boxes each, two by two.
    auto *frames = new QGridLayout;
    const int spinnerWidth = style()->pixelMetric(QStyle::PM_ScrollBarExtent);
    QGroupBox *frame = nullptr;
    QFormLayout *frameLayout = nullptr;
    for (int i = 0; i < BoxCount; ++i) {
        const BoxDefinition &d = BoxDefinitions[i];
        if (d.frameCaption) {
            frame = new QGroupBox(tr(d.frameCaption), this);
            frame->setObjectName(QLatin1String(d.frame));
            frameLayout = new QFormLayout(frame);
            frameLayout->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
            frames->addWidget(frame, (i / 2) / 2, (i / 2) % 2);
        }
        Box box;
        box.kind = d.kind;
        box.axis = d.axis;
        auto *label = new QLabel(tr(d.caption), frame);
        label->setObjectName(QLatin1String(d.labelName));
        box.edit = new QLineEdit(frame);
        box.edit->setObjectName(QLatin1String(d.boxName));
        box.edit->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
        box.edit->setMinimumWidth(box.edit->fontMetrics().horizontalAdvance(u'0') * 7);
        box.edit->installEventFilter(this);
        label->setBuddy(box.edit);

        // The spinner is a scroll bar held at 0 that only lends its arrows:
        // up is -1, down is +1, and each move is undone at once.
        box.spinner = new QScrollBar(Qt::Vertical, frame);
        box.spinner->setObjectName(QLatin1String(d.spinnerName));
        box.spinner->setRange(-1, 1);
        box.spinner->setSingleStep(1);
        box.spinner->setPageStep(1);
        box.spinner->setValue(0);
        box.spinner->setFocusPolicy(Qt::NoFocus);
        box.spinner->setFixedWidth(spinnerWidth);
        box.spinner->setAccessibleName(label->text().remove(u'&').remove(u':'));
        connect(box.spinner, &QScrollBar::valueChanged, this,
                [this, i](int value) { onSpinner(i, value); });
        connect(box.edit, &QLineEdit::textChanged, this, &piece_customization_form::updatePreview);

        auto *field = new QHBoxLayout;
        field->setSpacing(0);
        field->addWidget(box.edit);
        field->addWidget(box.spinner);
        frameLayout->addRow(label, field);
        m_boxes.append(box);
    }
    // The spinners stand as tall as their boxes.
    for (const Box &box : std::as_const(m_boxes))
        box.spinner->setFixedHeight(box.edit->sizeHint().height());

    auto *preNotice = new QLabel(tr("Units are in :"), this);
    preNotice->setObjectName(QStringLiteral("pre_notice_txt"));
    m_unit = new QLabel(this);
    m_unit->setObjectName(QStringLiteral("notice_txt"));
    m_isCustom = new QCheckBox(tr("Custom piece"), this);
    m_isCustom->setObjectName(QStringLiteral("is_custom_chk"));
    // It shows whether the piece was edited before; OK marks it custom anyway.
    m_isCustom->setEnabled(false);
    auto *notice = new QHBoxLayout;
    notice->addWidget(preNotice);
    notice->addWidget(m_unit);
    notice->addStretch(1);
    notice->addWidget(m_isCustom);

    auto *previewLabel = new QLabel(tr("Preview"), this);
    previewLabel->setObjectName(QStringLiteral("preview_lbl"));
    auto *background = new QFrame(this);
    background->setObjectName(QStringLiteral("packground_pic"));
    background->setFrameShape(QFrame::StyledPanel);
    background->setFrameShadow(QFrame::Sunken);
    background->setBackgroundRole(QPalette::Midlight);
    background->setAutoFillBackground(true);
    m_preview = new SheetPreview(background);
    m_preview->setObjectName(QStringLiteral("simulated_paper_pic"));
    auto *backgroundLayout = new QVBoxLayout(background);
    backgroundLayout->setContentsMargins(2, 2, 2, 2);
    backgroundLayout->addWidget(m_preview);
    auto *previewColumn = new QVBoxLayout;
    previewColumn->addWidget(previewLabel);
    previewColumn->addWidget(background, 1);

    auto *ok = new QPushButton(tr("O&k"), this);
    ok->setObjectName(QStringLiteral("ok_btn"));
    ok->setDefault(true);
    auto *cancel = new QPushButton(tr("&Cancel"), this);
    cancel->setObjectName(QStringLiteral("cancel_btn"));
    connect(ok, &QPushButton::clicked, this, &piece_customization_form::accept);
    connect(cancel, &QPushButton::clicked, this, &piece_customization_form::reject);
    auto *buttons = new QHBoxLayout;
    buttons->addStretch(1);
    buttons->addWidget(ok);
    buttons->addWidget(cancel);

    m_accepted = new QCheckBox(this);
    m_accepted->setObjectName(QStringLiteral("data_was_accepted_chk"));
    m_accepted->hide();

    auto *left = new QVBoxLayout;
    left->addLayout(top);
    left->addLayout(frames);
    left->addLayout(notice);
    left->addStretch(1);

    auto *layout = new QGridLayout(this);
    layout->addLayout(left, 0, 0);
    layout->addLayout(previewColumn, 0, 1);
    layout->addLayout(buttons, 1, 0, 1, 2);
    layout->setColumnStretch(1, 1);
    layout->setRowStretch(0, 1);

    // Tab order: name, page, the eight boxes frame by frame, then the buttons.
    QWidget *previous = m_name;
    setTabOrder(previous, m_pageSize);
    previous = m_pageSize;
    for (const Box &box : std::as_const(m_boxes)) {
        setTabOrder(previous, box.edit);
        previous = box.edit;
    }
    setTabOrder(previous, ok);
    setTabOrder(ok, cancel);
}

void piece_customization_form::centreOnScreen()
{
    // The form opens in the middle of the screen, not of its opener.
    adjustSize();
    const QScreen *screen = QGuiApplication::primaryScreen();
    if (!screen)
        return;
    const QRect available = screen->availableGeometry();
    move(available.x() + (available.width() - width()) / 2,
         available.y() + (available.height() - height()) / 2);
}

void piece_customization_form::setEntry(const PieceSpec &entry)
{
    m_pageDesc->setText(entry.PageDesc);
    m_pageWidth->setText(decimalText(entry.PageWidth));
    m_pageHeight->setText(decimalText(entry.PageHeight));
    m_name->setText(entry.Name);
    const double values[BoxCount] = {
        entry.MarginTop,   entry.MarginSide, entry.PitchVert,         entry.PitchHorz,
        entry.LabelHeight, entry.LabelWidth, double(entry.NumAcross), double(entry.NumDown)};
    for (int i = 0; i < BoxCount; ++i) {
        const Box &box = m_boxes.at(i);
        box.edit->setText(NumberField(box.kind, 0, 0).initialText(values[i]));
    }
    m_isCustom->setChecked(entry.IsCustom);
    updatePreview();
}

PieceSpec piece_customization_form::acceptedEntry() const
{
    PieceSpec entry;
    entry.Name = m_name->text();
    entry.PageDesc = m_pageDesc->text();
    entry.PageWidth = ParseSingle(m_pageWidth->text());
    entry.PageHeight = ParseSingle(m_pageHeight->text());
    const auto measure = [this](int i) {
        const Box &box = m_boxes.at(i);
        return fieldOf(box).measureValue(box.edit->text());
    };
    const auto count = [this](int i) {
        const Box &box = m_boxes.at(i);
        return fieldOf(box).countValue(box.edit->text());
    };
    entry.MarginTop = measure(TopMargin);
    entry.MarginSide = measure(SideMargin);
    entry.PitchVert = measure(PitchVert);
    entry.PitchHorz = measure(PitchHorz);
    entry.LabelHeight = measure(Height);
    entry.LabelWidth = measure(Width);
    entry.NumAcross = count(Across);
    entry.NumDown = count(Down);
    // Whatever the user did or did not change, an accepted piece is custom.
    entry.IsCustom = true;
    return entry;
}

bool piece_customization_form::dataWasAccepted() const
{
    return m_accepted->isChecked();
}

NumberField piece_customization_form::numberField(const QString &boxName) const
{
    for (const Box &box : m_boxes) {
        if (box.edit->objectName() == boxName)
            return fieldOf(box);
    }
    qCWarning(lcDialogs) << "no number box named" << boxName;
    return NumberField();
}

NumberField piece_customization_form::fieldOf(const Box &box) const
{
    if (box.kind == NumberField::Count)
        return NumberField(NumberField::Count, 1, MaxCount);
    const float page =
        ParseSingle((box.axis == Qt::Horizontal ? m_pageWidth : m_pageHeight)->text());
    return NumberField(NumberField::Measure, 0, page > 0 ? page : NoPageMaximum);
}

int piece_customization_form::boxIndex(const QObject *object) const
{
    for (int i = 0; i < m_boxes.size(); ++i) {
        if (m_boxes.at(i).edit == object)
            return i;
    }
    return -1;
}

void piece_customization_form::activate()
{
    if (m_activated)
        return;
    m_activated = true;

    // The row of the piece's page description; the first when none matches.
    const QString wanted = m_pageDesc->text().trimmed().toUpper();
    int row = 0;
    for (int i = 0; i < m_pageSize->count(); ++i) {
        if (m_pageSize->itemText(i).trimmed().toUpper() == wanted) {
            row = i;
            break;
        }
    }
    {
        const QSignalBlocker blocker(m_pageSize);
        m_pageSize->setCurrentIndex(row);
    }
    // Selecting the row is a choice of page like any other: the description
    // becomes its caption (the busy flag keeps the page from being applied twice).
    onPageSizeChosen();
    applyPage(m_pageSize->currentIndex());
    updatePreview();
    m_busy = false;
}

void piece_customization_form::onPageSizeChosen()
{
    m_pageDesc->setText(m_pageSize->currentText());
    if (m_busy)
        return;
    applyPage(m_pageSize->currentIndex());
    updatePreview();
}

void piece_customization_form::applyPage(int row)
{
    if (row < 0)
        return;
    float width = 0;
    float height = 0;
    if (m_builtInSizes) {
        if (row < int(std::size(BuiltInPages))) {
            width = BuiltInPages[row].width;
            height = BuiltInPages[row].height;
        }
    } else {
        ReadPaperSize(row, width, height);
    }
    m_pageWidth->setText(decimalText(width));
    m_pageHeight->setText(decimalText(height));

    // Only a caption saying "in." is in inches; the numbers themselves are
    // shown as stored either way.
    const bool inches = m_pageSize->itemText(row).contains(QLatin1String("in."));
    m_unit->setText(inches ? tr("inches") : tr("centimeters"));
    qCDebug(lcDialogs) << "page" << m_pageSize->itemText(row) << width << "x" << height;
}

void piece_customization_form::updatePreview()
{
    if (!m_preview || m_boxes.size() != BoxCount)
        return;
    PieceSpec entry = acceptedEntry();
    entry.IsCustom = m_isCustom->isChecked();
    m_preview->setEntry(entry);
}

bool piece_customization_form::filterKey(const Box &box, QKeyEvent *event)
{
    return FilterNumberBoxKey(event, box.spinner);
}

void piece_customization_form::checkBounds(const Box &box)
{
    const QString text = box.edit->text();
    const QString checked = fieldOf(box).checked(text);
    if (checked != text)
        box.edit->setText(checked);
}

void piece_customization_form::onSpinner(int index, int value)
{
    // Setting the bar back to 0 below comes back here with 0: nothing to do.
    if (value == 0)
        return;
    const Box &box = m_boxes.at(index);
    const NumberField::Stepped stepped = fieldOf(box).stepped(box.edit->text(), value);
    box.edit->setText(stepped.text);
    if (stepped.clamped)
        HostServices::of(this).beep();
    box.spinner->setValue(0);
}

bool piece_customization_form::eventFilter(QObject *watched, QEvent *event)
{
    const int index = boxIndex(watched);
    if (index < 0)
        return QDialog::eventFilter(watched, event);
    const Box &box = m_boxes.at(index);
    switch (event->type()) {
    case QEvent::KeyPress:
        return filterKey(box, static_cast<QKeyEvent *>(event));
    case QEvent::KeyRelease:
        checkBounds(box);
        break;
    case QEvent::FocusIn:
        // After the click that gave the focus has placed the cursor.
        QTimer::singleShot(0, box.edit, &QLineEdit::selectAll);
        break;
    default:
        break;
    }
    return QDialog::eventFilter(watched, event);
}

void piece_customization_form::showEvent(QShowEvent *event)
{
    QDialog::showEvent(event);
    if (!event->spontaneous())
        activate();
}

void piece_customization_form::accept()
{
    m_accepted->setChecked(true);
    QDialog::accept();
}

void piece_customization_form::reject()
{
    m_accepted->setChecked(false);
    QDialog::reject();
}

bool ShowPieceCustomizationDialog(QWidget *parent, PieceSpec &entry)
{
    piece_customization_form form(parent);
    form.setEntry(entry);
    form.exec();
    const bool accepted = form.dataWasAccepted();
    if (accepted)
        entry = form.acceptedEntry();
    return accepted;
}

} // namespace quirra
