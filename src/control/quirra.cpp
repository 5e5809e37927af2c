// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#include "control/quirra.h"
#include "control/quirra_p.h"

#include "catalogue/piececatalogue.h"
#include "catalogue/pieceentry.h"
#include "catalogue/pieceloader.h"
#include "control/aboutbox.h"
#include "control/layoutcopy.h"
#include "control/logging_p.h"
#include "control/translations.h"
#include "control/propertytable.h"
#include "dialogs/hostservices.h"
#include "dialogs/piece_customization_form.h"
#include "dialogs/piece_layout_edit_form.h"
#include "dialogs/piece_select_form.h"
#include "model/error.h"
#include "model/fontconversion.h"
#include "model/piecemodel.h"
#include "pane/previewpane.h"
#include "printing/printsurface.h"
#include "properties/fieldnames.h"
#include "properties/propertybag.h"
#include "records/sharedspool.h"
#include "records/spoolwriter.h"
#include "render/printrun.h"
#include "render/runreport.h"
#include "render/textlines.h"
#include "settings/defaultlayout.h"
#include "settings/files.h"
#include "surface/measuringsurface.h"

#include <QCoreApplication>
#include <QScopeGuard>
#include <QVBoxLayout>

#include <algorithm>
#include <array>
#include <exception>

using namespace quirra;

namespace {

// The pane is made before the constructor's body runs: the translation is in
// place before the first text is.
QWidget *translated(QWidget *parent)
{
    InstallTranslations();
    return parent;
}

PieceModel &model()
{
    return PieceModel::shared();
}

} // namespace

Quirra::Quirra(QWidget *parent)
    : QWidget(translated(parent)), d(std::make_unique<QuirraPrivate>())
{
    d->m_pane = new PreviewPane(this);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(d->m_pane);
    // The pane's "Pr All" button has no caller to hand an error to: the user
    // sees it in the same way as the run's own messages. Pages chosen in its
    // print dialog count as the preview shows them, from the host's first.
    connect(d->m_pane, &PreviewPane::printAllRequested, this, [this](int from, int to) {
        const auto restore =
            qScopeGuard([this, hostPages = d->m_pages] { d->m_pages = hostPages; });
        const int before = std::max(0, d->m_pages.first - 1);
        if (from > 0)
            d->m_pages.first = from + before;
        if (to > 0)
            d->m_pages.second = to + before;
        try {
            PrintNow();
        } catch (const Error &e) {
            HostServices::of(this).message(e.message(), this);
        }
    });
    // Zoomed in the pane: the published PreviewZoom reads the new zoom.
    connect(d->m_pane, &PreviewPane::zoomChanged, this,
            [this] { notify(QStringLiteral("PreviewZoom")); });
    startInstance();
    // Icon1 is no part of a new control's initialisation: it starts as the
    // default set has it.
    d->m_icon1 = d->m_defaults.Icon1;
    InitProperties();
}

Quirra::~Quirra()
{
    // Close what this control holds on the spool before deleting it: the
    // writer would otherwise flush its buffer after the file is gone.
    d->m_writer.reset();
    SharedSpool &spool = SharedSpool::instance();
    spool.reader().close();
    const QString shared = spool.spoolPath();
    if (!shared.isEmpty())
        DeleteFileAndWait(shared);
    // A later control took over the spool path; the file this control made is
    // no one's any more.
    if (!d->m_ownSpoolPath.isEmpty() && d->m_ownSpoolPath != shared)
        DeleteFileAndWait(d->m_ownSpoolPath);
}

void Quirra::startInstance()
{
    d->m_defaults = DefaultSet::compute();

    // A fresh writer has no document and no open file; the old one closes its
    // file as it goes.
    d->m_writer = std::make_unique<SpoolWriter>();
    const QString previous = d->m_ownSpoolPath;
    SharedSpool &spool = SharedSpool::instance();
    try {
        d->m_ownSpoolPath = spool.makeNewSpoolFile();
    } catch (const Error &e) {
        // The control still opens; feeding it records then fails with the
        // spool's own error.
        qCWarning(lcControl).noquote() << e.message();
        d->m_ownSpoolPath.clear();
        spool.setSpoolPath(QString());
    }
    if (!previous.isEmpty() && previous != d->m_ownSpoolPath)
        DeleteFileAndWait(previous);

    PaneSettings settings = d->m_pane->settings();
    settings.paneFraction = 0.85f;
    d->m_pane->setSettings(settings);

    model().item(ItemId::Address).Text.clear();
    model().piece.PrinterLeft = 0.25f;
    model().piece.PrinterTop = 0.25f;

    d->m_cancel = false;
    spool.reader().close();
    spool.reader().setSpoolExhausted(false);
}

void Quirra::UserControl_Initialize()
{
    startInstance();
}

// --- The recipient record ---------------------------------------------------

void Quirra::FirstName(const QString &value)
{
    d->m_record.setValue(RecordField::nm_first, value);
}

void Quirra::MiddleName(const QString &value)
{
    d->m_record.setValue(RecordField::nm_middle, value);
}

void Quirra::LastName(const QString &value)
{
    d->m_record.setValue(RecordField::nm_last, value);
}

void Quirra::Address1(const QString &value)
{
    d->m_record.setValue(RecordField::addr_1, value);
}

void Quirra::Address2(const QString &value)
{
    d->m_record.setValue(RecordField::addr_2, value);
}

void Quirra::city(const QString &value)
{
    d->m_record.setValue(RecordField::city, value);
}

void Quirra::State(const QString &value)
{
    d->m_record.setValue(RecordField::state, value);
}

void Quirra::zip(const QString &value)
{
    d->m_record.setValue(RecordField::zip, value);
}

void Quirra::Substitute(const QString &value)
{
    d->m_record.setValue(RecordField::substitute, value);
}

void Quirra::BarCode(const QString &value)
{
    d->m_record.setValue(RecordField::bar_code, value);
}

void Quirra::ClearPiece()
{
    d->m_record.clear();
}

// --- The spool and the runs ---------------------------------------------------

void Quirra::NewPiece()
{
    d->m_writer->NewPiece(d->m_record);
}

void Quirra::StartDoc()
{
    d->m_writer->StartDoc();
}

void Quirra::EndDoc()
{
    d->m_writer->EndDoc();
}

void Quirra::PreviewNow()
{
    runPrintJob(true);
    d->m_pane->Navigate(0);
}

void Quirra::PrintNow()
{
    runPrintJob(false);
}

void Quirra::runPrintJob(bool preview)
{
    if (d->m_writer->isSpoolOpen())
        EndDoc();
    PrintSurface *printSurface = surface();
    printSurface->setPreview(preview);
    // The preview and a PDF file show each piece where it lies on the sheet:
    // their printable area starts where the printer's does.
    printSurface->setPrintableOrigin(inchesToTwips(model().piece.PrinterLeft),
                                     inchesToTwips(model().piece.PrinterTop));
    runOn(*printSurface);
}

void Quirra::PreflightNow()
{
    if (d->m_writer->isSpoolOpen())
        EndDoc();
    MeasuringSurface measuring;
    measuring.setPrintableOrigin(inchesToTwips(model().piece.PrinterLeft),
                                 inchesToTwips(model().piece.PrinterTop));
    runOn(measuring);
}

const RunReport &Quirra::LastRunReport() const
{
    return *d->m_report;
}

void Quirra::CancelRun()
{
    d->m_cancel = true;
}

bool Quirra::LastRunCancelled() const
{
    return d->m_lastRunCancelled;
}

std::atomic_bool &Quirra::cancelFlag()
{
    return d->m_cancel;
}

void Quirra::SetPrintPages(int first, int last)
{
    d->m_pages = {first, last};
}

const DefaultSet &Quirra::defaultSet() const
{
    return d->m_defaults;
}

void Quirra::runOn(Surface &surface)
{
    d->m_cancel = false;
    // Every run reads the spool from its first record, also after a run that
    // stopped half way.
    SpoolReader &reader = SharedSpool::instance().reader();
    reader.close();
    reader.setSpoolExhausted(false);

    PrintRun run(model(), reader);
    run.setCancelFlag(&d->m_cancel);
    run.setPageRange(d->m_pages);
    run.setMessageSink([this](const QString &text) { HostServices::of(this).message(text, this); });
    try {
        run.RunPrintJob(surface);
    } catch (...) {
        *d->m_report = run.report();
        d->m_lastRunCancelled = run.cancelled();
        throw;
    }
    *d->m_report = run.report();
    d->m_lastRunCancelled = run.cancelled();
}

QPrinter *Quirra::printer() const
{
    return surface()->printer();
}

PrintSurface *Quirra::surface() const
{
    return d->m_pane->surface();
}

// --- Item texts -------------------------------------------------------------

void Quirra::ClearMessage1()
{
    Message1Text(QString());
}

void Quirra::ClearMessage2()
{
    Message2Text(QString());
}

void Quirra::ClearReturn()
{
    ReturnText(QString());
}

void Quirra::ClearStamp()
{
    StampText(QString());
}

void Quirra::SetMessage1Text(const QString &singleOrMultiLine)
{
    Message1Text(AppendTextLine(Message1Text(), singleOrMultiLine));
}

void Quirra::SetMessage2Text(const QString &singleOrMultiLine)
{
    Message2Text(AppendTextLine(Message2Text(), singleOrMultiLine));
}

void Quirra::SetReturnText(const QString &singleOrMultiLine)
{
    ReturnText(AppendTextLine(ReturnText(), singleOrMultiLine));
}

void Quirra::SetStampText(const QString &singleOrMultiLine)
{
    StampText(AppendTextLine(StampText(), singleOrMultiLine));
}

// --- The piece ----------------------------------------------------------------

void Quirra::loadPiece(const QString &name)
{
    // The name is kept even when the catalogue lacks it and the default
    // envelope's geometry is taken.
    Catalogue::system()->loadPiece(name, model());
}

void Quirra::PieceSelectDialogShow(bool &changed)
{
    const auto catalogue = Catalogue::system();
    QString name = PieceName();
    changed = ShowPieceSelectDialog(this, name, catalogue);
    if (changed)
        ApplyPiece(catalogue->pieceOrDefault(name));
}

void Quirra::PieceCustomizationDialogShow(bool &changed)
{
    // The paper goes in as its description and real size, so that OK keeps
    // it: its number alone matches no caption of the dialog.
    PieceSpec entry = PieceEntryOf(model().piece);
    changed = ShowPieceCustomizationDialog(this, entry);
    if (changed)
        ApplyPiece(entry);
}

void Quirra::PieceLayoutDialogShow(bool &changed)
{
    // The editor takes the items in argument order and gives them back so.
    const PieceModel &shared = model();
    std::array<Item, ItemCount> items;
    for (int i = 0; i < ItemCount; ++i)
        items[i] = shared.item(ArgumentOrder[i]);
    changed = EditPieceLayout(this, shared.piece.PieceWidth, shared.piece.PieceHeight, items);
    if (!changed)
        return;
    for (int i = 0; i < ItemCount; ++i)
        LayoutCopy::writeItem(*this, ArgumentOrder[i], items[i]);
}

void Quirra::ShowAboutBox()
{
    AboutBox box(this);
    box.exec();
}

void Quirra::ApplyPiece(const PieceSpec &entry)
{
    PieceName(entry.Name);
    PieceMarginLeft(entry.MarginSide);
    PieceMarginTop(entry.MarginTop);
    PieceNumAcross(entry.NumAcross);
    PieceNumDown(entry.NumDown);
    PieceHeight(entry.LabelHeight);
    PieceWidth(entry.LabelWidth);
    PiecePitchHorz(entry.PitchHorz);
    PiecePitchVert(entry.PitchVert);
    IsCustom(entry.IsCustom ? 1 : 0);
    PageSize(entry.PageDesc);
    PageWidth(entry.PageWidth);
    PageHeight(entry.PageHeight);

    Piece derived = model().piece;
    DerivePageSetup(derived);
    PieceOrientation(derived.PieceOrientation);
    PageSizeNum(derived.PageSizeNum);

    // Choosing or customising a piece always lays the items out afresh.
    PieceModel &shared = model();
    DefaultLayout(shared.piece.PieceHeight, shared.piece.PieceWidth, shared.item(ItemId::Address),
                  shared.item(ItemId::Return), shared.item(ItemId::Stamp),
                  shared.item(ItemId::Message1), shared.item(ItemId::Message2));
    notifyPieceChanged();
    notifyItemsChanged();
}

void Quirra::notify(const QString &name)
{
    Q_EMIT propertyChanged(name);
}

void Quirra::notifyPieceChanged()
{
    for (const QString &name : PieceChangedNames())
        notify(name);
}

void Quirra::notifyItemsChanged()
{
    for (const QString &name : ItemsChangedNames())
        notify(name);
}

// --- Persistence --------------------------------------------------------------

void Quirra::InitProperties()
{
    // The set is read afresh before the first value is taken from it.
    d->m_defaults = DefaultSet::compute();
    const QFont ambient = font();
    for (const PropertyInfo *property : PropertyTable::initialisedInOrder())
        property->write(*this, property->initialValue(d->m_defaults, ambient));
}

void Quirra::ReadProperties(PropertyBag &bag)
{
    const QFont ambient = font();
    for (const PropertyInfo *property : PropertyTable::savedInOrder()) {
        const QVariant fallback = property->defaultValue(d->m_defaults, ambient);
        QVariant value;
        try {
            value = bag.read(property->name, fallback);
        } catch (const std::exception &e) {
            qCInfo(lcControl).noquote()
                << "cannot read" << property->name << "-" << e.what() << "- the default is taken";
            value = fallback;
        }
        if (!value.isValid() ||
            (value.metaType() != property->savedType && !value.convert(property->savedType))) {
            qCInfo(lcControl).noquote() << "the saved" << property->name
                                        << "is not a value of its type; the default is taken";
            value = fallback;
        }
        property->write(*this, value);
    }
    // Loading the piece gave the address block its placeholder text, and the
    // address text is never saved: a reopened control starts with an empty
    // address, as every control does.
    model().item(ItemId::Address).Text.clear();
}

void Quirra::WriteProperties(PropertyBag &bag) const
{
    const QFont ambient = font();
    for (const PropertyInfo *property : PropertyTable::savedInOrder())
        bag.write(property->name, property->read(*this),
                  property->defaultValue(d->m_defaults, ambient));
}

// --- The properties -----------------------------------------------------------
//
// One getter and one setter per row of properties/properties.def; the kind of
// row (its "where" column) picks the pair.

#define QUIRRA_PROPERTY(type, name, save, init, defaultValue, initialValue, where, ...)            \
    QUIRRA_ACCESSORS_##where(type, name, __VA_ARGS__)

#define QUIRRA_SETTER(type, name) void Quirra::name(PropertyArg<type> value)
#define QUIRRA_NOTIFY(name) notify(QStringLiteral(#name))

#define QUIRRA_ACCESSORS_PANE(type, name, field)                                                   \
    type Quirra::name() const                                                                      \
    {                                                                                              \
        return d->m_pane->settings().field;                                                        \
    }                                                                                              \
    QUIRRA_SETTER(type, name)                                                                      \
    {                                                                                              \
        PaneSettings settings = d->m_pane->settings();                                             \
        settings.field = value;                                                                    \
        d->m_pane->setSettings(settings);                                                          \
        QUIRRA_NOTIFY(name);                                                                       \
    }

#define QUIRRA_ACCESSORS_PANE_CLAMPED(type, name, field, lowest, highest)                          \
    type Quirra::name() const                                                                      \
    {                                                                                              \
        return d->m_pane->settings().field;                                                        \
    }                                                                                              \
    QUIRRA_SETTER(type, name)                                                                      \
    {                                                                                              \
        PaneSettings settings = d->m_pane->settings();                                             \
        settings.field = std::clamp<type>(value, lowest, highest);                                 \
        d->m_pane->setSettings(settings);                                                          \
        QUIRRA_NOTIFY(name);                                                                       \
    }

#define QUIRRA_ACCESSORS_PIECE_NAME(type, name, field)                                             \
    type Quirra::name() const                                                                      \
    {                                                                                              \
        return model().piece.field;                                                                \
    }                                                                                              \
    QUIRRA_SETTER(type, name)                                                                      \
    {                                                                                              \
        loadPiece(value);                                                                          \
        QUIRRA_NOTIFY(name);                                                                       \
        notifyPieceChanged();                                                                      \
        notifyItemsChanged();                                                                      \
    }

#define QUIRRA_ACCESSORS_MODEL(type, name, field)                                                  \
    type Quirra::name() const                                                                      \
    {                                                                                              \
        return model().field;                                                                      \
    }                                                                                              \
    QUIRRA_SETTER(type, name)                                                                      \
    {                                                                                              \
        model().field = value;                                                                     \
        QUIRRA_NOTIFY(name);                                                                       \
    }

#define QUIRRA_ACCESSORS_PIECE(type, name, field, ...)                                             \
    type Quirra::name() const                                                                      \
    {                                                                                              \
        return model().piece.field;                                                                \
    }                                                                                              \
    QUIRRA_SETTER(type, name)                                                                      \
    {                                                                                              \
        model().piece.field = value;                                                               \
        QUIRRA_NOTIFY(name);                                                                       \
    }

#define QUIRRA_ACCESSORS_ITEM(type, name, itemId, field)                                           \
    type Quirra::name() const                                                                      \
    {                                                                                              \
        return model().item(ItemId::itemId).field;                                                 \
    }                                                                                              \
    QUIRRA_SETTER(type, name)                                                                      \
    {                                                                                              \
        model().item(ItemId::itemId).field = value;                                                \
        QUIRRA_NOTIFY(name);                                                                       \
    }

#define QUIRRA_ACCESSORS_ITEM_FONT(type, name, itemId)                                             \
    type Quirra::name() const                                                                      \
    {                                                                                              \
        return toQFont(model().item(ItemId::itemId).Font);                                         \
    }                                                                                              \
    QUIRRA_SETTER(type, name)                                                                      \
    {                                                                                              \
        model().item(ItemId::itemId).Font = toItemFont(value);                                     \
        QUIRRA_NOTIFY(name);                                                                       \
    }

#define QUIRRA_ACCESSORS_SURFACE(type, name, getter, setter)                                       \
    type Quirra::name() const                                                                      \
    {                                                                                              \
        return type(surface()->getter());                                                          \
    }                                                                                              \
    QUIRRA_SETTER(type, name)                                                                      \
    {                                                                                              \
        surface()->setter(value);                                                                  \
        QUIRRA_NOTIFY(name);                                                                       \
    }

#define QUIRRA_ACCESSORS_INSTANCE(type, name, member)                                              \
    type Quirra::name() const                                                                      \
    {                                                                                              \
        return d->member;                                                                          \
    }                                                                                              \
    QUIRRA_SETTER(type, name)                                                                      \
    {                                                                                              \
        d->member = value;                                                                         \
        QUIRRA_NOTIFY(name);                                                                       \
    }

#include "properties/properties.def"
