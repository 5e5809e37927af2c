// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#include "previewwindow.h"

#include "logging_p.h"
#include "pdfoutput.h"

#include "control/propertysheet.h"
#include "control/quirra.h"
#include "model/error.h"
#include "printing/printsurface.h"
#include "properties/jsonpropertybag.h"

#include <QAction>
#include <QComboBox>
#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFileDialog>
#include <QFileInfo>
#include <QKeySequence>
#include <QLineEdit>
#include <QMessageBox>
#include <QPrintDialog>
#include <QPrinter>
#include <QPushButton>
#include <QScopeGuard>
#include <QShortcut>
#include <QStatusBar>
#include <QToolBar>

namespace quirra {

namespace {

// The zoom box's fixed choices, in percent, after the two fits.
constexpr int ZoomChoices[] = {25, 50, 75, 100, 150, 200, 400};
// The fits' item data: no zoom is negative.
constexpr int FitPageItem = -1;
constexpr int FitWidthItem = -2;

// Restores the printer's destination after an export, so that a later Print…
// goes to the printer chosen in its dialog rather than to the exported file.
class OutputFileScope
{
public:
    OutputFileScope(QPrinter *printer, const QString &file)
        : m_printer(printer), m_previousFormat(printer->outputFormat()),
          m_previousFile(printer->outputFileName())
    {
        // The format first: the temporary file's name does not end in .pdf,
        // so naming it would not switch the printer to PDF by itself.
        m_printer->setOutputFormat(QPrinter::PdfFormat);
        m_printer->setOutputFileName(file);
    }
    ~OutputFileScope()
    {
        m_printer->setOutputFormat(m_previousFormat);
        m_printer->setOutputFileName(m_previousFile);
    }
    OutputFileScope(const OutputFileScope &) = delete;
    OutputFileScope &operator=(const OutputFileScope &) = delete;

private:
    QPrinter *m_printer;
    QPrinter::OutputFormat m_previousFormat;
    QString m_previousFile;
};

} // namespace

PreviewWindow::PreviewWindow(QWidget *parent)
    : QMainWindow(parent), m_control(new Quirra(this)), m_toolBar(addToolBar(tr("Run")))
{
    setCentralWidget(m_control);
    m_toolBar->setObjectName(QStringLiteral("run_toolbar"));
    m_toolBar->setMovable(false);
    m_toolBar->setToolButtonStyle(Qt::ToolButtonTextOnly);

    QAction *save = m_toolBar->addAction(tr("Save layout…"), this, &PreviewWindow::saveLayout);
    save->setObjectName(QStringLiteral("save_layout_act"));
    save->setShortcut(QKeySequence::Save);
    m_toolBar->addSeparator();
    QAction *piece = m_toolBar->addAction(tr("Piece…"), this, &PreviewWindow::choosePiece);
    piece->setObjectName(QStringLiteral("choose_piece_act"));
    QAction *customize =
        m_toolBar->addAction(tr("Customize…"), this, &PreviewWindow::customizePiece);
    customize->setObjectName(QStringLiteral("customize_piece_act"));
    QAction *layout = m_toolBar->addAction(tr("Layout…"), this, &PreviewWindow::editLayout);
    layout->setObjectName(QStringLiteral("edit_layout_act"));
    QAction *properties =
        m_toolBar->addAction(tr("Properties…"), this, &PreviewWindow::showProperties);
    properties->setObjectName(QStringLiteral("properties_act"));
    m_toolBar->addSeparator();
    QAction *print = m_toolBar->addAction(tr("Print…"), this, &PreviewWindow::print);
    print->setObjectName(QStringLiteral("print_act"));
    print->setShortcut(QKeySequence::Print);
    QAction *pdf = m_toolBar->addAction(tr("Export PDF…"), this, &PreviewWindow::exportPdf);
    pdf->setObjectName(QStringLiteral("export_pdf_act"));
    m_toolBar->addSeparator();
    addZoomBox();
    m_toolBar->addSeparator();
    QAction *about = m_toolBar->addAction(tr("About"), this, &PreviewWindow::showAbout);
    about->setObjectName(QStringLiteral("about_act"));

    QAction *quit = new QAction(tr("Quit"), this);
    quit->setShortcut(QKeySequence::Quit);
    connect(quit, &QAction::triggered, this, &QWidget::close);
    addAction(quit);

    // Someone at the screen picks the printer, the copies and the pages.
    m_control->PrintDialogOnPrint(true);

    resize(900, 700);
    updateTitle();
}

void PreviewWindow::addZoomBox()
{
    m_zoomBox = new QComboBox(this);
    m_zoomBox->setObjectName(QStringLiteral("zoom_box"));
    m_zoomBox->setEditable(true);
    m_zoomBox->setInsertPolicy(QComboBox::NoInsert);
    m_zoomBox->setToolTip(tr("Zoom of the page on show, in percent (also Ctrl+wheel, Ctrl+plus "
                             "and Ctrl+minus on the page)"));
    m_zoomBox->addItem(tr("Fit page"), FitPageItem);
    m_zoomBox->addItem(tr("Fit width"), FitWidthItem);
    for (const int percent : ZoomChoices)
        m_zoomBox->addItem(tr("%1 %").arg(percent), percent);
    // Wide enough for the longest item and for "1000 %".
    m_zoomBox->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    m_toolBar->addWidget(m_zoomBox);
    connect(m_zoomBox, &QComboBox::activated, this, &PreviewWindow::zoomChosen);
    connect(m_zoomBox->lineEdit(), &QLineEdit::editingFinished, this, &PreviewWindow::zoomTyped);
    // Once chosen, the keys go back to the page: the arrows scroll it, Ctrl+plus zooms on.
    connect(m_zoomBox->lineEdit(), &QLineEdit::returnPressed, m_control->surface(),
            qOverload<>(&QWidget::setFocus));
    connect(m_control, &Quirra::propertyChanged, this, [this](const QString &name) {
        if (name == QLatin1String("PreviewZoom"))
            showZoom();
    });
    showZoom();
}

void PreviewWindow::zoomChosen(int index)
{
    const int choice = m_zoomBox->itemData(index).toInt();
    if (choice == FitPageItem)
        zoomToFit(PreviewPane::Fit::Page);
    else if (choice == FitWidthItem)
        zoomToFit(PreviewPane::Fit::Width);
    else if (choice > 0)
        m_control->PreviewZoom(short(choice));
    // The box shows the zoom reached, also when the choice changed nothing.
    showZoom();
    m_control->surface()->setFocus(Qt::OtherFocusReason);
}

void PreviewWindow::zoomTyped()
{
    QString text = m_zoomBox->currentText().trimmed();
    if (text.endsWith(QLatin1Char('%')))
        text.chop(1);
    bool ok = false;
    const int percent = text.trimmed().toInt(&ok);
    // The surface keeps the zoom within its limits; a word is no zoom.
    if (ok && percent > 0)
        m_control->PreviewZoom(short(std::min(percent, 30000)));
    showZoom();
}

void PreviewWindow::zoomToFit(PreviewPane::Fit fit)
{
    m_control->PreviewZoom(short(PreviewPane::fittingZoom(*m_control->surface(), fit)));
}

void PreviewWindow::showZoom()
{
    m_zoomBox->setEditText(tr("%1 %").arg(m_control->PreviewZoom()));
}

void PreviewWindow::setSourceName(const QString &name)
{
    m_sourceName = name;
    updateTitle();
}

void PreviewWindow::updateTitle()
{
    const QString piece = m_control->PieceName();
    setWindowTitle(m_sourceName.isEmpty() ? QStringLiteral("quirra - %1").arg(piece)
                                          : tr("quirra - %1 on %2").arg(m_sourceName, piece));
}

void PreviewWindow::complain(const QString &text)
{
    qCWarning(lcApp).noquote() << text;
    QMessageBox::warning(this, windowTitle(), text);
}

void PreviewWindow::choosePiece()
{
    bool changed = false;
    runDesignStep([&] { m_control->PieceSelectDialogShow(changed); });
    if (changed)
        refresh();
}

void PreviewWindow::customizePiece()
{
    bool changed = false;
    runDesignStep([&] { m_control->PieceCustomizationDialogShow(changed); });
    if (changed)
        refresh();
}

void PreviewWindow::editLayout()
{
    bool changed = false;
    runDesignStep([&] { m_control->PieceLayoutDialogShow(changed); });
    if (changed)
        refresh();
}

void PreviewWindow::showProperties()
{
    PropertySheet sheet(m_control, this);
    connect(&sheet, &PropertySheet::applied, this, &PreviewWindow::refresh);
    sheet.exec();
}

void PreviewWindow::showAbout()
{
    m_control->ShowAboutBox();
}

void PreviewWindow::buildPreview()
{
    // The run keeps this thread busy: events (the key, the button) are let
    // through when it begins a page, at most ten times a second.
    auto *cancel = new QPushButton(tr("Cancel"), this);
    cancel->setToolTip(tr("Stop building the preview (Esc)"));
    connect(cancel, &QPushButton::clicked, this, [this] { m_control->CancelRun(); });
    auto *escape = new QShortcut(QKeySequence(Qt::Key_Escape), this);
    connect(escape, &QShortcut::activated, this, [this] { m_control->CancelRun(); });
    statusBar()->addPermanentWidget(cancel);
    QElapsedTimer sinceEvents;
    sinceEvents.start();
    m_control->surface()->setPageObserver([&sinceEvents](int) {
        if (sinceEvents.elapsed() >= 100) {
            QCoreApplication::processEvents();
            sinceEvents.restart();
        }
    });
    const auto finish = qScopeGuard([&] {
        m_control->surface()->setPageObserver({});
        delete escape;
        delete cancel;
    });
    m_control->PreviewNow();
    if (m_control->LastRunCancelled())
        statusBar()->showMessage(tr("Preview cancelled: the pages built so far are shown"), 5000);
}

void PreviewWindow::runDesignStep(const std::function<void()> &step)
{
    try {
        step();
    } catch (const Error &e) {
        complain(e.message());
    }
}

void PreviewWindow::refresh()
{
    // The spool still holds the run: show it again on the new piece.
    runDesignStep([this] { buildPreview(); });
    updateTitle();
}

void PreviewWindow::saveLayout()
{
    const QString path = QFileDialog::getSaveFileName(this, tr("Save layout"), QString(),
                                                      tr("Layouts (*.json);;All files (*)"));
    if (!path.isEmpty())
        saveLayoutTo(path);
}

bool PreviewWindow::saveLayoutTo(const QString &path)
{
    JsonPropertyBag bag;
    try {
        m_control->WriteProperties(bag);
        bag.save(path);
    } catch (const Error &e) {
        complain(tr("The layout could not be saved: %1").arg(e.message()));
        return false;
    }
    statusBar()->showMessage(tr("Layout saved to %1").arg(path), 5000);
    return true;
}

bool PreviewWindow::runPrint(const QString &what)
{
    try {
        m_control->PrintNow();
    } catch (const Error &e) {
        complain(tr("%1 failed: %2").arg(what, e.message()));
        return false;
    }
    // The run has shown "Ptr.error = " itself when the printer failed; a
    // queue that refused the job also says why.
    const QString why = m_control->surface()->printerFailure();
    if (m_control->surface()->errorCode() != 0 && !why.isEmpty())
        complain(tr("%1 failed: %2").arg(what, why));
    return m_control->surface()->errorCode() == 0;
}

void PreviewWindow::print()
{
    QPrinter *printer = m_control->printer();
    QPrintDialog dialog(printer, this);
    dialog.setWindowTitle(tr("Print the run"));
    // The pages shown are the pages printed, so a range of them may be chosen.
    dialog.setOption(QAbstractPrintDialog::PrintPageRange);
    dialog.setMinMax(1, qMax(1, m_control->surface()->pageCount()));
    if (dialog.exec() != QDialog::Accepted)
        return;
    const bool range = printer->printRange() == QPrinter::PageRange;
    m_control->SetPrintPages(range ? printer->fromPage() : 0, range ? printer->toPage() : 0);
    const bool printed = runPrint(tr("Printing"));
    m_control->SetPrintPages(0, 0); // the preview and Export PDF keep every page
    if (printed)
        statusBar()->showMessage(
            tr("Sent %1 pages to the printer").arg(m_control->surface()->pageCount()), 5000);
}

void PreviewWindow::exportPdf()
{
    QString path =
        QFileDialog::getSaveFileName(this, tr("Export PDF"), QString(), tr("PDF files (*.pdf)"));
    if (path.isEmpty())
        return;
    if (QFileInfo(path).suffix().isEmpty())
        path += QStringLiteral(".pdf");
    exportPdfTo(path);
}

bool PreviewWindow::exportPdfTo(const QString &path)
{
    PdfOutput output(path);
    QString error;
    if (!output.open(&error)) {
        complain(tr("The PDF could not be written: %1").arg(error));
        return false;
    }
    bool printed = false;
    {
        OutputFileScope scope(m_control->printer(), output.temporaryPath());
        printed = runPrint(tr("The export"));
    }
    if (!printed)
        return false;
    const int pages = m_control->surface()->pageCount();
    if (!output.commit(&error)) {
        complain(tr("The PDF could not be written: %1").arg(error));
        return false;
    }
    statusBar()->showMessage(tr("Wrote %1 pages to %2").arg(pages).arg(path), 5000);
    return true;
}

} // namespace quirra
