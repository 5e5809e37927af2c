// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
//
// The run's report of what will not come out as the user expects, and the
// clip that keeps a piece's overflow off its neighbours.
#include "columns.h"
#include "pdfprobe.h"
#include "spoolfixture.h"

#include "catalogue/pieceloader.h"
#include "render/pdfexport.h"
#include "render/previewrun.h"
#include "render/printrun.h"
#include "surface/measuringsurface.h"
#include "surface/pageengine.h"

#include <QPainter>
#include <QStandardPaths>
#include <QTest>

#include <functional>

using namespace quirra;

Q_DECLARE_METATYPE(QList<quirra::NoteKind>)
Q_DECLARE_METATYPE(std::function<void(quirra::PieceModel &)>)

namespace {

const QString Envelope = QStringLiteral("Size 10 - Envelope");
const QString Labels = QStringLiteral("5160 - Address Labels");

// first, middle, last, addr1, addr2, city, state, zip
QStringList person(const QString &first, const QString &last, const QString &city = "Troy",
                   const QString &state = "NY", const QString &zip = "12180")
{
    return {first, QString(), last, QStringLiteral("12 Elm St"), QString(), city, state, zip};
}

// A change to the layout the piece loads with.
using Tweak = std::function<void(PieceModel &)>;

// Share of dark pixels in a region of the page given in inches.
double ink(const QImage &page, double dpi, const QRectF &inches)
{
    const QRect r(int(inches.left() * dpi), int(inches.top() * dpi), int(inches.width() * dpi),
                  int(inches.height() * dpi));
    int dark = 0;
    for (int y = r.top(); y <= r.bottom(); ++y) {
        for (int x = r.left(); x <= r.right(); ++x)
            dark += qGray(page.pixel(x, y)) < 128 ? 1 : 0;
    }
    return double(dark) / (r.width() * r.height());
}

} // namespace

class TestPreflight : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { PieceModel::resetShared(); }

    void notes_data()
    {
        // second: the record after a clean "Ann Lee"
        // kinds: every kind noted
        // record: the first record noted
        // count: records with the first kind
        // detail: part of the first kind's detail
        const Rows<QString, Tweak, QStringList, QList<NoteKind>, int, int, QString> row(
            "piece", "tweak", "second", "kinds", "record", "count", "detail");

        const QStringList bob = person("Bob", "Roe");
        const Tweak offLabel = [](PieceModel &model) {
            Item &frame = model.item(ItemId::Message1);
            frame.Text.clear(); // an empty frame: only the box is off
            frame.Border = 1;
            frame.Visible = true;
            frame.Top = 0.1f; // 0.5 x 0.3 in, just right of the label
            frame.Height = 0.3f;
            frame.Width = 0.5f;
            frame.Left = 2.7f;
        };
        const Tweak twipShort = [](PieceModel &model) { // a twip short of its text each way
            Item &message = model.item(ItemId::Message1);
            message = Item{};
            message.Text = QStringLiteral("Hi");
            message.Wrap = false;
            message.Left = message.Top = 1;
            PageEngine engine;
            engine.setFontName(message.Font.Name);
            engine.setFontSize(message.Font.Size);
            engine.textBox(message.Text, 0, 0, 2880, 720, false, true, false);
            message.Width = float(engine.textWidthLaidOut() - 1) / 1440;
            message.Height = float(engine.textHeight() - 1) / 1440;
        };
        row("clean", Envelope, {}, bob, {}, 0, 0, QString());
        // 162 mm is 459.2 pt; the paper is 459 pt, and nothing is lost.
        row("clean-c6-on-its-whole-point-paper", "C6 - Envelope", {}, bob, {}, 0, 0, QString());
        row("city-line-left-out", Envelope, {},
            person("Bob", "Roe", "Troy", "NEW YORK STATE OF AMERICA", "12180-0000-0000-0000"),
            {NoteKind::CityLineLeftOut}, 2, 1, "twips wide, the limit is 3,500");
        row("city-shortened", Envelope, {},
            person("Bob", "Roe", "Llanfairpwllgwyngyllgogerychwyrndrobwllllantysiliogogogoch"),
            {NoteKind::CityLineShortened}, 2, 1, "gogogoch,\" cut");
        row("text-a-twip-beyond-item-is-not-noted", Envelope, twipShort, bob, {}, 0, 0, QString());
        row(
            "text-beyond-item", Envelope,
            [](PieceModel &m) { m.item(ItemId::Address).Height = 0.1f; }, bob,
            {NoteKind::TextBeyondItem}, 1, 2, "Address text is");
        row("text-cut-at-piece", Labels, {},
            person("Bob", QStringLiteral("Longname ").repeated(70)), {NoteKind::TextCutAtPiece}, 2,
            1, "past the piece's bottom edge");
        row("item-off-piece", Labels, offLabel, bob, {NoteKind::ItemOffPiece}, 1, 2,
            "Message1 box lies wholly outside the piece");
        row(
            "item-off-page", Envelope, [](PieceModel &m) { m.item(ItemId::Address).Top = 25; }, bob,
            {NoteKind::TextCutAtPiece, NoteKind::ItemOffPage}, 1, 2,
            "lies wholly outside the piece");
        row(
            "piece-off-page", Labels, [](PieceModel &m) { m.piece.PieceMarginTop = 12.7f; }, bob,
            {NoteKind::PieceOffPage}, 1, 2, "lies wholly outside the page");
        row("undrawable-characters", Envelope, {}, person("Bob", QStringLiteral("Roe\u0378")),
            {NoteKind::UndrawableCharacters}, 2, 1, "U+0378");
        row("accented-letters-are-drawn", Envelope, {}, person("Zoë", QStringLiteral("Ångström")),
            {}, 0, 0, QString());
        row("empty-record", Envelope, {}, QStringList(8, QString()), {NoteKind::EmptyRecord}, 2, 1,
            "no name and no address");
        // The second digit of the tracking code is 0 to 4.
        row(
            "barcode-invalid", Envelope, [](PieceModel &m) { m.AddressBarcode = true; },
            bob + QStringList{QString(), "05234567094987654321"}, {NoteKind::BarcodeInvalid}, 2, 1,
            "\"05234567094987654321\": the second digit");
    }

    void notes()
    {
        auto [piece, tweak, second, kinds, record, detail] =
            fetched<QString, Tweak, QStringList, QList<NoteKind>, int, QString>(
                "piece", "tweak", "second", "kinds", "record", "detail");

        PieceModel &model = PieceModel::shared();
        QVERIFY(LoadPieceByName(piece, model));
        if (tweak)
            tweak(model);
        fixture::newSpool();
        fixture::feed({person("Ann", "Lee").join(';'), second.join(';')});

        MeasuringSurface surface;
        surface.setPrintableOrigin(inchesToTwips(model.piece.PrinterLeft),
                                   inchesToTwips(model.piece.PrinterTop));
        PrintRun run(model, SharedSpool::instance().reader());
        run.RunPrintJob(surface);
        QCOMPARE(run.piecesDrawn(), qint64(2));

        const RunReport &report = run.report();
        QList<NoteKind> noted;
        for (int k = 0; k < NoteKindCount; ++k) {
            if (report.count(NoteKind(k)) > 0)
                noted << NoteKind(k);
        }
        QCOMPARE(noted, kinds);
        if (kinds.isEmpty())
            return;
        const Note *first = report.firstOf(kinds.first());
        QVERIFY(first);
        QCOMPARE(first->record, qint64(record));
        const QString name = QStringList{second[0], second[2]}.join(' ').trimmed();
        QCOMPARE(first->name, record == 1 ? QStringLiteral("Ann Lee") : name);
        QVERIFY2(first->detail.contains(detail), qPrintable(first->detail));
        QTEST(int(report.count(kinds.first())), "count");
    }

    void longRunKeepsFewNotes()
    {
        PieceModel &model = PieceModel::shared();
        QVERIFY(LoadPieceByName(Labels, model));
        fixture::newSpool();
        QStringList records;
        for (int i = 0; i < 200; ++i)
            records.append(
                person(QStringLiteral("P%1").arg(i), "Roe", "Troy", "NEW YORK STATE OF AMERICA")
                    .join(';'));
        fixture::feed(records);
        MeasuringSurface surface;
        surface.setPrintableOrigin(inchesToTwips(model.piece.PrinterLeft),
                                   inchesToTwips(model.piece.PrinterTop));
        PrintRun run(model, SharedSpool::instance().reader());
        run.RunPrintJob(surface);
        const RunReport &report = run.report();
        QCOMPARE(report.count(NoteKind::CityLineLeftOut), qint64(200));
        QCOMPARE(report.recordsNoted(), qint64(200));
        QCOMPARE(int(report.notes().size()), RunReport::ExamplesPerKind);
        QCOMPARE(report.notes().back().record, qint64(RunReport::ExamplesPerKind));
    }

    void previewDrawsEachPageAsTheWholeRun_data()
    {
        // rows: 0: as the piece has them
        // records: the last one overflows its piece
        columns<QString, int, int, int, QPoint, int>("piece", "rows", "records", "firstSlot",
                                                     "range", "pages");
        QTest::newRow("labels-from-slot-25") << Labels << 0 << 40 << 25 << QPoint() << 3;
        QTest::newRow("labels-from-slot-29") << Labels << 0 << 40 << 29 << QPoint() << 3;
        QTest::newRow("labels-from-the-last-slot") << Labels << 0 << 40 << 30 << QPoint() << 3;
        QTest::newRow("envelopes-one-a-page") << Envelope << 0 << 3 << 1 << QPoint() << 3;
        QTest::newRow("continuous-one-row-a-page") << Labels << 1 << 7 << 1 << QPoint() << 3;
        QTest::newRow("pages-2-to-3-of-3") << Labels << 0 << 70 << 1 << QPoint(2, 3) << 2;
    }

    void previewDrawsEachPageAsTheWholeRun()
    {
        const auto [piece, rows, records, firstSlot, range, pages] =
            fetched<QString, int, int, int, QPoint, int>("piece", "rows", "records", "firstSlot",
                                                         "range", "pages");
        PieceModel &model = PieceModel::shared();
        QVERIFY(LoadPieceByName(piece, model));
        if (rows > 0)
            model.piece.PieceNumDown = qint16(rows);
        model.PieceStartSlot = short(firstSlot);
        model.PieceOutlines = true;
        model.PrinterScaleX = 105;
        model.PrinterScaleY = 95;
        fixture::newSpool();
        QStringList feed;
        for (int i = 1; i < records; ++i)
            feed.append(person(QStringLiteral("Eve%1").arg(i), "Ray").join(';'));
        feed.append(person("Cy", QStringLiteral("Longname ").repeated(70)).join(';'));
        fixture::feed(feed);

        PageEngine whole, shown;
        for (PageEngine *engine : {&whole, &shown})
            engine->setPrintableOrigin(inchesToTwips(model.piece.PrinterLeft),
                                       inchesToTwips(model.piece.PrinterTop));
        PrintRun run(model, SharedSpool::instance().reader());
        run.setPageRange({range.x(), range.y()});
        run.RunPrintJob(whole);
        PreviewRun preview(model, SharedSpool::instance().spoolPath());
        preview.setPageRange({range.x(), range.y()});
        preview.run(shown);

        QCOMPARE(whole.pageCount(), pages);
        QCOMPARE(shown.pageCount(), pages);
        QVERIFY(!run.report().isEmpty());
        QCOMPARE(preview.report().recordsNoted(), run.report().recordsNoted());
        QCOMPARE(preview.report().notes().size(), run.report().notes().size());
        // Paged back and forth, the last page twice: each as the whole run drew it.
        for (int page : {pages, 1, 2, pages}) {
            std::array<QImage, 2> images;
            for (int i = 0; i < 2; ++i) {
                const PageEngine &engine = i == 0 ? whole : shown;
                images[i] =
                    QImage((engine.pageSizeTwips(page) / 40).toSize(), QImage::Format_RGB32);
                images[i].fill(Qt::white);
                QPainter painter(&images[i]);
                engine.paintPage(painter, page, 36);
            }
            QVERIFY2(!images[1].isNull() && images[0] == images[1],
                     qPrintable(QString::number(page)));
        }
    }

    // A preview cancelled before its first piece says so and keeps at most
    // the page it had begun.
    void cancelledPreviewSaysSo()
    {
        PieceModel &model = PieceModel::shared();
        QVERIFY(LoadPieceByName(Labels, model));
        fixture::newSpool();
        fixture::feed(fixture::numbered(70));
        const std::atomic_bool cancel = true;
        PageEngine engine;
        PreviewRun preview(model, SharedSpool::instance().spoolPath());
        preview.setCancelFlag(&cancel);
        preview.run(engine);
        QVERIFY(preview.cancelled() && engine.pageCount() <= 1);
    }

    void overflowStaysOnItsPiece_data()
    {
        columns<bool, bool>("pdf", "wrap");
        QTest::newRow("pdf-file") << true << true;
        QTest::newRow("preview") << false << true;
        QTest::newRow("pdf-file-one-line") << true << false;
    }

    void overflowStaysOnItsPiece()
    {
        const auto [pdf, wrap] = fetched<bool, bool>("pdf", "wrap");
        PieceModel &model = PieceModel::shared();
        QVERIFY(LoadPieceByName(Labels, model));
        model.item(ItemId::Address).Wrap = wrap;
        fixture::newSpool();
        // Label 1's name wraps on far below the label, down the first column.
        QStringList records{person("Cy", QStringLiteral("Longname ").repeated(70)).join(';')};
        for (int i = 2; i <= 4; ++i)
            records.append(person(QStringLiteral("Eve%1").arg(i), "Ray").join(';'));
        fixture::feed(records);

        const double dpi = 50;
        QImage page;
        if (pdf) {
            if (QStandardPaths::findExecutable(QStringLiteral("pdftoppm")).isEmpty())
                QSKIP("pdftoppm (poppler-utils) is not installed");
            QTemporaryDir dir;
            const QString file = dir.filePath(QStringLiteral("clip.pdf"));
            QCOMPARE(PrintSpoolToPdf(file, model, SharedSpool::instance().reader()).errorCode, 0);
            page = pdfprobe::pages(file, int(dpi)).value(0);
            QVERIFY(!page.isNull());
        } else {
            PageEngine engine;
            engine.setPrintableOrigin(inchesToTwips(model.piece.PrinterLeft),
                                      inchesToTwips(model.piece.PrinterTop));
            PrintRun run(model, SharedSpool::instance().reader());
            run.RunPrintJob(engine);
            page = QImage(int(8.5 * dpi), int(11 * dpi), QImage::Format_RGB32);
            page.fill(Qt::white);
            QPainter painter(&page);
            engine.paintPage(painter, 1, dpi);
        }
        if (!wrap) {
            // Unwrapped, the name runs out of label 1, not into label 2 beside it.
            QVERIFY(ink(page, dpi, QRectF(1.5, 0.5, 1.0, 0.5)) > 0.02);
            QCOMPARE(ink(page, dpi, QRectF(4.3, 0.5, 1.1, 0.5)), 0.0);
            return;
        }
        // 5160: the first column at 0.1875 in, rows an inch apart from 0.5 in.
        // The lower half of label 1 is full of its name; that of label 4, under
        // it, shows nothing of it (label 4's own three lines are at its top).
        QVERIFY(ink(page, dpi, QRectF(0.3, 1.0, 2.3, 0.45)) > 0.02);
        QCOMPARE(ink(page, dpi, QRectF(0.3, 2.05, 2.3, 0.4)), 0.0);
        // Label 4 itself is there.
        QVERIFY(ink(page, dpi, QRectF(0.3, 1.55, 1.0, 0.4)) > 0.01);
    }
};

QTEST_MAIN(TestPreflight)
#include "tst_preflight.moc"
