// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#include "render/calibration.h"

#include "model/error.h"
#include "render/pagesetup.h"
#include "render/piecechecks.h"
#include "surface/surface.h"

#include <algorithm>
#include <cmath>

namespace quirra {

namespace {

constexpr QRgb Black = 0xff000000;
constexpr QRgb Grey = 0xff808080;
constexpr int Hair = 6;       // twips: a tick's or a cross's line
constexpr int CrossArm = 180; // twips, 1/8 in
constexpr double TwipsPerMm = 1440.0 / 25.4;
// twips: the square where the two rulers meet carries no numbers, so that
// the first centimetre of one ruler does not stand on the other's ticks
constexpr int Corner = 1000;

int twips(double inches)
{
    return int(std::lround(inches * 1440.0));
}

void number(Surface &surface, const QString &text, int left, int top)
{
    surface.textBox(text, left, top, 400, 200, false, false, false);
}

// Ticks along one edge: inches in sixteenths above, millimetres below
// (across the top), or left and right of each other (down the left side).
void ruler(Surface &surface, const QRect &paper, bool across)
{
    const int length = across ? paper.width() : paper.height();
    // A number stands only where it fits on the paper whole: along the top
    // it runs to the right of its tick, down the side it straddles it.
    const auto numbered = [&](int at) {
        return at > Corner && at + (across ? 400 : 200) <= length;
    };
    const auto tick = [&](int at, int offset, int size) {
        const QRect r = across ? QRect(paper.left() + at, paper.top() + offset, Hair, size)
                               : QRect(paper.left() + offset, paper.top() + at, size, Hair);
        surface.fillRectangle(r, Black);
    };
    for (int n = 0; n * 90 <= length; ++n) { // 90 twips: 1/16 in
        const int size = n % 16 == 0 ? 240 : n % 8 == 0 ? 170 : n % 4 == 0 ? 120 : n % 2 ? 60 : 90;
        tick(n * 90, 0, size);
        if (n % 16 == 0 && numbered(n * 90))
            number(surface, QString::number(n / 16),
                   across ? paper.left() + n * 90 + 30 : paper.left() + 250,
                   across ? paper.top() + 250 : paper.top() + n * 90 - 80);
    }
    for (int mm = 0; mm * TwipsPerMm <= length; ++mm) {
        const int at = int(std::lround(mm * TwipsPerMm));
        const int size = mm % 10 == 0 ? 170 : mm % 5 == 0 ? 110 : 60;
        tick(at, 720 - size, size); // the millimetres hang from half an inch in
        if (mm % 10 == 0 && numbered(at))
            number(surface, QString::number(mm / 10) + QStringLiteral(" cm"),
                   across ? paper.left() + at + 30 : paper.left() + 760,
                   across ? paper.top() + 480 : paper.top() + at - 80);
    }
}

Piece scaledPiece(const PieceModel &model)
{
    Piece piece = model.piece;
    const float x = std::clamp(model.PrinterScaleX, PrinterScaleMin, PrinterScaleMax) / 100.f;
    const float y = std::clamp(model.PrinterScaleY, PrinterScaleMin, PrinterScaleMax) / 100.f;
    piece.PieceMarginLeft *= x;
    piece.PiecePitchHorz *= x;
    piece.PieceMarginTop *= y;
    piece.PiecePitchVert *= y;
    return piece;
}

// One axis: the stretch and the offset that make the printed crosses meet
// the pieces, from the crosses' misses e1 at x1 and e2 at x2.
void solve(double x1, double x2, double e1, double e2, float &scale, float &offset,
           const char *axis)
{
    const double s = std::clamp(scale, PrinterScaleMin, PrinterScaleMax) / 100.0;
    double k = 1;
    if (x2 - x1 > 1e-6)
        k = 1 + (e2 - e1) / (x2 - x1);
    else if (std::abs(e2 - e1) > 1e-6)
        throw Error(QStringLiteral("the sheet has one piece %1, so both crosses of that axis are "
                                   "the same one: give the same reading twice")
                        .arg(QLatin1String(axis)));
    const double newScale = 100.0 * s / k;
    if (newScale < PrinterScaleMin || newScale > PrinterScaleMax)
        throw Error(QStringLiteral("the reading asks for a stretch %1 of %2 %; the scale goes from "
                                   "90 to 110 %: check the reading (inches, right and down "
                                   "positive)")
                        .arg(QLatin1String(axis))
                        .arg(newScale, 0, 'f', 1));
    const double a = k / s;
    const double newOffset = offset + (x1 + e1 - k * x1) / a;
    // The offsets are the strip the printer cannot reach: never less than
    // nothing, never more than a margin.
    if (newOffset < 0 || newOffset > PrinterOffsetMax)
        throw Error(
            QStringLiteral("the reading puts %1 at %2 in; it goes from 0 to %3 in: check "
                           "the reading (inches, right and down positive) and the "
                           "present %1")
                .arg(QLatin1String(qstrcmp(axis, "across") == 0 ? "PrinterLeft" : "PrinterTop"))
                .arg(newOffset, 0, 'f', 3)
                .arg(double(PrinterOffsetMax)));
    offset = float(newOffset);
    scale = float(newScale);
}

} // namespace

void PrintCalibrationSheet(Surface &surface, const PieceModel &model)
{
    const Piece &piece = model.piece;
    SetOrientationVerified(surface, piece.PieceOrientation);
    SetPaperSizeVerified(surface, piece.PageSizeNum,
                         QSize(inchesToTwips(piece.PageWidth), inchesToTwips(piece.PageHeight)));
    surface.setMarginLeft(0);
    surface.setMarginTop(0);
    surface.setIndentLeft(0);
    surface.setIndentRight(0);
    surface.setTextAlign(0);
    surface.setLineSpacing(100);
    surface.setFontName(QStringLiteral("Liberation Sans"));
    surface.setFontSize(7);
    surface.setAction(SurfaceAction::StartDoc);
    if (surface.errorCode() != 0)
        throw Error(QStringLiteral("the calibration sheet cannot be printed (Ptr.error = %1)")
                        .arg(surface.errorCode()));

    const Piece scaled = scaledPiece(model);
    const int slots = std::max(0, int(piece.PieceNumAcross) * int(piece.PieceNumDown));
    for (int slot = 1; slot <= slots; ++slot) {
        const QRect box = pieceBoxOnSurface(scaled, slot, 0);
        surface.outlineRectangle(
            QRect(box.topLeft(), QSize(twips(piece.PieceWidth), twips(piece.PieceHeight))), Grey,
            10);
        const QPoint c(box.left() + twips(piece.PieceWidth) / 2,
                       box.top() + twips(piece.PieceHeight) / 2);
        surface.fillRectangle(QRect(c.x() - CrossArm, c.y() - Hair / 2, 2 * CrossArm, Hair), Black);
        surface.fillRectangle(QRect(c.x() - Hair / 2, c.y() - CrossArm, Hair, 2 * CrossArm), Black);
    }
    const QRect paper = surface.paperRect();
    if (!paper.isEmpty()) {
        ruler(surface, paper, true);
        ruler(surface, paper, false);
        // The instruction stands in the upper half of the second row (the
        // first where there is one row), below the top ruler and above the
        // row's crosses, so that it hides no cross.
        const int row = piece.PieceNumDown > 1 ? 1 + piece.PieceNumAcross : 1;
        const QRect box = pieceBoxOnSurface(scaled, row, 0);
        const int crossTop = box.top() + twips(piece.PieceHeight) / 2 - CrossArm;
        const int top = std::max(box.top() + 60, paper.top() + 900); // below the top ruler
        const int height = std::max(360, crossTop - 60 - top);
        surface.setFontSize(6);
        surface.textBox(
            QStringLiteral("Calibration of \"%1\": hold this sheet over a sheet of the real "
                           "pieces against the light. At the first (top left) and the last "
                           "(bottom right) piece read how far the cross lies from the real "
                           "piece's centre, in inches, right and down positive; then run  "
                           "quirra calibrate --piece \"%1\" --measured LEFT,TOP,RIGHT,BOTTOM  "
                           "and print with the settings it gives.")
                .arg(piece.PieceName),
            paper.left() + 1300, top, std::max(2880, paper.width() - 1660), height, true, false,
            false);
    }
    surface.setAction(SurfaceAction::EndDoc);
}

PrinterCalibration CalibrationFromReading(const PieceModel &model, double left, double top,
                                          double right, double bottom)
{
    const Piece &p = model.piece;
    PrinterCalibration c{p.PrinterLeft, p.PrinterTop, model.PrinterScaleX, model.PrinterScaleY};
    const double x1 = p.PieceMarginLeft + p.PieceWidth / 2.0;
    const double y1 = p.PieceMarginTop + p.PieceHeight / 2.0;
    solve(x1, x1 + std::max(0, p.PieceNumAcross - 1) * double(p.PiecePitchHorz), left, right,
          c.scaleX, c.left, "across");
    solve(y1, y1 + std::max(0, p.PieceNumDown - 1) * double(p.PiecePitchVert), top, bottom,
          c.scaleY, c.top, "down");
    return c;
}

} // namespace quirra
