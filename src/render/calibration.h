// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#pragma once

#include "model/piecemodel.h"
#include <QString>

namespace quirra {

class Surface;

/**
 * @brief Prints one calibration sheet of the model's piece on the surface:
 * each piece's outline and a cross at its centre, placed as a print run
 * places them (scale and offsets included), rulers along the paper's top
 * and left edges (1/16 in and 1 mm ticks, numbered) and a short
 * instruction. The surface's document is started and ended here.
 */
void PrintCalibrationSheet(Surface &surface, const PieceModel &model);

/** @brief The printer's stretch (PrinterScaleX, PrinterScaleY) a run accepts, percent. */
constexpr float PrinterScaleMin = 90.f;
constexpr float PrinterScaleMax = 110.f;
/** @brief The largest printer offset (PrinterLeft, PrinterTop) a calibration gives, inches: more
 * is no printer's margin but a misread sheet. */
constexpr float PrinterOffsetMax = 1.f;

/** @brief The printer settings that make the printed crosses meet the real pieces. */
struct PrinterCalibration
{
    float left = 0;     ///< PrinterLeft, inches
    float top = 0;      ///< PrinterTop, inches
    float scaleX = 100; ///< PrinterScaleX, percent
    float scaleY = 100; ///< PrinterScaleY, percent
};

/**
 * @brief The settings from what the user read on a calibration sheet
 * printed with the model's present settings: how far (inches, right and
 * down positive) the cross of the first piece and of the last piece of the
 * sheet lie from the real pieces' centres.
 * @throws Error when the reading cannot be right (the sheet has one piece
 * across and one reads a stretch, the stretch leaves 90..110 %, or an
 * offset leaves 0..1 in).
 */
PrinterCalibration CalibrationFromReading(const PieceModel &model, double left, double top,
                                          double right, double bottom);

} // namespace quirra
