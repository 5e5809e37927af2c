// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#include "render/pdfexport.h"

#include "model/piecemodel.h"
#include "records/spoolreader.h"
#include "render/printrun.h"
#include "surface/pageengine.h"
#include "surface/pdftarget.h"

namespace quirra {

PdfRunResult PrintSpoolToPdf(const QString &pdfPath, PieceModel &model, SpoolReader &reader)
{
    PdfTarget target(pdfPath);
    PageEngine engine;
    engine.setPrintTarget(&target);
    engine.setPrintableOrigin(inchesToTwips(model.piece.PrinterLeft),
                              inchesToTwips(model.piece.PrinterTop));
    engine.setPreview(false);
    reader.setSpoolExhausted(false);

    PrintRun run(model, reader);
    run.RunPrintJob(engine);

    PdfRunResult result;
    result.errorCode = engine.errorCode();
    result.pages = engine.pageCount();
    result.pieces = run.piecesDrawn();
    return result;
}

} // namespace quirra
