// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QRect>
#include <QSize>

#include <array>

namespace quirra {

/**
 * @brief The preview pane's layout values, as the control's properties hold
 * them. Lengths are whole twips.
 *
 * The control's setters clamp the three lengths already; PaneLayout clamps
 * them again, so values set here directly cannot break the layout.
 */
struct PaneSettings
{
    short ButtonMaxHeight = 240; ///< the tallest a button may be, twips (50..400)
    short BoarderInside = 60;    ///< margin round the pane's contents, twips (0..400)
    short BoarderButtonTop = 40; ///< gap above the row and between its groups, twips (0..300)
    bool ButtonPgAdvanceVisible = true; ///< the four paging buttons
    bool ButtonPrintPgVisible = true;   ///< the "Pr Pg" button
    bool ButtonPrintAllVisible = true;  ///< the "Pr All" button
    bool TextPgNumberVisible = true;    ///< the page label
    bool PrintDialogOnPrint = false;    ///< the print buttons ask in a print dialog first
    float paneFraction = 0.85f;         ///< least share of the free height the page keeps (0..1)
};

/**
 * @brief Where the preview pane puts its surface, its buttons and its page
 * label, worked out in twips for a pane of a given size.
 *
 * The page fills the pane above a row of square paging buttons, the page
 * label and the two print buttons, with BoarderInside round everything and
 * BoarderButtonTop above the row and between its groups. The paging buttons
 * and the label sit at the left, the print buttons at the right; hidden parts
 * take no room and the visible ones close up.
 *
 * The button size is the row's share of the free height (1 − paneFraction),
 * capped at ButtonMaxHeight, and shrinks twip by twip while the row is wider
 * than the pane; it is never under 1 twip. Every visible part lies inside
 * the pane and no two overlap, as long as the pane is at least as wide as
 * the row's parts at 1 twip (16 twips) and 1 twip high.
 */
class PaneLayout
{
public:
    /** @brief The parts of the button row, in the order the row places them. */
    enum Part { First, Prev, Next, Last, PageLabel, PrintPage, PrintAll };
    static constexpr int PartCount = 7;

    static constexpr int TwipsPerInch = 1440;
    /** @brief Room the row keeps spare beyond its parts and gaps, in twips. */
    static constexpr int RowSlack = 30;

    /**
     * @brief Lays out a pane of paneTwips (width and height in twips; negative
     * lengths are taken as 0) with settings.
     */
    PaneLayout(QSize paneTwips, const PaneSettings &settings);

    /** @brief The pane's size, in twips. */
    QSize paneSize() const { return m_pane; }
    /** @brief The working BoarderInside: at most a fifth of the pane's smaller side, in twips. */
    int boarderInside() const { return m_inside; }
    /** @brief The working BoarderButtonTop: at most a tenth of the pane's height, in twips. */
    int boarderButtonTop() const { return m_top; }
    /** @brief Height of every button and of the label, and width of a paging button, in twips. */
    int buttonSize() const { return m_buttonSize; }

    /** @brief Whether the settings show the part. */
    bool isVisible(Part part) const { return m_visible[part]; }
    /** @brief Where the part lies, in twips from the pane's top-left corner; empty when hidden. */
    QRect rect(Part part) const { return m_rects[part]; }
    /** @brief Where the printing surface lies, in twips; it may be empty in a tiny pane. */
    QRect surfaceRect() const { return m_surface; }

    /** @brief The width, in twips, the row needs with buttons of size twips. */
    int rowWidth(int size) const;
    /** @brief The width, in twips, of a part in a row whose buttons are size twips high. */
    static int partWidth(Part part, int size);

    /**
     * @brief Pixels to twips at dotsPerInch (the screen's logical DPI); a
     * resolution that is not positive is taken as 96.
     */
    static int twipsFromPixels(int pixels, double dotsPerInch);
    /** @brief Twips to the nearest whole pixel at dotsPerInch; see twipsFromPixels(). */
    static int pixelsFromTwips(int twips, double dotsPerInch);
    /**
     * @brief A rectangle in twips as pixels: each edge goes to its nearest
     * pixel, so rectangles that do not overlap in twips do not overlap in
     * pixels either.
     */
    static QRect toPixels(const QRect &twips, double dotsPerInchX, double dotsPerInchY);

private:
    int rowWidth(int size, int inside, int gap) const;
    int visibleGroups() const;
    void placeRow(int rowTop);

    QSize m_pane;
    int m_inside = 0;
    int m_top = 0;
    int m_buttonSize = 1;
    std::array<bool, PartCount> m_visible{};
    std::array<QRect, PartCount> m_rects{};
    QRect m_surface;
};

} // namespace quirra
