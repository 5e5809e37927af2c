// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
//
// preview_bench: a host previewing N address labels in the control, offscreen,
// timed. The records go in through the control's own calls (ClearPiece, the
// field setters, NewPiece), PreviewNow lays them out, letting events through
// as a host does, and the first, a middle and the last page are shown and
// painted. Prints the time to spool, the time until the first page is on
// screen, until PreviewNow returns, to show the middle and the last page,
// and the process's peak memory, and whether they meet their targets (exit
// status 1 when not).
//
//   preview_bench [N]        default N: 100000
#include "benchdata.h"

#include "control/quirra.h"
#include "pane/previewpane.h"
#include "printing/printsurface.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QPixmap>

#include <cstdio>
#include <functional>

#include <sys/resource.h>

using namespace quirra;

namespace {

double peakMb()
{
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    return double(usage.ru_maxrss) / 1024.0; // KiB on Linux
}

double cpuSeconds()
{
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    return double(usage.ru_utime.tv_sec + usage.ru_stime.tv_sec) +
           double(usage.ru_utime.tv_usec + usage.ru_stime.tv_usec) / 1e6;
}

// Calls back on every paint of the object it filters.
class FirstPaint : public QObject
{
public:
    explicit FirstPaint(std::function<void()> painted) : m_painted(std::move(painted)) {}
    bool eventFilter(QObject *, QEvent *event) override
    {
        if (event->type() == QEvent::Paint)
            m_painted();
        return false;
    }

private:
    std::function<void()> m_painted;
};

} // namespace

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    const qint64 n = argc > 1 ? QByteArray(argv[1]).toLongLong() : 100000;
    if (n < 1) {
        std::fprintf(stderr, "preview_bench: N must be a count of records, 1 or more\n");
        return 2;
    }

    Quirra control;
    control.resize(900, 700);
    control.show();
    control.PieceName(bench::LabelPiece);
    auto *pane = control.findChild<PreviewPane *>();
    if (!pane) {
        std::fprintf(stderr, "preview_bench: the control has no preview pane\n");
        return 1;
    }
    PrintSurface *surface = pane->surface();

    QElapsedTimer clock;
    clock.start();
    const bench::RecordMaker maker;
    control.StartDoc();
    for (qint64 i = 0; i < n; ++i) {
        const bench::Person p = maker.person(i);
        control.ClearPiece();
        control.FirstName(p.first);
        control.MiddleName(p.middle);
        control.LastName(p.last);
        control.Address1(p.address1);
        control.Address2(p.address2);
        control.city(p.city);
        control.State(p.state);
        control.zip(p.zip);
        control.NewPiece();
    }
    control.EndDoc();
    const double spooled = clock.nsecsElapsed() / 1e9;

    // The first page is on screen when the surface first paints a page.
    double first = -1;
    FirstPaint firstPaint([&] {
        if (first < 0 && !surface->pageRect().isEmpty())
            first = clock.nsecsElapsed() / 1e9;
    });
    surface->viewport()->installEventFilter(&firstPaint);
    QElapsedTimer sinceEvents;
    sinceEvents.start();
    surface->setPageObserver([&](int) {
        if (sinceEvents.elapsed() >= 100) {
            QCoreApplication::processEvents();
            sinceEvents.restart();
        }
    });
    clock.restart();
    control.PreviewNow();
    surface->viewport()->grab();
    const double laidOut = clock.nsecsElapsed() / 1e9;
    surface->setPageObserver({});
    const int pages = surface->pageCount();

    clock.restart();
    surface->setPreviewPage(pages / 2 + 1);
    surface->viewport()->grab();
    pane->Navigate(4); // the last page, as the button shows it
    surface->viewport()->grab();
    const double paging = clock.nsecsElapsed() / 1e9;

    std::printf("preview %lld labels, %d pages: spool %.2fs, first page %.3fs, all laid out "
                "%.2fs, middle and last %.3fs, cpu %.2fs, peak %.1f MB\n",
                static_cast<long long>(n), pages, spooled, first, laidOut, paging, cpuSeconds(),
                peakMb());
    // What a user may expect: the first page within a second, paging at
    // once, and memory that hardly grows with the run.
    const double peakLimit = n <= 100000 ? 100 : 150;
    const bool met = first >= 0 && first < 1.0 && paging < 0.5 && peakMb() < peakLimit;
    std::printf("targets (first page under 1 s, paging under 0.5 s, peak under %.0f MB): %s\n",
                peakLimit, met ? "met" : "MISSED");
    const int expected = int((n + 29) / 30);
    if (!met)
        return 1;
    if (pages != expected || surface->previewPage() != pages) {
        std::fprintf(stderr, "preview_bench: %d pages, on page %d; %d pages expected\n", pages,
                     surface->previewPage(), expected);
        return 1;
    }
    return 0;
}
