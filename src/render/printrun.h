// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#pragma once

#include "model/piecemodel.h"
#include "quirracontrol_export.h"
#include "render/mailmarks.h"
#include "render/piecechecks.h"
#include "render/runreport.h"

#include <utility>

namespace quirra {

class SpoolReader;
class Surface;

/**
 * @brief The print run: every spooled record becomes one piece on the
 * surface, pieces filling each page row by row.
 *
 * The same run serves preview and printing; only the surface's preview
 * switch differs. It reads the spool from its first record and leaves it
 * intact, so a preview and a print of one feed show the same pages. One
 * record is held at a time and nothing is kept per page.
 *
 * Each piece's drawing is kept inside the piece, so what overflows never
 * lands on the next one, and the run notes in its report() what will not
 * come out as the user expects: run on a MeasuringSurface, it is a
 * preflight that draws nothing.
 */
class QUIRRACONTROL_EXPORT PrintRun
{
public:
    /** @brief The widest city, state and code line, in twips. */
    static constexpr double WidestCityLine = 3500;

    PrintRun(PieceModel &model, SpoolReader &reader);

    /**
     * @brief The whole run: the surface reset, the page set up, the document
     * started, every record placed, the document ended (or aborted).
     *
     * A printer that cannot start the document gets the message
     * "Ptr.error = " and its code, and no piece is drawn.
     *
     * @throws Error when the piece cannot be laid out (0 pieces across, or
     * more pieces per page than a 16-bit count holds) or the start slot is
     * not on the sheet; the surface's document
     * is aborted first and the item texts are restored.
     */
    void RunPrintJob(Surface &surface);

    /** @brief The page loop; the items' texts are restored when it ends, even by an error. */
    void PlacePieces(Surface &surface);

    /**
     * @brief Draws the five items of the piece in a slot, Stamp last, kept
     * inside the piece; notes what overflows or lies off the piece or page.
     */
    void DrawPiece(int slot, Surface &surface);

    /** @brief Pieces drawn by the last run. */
    qint64 piecesDrawn() const { return m_piecesDrawn; }

    /** @brief What the last run noted about its records; cleared when a run starts. */
    const RunReport &report() const { return m_report; }

    /**
     * @brief The process-wide abort flag: when set during a run, the run ends
     * with the abort action instead of end-document. Cleared at every start.
     */
    static bool &abortFlag();

    /**
     * @brief The process-wide page range, from 1: pages outside it are laid
     * out and checked but not drawn, and the run ends after its last page.
     * 0 leaves that end open; {0, 0} draws every page.
     */
    static std::pair<int, int> &pageRange();

private:
    PieceModel &m_model;
    SpoolReader &m_reader;
    qint64 m_piecesDrawn = 0;
    RunReport m_report;
    PieceChecks m_checks{m_report};
    AddressBarcodeLine m_barcode;
};

} // namespace quirra
