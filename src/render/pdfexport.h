// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <functional>

namespace quirra {

struct PieceModel;
class SpoolReader;
class Surface;

/** @brief What a print run to a PDF file did. */
struct PdfRunResult
{
    int errorCode = 0; ///< 0, or the surface's error when the file could not be written
    int pages = 0;     ///< pages written
    qint64 pieces = 0; ///< pieces drawn
};

/**
 * @brief Draws to a PDF file without any window: a page engine printing to
 * pdfPath, its printable area starting at the piece's printer offsets, is
 * handed to draw.
 * @return what the engine reports afterwards (pieces left 0)
 */
PdfRunResult DrawToPdf(const QString &pdfPath, const PieceModel &model,
                       const std::function<void(Surface &)> &draw);

/**
 * @brief Prints the spool to a PDF file with the piece and layout of the
 * model, without any window: the headless way to run a whole job.
 *
 * The PDF shows every piece where it lies on the real sheet: the page is the
 * paper, and the printable area starts at the piece's printer offsets.
 * Needs a QGuiApplication (fonts); the offscreen platform serves.
 *
 * @throws Error as PrintRun::RunPrintJob does.
 */
PdfRunResult PrintSpoolToPdf(const QString &pdfPath, PieceModel &model, SpoolReader &reader);

} // namespace quirra
