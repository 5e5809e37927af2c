// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#include "render/pdfexport.h"

#include "model/piecemodel.h"
#include "records/spoolreader.h"
#include "render/printrun.h"
#include "surface/pageengine.h"
#include "surface/pdftarget.h"

namespace quirra {

PdfRunResult DrawToPdf(const QString &pdfPath, const PieceModel &model,
                       const std::function<void(Surface &)> &draw)
{
    PdfTarget target(pdfPath);
    PageEngine engine;
    engine.setPrintTarget(&target);
    engine.setPrintableOrigin(inchesToTwips(model.piece.PrinterLeft),
                              inchesToTwips(model.piece.PrinterTop));
    engine.setPreview(false);
    draw(engine);
    PdfRunResult result;
    result.errorCode = engine.errorCode();
    result.pages = engine.pageCount();
    return result;
}

PdfRunResult PrintSpoolToPdf(const QString &pdfPath, PieceModel &model, SpoolReader &reader)
{
    reader.setSpoolExhausted(false);
    PrintRun run(model, reader);
    PdfRunResult result =
        DrawToPdf(pdfPath, model, [&](Surface &surface) { run.RunPrintJob(surface); });
    result.pieces = run.piecesDrawn();
    return result;
}

} // namespace quirra
