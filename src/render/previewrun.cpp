// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#include "render/previewrun.h"

#include "model/error.h"
#include "records/spoolreader.h"
#include "render/logging_p.h"
#include "render/printrun.h"
#include "surface/measuringsurface.h"
#include "surface/surface.h"

#include <QDateTime>
#include <QFileInfo>

#include <algorithm>
#include <memory>
#include <vector>

namespace quirra {

namespace {

// The pages of a preview past its first: where each page's first record lies
// in the spool, and the model and spool they are drawn from.
class PageIndex
{
public:
    PageIndex(const PieceModel &model, const QString &spoolPath, int firstPage)
        : m_model(model), m_firstPage(firstPage), m_spool(spoolPath)
    {
        m_reader.setPath(spoolPath);
        m_size = m_spool.size();
        m_modified = m_spool.lastModified();
    }

    void add(qint64 spoolOffset) { m_offsets.push_back(spoolOffset); }
    int pages() const { return int(m_offsets.size()); }

    // Preview page n is the run's page m_firstPage + n - 1: its records are
    // run again from the first one, onto a document of that page alone.
    void draw(int page, Surface &surface)
    {
        if (page < 1 || page > pages())
            return;
        m_spool.refresh();
        if (m_spool.size() != m_size || m_spool.lastModified() != m_modified) {
            // Records added or a new document begun: the pages laid out are
            // gone. The page says so rather than show other records.
            const QString text = QStringLiteral(
                "The records of this preview changed after it was made. Preview again to see "
                "its pages.");
            qCWarning(lcRender).noquote() << m_spool.filePath() << text;
            surface.setAction(SurfaceAction::StartDoc);
            surface.setFontName(QStringLiteral("Arial"));
            surface.setFontSize(14);
            surface.textBox(text, 720, 720, 7200, 2880, true, false, false);
            surface.setAction(SurfaceAction::EndDoc);
            return;
        }
        const int runPage = m_firstPage + page - 1;
        m_reader.close();
        m_reader.setSpoolExhausted(false);
        PrintRun run(m_model, m_reader);
        run.setStartPage(runPage, m_offsets[size_t(page - 1)]);
        run.setPageRange({runPage, runPage});
        run.setMessageSink([](const QString &text) { qCWarning(lcRender).noquote() << text; });
        try {
            run.RunPrintJob(surface);
        } catch (const Error &e) {
            qCWarning(lcRender).noquote() << e.message();
        }
        m_reader.close();
    }

private:
    const PieceModel m_model;
    const int m_firstPage;
    QFileInfo m_spool;
    qint64 m_size = 0;
    QDateTime m_modified;
    SpoolReader m_reader;
    std::vector<qint64> m_offsets;
};

} // namespace

PreviewRun::PreviewRun(const PieceModel &model, const QString &spoolPath)
    : m_model(model), m_spoolPath(spoolPath)
{
}

void PreviewRun::run(PageEngine &engine)
{
    m_report.clear();
    m_cancelled = false;
    const int fromPage = m_pageRange.first;
    const int firstPage = std::max(1, fromPage);

    bool firstFailed = false;
    // The first page, drawn on the engine and kept there. Without a range an
    // empty spool still shows its one empty page.
    {
        SpoolReader reader;
        reader.setPath(m_spoolPath);
        PrintRun first(m_model, reader);
        first.setCancelFlag(m_cancel);
        if (m_message)
            first.setMessageSink(m_message);
        first.setPageRange({fromPage, firstPage});
        try {
            first.RunPrintJob(engine);
        } catch (const Error &) {
            m_report = first.report();
            m_cancelled = first.cancelled();
            // A range the records do not reach: the run of the whole range
            // below says so in its own words.
            if (fromPage < 1)
                throw;
            firstFailed = true;
        }
        if (first.cancelled()) {
            m_report = first.report();
            m_cancelled = true;
            return;
        }
    }
    if (m_progress && !firstFailed)
        m_progress(engine.pageCount());

    // The whole run laid out without drawing: every record checked, every
    // page's start noted.
    auto index = std::make_shared<PageIndex>(m_model, m_spoolPath, firstPage);
    const PageEngine::PageSource source = [index](int page, Surface &surface) {
        index->draw(page, surface);
    };
    SpoolReader reader;
    reader.setPath(m_spoolPath);
    PrintRun layout(m_model, reader);
    layout.setCancelFlag(m_cancel);
    if (m_message)
        layout.setMessageSink(m_message);
    layout.setPageRange(m_pageRange);
    layout.setPageStartObserver([&](int page, qint64 spoolOffset) {
        if (page < firstPage)
            return;
        index->add(spoolOffset);
        if (index->pages() > 1 && !firstFailed) {
            engine.setPageSource(index->pages(), source);
            if (m_progress)
                m_progress(index->pages());
        }
    });
    MeasuringSurface measuring;
    measuring.setPrintableOrigin(engine.printableLeft(), engine.printableTop());
    try {
        layout.RunPrintJob(measuring);
    } catch (...) {
        m_report = layout.report();
        m_cancelled = layout.cancelled();
        throw;
    }
    m_report = layout.report();
    m_cancelled = layout.cancelled();
}

} // namespace quirra
