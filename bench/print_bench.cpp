// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
//
// print_bench: prints N made-up records to PDF on a 30-up label sheet and on a
// No. 10 envelope (with a return address and a message), and reports records
// per second and peak memory. Printing streams: the peak must not grow with N.
//
//   print_bench [N ...]        default: 1000 10000 100000
#include "catalogue/pieceloader.h"
#include "model/piecemodel.h"
#include "records/record.h"
#include "records/sharedspool.h"
#include "records/spoolwriter.h"
#include "render/pdfexport.h"
#include "settings/files.h"

#include <QElapsedTimer>
#include <QFileInfo>
#include <QGuiApplication>
#include <QTemporaryDir>

#include <cstdio>
#include <sys/resource.h>

using namespace quirra;

namespace {

long peakKilobytes()
{
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    return usage.ru_maxrss;
}

void spoolRecords(qint64 count)
{
    SpoolWriter writer;
    writer.setYieldHook({});
    writer.StartDoc();
    Record r;
    for (qint64 i = 0; i < count; ++i) {
        r.clear();
        r.setValue(RecordField::nm_first, QStringLiteral("Margaret"));
        r.setValue(RecordField::nm_middle, QStringLiteral("A"));
        r.setValue(RecordField::nm_last, QStringLiteral("Holloway%1").arg(i));
        r.setValue(RecordField::addr_1, QStringLiteral("%1 Birchwood Ln").arg(1000 + i % 9000));
        if (i % 4 == 0)
            r.setValue(RecordField::addr_2, QStringLiteral("Apt %1").arg(i % 97));
        r.setValue(RecordField::city, QStringLiteral("Springfield"));
        r.setValue(RecordField::state, QStringLiteral("IL"));
        r.setValue(RecordField::zip, QStringLiteral("627%1").arg(i % 100, 2, 10, QLatin1Char('0')));
        writer.NewPiece(r);
    }
    writer.EndDoc();
}

void runOne(const QString &piece, qint64 count, const QString &pdf)
{
    PieceModel &model = PieceModel::shared();
    LoadPieceByName(piece, model);
    for (ItemId id : StorageOrder)
        model.item(id).Text.clear();
    if (model.piece.PieceNumAcross == 1 && model.piece.PieceNumDown == 1) {
        model.item(ItemId::Return).Text =
            QStringLiteral("ACME Mail\r1 Main St\rSpringfield, IL 62701");
        model.item(ItemId::Message1).Text = QStringLiteral("Dated material: please open at once");
    }
    spoolRecords(count);

    QElapsedTimer timer;
    timer.start();
    const PdfRunResult result = PrintSpoolToPdf(pdf, model, SharedSpool::instance().reader());
    const double seconds = timer.nsecsElapsed() / 1e9;
    std::printf("%-24s %9lld %8d %10.3f %12.0f %9.1f %10.1f\n", qPrintable(piece),
                static_cast<long long>(result.pieces), result.pages, seconds,
                double(result.pieces) / seconds, peakKilobytes() / 1024.0,
                QFileInfo(pdf).size() / 1048576.0);
    std::fflush(stdout);
}

} // namespace

int main(int argc, char **argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication app(argc, argv);
    QList<qint64> counts;
    for (int i = 1; i < argc; ++i)
        counts.append(QByteArray(argv[i]).toLongLong());
    if (counts.isEmpty())
        counts = {1000, 10000, 100000};

    QTemporaryDir dir;
    SharedSpool::instance().makeNewSpoolFile();
    std::printf("%-24s %9s %8s %10s %12s %9s %10s\n", "piece", "records", "pages", "seconds",
                "records/s", "peak MB", "PDF MB");
    for (qint64 n : counts) {
        for (const char *piece : {"5160 - Address Labels", "Size 10 - Envelope"}) {
            if (n > 100000 && QByteArray(piece).startsWith("Size"))
                continue; // a million envelopes is a million pages: labels make the point
            runOne(QString::fromLatin1(piece), n, dir.filePath(QStringLiteral("bench.pdf")));
        }
    }
    DeleteFileAndWait(SharedSpool::instance().spoolPath());
    return 0;
}
