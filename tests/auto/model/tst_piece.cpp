// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#include "columns.h"
#include "model/piecemodel.h"

#include <QTest>

using namespace quirra;

class TestPiece : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void derivePageSetup_data()
    {
        // sheet: across, down, width, height, pitches, margins
        const Rows<QList<float>, QString, float, float, int, int> row(
            "sheet", "pageSize", "pageW", "pageH", "orientation", "paper");
        using S = QList<float>;
        const S no10{1, 1, 9.5f, 4.125f, 9.5f, 4.125f, 0, 0};
        row("no10-envelope-is-landscape-paper-20", no10, "4 1/8 x 9 1/2", 0.f, 0.f, 1, 20);
        row("letter-label-sheet-is-portrait", S{3, 10, 2.625f, 1, 2.75f, 1, 0.1875f, 0.5f},
            "Letter (8 1/2 x 11 in)", 8.5f, 11.f, 0, 1);
        row("legal-that-really-is-8.5x14", S{1, 1, 8.5f, 14, 8.5f, 14, 0, 0}, "8 1/2 x 14", 8.5f,
            14.f, 0, 5);
        row("a4-sheet-mentioning-14-is-a4", S{3, 7, 2.5f, 1.5f, 2.6f, 1.5f, 0.2f, 0.6f},
            "A4 (14 up)", 8.2677f, 11.6929f, 0, 9);
        row("c6-envelope-mm-description-is-c6", S{1, 1, 6.378f, 4.4882f, 6.378f, 4.4882f, 0, 0},
            "C6 (114 x 162 mm)", 6.378f, 4.4882f, 1, 31);
        row("dl-envelope", S{1, 1, 8.6614f, 4.3307f, 8.6614f, 4.3307f, 0, 0}, "DL", 8.6614f,
            4.3307f, 1, 27);
        row("square-sheet-tie-is-portrait-custom-paper", S{2, 2, 2, 2, 3, 3, 1, 1}, "6 x 6", 6.f,
            6.f, 0, 256);
        row("continuous-4-up-row-is-a-custom-page", S{4, 1, 3.5f, 0.9375f, 3.6f, 1, 0.25f, 0},
            "Continuous 14.8 in wide", 14.8f, 1.f, 1, 256);
        row("size-unknown-and-text-not-exactly-no10-is-letter", no10, "4 1/8 x 9 1/2 ", 0.f, 0.f, 1,
            1);
        row("only-one-piece-reaches-across", S{1, 3, 5, 1, 0, 1.5f, 0, 0}, "", 0.f, 0.f, 1, 1);
    }

    void derivePageSetup()
    {
        auto [sheet, pageSize, pageW, pageH] =
            fetched<QList<float>, QString, float, float>("sheet", "pageSize", "pageW", "pageH");
        Piece p;
        p.PageWidth = pageW;
        p.PageHeight = pageH;
        p.PieceNumAcross = qint16(sheet[0]);
        p.PieceNumDown = qint16(sheet[1]);
        p.PieceWidth = sheet[2];
        p.PieceHeight = sheet[3];
        p.PiecePitchHorz = sheet[4];
        p.PiecePitchVert = sheet[5];
        p.PieceMarginLeft = sheet[6];
        p.PieceMarginTop = sheet[7];
        p.PageSize = pageSize;
        p.PageSizeNum = 99;
        p.PieceOrientation = 99;

        DerivePageSetup(p);

        QTEST(int(p.PieceOrientation), "orientation");
        QTEST(int(p.PageSizeNum), "paper");
    }

    void slotPlacement_data()
    {
        columns<int, int, int, int, int>("slot", "row", "column", "top", "left");

        // 3 across, 10 down; margins 0.1875 x 0.5 in, pitch 2.75 x 1 in.
        QTest::newRow("first-slot-is-the-margin-corner") << 1 << 0 << 0 << 720 << 270;
        QTest::newRow("slot-3-ends-the-first-row") << 3 << 0 << 2 << 720 << 8190;
        QTest::newRow("slot-4-starts-the-second-row") << 4 << 1 << 0 << 2160 << 270;
        QTest::newRow("last-slot-of-the-sheet") << 30 << 9 << 2 << 13680 << 8190;
    }

    void slotPlacement()
    {
        Piece p;
        p.PieceNumAcross = 3;
        p.PieceNumDown = 10;
        p.PieceMarginLeft = 0.1875f;
        p.PieceMarginTop = 0.5f;
        p.PiecePitchHorz = 2.75f;
        p.PiecePitchVert = 1.f;
        QFETCH(int, slot);
        const SlotPlace place = placeOfSlot(p, slot);
        QTEST(place.row, "row");
        QTEST(place.column, "column");
        QTEST(int(place.top), "top");
        QTEST(int(place.left), "left");
    }

    void resetGivesTheSharedModelAfresh()
    {
        PieceModel::shared().item(ItemId::Address).Top = 1.25f;
        PieceModel::resetShared();
        QCOMPARE(PieceModel::shared().item(ItemId::Address).Top, 0.f);
        QCOMPARE(int(PieceModel::shared().EnvelopeOrientation), int(eoLandscape));
    }
};

QTEST_GUILESS_MAIN(TestPiece)
#include "tst_piece.moc"
