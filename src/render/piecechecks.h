// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#pragma once

#include "model/item.h"
#include "model/piece.h"
#include "records/addressrules.h"
#include "render/drawitem.h"
#include "render/runreport.h"

#include <QRect>

namespace quirra {

/**
 * @brief The box of the piece in a slot on the surface, in whole twips:
 * the sheet position less the printer's offsets and the surface's left
 * margin, where it really lies (never raised to the page's edge).
 */
QRect pieceBoxOnSurface(const Piece &piece, int slot, int surfaceMarginLeft);

/** @brief The item's box on the surface where it really lies; see itemBoxOnSurface(). */
QRect itemBoxWhereItLies(const Item &item, const Piece &piece, int slot, int surfaceMarginLeft);

/**
 * @brief Looks at each record and piece as the print run places it and
 * notes in a report what will not come out as the user expects. Words a
 * note only while the report still keeps notes of its kind, so a long run
 * costs little more than counting.
 */
class PieceChecks
{
public:
    explicit PieceChecks(RunReport &report) : m_report(report) {}

    /** @brief The record that the following checks are about. */
    void beginRecord(qint64 number, const QString &name);

    /** @brief The empty record and the city line. */
    void checkAddress(const AddressLines &lines, const CityLineFit &fit, double widest);

    /** @brief A bar code that is no Intelligent Mail code; problem names the value. */
    void noteBarcode(const QString &problem);

    /** @brief The piece against the paper; false when it is not wholly on it. */
    bool checkPiece(const QRect &pieceBox, const QRect &paper);

    /**
     * @brief One drawn item: its box against the piece (and the paper, when
     * the piece is on it), its text against its box and the piece, and its
     * characters against the installed fonts.
     */
    void checkItem(ItemId id, const Item &item, const QRect &itemBox, const DrawnText &drawn,
                   const QRect &pieceBox, const QRect &paper, bool pieceOnPaper);

private:
    template <typename Detail> void note(NoteKind kind, Detail &&detail)
    {
        Note n{kind, m_record, m_name, QString()};
        if (m_report.wantsDetail(kind))
            n.detail = detail();
        m_report.add(n);
    }

    RunReport &m_report;
    qint64 m_record = 0;
    QString m_name;
};

} // namespace quirra
