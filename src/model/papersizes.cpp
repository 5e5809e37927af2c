// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#include "model/papersizes.h"

#include <cmath>

namespace quirra {

namespace {

constexpr double pointsPerInch = 72.0;
constexpr double pointsPerMillimetre = 72.0 / 25.4;
constexpr double tolerance = 0.5; // points

enum Unit { In, Mm };

struct Paper
{
    int code;
    double width;  // the shorter side, in unit
    double height; // the longer side, in unit
    Unit unit;
};

// The codes printer drivers give their papers, each sheet upright and in the
// unit its standard defines it in. Where two codes name the same sheet
// (Letter and "Letter small") the first one is what a size reads back as.
constexpr Paper papers[] = {
    {1, 8.5, 11, In},       // Letter
    {2, 8.5, 11, In},       // Letter small
    {3, 11, 17, In},        // Tabloid
    {4, 11, 17, In},        // Ledger, the tabloid sheet fed long edge first
    {5, 8.5, 14, In},       // Legal
    {6, 5.5, 8.5, In},      // Statement
    {7, 7.25, 10.5, In},    // Executive
    {8, 297, 420, Mm},      // A3
    {9, 210, 297, Mm},      // A4
    {10, 210, 297, Mm},     // A4 small
    {11, 148, 210, Mm},     // A5
    {12, 257, 364, Mm},     // B4 (JIS)
    {13, 182, 257, Mm},     // B5 (JIS)
    {14, 8.5, 13, In},      // Folio
    {15, 8.5, 10.83, In},   // Quarto
    {16, 10, 14, In},       // 10 x 14 in
    {17, 11, 17, In},       // 11 x 17 in
    {18, 8.5, 11, In},      // Note
    {19, 3.875, 8.875, In}, // No. 9 envelope
    {20, 4.125, 9.5, In},   // No. 10 envelope
    {21, 4.5, 10.375, In},  // No. 11 envelope
    {22, 4.75, 11, In},     // No. 12 envelope
    {23, 5, 11.5, In},      // No. 14 envelope
    {24, 17, 22, In},       // C sheet
    {25, 22, 34, In},       // D sheet
    {26, 34, 44, In},       // E sheet
    {27, 110, 220, Mm},     // DL envelope
    {28, 162, 229, Mm},     // C5 envelope
    {29, 324, 458, Mm},     // C3 envelope
    {30, 229, 324, Mm},     // C4 envelope
    {31, 114, 162, Mm},     // C6 envelope
    {32, 114, 229, Mm},     // C65 envelope
    {33, 250, 353, Mm},     // B4 envelope
    {34, 176, 250, Mm},     // B5 envelope
    {35, 125, 176, Mm},     // B6 envelope
    {36, 110, 230, Mm},     // Italian envelope
    {37, 3.875, 7.5, In},   // Monarch envelope
    {38, 3.625, 6.5, In},   // 6 3/4 envelope
    {39, 11, 14.875, In},   // US standard fanfold
    {40, 8.5, 12, In},      // German standard fanfold
    {41, 8.5, 13, In},      // German legal fanfold
    {42, 250, 353, Mm},     // B4 (ISO)
    {43, 100, 148, Mm},     // Japanese postcard
    {44, 9, 11, In},        // 9 x 11 in
    {45, 10, 11, In},       // 10 x 11 in
    {46, 11, 15, In},       // 15 x 11 in
    {47, 220, 220, Mm},     // invitation envelope
    {66, 420, 594, Mm},     // A2
    {70, 105, 148, Mm},     // A6
};

QSizeF pointsOf(const Paper &paper)
{
    const double scale = paper.unit == In ? pointsPerInch : pointsPerMillimetre;
    return QSizeF(paper.width * scale, paper.height * scale);
}

bool sameSize(const QSizeF &a, const QSizeF &b)
{
    return std::abs(a.width() - b.width()) <= tolerance &&
           std::abs(a.height() - b.height()) <= tolerance;
}

} // namespace

QSizeF paperSizePoints(int code)
{
    for (const Paper &paper : papers) {
        if (paper.code == code)
            return pointsOf(paper);
    }
    return QSizeF();
}

int paperCodeForSize(const QSizeF &points)
{
    if (points.isEmpty())
        return CustomPaperCode;
    for (const Paper &paper : papers) {
        const QSizeF candidate = pointsOf(paper);
        if (sameSize(candidate, points) || sameSize(candidate, points.transposed()))
            return paper.code;
    }
    return CustomPaperCode;
}

} // namespace quirra
