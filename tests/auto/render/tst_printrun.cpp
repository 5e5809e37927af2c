// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#include "columns.h"
#include "recordingsurface.h"
#include "spoolfixture.h"

#include "model/error.h"
#include "render/calibration.h"
#include "render/printrun.h"

#include <QTest>

using namespace quirra;

class TestPrintRun : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        PieceModel::resetShared();
        useLabelSheet(1, 1);
        fixture::newSpool();
    }
    void cleanup() { QFile::remove(SharedSpool::instance().spoolPath()); }

    void verifiedPageSetup_data()
    {
        // takenCustom: the custom size the surface reports; empty: as given
        columns<int, int, int, QSize, int>("refusals", "attempts", "paper", "takenCustom",
                                           "paperAttempts");
        QTest::newRow("taken-at-once") << 0 << 1 << 20 << QSize() << 1;
        QTest::newRow("taken-on-the-fourth-try") << 3 << 4 << 20 << QSize() << 4;
        QTest::newRow("never-taken-stops-after-ten") << -1 << 10 << 20 << QSize() << 10;
        QTest::newRow("custom-paper-taken-at-once") << 0 << 1 << 256 << QSize() << 1;
        QTest::newRow("custom-paper-of-another-size-is-not-taken")
            << 0 << 1 << 256 << QSize(12240, 15840) << 10;
    }

    void verifiedPageSetup()
    {
        auto [refusals, attempts, paper, takenCustom, paperAttempts] =
            fetched<int, int, int, QSize, int>("refusals", "attempts", "paper", "takenCustom",
                                               "paperAttempts");
        fixture::feed({});
        Piece &piece = PieceModel::shared().piece;
        piece.PieceOrientation = 1;
        piece.PageSizeNum = qint16(paper);
        piece.PageWidth = 14.8f; // a custom paper is the sheet's real size, in twips
        piece.PageHeight = 1;
        RecordingSurface surface;
        surface.acceptOrientationAfter = refusals;
        surface.acceptPaperAfter = refusals;
        surface.takenCustom = takenCustom;
        PrintRun(PieceModel::shared(), SharedSpool::instance().reader()).RunPrintJob(surface);

        QCOMPARE(surface.count(QStringLiteral("orientation 1")), attempts);
        QCOMPARE(surface.count(QStringLiteral("paper %1").arg(paper)), paperAttempts);
        if (paper == CustomPaperCode) {
            const int first = int(surface.calls.indexOf(QStringLiteral("paper 256")));
            QCOMPARE(surface.calls.at(first - 1), QStringLiteral("custom 21312 x 1440"));
        }
        // Each attempt writes a line of 23 blanks four times at 2000, 2000 first.
        const QString blanks = QStringLiteral("text [%1]").arg(QString(23, QLatin1Char(' ')));
        QCOMPARE(surface.count(blanks), 4 * (attempts + paperAttempts));
        QCOMPARE(surface.count(QStringLiteral("x 2000")), attempts + paperAttempts);
        const int firstSet = int(surface.calls.indexOf(QStringLiteral("orientation 1")));
        QCOMPARE(surface.calls.mid(firstSet - 6, 6),
                 QStringList({QStringLiteral("x 2000"), QStringLiteral("y 2000"), blanks, blanks,
                              blanks, blanks}));
        // The run goes on either way.
        QCOMPARE(surface.count(QStringLiteral("action 3")), 1);
    }

    void printerErrorShowsOneMessage()
    {
        fixture::feed(fixture::numbered(2));
        RecordingSurface surface;
        surface.startError = 3;
        PrintRun run(PieceModel::shared(), SharedSpool::instance().reader());
        QStringList messages;
        run.setMessageSink([&](const QString &text) { messages.append(text); });
        run.RunPrintJob(surface);
        QCOMPARE(messages, QStringList(QStringLiteral("Ptr.error = 3")));
        QCOMPARE(surface.count(QStringLiteral("box")), 0);
        QCOMPARE(surface.calls.last(), QStringLiteral("action 6")); // the end is sent all the same
    }

    void pagination_data()
    {
        // lastPageBoxes: "left top" of the address on the last page
        // cancelAfter: pieces drawn when the run is cancelled; 0: never
        // firstSlot: the first sheet's first slot; past 1 with outlines in preview
        // scale: PrinterScaleX and Y, percent, about the page's corner
        const Rows<int, int, int, int, QStringList, int, int, QPoint> row(
            "records", "across", "down", "pages", "lastPageBoxes", "cancelAfter", "firstSlot",
            "scale");
        const QPoint same(100, 100);

        row("seven-on-three-by-two-spill-one", 7, 3, 2, 2, {"360 360"}, 0, 1, same);
        row("eight-on-three-by-two-spill-two", 8, 3, 2, 2, {"360 360", "3960 360"}, 0, 1, same);
        row("six-on-three-by-two-fill-one-page", 6, 3, 2, 1,
            {"360 360", "3960 360", "7560 360", "360 2160", "3960 2160", "7560 2160"}, 0, 1, same);
        row("cancelled-after-four-of-seven", 7, 3, 2, 1,
            {"360 360", "3960 360", "7560 360", "360 2160"}, 4, 1, same);
        row("envelope-one-page-each", 3, 1, 1, 3, {"360 360"}, 0, 1, same);
        row("no-records-no-pages-drawn", 0, 3, 2, 1, QStringList(), 0, 1, same);
        row("used-sheet-from-slot-5-next-sheet-from-1", 3, 3, 2, 2, {"360 360"}, 0, 5, same);
        row("scaled-110-across-90-down-before-the-offsets", 2, 3, 2, 1, {"432 288", "4392 288"}, 0,
            1, QPoint(110, 90));
    }

    void pagination()
    {
        QFETCH(int, records);
        QFETCH(int, across);
        QFETCH(int, down);
        QFETCH(int, pages);
        QFETCH(int, cancelAfter);
        QFETCH(int, firstSlot);
        QFETCH(QPoint, scale);
        useLabelSheet(across, down);
        PieceModel::shared().PrinterScaleX = float(scale.x());
        PieceModel::shared().PrinterScaleY = float(scale.y());
        PieceModel::shared().PieceStartSlot = short(firstSlot);
        PieceModel::shared().PieceOutlines = firstSlot > 1;
        fixture::feed(fixture::numbered(records));
        RecordingSurface surface;
        surface.setPreview(firstSlot > 1);
        PrintRun run(PieceModel::shared(), SharedSpool::instance().reader());
        std::atomic_bool cancel = false;
        int drawn = 0;
        bool modelWritten = false; // the scale is applied to a copy, never to the shared model
        surface.onCall = [&](const QString &call) {
            modelWritten = modelWritten || PieceModel::shared().piece.PieceMarginLeft != 0.5f;
            if (call.startsWith(QLatin1String("box [")) && ++drawn == cancelAfter)
                cancel = true;
        };
        run.setCancelFlag(&cancel);
        run.RunPrintJob(surface);
        // The used slots are shaded in the preview; every slot is outlined.
        QCOMPARE(surface.count(QStringLiteral("fill")), firstSlot - 1);
        QCOMPARE(surface.count(QStringLiteral("outline")),
                 firstSlot > 1 ? records + firstSlot - 1 : 0);

        QCOMPARE(run.piecesDrawn(), qint64(cancelAfter ? cancelAfter : records));
        QCOMPARE(run.cancelled(), cancelAfter > 0);
        // Whatever a host left on the surface is reset before the document starts,
        // and the document is ended even with nothing on it.
        const int start = int(surface.calls.indexOf(QStringLiteral("action 3")));
        for (const char *reset : {"indentLeft 0", "indentRight 0", "marginLeft 0", "marginTop 0",
                                  "marginRight 0", "marginBottom 0", "align 0", "header []",
                                  "footer []", "penStyle 1", "brushStyle 0", "penWidth 10"})
            QVERIFY2(uint(surface.calls.indexOf(QLatin1String(reset))) < uint(start), reset);
        QCOMPARE(surface.calls.value(start + 1), QStringLiteral("firstPage 1"));
        QCOMPARE(surface.calls.last(),
                 cancelAfter ? QStringLiteral("action 7") : QStringLiteral("action 6"));
        QCOMPARE(surface.count(QStringLiteral("action 4")), pages - 1); // no blank page at the end
        const int lastPage = int(surface.calls.lastIndexOf(QStringLiteral("action 4")));
        QStringList boxes;
        for (int i = lastPage + 1; i < surface.calls.size(); ++i) {
            const QString &c = surface.calls.at(i);
            if (c.startsWith(QLatin1String("box ["))) {
                const QStringList parts =
                    c.section(QLatin1Char(']'), 1).split(QLatin1Char(' '), Qt::SkipEmptyParts);
                boxes.append(parts.at(0) + QLatin1Char(' ') + parts.at(1));
            }
        }
        QTEST(boxes, "lastPageBoxes");
        QVERIFY(!modelWritten);
    }

    void tokensAndTemplates()
    {
        PieceModel &model = PieceModel::shared();
        Item &ret = model.item(ItemId::Return);
        ret.Visible = true;
        ret.Width = 2.f;
        ret.Height = 0.5f;
        ret.Text = QStringLiteral("Dear <<salut>>,");
        model.item(ItemId::Address).Text = QStringLiteral("kept");

        fixture::feed(
            {QStringLiteral("John;Q;Public;12 Main St;;Springfield;il;62704;;;salut^Sir|x^y"),
             QStringLiteral("Ann;;Lee;;;Troy;;12180")});
        RecordingSurface surface;
        PrintRun(model, SharedSpool::instance().reader()).RunPrintJob(surface);

        const QStringList drawn =
            surface.calls.filter(QRegularExpression(QStringLiteral("^box \\[.")));
        // No street lines: the name sits right above the city line; the token stays unreplaced.
        const QStringList expected{"box [John Q. Public/12 Main St/Springfield,  IL  62704]",
                                   "box [Dear Sir,]", "box [Ann Lee/Troy    12180]",
                                   "box [Dear <<salut>>,]"};
        QCOMPARE(drawn.size(), expected.size());
        for (int i = 0; i < expected.size(); ++i)
            QVERIFY2(drawn.at(i).startsWith(expected.at(i)), qPrintable(drawn.at(i)));
        // After the run the items hold what the user set, not the last record.
        QCOMPARE(ret.Text, QStringLiteral("Dear <<salut>>,"));
        QCOMPARE(model.item(ItemId::Address).Text, QStringLiteral("kept"));
    }

    void verticalOffset_data()
    {
        columns<int, float, int, int>("align", "heightInches", "lines", "offset");
        // The fake surface lays out 240 twips a line.
        QTest::newRow("top-no-offset") << int(vaTop) << 1.f << 1 << 0;
        QTest::newRow("middle-one-inch") << int(vaMiddle) << 1.f << 1 << 600;
        QTest::newRow("middle-halving-truncates") << int(vaMiddle) << 1441.f / 1440.f << 1 << 600;
        QTest::newRow("bottom") << int(vaBottom) << 1.f << 2 << 960;
        QTest::newRow("taller-than-box-starts-at-top") << int(vaBottom) << 0.25f << 2 << 0;
    }

    void verticalOffset()
    {
        const auto [align, heightInches, lines, offset] =
            fetched<int, float, int, int>("align", "heightInches", "lines", "offset");
        Piece piece = PieceModel::shared().piece;
        piece.PrinterLeft = 0;
        piece.PrinterTop = 0;
        piece.PieceMarginTop = 0;
        piece.PieceMarginLeft = 0;
        Item item;
        item.Height = heightInches;
        item.Width = 2.f;
        item.VertAlign = eVertAlign(align);
        item.Text = lines == 1 ? QStringLiteral("one") : QStringLiteral("one\rtwo");
        RecordingSurface surface;
        DrawItem(item, piece, 1, surface);
        const int height = int(std::lrint(double(heightInches) * 1440));
        const QString last = surface.calls.last();
        QVERIFY2(last.contains(QStringLiteral("] 0 %1 2880 %2 ").arg(offset).arg(height - offset)),
                 qPrintable(last));
    }

    void borderAndJustify()
    {
        const Piece &piece = PieceModel::shared().piece;
        Item item;
        item.Width = 1.f;
        item.Height = 1.f;
        item.Text = QStringLiteral("x");
        item.HorzAlign = haFull;
        item.Border = 1;
        RecordingSurface framed;
        DrawItem(item, piece, 1, framed);
        // Justified, in the surface's code.
        QVERIFY(framed.calls.contains(QStringLiteral("align 9")));
        const int frame =
            int(framed.calls.indexOf(QRegularExpression(QStringLiteral("^box \\[\\].*border=1"))));
        QVERIFY(frame > 0);
        QCOMPARE(framed.calls.at(frame - 1), QStringLiteral("penWidth 10"));
        QVERIFY(framed.calls.last().startsWith(QLatin1String("box [x]")));
        QVERIFY(framed.calls.last().endsWith(QLatin1String("border=0")));

        item.Border = 0;
        item.HorzAlign = haRight;
        RecordingSurface plain;
        DrawItem(item, piece, 1, plain);
        QVERIFY(plain.calls.contains(QStringLiteral("align 2")));
        QCOMPARE(plain.count(QStringLiteral("box [")), 1);
        QCOMPARE(plain.count(QStringLiteral("penWidth")), 0);
    }

    void surfaceMarginIsTakenOff()
    {
        Piece piece = PieceModel::shared().piece; // printer offsets 0.25 in
        piece.PieceMarginLeft = 0;
        piece.PieceNumAcross = 2;
        piece.PiecePitchHorz = 3.f;
        Item item;
        item.Left = 0.1f;
        QCOMPARE(itemBoxOnSurface(item, piece, 2, 100).left, 4320 + 144 - 100 - 360);
    }

    void badGeometryIsAnErrorOfTheRun_data()
    {
        columns<int, int, QString, int>("across", "down", "message", "start");
        QTest::newRow("zero-across-divides-by-zero")
            << 0 << 3 << QStringLiteral("Division by zero") << 1;
        QTest::newRow("pieces-per-page-overflow") << 200 << 200 << QStringLiteral("Overflow") << 1;
        QTest::newRow("zero-down-fits-nothing")
            << 3 << 0
            << QStringLiteral("no piece fits on a page. Set PieceNumAcross and "
                              "PieceNumDown to 1 or more.")
            << 1;
        QTest::newRow("start-slot-beyond-the-sheet")
            << 3 << 2 << QStringLiteral("has 6 slots. Set PieceStartSlot to 1 to 6.") << 7;
    }

    void badGeometryIsAnErrorOfTheRun()
    {
        const auto [across, down, message, start] =
            fetched<int, int, QString, int>("across", "down", "message", "start");
        useLabelSheet(across, down);
        PieceModel::shared().PieceStartSlot = short(start);
        fixture::feed(fixture::numbered(2));
        RecordingSurface surface;
        try {
            PrintRun(PieceModel::shared(), SharedSpool::instance().reader()).RunPrintJob(surface);
            QFAIL("the run did not fail");
        } catch (const Error &e) {
            QVERIFY2(e.message().contains(message), e.what());
        }
        QCOMPARE(surface.calls.last(), QStringLiteral("action 7")); // the document is dropped
    }

    // The calibration sheet outlines each piece once, where it lies on the
    // sheet less the printer's offsets (a quarter inch each way).
    void calibrationSheetOutlinesEachPiece()
    {
        useLabelSheet(2, 2);
        RecordingSurface surface;
        PrintCalibrationSheet(surface, PieceModel::shared());
        QCOMPARE(surface.calls.filter(QRegularExpression(QStringLiteral("^outline"))),
                 (QStringList{"outline 360 360", "outline 3960 360", "outline 360 2160",
                              "outline 3960 2160"}));
    }

private:
    static void useLabelSheet(int across, int down)
    {
        Piece &p = PieceModel::shared().piece;
        p.PieceNumAcross = qint16(across);
        p.PieceNumDown = qint16(down);
        p.PieceWidth = 2.f;
        p.PieceHeight = 1.f;
        p.PiecePitchHorz = 2.5f;
        p.PiecePitchVert = 1.25f;
        p.PieceMarginLeft = 0.5f;
        p.PieceMarginTop = 0.5f;
        for (ItemId id : StorageOrder)
            PieceModel::shared().item(id).Visible = false;
        Item &address = PieceModel::shared().item(ItemId::Address);
        address.Visible = true;
        address.Width = 1.5f;
        address.Height = 0.75f;
    }
};

QTEST_GUILESS_MAIN(TestPrintRun)
#include "tst_printrun.moc"
