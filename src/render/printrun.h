// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#pragma once

#include "model/piecemodel.h"
#include "render/mailmarks.h"
#include "render/piecechecks.h"
#include "render/runreport.h"

#include <QString>

#include <array>
#include <atomic>
#include <functional>
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
class PrintRun
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
     * "Ptr.error = " and its code, and no piece is drawn. A run cancelled
     * through the cancel flag stops before its next piece and aborts the
     * document (a preview ends it, keeping the pages built so far).
     *
     * @throws Error when the piece cannot be laid out (0 pieces across, or
     * more pieces per page than a 16-bit count holds) or the start slot is
     * not on the sheet; the surface's document is aborted first.
     */
    void RunPrintJob(Surface &surface);

    /**
     * @brief The page loop: each record's texts (the address, the other
     * items' texts with their tokens replaced) go to DrawPiece(); the model
     * is only read.
     */
    void PlacePieces(Surface &surface);

    /** @brief The five items' texts of one piece, in storage order. */
    using PieceTexts = std::array<QString, ItemCount>;

    /**
     * @brief Draws the five items of the piece in a slot with these texts,
     * Stamp last, kept inside the piece; notes what overflows or lies off
     * the piece or page.
     */
    void DrawPiece(int slot, Surface &surface, const PieceTexts &texts);

    /** @brief Draws the piece in a slot with the items' own texts. */
    void DrawPiece(int slot, Surface &surface);

    /** @brief Pieces drawn by the last run. */
    qint64 piecesDrawn() const { return m_piecesDrawn; }

    /** @brief What the last run noted about its records; cleared when a run starts. */
    const RunReport &report() const { return m_report; }

    /**
     * @brief The flag the run reads between pieces (nullptr: none). When it
     * is set, the run places no further piece and aborts the document. It
     * may be set from another thread or a signal handler.
     */
    void setCancelFlag(const std::atomic_bool *flag) { m_cancel = flag; }

    /** @brief True when the last run stopped at the cancel flag. */
    bool cancelled() const { return m_cancelled; }

    /** @brief Where the run's messages go; without one, to the log and standard error. */
    void setMessageSink(std::function<void(const QString &text)> sink)
    {
        m_message = std::move(sink);
    }

    /**
     * @brief The pages to draw, from 1: pages outside the range are laid
     * out and checked but not drawn, and the run ends after its last page.
     * 0 leaves that end open; {0, 0} (the default) draws every page.
     */
    void setPageRange(std::pair<int, int> range) { m_pageRange = range; }

private:
    bool cancelRequested();
    void message(const QString &text);

    const std::atomic_bool *m_cancel = nullptr;
    bool m_cancelled = false;
    std::pair<int, int> m_pageRange{0, 0};
    std::function<void(const QString &text)> m_message;
    PieceModel &m_model;
    SpoolReader &m_reader;
    qint64 m_piecesDrawn = 0;
    RunReport m_report;
    PieceChecks m_checks{m_report};
    AddressBarcodeLine m_barcode;
};

} // namespace quirra
