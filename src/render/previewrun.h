// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#pragma once

#include "model/piecemodel.h"
#include "quirracontrol_export.h"
#include "render/runreport.h"

#include <QString>

#include <atomic>
#include <functional>
#include <utility>

namespace quirra {

class PageEngine;

/**
 * @brief A preview that stays small however long the run: the first page
 * is drawn on the engine at once, the rest of the run is laid out on a
 * measuring surface, which notes where each page's first record lies in the
 * spool and checks every record for the report, and a page is drawn from
 * its records only when it is shown (PageEngine::setPageSource()).
 *
 * The pages look exactly as a run that draws every page: each is drawn by
 * the same print run, started at the page's first record. The preview reads
 * the spool with readers of its own. Should the spool change while the
 * pages are shown (records added, a new document begun), a page drawn after
 * that says so instead of showing other records: a new preview shows them.
 */
class QUIRRACONTROL_EXPORT PreviewRun
{
public:
    /** @brief A preview of the spool at spoolPath, laid out with a copy of model. */
    PreviewRun(const PieceModel &model, const QString &spoolPath);

    /** @brief As PrintRun::setPageRange(): the preview's page 1 is the range's first page. */
    void setPageRange(std::pair<int, int> range) { m_pageRange = range; }

    /** @brief As PrintRun::setCancelFlag(): a cancelled preview keeps the pages laid out so far. */
    void setCancelFlag(const std::atomic_bool *flag) { m_cancel = flag; }

    /** @brief As PrintRun::setMessageSink(). */
    void setMessageSink(std::function<void(const QString &text)> sink)
    {
        m_message = std::move(sink);
    }

    /**
     * @brief Called once the first page is on the engine and then as each
     * further page is laid out, with the preview's page count so far: a host
     * shows the page and lets events through with it.
     */
    void setProgress(std::function<void(int pages)> progress) { m_progress = std::move(progress); }

    /**
     * @brief The preview on engine (in preview mode, its printable origin
     * set): when it returns, the engine has every page of the run and
     * report() notes every record.
     *
     * @throws Error as PrintRun::RunPrintJob() does.
     */
    void run(PageEngine &engine);

    /** @brief What the run noted about its records. */
    const RunReport &report() const { return m_report; }

    /** @brief True when the run stopped at the cancel flag. */
    bool cancelled() const { return m_cancelled; }

private:
    PieceModel m_model;
    QString m_spoolPath;
    std::pair<int, int> m_pageRange{0, 0};
    const std::atomic_bool *m_cancel = nullptr;
    std::function<void(const QString &text)> m_message;
    std::function<void(int pages)> m_progress;
    RunReport m_report;
    bool m_cancelled = false;
};

} // namespace quirra
