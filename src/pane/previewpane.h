// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#pragma once

#include "pane/panelayout.h"
#include <QWidget>

#include <array>

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

Q_SIGNALS:
    /** @brief "Pr All" was clicked: the control prints the whole run. */
    void printAllRequested();

protected:
    void resizeEvent(QResizeEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    QToolButton *makeButton(const char *name, const QString &toolTip);
    void relayout();
    void fitLabelFont();
    void giveFocus(bool afterPrevious);
    void pagingClicked(PaneLayout::Part part);
    void printPage();
    void printAll();

    PaneSettings m_settings;
    PrintSurface *m_surface = nullptr;
    QLabel *m_label = nullptr;
    std::array<QWidget *, PaneLayout::PartCount> m_parts{}; ///< by PaneLayout::Part
    int m_fontPixels = 9; ///< the row's font size, from the button size
};

} // namespace quirra
