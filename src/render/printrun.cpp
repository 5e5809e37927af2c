// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#include "render/printrun.h"

#include "model/error.h"
#include "records/addressrules.h"
#include "records/spoolreader.h"
#include "render/drawitem.h"
#include "render/logging_p.h"
#include "render/pagesetup.h"
#include "render/piecechecks.h"
#include "surface/surface.h"

#include <QScopeGuard>

#include <algorithm>
#include <array>
#include <cstdio>

namespace quirra {

namespace {

constexpr QChar CarriageReturn(u'\r');

void resetSurface(Surface &surface)
{
    surface.setIndentLeft(0);
    surface.setMarginRight(0);
    surface.setMarginBottom(0);
    surface.setMarginLeft(0);
    surface.setMarginTop(0);
    surface.setIndentRight(0);
    surface.setTextAlign(0);
    surface.setHeader(QString());
    surface.setFooter(QString());
    surface.setPenStyle(1);   // solid
    surface.setBrushStyle(0); // no fill
    surface.setPenWidth(10);
}

// The address block: line 2 always, then each line up to the last one that
// has text, separated by carriage returns. The carrier-route line (1) and the
// zip line (10) are never printed.
QString addressText(const AddressLines &lines)
{
    int last = 0;
    for (int i = 9; i >= 1; --i) {
        if (!lines[i - 1].isEmpty()) {
            last = i;
            break;
        }
    }
    QString text = lines[1];
    for (int i = 3; i <= last; ++i)
        text += CarriageReturn + lines[i - 1];
    return text;
}

} // namespace

PrintRun::PrintRun(const PieceModel &model, SpoolReader &reader) : m_model(model), m_reader(reader)
{
}

bool PrintRun::cancelRequested()
{
    m_cancelled = m_cancelled || (m_cancel && m_cancel->load());
    return m_cancelled;
}

void PrintRun::message(const QString &text)
{
    if (m_message) {
        m_message(text);
        return;
    }
    qCWarning(lcRender).noquote() << text;
    std::fprintf(stderr, "%s\n", text.toLocal8Bit().constData());
}

void PrintRun::RunPrintJob(Surface &surface)
{
    m_cancelled = false;
    m_piecesDrawn = 0;
    m_report.clear();
    resetSurface(surface);
    SetOrientationVerified(surface, m_model.piece.PieceOrientation);
    const Piece &piece = m_model.piece;
    SetPaperSizeVerified(surface, piece.PageSizeNum,
                         QSize(inchesToTwips(piece.PageWidth), inchesToTwips(piece.PageHeight)));

    if (!cancelRequested()) {
        surface.setAction(SurfaceAction::StartDoc);
        surface.setFirstPageNumber(1);
        const int error = surface.errorCode();
        if (error != 0) {
            message(QStringLiteral("Ptr.error = ") + QString::number(error));
        } else {
            try {
                PlacePieces(surface);
                const auto [from, to] = m_pageRange;
                if (from > 0 && m_piecesDrawn == 0) {
                    throw Error(QStringLiteral("pages %1: the pieces fill fewer pages than that; "
                                               "nothing was printed")
                                    .arg(to == from
                                             ? QString::number(from)
                                             : QStringLiteral("%1-%2").arg(from).arg(
                                                   to > 0 ? QString::number(to) : QString())));
                }
            } catch (...) {
                surface.setAction(SurfaceAction::AbortDoc);
                m_reader.close();
                throw;
            }
        }
    }
    // A cancelled print drops its job; a cancelled preview keeps the pages
    // built so far.
    const bool drop = cancelRequested() && !surface.preview();
    surface.setAction(drop ? SurfaceAction::AbortDoc : SurfaceAction::EndDoc);
}

void PrintRun::PlacePieces(Surface &surface)
{
    const Piece &piece = m_model.piece;
    const qint16 perPage =
        toInt16Checked(qint64(piece.PieceNumAcross) * piece.PieceNumDown, "pieces per page");
    if (piece.PieceNumAcross == 0)
        placeOfSlot(piece, 1); // raises the division error with its message
    if (perPage < 1) {
        throw Error(QStringLiteral("The piece \"%1\" has %2 across and %3 down: no piece fits on "
                                   "a page. Set PieceNumAcross and PieceNumDown to 1 or more.")
                        .arg(piece.PieceName)
                        .arg(piece.PieceNumAcross)
                        .arg(piece.PieceNumDown));
    }

    const short startSlot = m_model.PieceStartSlot;
    if (startSlot < 1 || startSlot > perPage) {
        throw Error(QStringLiteral("PieceStartSlot %1 is not a slot of the piece \"%2\": its "
                                   "sheet has %3 slots. Set PieceStartSlot to 1 to %3.")
                        .arg(startSlot)
                        .arg(piece.PieceName)
                        .arg(perPage));
    }

    // The printer's calibration stretches every position on the sheet about
    // the page's top-left corner, leaving sizes as they are (the printer's
    // offsets come off afterwards). The run draws from a scaled copy; the
    // model is only read.
    const float scaleX = std::clamp(m_model.PrinterScaleX, 90.f, 110.f) / 100.f;
    const float scaleY = std::clamp(m_model.PrinterScaleY, 90.f, 110.f) / 100.f;
    m_scaled = ScaledLayout{m_model.piece, m_model.items};
    const auto unscale = qScopeGuard([this] { m_scaled.reset(); });
    Piece &placed = m_scaled->piece;
    placed.PieceMarginLeft *= scaleX;
    placed.PiecePitchHorz *= scaleX;
    placed.PieceMarginTop *= scaleY;
    placed.PiecePitchVert *= scaleY;
    for (Item &item : m_scaled->items) {
        item.Left *= scaleX;
        item.Top *= scaleY;
    }

    AddressLines lines;
    QString substitute;
    CityLineFit fit;
    qint64 record = 0;
    QString barCode;
    bool pendingNewPage = false;
    bool drawnAny = false;
    int page = 1;
    int firstSlot = startSlot; // the first sheet may be partly used
    if (const auto [startPage, offset] = m_start; startPage > 1 && offset >= 0) {
        if (!m_reader.seekRecord(offset)) {
            m_reader.setSpoolExhausted(true);
            return;
        }
        page = startPage;
        record = (perPage - startSlot + 1) + qint64(page - 2) * perPage;
        firstSlot = 1;
    }
    const auto [fromPage, toPage] = m_pageRange;
    for (; !m_reader.spoolExhausted(); ++page) {
        if (toPage > 0 && page > toPage)
            return;
        const bool wanted = page >= fromPage;
        for (int slot = firstSlot; slot <= perPage; ++slot) {
            if (cancelRequested())
                return;
            const bool pageStarts = slot == firstSlot && m_pageStart;
            const qint64 offset = pageStarts ? m_reader.recordOffset() : -1;
            ComposeAddressLines(m_reader, surface, WidestCityLine, lines, substitute, &fit,
                                &barCode);
            if (m_reader.spoolExhausted())
                return;
            if (pageStarts)
                m_pageStart(page, offset);
            m_checks.beginRecord(++record, lines[1]);
            m_checks.checkAddress(lines, fit, WidestCityLine);
            if (!wanted)
                continue;
            if (pendingNewPage) {
                if (drawnAny) // a range's first page is the document's first
                    surface.setAction(SurfaceAction::NewPage);
                pendingNewPage = false;
            }
            if (record == 1 && surface.preview()) {
                for (int used = 1; used < startSlot; ++used)
                    markUsedSlot(surface, pieceBoxOnSurface(placed, used, surface.marginLeft()));
            }
            PieceTexts texts;
            for (ItemId id : StorageOrder) {
                texts[int(id)] = ReplaceTokens(
                    id == ItemId::Address ? addressText(lines) : m_model.item(id).Text, substitute);
            }
            m_barcode.clear();
            if (m_model.AddressBarcode && m_barcode.take(barCode, lines[9], m_checks))
                texts[int(ItemId::Address)] =
                    AddressBarcodeLine::withLine(texts[int(ItemId::Address)]);
            DrawPiece(slot, surface, texts);
            drawnAny = true;
        }
        firstSlot = 1;
        pendingNewPage = true;
    }
}

void PrintRun::DrawPiece(int slot, Surface &surface)
{
    PieceTexts texts;
    for (ItemId id : StorageOrder)
        texts[int(id)] = m_model.item(id).Text;
    DrawPiece(slot, surface, texts);
}

void PrintRun::DrawPiece(int slot, Surface &surface, const PieceTexts &texts)
{
    const Piece &piece = this->piece();
    const int marginLeft = surface.marginLeft();
    const QRect pieceBox = pieceBoxOnSurface(piece, slot, marginLeft);
    const QRect paper = surface.paperRect();
    const bool onPaper = m_checks.checkPiece(pieceBox, paper);

    // Nothing drawn leaves the piece's box. The clip that makes sure costs a
    // path and two graphics states on every piece, so it is set only once an
    // item could reach out of the box (an over-long line, text taller than
    // its box, a barcode, the outline); what was drawn before it lies inside.
    bool clipped = false;
    const auto clip = [&] {
        if (!clipped)
            surface.setClipBox(pieceBox.x(), pieceBox.y(), pieceBox.width(), pieceBox.height());
        clipped = true;
    };
    if (!m_barcode.isEmpty() || m_model.PieceOutlines)
        clip();
    // Later items paint over earlier ones where boxes overlap.
    for (ItemId id : StorageOrder) {
        Item item = this->item(id);
        item.Text = texts[int(id)];
        DrawnText drawn;
        if (LayOutItem(item, piece, slot, surface, drawn)) {
            if (ItemMayCross(item, drawn, surface.textInkBounds(), pieceBox))
                clip();
            DrawLaidOutItem(item, surface, drawn);
        }
        if (id == ItemId::Address)
            m_barcode.draw(surface, item, item.Text, drawn);
        m_checks.checkItem(id, item, itemBoxWhereItLies(item, piece, slot, marginLeft), drawn,
                           pieceBox, paper, onPaper);
    }
    if (m_model.PieceOutlines)
        outlinePiece(surface, pieceBox);
    if (clipped)
        surface.clearClipBox();
    ++m_piecesDrawn;
}

} // namespace quirra
