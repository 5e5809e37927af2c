// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#pragma once

#include "pane/panelayout.h"
#include <QWidget>

#include <array>
#include <optional>
#include <utility>

class QLabel;
class QToolButton;

namespace quirra {

class PrintSurface;

/**
 * @brief The control's face at run time: the preview page above a row of
 * paging buttons, the page label and two print buttons.
 *
 * It fills the control and owns its children under their published names:
 * the surface "mc_printer", the buttons "mc_first", "mc_prev", "mc_next",
 * "mc_last", "mc_p_pg" ("Pr Pg"), "mc_p_all" ("Pr All") and the label
 * "mc_pg_lbl". Their places come from PaneLayout, worked out in twips and
 * shown at the screen's logical resolution, whenever the pane is resized or
 * given new settings.
 *
 * The page on show zooms with Ctrl and the mouse wheel or Ctrl with plus
 * and minus, by ZoomStep percent within the surface's limits; fittingZoom()
 * gives the zoom at which the page fits the surface. With
 * PaneSettings::PrintDialogOnPrint the print buttons ask in Qt's print
 * dialog (printer, copies, and for "Pr All" the pages) before printing.
 */
class PreviewPane : public QWidget
{
    Q_OBJECT

public:
    explicit PreviewPane(QWidget *parent = nullptr);
    ~PreviewPane() override;

    /** @brief The printing surface, the child named "mc_printer". */
    PrintSurface *surface() const;

    /** @brief Takes new layout values and lays the pane out again at once. */
    void setSettings(const PaneSettings &s);
    /** @brief The layout values in use. */
    const PaneSettings &settings() const;

    /**
     * @brief Shows a preview page and brings the buttons, the label and the
     * focus up to date.
     *
     * Codes: 0 the first display after a preview run, 1 the first page,
     * 2 the previous page, 3 the next page, 4 the last page; any other code
     * acts as 1. The page read back from the surface is kept within 1 and the
     * page count.
     */
    void Navigate(qint16 code);

    /** @brief The layout for the pane's current size, in twips. */
    PaneLayout paneLayout() const;

    QSize sizeHint() const override;

    /** @brief How far one wheel notch or one Ctrl+plus/minus zooms, in percent. */
    static constexpr int ZoomStep = 10;

    /** @brief What fittingZoom() fits the page on show to. */
    enum class Fit { Page, Width };

    /**
     * @brief The largest whole zoom at which the page on show of surface
     * fits its whole page (Fit::Page) or its width (Fit::Width, with room
     * for the vertical scroll bar the taller page then needs), ground and
     * all; the surface keeps it within its limits when it is set. Without
     * pages, the zoom in use.
     */
    static int fittingZoom(const PrintSurface &surface, Fit fit);

    /**
     * @brief Zooms by steps times ZoomStep (negative: out), kept within the
     * surface's limits, about anchor (a point of the surface's viewport,
     * which stays over the same spot of the page; the viewport's centre
     * when null).
     */
    void zoomBy(int steps, QPoint anchor = QPoint());

Q_SIGNALS:
    /**
     * @brief "Pr All" was clicked (and the print dialog, if shown, was
     * accepted): the control prints the run. fromPage and toPage are the
     * pages chosen in the dialog, counted as the preview shows them; 0, 0
     * for every page.
     */
    void printAllRequested(int fromPage, int toPage);
    /** @brief The user zoomed the page (wheel or keys): the surface's zoom is now percent. */
    void zoomChanged(int percent);

protected:
    void resizeEvent(QResizeEvent *event) override;
    void changeEvent(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QToolButton *makeButton(const char *name, const QString &toolTip);
    void relayout();
    void fitLabelFont();
    void giveFocus(bool afterPrevious);
    void pagingClicked(PaneLayout::Part part);
    void printPage();
    void printAll();
    /**
     * The pages to print, chosen in the print dialog (0, 0: every one), or
     * nothing when the user cancelled. wholeRun offers the pages.
     */
    std::optional<std::pair<int, int>> askToPrint(bool wholeRun);
    void updateToolTips();

    PaneSettings m_settings;
    PrintSurface *m_surface = nullptr;
    QLabel *m_label = nullptr;
    std::array<QWidget *, PaneLayout::PartCount> m_parts{}; ///< by PaneLayout::Part
    int m_fontPixels = 9; ///< the row's font size, from the button size
    int m_wheelAngle = 0; ///< wheel turn not yet zoomed, in eighths of a degree
};

} // namespace quirra
