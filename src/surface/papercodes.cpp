// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#include "surface/papercodes.h"

#include <QSizeF>

#include <cmath>
#include <iterator>

namespace quirra {

namespace {

struct PaperCode
{
    int code;
    QPageSize::PageSizeId id;
};

// The codes printer drivers give their papers. Where two codes name the same
// sheet (Letter and "Letter small"), the first one is what a read-back shows.
constexpr PaperCode paperCodes[] = {
    {1, QPageSize::Letter},
    {2, QPageSize::Letter}, // letter small
    {3, QPageSize::Tabloid},
    {4, QPageSize::Ledger},
    {5, QPageSize::Legal},
    {6, QPageSize::Statement},
    {7, QPageSize::ExecutiveStandard}, // 7 1/4 x 10 1/2 in
    {8, QPageSize::A3},
    {9, QPageSize::A4},
    {10, QPageSize::A4}, // A4 small
    {11, QPageSize::A5},
    {12, QPageSize::JisB4},
    {13, QPageSize::JisB5},
    {14, QPageSize::FanFoldGermanLegal}, // folio, 8 1/2 x 13 in
    {15, QPageSize::Quarto},
    {16, QPageSize::Imperial10x14},
    {17, QPageSize::Tabloid}, // 11 x 17 in
    {18, QPageSize::Note},
    {19, QPageSize::Envelope9},
    {20, QPageSize::Envelope10},
    {21, QPageSize::Envelope11},
    {22, QPageSize::Envelope12},
    {23, QPageSize::Envelope14},
    {24, QPageSize::AnsiC},
    {25, QPageSize::AnsiD},
    {26, QPageSize::AnsiE},
    {27, QPageSize::EnvelopeDL},
    {28, QPageSize::EnvelopeC5},
    {29, QPageSize::EnvelopeC3},
    {30, QPageSize::EnvelopeC4},
    {31, QPageSize::EnvelopeC6},
    {32, QPageSize::EnvelopeC65},
    {33, QPageSize::EnvelopeB4},
    {34, QPageSize::EnvelopeB5},
    {35, QPageSize::EnvelopeB6},
    {36, QPageSize::EnvelopeItalian},
    {37, QPageSize::EnvelopeMonarch},
    {38, QPageSize::EnvelopePersonal}, // 6 3/4 envelope
    {39, QPageSize::FanFoldUS},
    {40, QPageSize::FanFoldGerman},
    {41, QPageSize::FanFoldGermanLegal},
    {42, QPageSize::B4},
    {43, QPageSize::Postcard},
    {44, QPageSize::Imperial9x11},
    {45, QPageSize::Imperial10x11},
    {46, QPageSize::Imperial15x11},
    {47, QPageSize::EnvelopeInvite},
    {66, QPageSize::A2},
    {70, QPageSize::A6},
};

bool sameSize(const QSizeF &a, const QSizeF &b)
{
    return std::abs(a.width() - b.width()) < 0.5 && std::abs(a.height() - b.height()) < 0.5;
}

} // namespace

QPageSize pageSizeForPaperCode(int code)
{
    for (const PaperCode &entry : paperCodes) {
        if (entry.code == code)
            return QPageSize(entry.id);
    }
    return QPageSize();
}

int paperCodeForPageSize(const QPageSize &size)
{
    if (!size.isValid())
        return CustomPaperCode;
    const QSizeF points = size.size(QPageSize::Point);
    for (const PaperCode &entry : paperCodes) {
        if (entry.id == size.id() && size.id() != QPageSize::Custom)
            return entry.code;
    }
    // A driver may hand back its own custom page with a standard sheet's size.
    for (const PaperCode &entry : paperCodes) {
        const QSizeF candidate = QPageSize::size(entry.id, QPageSize::Point);
        if (sameSize(candidate, points) || sameSize(candidate.transposed(), points))
            return entry.code;
    }
    return CustomPaperCode;
}

} // namespace quirra
