// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#pragma once

#include "pane/previewpane.h"

#include <functional>

#include <QMainWindow>

class QAction;
class QComboBox;
class QToolBar;
class Quirra;

namespace quirra {

/**
 * @brief The window of quirra preview: a control filling the window, its
 * preview pane showing the run, and a toolbar to save the layout, print, or
 * export the run as a PDF file.
 *
 * The toolbar keeps its actions in groups; the piece, customization and
 * layout dialogs and the property page get a group of their own between the
 * layout and the output actions, and the about box comes last. A zoom box
 * sets the control's PreviewZoom, fits the page or its width to the pane,
 * and shows the zoom however it was reached (wheel, keys, the property). The
 * print buttons of the pane ask in the print dialog first.
 */
class PreviewWindow : public QMainWindow
{
    Q_OBJECT

public:
    /** @brief A window with a new control (as newly placed: empty texts) and the toolbar. */
    explicit PreviewWindow(QWidget *parent = nullptr);

    /** @brief The control the window shows; owned by the window. */
    Quirra *control() const { return m_control; }

    /** @brief Names what is shown in the title: the CSV file's name. */
    void setSourceName(const QString &name);

    /**
     * @brief Builds the preview of the spooled run. While it builds, Esc or
     * the Cancel button in the status bar stops it before its next piece;
     * the pages built so far stay shown.
     * @throws Error when the piece cannot be laid out.
     */
    void buildPreview();

public Q_SLOTS:
    /** @brief Asks for a file and saves the control's properties to it as a JSON layout. */
    void saveLayout();
    /** @brief Opens the piece selection dialog; on OK shows the run on the new piece. */
    void choosePiece();
    /** @brief Opens the customization dialog on the current piece; on OK shows the run again. */
    void customizePiece();
    /** @brief Opens the layout editor on the five items; on OK shows the run again. */
    void editLayout();
    /**
     * @brief Opens the control's property sheet; every Apply and OK shows the
     * run again on what the page wrote.
     */
    void showProperties();
    /** @brief Shows the control's about box. */
    void showAbout();
    /** @brief Writes the control's properties to path; false with a message box on failure. */
    bool saveLayoutTo(const QString &path);
    /** @brief Opens the print dialog on the control's printer and prints the run there. */
    void print();
    /** @brief Asks for a file and prints the run to it as PDF. */
    void exportPdf();
    /** @brief Sets the zoom at which the page on show fits the pane, as the zoom box's fit items
     * do. */
    void zoomToFit(quirra::PreviewPane::Fit fit);
    /** @brief Prints the run to the PDF file path; false with a message box on failure. */
    bool exportPdfTo(const QString &path);

private:
    bool runPrint(const QString &what);
    void complain(const QString &text);
    void runDesignStep(const std::function<void()> &step);
    void refresh();
    void updateTitle();
    void addZoomBox();
    void zoomChosen(int index);
    void zoomTyped();
    void showZoom();

    Quirra *m_control;
    QToolBar *m_toolBar;
    QComboBox *m_zoomBox = nullptr;
    QString m_sourceName;
};

} // namespace quirra
