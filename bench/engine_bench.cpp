// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
//
// engine_bench: the yardstick for quirra print. Draws the same pieces the
// command-line host prints - three address lines on every label of a 30-up
// sheet, or an envelope with a return address, a two-line message and the
// address - straight onto Qt's PDF writer with QPainter::drawText, with no
// spool, no layout and no control in between. What it takes is what Qt's
// PDF engine itself costs; quirra print is measured against it.
//
//   engine_bench labels|envelopes N OUT.pdf
//
// The records are the ones benchdata.h makes for the CSV file, so both
// programs draw the very same text. It keeps 64 MB of room at the top of its
// heap, as quirra does: a program built on the engine alone can do the same,
// so the yardstick pays no more for its heap than quirra pays. The
// environment variable MALLOC_TOP_PAD_ (bytes), when set, says otherwise.
#include "benchdata.h"

#include "catalogue/pieceloader.h"
#include "model/piecemodel.h"
#include "surface/papercodes.h"

#include <QFont>
#include <QGuiApplication>
#include <QPageLayout>
#include <QPageSize>
#include <QPainter>
#include <QPdfWriter>

#include <cstdio>
#if defined(__GLIBC__)
#include <malloc.h>
#endif

using namespace quirra;

namespace {

constexpr double TwipsPerInch = 1440.0;

// The item's font as the page engine makes it: one pixel a twip, outlines,
// design metrics.
QFont fontOf(const ItemFont &f)
{
    QFont font(f.Name);
    font.setPixelSize(int(f.Size * 20.0 + 0.5));
    font.setHintingPreference(QFont::PreferNoHinting);
    font.setStyleStrategy(QFont::PreferOutline);
    font.setBold(f.Bold);
    font.setItalic(f.Italic);
    return font;
}

// Draws lines from the top-left of a box, one font line apart (twips).
void drawLines(QPainter &painter, double left, double top, const QStringList &lines)
{
    const QFontMetricsF metrics(painter.font());
    double baseline = top + metrics.ascent();
    for (const QString &line : lines) {
        painter.drawText(QPointF(left, baseline), line);
        baseline += metrics.lineSpacing();
    }
}

} // namespace

int main(int argc, char **argv)
{
#if defined(__GLIBC__)
    if (qEnvironmentVariableIsEmpty("MALLOC_TOP_PAD_"))
        mallopt(M_TOP_PAD, 64 * 1024 * 1024);
#endif
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication app(argc, argv);
    const QStringList args = app.arguments();
    bool ok = false;
    const qint64 count = args.size() == 4 ? args.at(2).toLongLong(&ok) : 0;
    const bool labels = args.value(1) == QLatin1String("labels");
    if (!ok || count < 0 || (!labels && args.value(1) != QLatin1String("envelopes"))) {
        std::fprintf(stderr, "usage: engine_bench labels|envelopes N OUT.pdf\n");
        return 2;
    }

    PieceModel &model = PieceModel::shared();
    LoadPieceByName(labels ? bench::LabelPiece : bench::EnvelopePiece, model);
    const Piece &piece = model.piece;

    QPdfWriter writer(args.at(3));
    // The paper and the way it lies, as the print run asks the surface for them.
    writer.setPageLayout(QPageLayout(
        pageSizeForPaperCode(piece.PageSizeNum),
        piece.PieceOrientation == 1 ? QPageLayout::Landscape : QPageLayout::Portrait, QMarginsF()));
    QPainter painter;
    if (!painter.begin(&writer)) {
        std::fprintf(stderr, "engine_bench: cannot write %s\n", qPrintable(args.at(3)));
        return 1;
    }
    painter.scale(writer.logicalDpiX() / TwipsPerInch, writer.logicalDpiY() / TwipsPerInch);

    const Item &address = model.item(ItemId::Address);
    const Item &returnItem = model.item(ItemId::Return);
    const Item &message = model.item(ItemId::Message1);
    const QFont addressFont = fontOf(address.Font);
    const QFont returnFont = fontOf(returnItem.Font);
    const QFont messageFont = fontOf(message.Font);
    const QStringList returnLines = bench::ReturnText.split(QLatin1String("\\n"));
    const int perPage = labels ? piece.PieceNumAcross * piece.PieceNumDown : 1;

    bench::RecordMaker maker;
    for (qint64 i = 0; i < count; ++i) {
        const int slot = int(i % perPage);
        if (slot == 0 && i > 0)
            writer.newPage();
        const bench::Person p = maker.person(i);
        const double pieceLeft = (double(piece.PieceMarginLeft) +
                                  (slot % piece.PieceNumAcross) * double(piece.PiecePitchHorz)) *
                                 TwipsPerInch;
        const double pieceTop = (double(piece.PieceMarginTop) +
                                 (slot / piece.PieceNumAcross) * double(piece.PiecePitchVert)) *
                                TwipsPerInch;
        if (!labels) {
            painter.setFont(returnFont);
            drawLines(painter, pieceLeft + double(returnItem.Left) * TwipsPerInch,
                      pieceTop + double(returnItem.Top) * TwipsPerInch, returnLines);
            painter.setFont(messageFont);
            drawLines(painter, pieceLeft + double(message.Left) * TwipsPerInch,
                      pieceTop + double(message.Top) * TwipsPerInch,
                      {QStringLiteral("Dear ") + p.salutation + QLatin1Char(','),
                       bench::MessageSecondLine});
        }
        painter.setFont(addressFont);
        drawLines(painter, pieceLeft + double(address.Left) * TwipsPerInch,
                  pieceTop + double(address.Top) * TwipsPerInch, p.addressLines());
    }
    painter.end();
    return 0;
}
