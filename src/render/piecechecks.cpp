// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#include "render/piecechecks.h"

#include "surface/glyphcoverage.h"

#include <QLocale>

#include <cmath>

namespace quirra {

namespace {

// Boxes are rounded to whole twips on their own: an edge may be one twip
// out without anything being lost.
constexpr int Slack = 1;
// Papers are whole points (a C6 envelope's 162 mm is 459 pt, 4 twips short):
// a sheet's own edge may lie up to half a point past the page's.
constexpr int PaperSlack = 10;

int twips(double value)
{
    return static_cast<int>(std::lrint(value)); // halves to even
}

QString number(double value)
{
    static const QLocale english(QLocale::English, QLocale::UnitedStates);
    return english.toString(qint64(std::lround(value)));
}

QString inches(double twipsValue)
{
    return QString::number(twipsValue / 1440.0, 'f', 2) + QStringLiteral(" in");
}

bool within(const QRect &inner, const QRect &outer, int slack = Slack)
{
    return outer.adjusted(-slack, -slack, slack, slack).contains(inner);
}

// How inner lies outside outer: wholly, or by how much past which edge.
QString placeAgainst(const QRect &inner, const QRect &outer, const QString &outerName)
{
    const qint64 right = qint64(inner.x()) + inner.width();
    const qint64 bottom = qint64(inner.y()) + inner.height();
    const qint64 outerRight = qint64(outer.x()) + outer.width();
    const qint64 outerBottom = qint64(outer.y()) + outer.height();
    if (right <= outer.x() || bottom <= outer.y() || inner.x() >= outerRight ||
        inner.y() >= outerBottom)
        return QStringLiteral("lies wholly outside ") + outerName;
    struct Side
    {
        qint64 by;
        const char *edge;
    };
    const Side sides[] = {{right - outerRight, "right"},
                          {bottom - outerBottom, "bottom"},
                          {qint64(outer.x()) - inner.x(), "left"},
                          {qint64(outer.y()) - inner.y(), "top"}};
    Side worst = sides[0];
    for (const Side &side : sides) {
        if (side.by > worst.by)
            worst = side;
    }
    return QStringLiteral("reaches %1 past %2's %3 edge")
        .arg(inches(double(worst.by)), outerName, QLatin1String(worst.edge));
}

QString codePoints(const QString &characters)
{
    QStringList codes;
    for (char32_t c : QStringView(characters).toUcs4())
        codes << QStringLiteral("U+%1").arg(uint(c), 4, 16, QLatin1Char('0')).toUpper();
    return codes.join(QLatin1Char(' '));
}

} // namespace

QRect pieceBoxOnSurface(const Piece &piece, int slot, int surfaceMarginLeft)
{
    const SlotPlace place = placeOfSlot(piece, slot);
    return QRect(twips(place.left - surfaceMarginLeft - double(piece.PrinterLeft) * 1440.0),
                 twips(place.top - double(piece.PrinterTop) * 1440.0),
                 twips(double(piece.PieceWidth) * 1440.0),
                 twips(double(piece.PieceHeight) * 1440.0));
}

QRect itemBoxWhereItLies(const Item &item, const Piece &piece, int slot, int surfaceMarginLeft)
{
    const SlotPlace place = placeOfSlot(piece, slot);
    const int top = twips(double(item.Top) * 1440.0 + place.top);
    const int left = twips(double(item.Left) * 1440.0 + place.left);
    return QRect(twips(left - surfaceMarginLeft - double(piece.PrinterLeft) * 1440.0),
                 twips(top - double(piece.PrinterTop) * 1440.0),
                 std::max(0, twips(double(item.Width) * 1440.0)),
                 std::max(0, twips(double(item.Height) * 1440.0)));
}

void PieceChecks::beginRecord(qint64 number, const QString &name)
{
    m_record = number;
    m_name = name;
}

void PieceChecks::checkAddress(const AddressLines &lines, const CityLineFit &fit, double widest)
{
    // Lines 2 to 6 are closed up, so an empty name line means an empty block.
    if (lines[1].isEmpty())
        note(NoteKind::EmptyRecord, [] { return QStringLiteral("no name and no address"); });
    if (!fit.shortened)
        return;
    const auto measured = [&] {
        return QStringLiteral("\"%1\" is %2 twips wide, the limit is %3")
            .arg(fit.full, number(fit.fullWidth), number(widest));
    };
    if (fit.printed.isEmpty()) {
        note(NoteKind::CityLineLeftOut, measured);
    } else {
        note(NoteKind::CityLineShortened, [&] {
            return QStringLiteral("%1; printed as \"%2\", \"%3\" cut")
                .arg(measured(), fit.printed, fit.cut);
        });
    }
}

void PieceChecks::noteBarcode(const QString &problem)
{
    note(NoteKind::BarcodeInvalid, [&] {
        return QStringLiteral("bar code %1; the piece is printed without a barcode").arg(problem);
    });
}

bool PieceChecks::checkPiece(const QRect &pieceBox, const QRect &paper)
{
    if (paper.isEmpty() || within(pieceBox, paper, PaperSlack))
        return true;
    note(NoteKind::PieceOffPage, [&] {
        return QStringLiteral("the %1 x %2 piece %3")
            .arg(QString::number(pieceBox.width() / 1440.0, 'f', 2), inches(pieceBox.height()),
                 placeAgainst(pieceBox, paper, QStringLiteral("the page")));
    });
    return false;
}

void PieceChecks::checkItem(ItemId id, const Item &item, const QRect &itemBox,
                            const DrawnText &drawn, const QRect &pieceBox, const QRect &paper,
                            bool pieceOnPaper)
{
    if (!item.Visible || (item.Text.isEmpty() && item.Border <= 0))
        return;
    const QString name = itemName(id);
    if (pieceOnPaper && !paper.isEmpty() && !within(itemBox, paper, PaperSlack)) {
        note(NoteKind::ItemOffPage, [&] {
            return QStringLiteral("the %1 box %2")
                .arg(name, placeAgainst(itemBox, paper, QStringLiteral("the page")));
        });
    } else if (!within(itemBox, pieceBox)) {
        note(NoteKind::ItemOffPiece, [&] {
            return QStringLiteral("the %1 box %2")
                .arg(name, placeAgainst(itemBox, pieceBox, QStringLiteral("the piece")));
        });
    }
    if (item.Text.isEmpty())
        return;

    const QRect text(drawn.box.left, drawn.top, drawn.width, drawn.height);
    if (drawn.height > 0 && !within(text, pieceBox)) {
        note(NoteKind::TextCutAtPiece, [&] {
            return QStringLiteral("the %1 text %2")
                .arg(name, placeAgainst(text, pieceBox, QStringLiteral("the piece")));
        });
    } else if (drawn.width > drawn.box.width + Slack || drawn.height > drawn.box.height + Slack) {
        note(NoteKind::TextBeyondItem, [&] {
            return QStringLiteral("the %1 text is %2 x %3 twips in a box of %4 x %5")
                .arg(name, number(drawn.width), number(drawn.height), number(drawn.box.width),
                     number(drawn.box.height));
        });
    }

    const QString missing = UndrawableCharacters(item.Text);
    if (!missing.isEmpty()) {
        note(NoteKind::UndrawableCharacters, [&] {
            return QStringLiteral("the %1 text has %2 (%3)")
                .arg(name, missing, codePoints(missing));
        });
    }
}

} // namespace quirra
