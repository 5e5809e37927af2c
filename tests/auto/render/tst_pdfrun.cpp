// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
//
// Whole runs printed to PDF and read back with the poppler tools.
#include "pdfprobe.h"
#include "spoolfixture.h"

#include "catalogue/catalogue.h"
#include "catalogue/pieceloader.h"
#include "render/messagehook.h"
#include "render/pdfexport.h"
#include "render/printrun.h"
#include "surface/pageengine.h"

#include <QImage>
#include <QPainter>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>

using namespace quirra;

namespace {
constexpr double Tolerance = 0.25; // points

const pdfprobe::Word *findWord(const QList<pdfprobe::Word> &words, int page, const QString &text)
{
    for (const pdfprobe::Word &w : words) {
        if (w.page == page && w.text == text)
            return &w;
    }
    return nullptr;
}
} // namespace

class TestPdfRun : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init() { PieceModel::resetShared(); }

    void pageCounts_data();
    void pageCounts();
    void labelsLandWhereTheSheetHasThem();
    void everyProductOnItsRealSheet_data();
    void everyProductOnItsRealSheet();
    void alignment_data();
    void alignment();
    void leftEdgeClamp();
    void previewMatchesPrint();
    void unwritableFileIsAPrinterError();

private:
    QString pdfPath(const QString &name) const { return m_dir.filePath(name); }
    QTemporaryDir m_dir;
};

void TestPdfRun::initTestCase()
{
    if (QStandardPaths::findExecutable(QStringLiteral("pdftotext")).isEmpty())
        QSKIP("pdftotext (poppler-utils) is not installed; scripts/install-deps installs it");
    QVERIFY(m_dir.isValid());
}

void TestPdfRun::pageCounts_data()
{
    QTest::addColumn<QString>("piece");
    QTest::addColumn<int>("across");
    QTest::addColumn<int>("down");
    QTest::addColumn<int>("records");
    QTest::addColumn<int>("pages");
    QTest::addColumn<QSizeF>("pageSize");

    QTest::newRow("seven-on-three-by-two") << "5160 - Address Labels" << 3 << 2 << 7 << 2
                                           << QSizeF(612, 792);
    QTest::newRow("six-on-three-by-two") << "5160 - Address Labels" << 3 << 2 << 6 << 1
                                         << QSizeF(612, 792);
    QTest::newRow("a-full-5160-sheet-and-one") << "5160 - Address Labels" << 0 << 0 << 31 << 2
                                               << QSizeF(612, 792);
    QTest::newRow("envelope-one-page-each") << "Size 10 - Envelope" << 0 << 0 << 3 << 3
                                            << QSizeF(684, 297);
}

void TestPdfRun::pageCounts()
{
    QFETCH(QString, piece);
    QFETCH(int, across);
    QFETCH(int, down);
    QFETCH(int, records);
    QFETCH(int, pages);
    QFETCH(QSizeF, pageSize);
    PieceModel &model = PieceModel::shared();
    QVERIFY(LoadPieceByName(piece, model));
    if (across > 0) {
        model.piece.PieceNumAcross = qint16(across);
        model.piece.PieceNumDown = qint16(down);
    }
    SpoolFixture spool;
    spool.addNumbered(records);
    spool.close();
    const QString pdf = pdfPath(QStringLiteral("%1.pdf").arg(QTest::currentDataTag()));
    const PdfRunResult result = PrintSpoolToPdf(pdf, model, SharedSpool::instance().reader());
    QCOMPARE(result.errorCode, 0);
    QCOMPARE(result.pieces, qint64(records));

    const QList<QSizeF> sizes = pdfprobe::pageSizes(pdf);
    QCOMPARE(sizes.size(), pages);
    QVERIFY2(qAbs(sizes.first().width() - pageSize.width()) < 1
                 && qAbs(sizes.first().height() - pageSize.height()) < 1,
             qPrintable(QStringLiteral("%1 x %2").arg(sizes.first().width()).arg(
                 sizes.first().height())));
    // Every record made it, each exactly once.
    const QList<pdfprobe::Word> words = pdfprobe::words(pdf);
    for (int i = 1; i <= records; ++i) {
        const QString name = QStringLiteral("Name%1").arg(i);
        const auto n = std::count_if(words.begin(), words.end(),
                                     [&](const pdfprobe::Word &w) { return w.text == name; });
        QVERIFY2(n == 1, qPrintable(name));
    }
}

void TestPdfRun::labelsLandWhereTheSheetHasThem()
{
    PieceModel &model = PieceModel::shared();
    QVERIFY(LoadPieceByName(QStringLiteral("5160 - Address Labels"), model));
    SpoolFixture spool;
    spool.addNumbered(30);
    spool.close();
    const QString pdf = pdfPath(QStringLiteral("5160.pdf"));
    QCOMPARE(PrintSpoolToPdf(pdf, model, SharedSpool::instance().reader()).errorCode, 0);

    const Item &address = model.item(ItemId::Address);
    const QList<pdfprobe::Word> words = pdfprobe::words(pdf);
    const QList<pdfprobe::Line> lines = pdfprobe::lines(pdf);
    for (int slot : {1, 2, 3, 4, 17, 30}) {
        const int row = (slot - 1) / 3, column = (slot - 1) % 3;
        // Where the address box lies on the paper, in points.
        const double left = std::lrint((column * 2.75 + 0.1875) * 1440 + address.Left * 1440) / 20.0;
        const double top = std::lrint((row * 1.0 + 0.5) * 1440 + address.Top * 1440) / 20.0;
        const QString name = QStringLiteral("Name%1").arg(slot);
        const pdfprobe::Word *w = findWord(words, 1, name);
        QVERIFY2(w, qPrintable(name));
        QVERIFY2(qAbs(w->box.left() - left) < Tolerance,
                 qPrintable(QStringLiteral("%1 at x %2, box at %3").arg(name).arg(w->box.left()).arg(left)));
        // The name line is the first line of the box; the street and city lines follow it.
        QVERIFY2(w->box.top() >= top - Tolerance && w->box.top() < top + 4,
                 qPrintable(QStringLiteral("%1 at y %2, box at %3").arg(name).arg(w->box.top()).arg(top)));
        const pdfprobe::Word *street = findWord(words, 1, QString::number(slot));
        QVERIFY(street);
        QVERIFY(street->box.top() > w->box.top() + 5); // the next line, 80 % spacing
        QVERIFY(qAbs(street->box.left() - left) < Tolerance);
    }
    // The city line reads as the address rules made it.
    bool cityLine = false;
    for (const pdfprobe::Line &l : lines)
        cityLine = cityLine || l.text.startsWith(QLatin1String("Springfield, IL 62704"));
    QVERIFY(cityLine);
}

void TestPdfRun::everyProductOnItsRealSheet_data()
{
    QTest::addColumn<QString>("piece");
    const QString file = CatalogueFilePath();
    int products = 0;
    for (const QString &family : {LaserFamilySection, DotMatrixFamilySection}) {
        for (const QString &product : ReadProductList(file, family)) {
            for (const QString &piece : ReadPieceList(file, product)) {
                QTest::newRow(qPrintable(piece)) << piece;
                ++products;
            }
        }
    }
    QCOMPARE(products, 139);
}

// A full sheet of each shipped product: the page is the sheet's real size
// and each slot's marker lies where the sheet's geometry puts its address.
void TestPdfRun::everyProductOnItsRealSheet()
{
    QFETCH(QString, piece);
    PieceModel &model = PieceModel::shared();
    QVERIFY(LoadPieceByName(piece, model));
    const PieceSpec sheet = ReadPieceSpec(CatalogueFilePath(), piece);
    const Piece &p = model.piece;
    const int perSheet = p.PieceNumAcross * p.PieceNumDown;
    SpoolFixture spool;
    for (int slot = 1; slot <= perSheet; ++slot)
        spool.add({QStringLiteral("Q%1").arg(slot)});
    spool.close();
    const QString pdf = pdfPath(QStringLiteral("product.pdf"));
    QCOMPARE(PrintSpoolToPdf(pdf, model, SharedSpool::instance().reader()).errorCode, 0);

    const QList<QSizeF> sizes = pdfprobe::pageSizes(pdf);
    QCOMPARE(sizes.size(), 1);
    QSizeF page = sizes.first();
    const QSizeF real(sheet.PageWidth * 72.0, sheet.PageHeight * 72.0);
    if ((page.width() > page.height()) != (real.width() > real.height()))
        page.transpose();
    QVERIFY2(qAbs(page.width() - real.width()) <= 1.5 && qAbs(page.height() - real.height()) <= 1.5,
             qPrintable(QStringLiteral("page %1 x %2 pt, sheet %3 x %4 pt")
                            .arg(sizes.first().width())
                            .arg(sizes.first().height())
                            .arg(real.width())
                            .arg(real.height())));

    const Item &address = model.item(ItemId::Address);
    const QList<pdfprobe::Word> words = pdfprobe::words(pdf);
    for (int slot = 1; slot <= perSheet; ++slot) {
        const SlotPlace place = placeOfSlot(p, slot);
        // What lies in the strip the printer cannot reach is drawn at its edge.
        const double left =
            std::max(place.left + inchesToTwips(address.Left), inchesToTwips(p.PrinterLeft)) / 20.0;
        const double top =
            std::max(place.top + inchesToTwips(address.Top), inchesToTwips(p.PrinterTop)) / 20.0;
        const QString marker = QStringLiteral("Q%1").arg(slot);
        const pdfprobe::Word *w = findWord(words, 1, marker);
        QVERIFY2(w, qPrintable(marker + QStringLiteral(" is not on the page")));
        QVERIFY2(qAbs(w->box.left() - left) < 1 && w->box.top() > top - 1 &&
                     w->box.top() < top + 6 && w->box.right() <= sizes.first().width() &&
                     w->box.bottom() <= sizes.first().height(),
                 qPrintable(QStringLiteral("%1 at %2, %3 pt; its box at %4, %5 pt")
                                .arg(marker)
                                .arg(w->box.left())
                                .arg(w->box.top())
                                .arg(left)
                                .arg(top)));
    }
}

void TestPdfRun::alignment_data()
{
    QTest::addColumn<int>("align");
    QTest::newRow("centred") << int(haCenter);
    QTest::newRow("right") << int(haRight);
}

void TestPdfRun::alignment()
{
    QFETCH(int, align);
    PieceModel &model = PieceModel::shared();
    QVERIFY(LoadPieceByName(QStringLiteral("Size 10 - Envelope"), model));
    Item &address = model.item(ItemId::Address);
    address.HorzAlign = eHorzAlign(align);
    SpoolFixture spool;
    spool.add({QStringLiteral("Ann"), QString(), QStringLiteral("Lee"), QStringLiteral("1 Elm St"),
               QString(), QStringLiteral("Troy"), QStringLiteral("NY"), QStringLiteral("12180")});
    spool.close();
    const QString pdf = pdfPath(QStringLiteral("align-%1.pdf").arg(align));
    QCOMPARE(PrintSpoolToPdf(pdf, model, SharedSpool::instance().reader()).errorCode, 0);

    const double boxLeft = std::lrint(address.Left * 1440) / 20.0;
    const double boxRight = boxLeft + std::lrint(address.Width * 1440) / 20.0;
    QList<pdfprobe::Line> lines = pdfprobe::lines(pdf);
    const double boxTop = std::lrint(address.Top * 1440) / 20.0;
    lines.removeIf([&](const pdfprobe::Line &l) { return l.top < boxTop - 1 || l.top > boxTop + 40; });
    QCOMPARE(lines.size(), 3);
    for (const pdfprobe::Line &l : lines) {
        if (align == haCenter) {
            QVERIFY2(qAbs((l.left + l.right) / 2 - (boxLeft + boxRight) / 2) < 1.0,
                     qPrintable(l.text));
        } else {
            QVERIFY2(qAbs(l.right - boxRight) < 1.0, qPrintable(l.text));
        }
    }
}

void TestPdfRun::leftEdgeClamp()
{
    PieceModel &model = PieceModel::shared();
    QVERIFY(LoadPieceByName(QStringLiteral("Size 10 - Envelope"), model));
    Item &ret = model.item(ItemId::Return);
    ret.Left = 0.05f; // inside the strip the printer cannot reach
    ret.Text = QStringLiteral("ACME Mail");
    SpoolFixture spool;
    spool.addNumbered(1);
    spool.close();
    const QString pdf = pdfPath(QStringLiteral("clamp.pdf"));
    QCOMPARE(PrintSpoolToPdf(pdf, model, SharedSpool::instance().reader()).errorCode, 0);
    const QList<pdfprobe::Word> words = pdfprobe::words(pdf);
    const pdfprobe::Word *w = findWord(words, 1, QStringLiteral("ACME"));
    QVERIFY(w);
    // Return is centred in its box; the box itself starts at the printable edge, 18 pt in.
    const double boxWidth = std::lrint(ret.Width * 1440) / 20.0;
    const pdfprobe::Word *mail = findWord(words, 1, QStringLiteral("Mail"));
    QVERIFY(mail);
    QVERIFY2(qAbs((w->box.left() + mail->box.right()) / 2 - (18 + boxWidth / 2)) < 1.0,
             qPrintable(QString::number(w->box.left())));
}

void TestPdfRun::previewMatchesPrint()
{
    PieceModel &model = PieceModel::shared();
    QVERIFY(LoadPieceByName(QStringLiteral("5160 - Address Labels"), model));
    model.item(ItemId::Address).Width = 1.5f; // narrow: long lines must wrap
    SpoolFixture spool;
    for (int i = 0; i < 12; ++i) {
        spool.add({QStringLiteral("Bartholomew"), QStringLiteral("Alexander"),
                   QStringLiteral("Worthington-Smythe%1").arg(i),
                   QStringLiteral("12345 Extraordinarily Long Boulevard"), QString(),
                   QStringLiteral("Springfield"), QStringLiteral("IL"), QStringLiteral("62704")});
    }
    spool.close();

    // Preview first, then print the same spool.
    PageEngine preview;
    preview.setPrintableOrigin(360, 360);
    preview.setPreview(true);
    SharedSpool::instance().reader().setSpoolExhausted(false);
    PrintRun(model, SharedSpool::instance().reader()).RunPrintJob(preview);
    QCOMPARE(preview.pageCount(), 1);

    const QString pdf = pdfPath(QStringLiteral("preview-vs-print.pdf"));
    QCOMPARE(PrintSpoolToPdf(pdf, model, SharedSpool::instance().reader()).pages, 1);

    // The preview page at 72 dpi against the PDF rasterised at 72 dpi: the
    // same ink in the same rows, so the same line breaks.
    QImage shown(612, 792, QImage::Format_Grayscale8);
    shown.fill(Qt::white);
    {
        QPainter p(&shown);
        preview.paintPage(p, 1, 72);
    }
    QProcess raster;
    raster.start(QStringLiteral("pdftoppm"), {QStringLiteral("-r"), QStringLiteral("72"),
                                              QStringLiteral("-gray"), QStringLiteral("-singlefile"),
                                              pdf, m_dir.filePath(QStringLiteral("printed"))});
    QVERIFY(raster.waitForFinished(30000));
    QImage printed(m_dir.filePath(QStringLiteral("printed.pgm")));
    QVERIFY(!printed.isNull());
    printed = printed.convertToFormat(QImage::Format_Grayscale8);
    QCOMPARE(printed.size(), shown.size());

    auto inkRows = [](const QImage &img) {
        QList<int> rows;
        for (int y = 0; y < img.height(); ++y) {
            const uchar *line = img.constScanLine(y);
            int ink = 0;
            for (int x = 0; x < img.width(); ++x)
                ink += line[x] < 128 ? 1 : 0;
            rows.append(ink > 0 ? 1 : 0);
        }
        return rows;
    };
    const QList<int> a = inkRows(shown), b = inkRows(printed);
    int differing = 0, inked = 0;
    for (int y = 0; y < a.size(); ++y) {
        differing += a[y] != b[y] ? 1 : 0;
        inked += a[y];
    }
    QVERIFY(inked > 100);
    QVERIFY2(differing <= inked / 20, qPrintable(QStringLiteral("%1 of %2 rows differ").arg(differing).arg(inked)));
}

void TestPdfRun::unwritableFileIsAPrinterError()
{
    PieceModel &model = PieceModel::shared();
    QVERIFY(LoadPieceByName(QStringLiteral("Size 10 - Envelope"), model));
    SpoolFixture spool;
    spool.addNumbered(1);
    spool.close();
    QStringList messages;
    quirra::setMessageHook([&](const QString &t) { messages.append(t); });
    const PdfRunResult r = PrintSpoolToPdf(QStringLiteral("/nonexistent-folder/x.pdf"), model,
                                           SharedSpool::instance().reader());
    quirra::setMessageHook({});
    QVERIFY(r.errorCode != 0);
    QCOMPARE(r.pieces, qint64(0));
    QCOMPARE(messages.size(), 1);
    QVERIFY(messages.first().startsWith(QLatin1String("Ptr.error = ")));
}

QTEST_MAIN(TestPdfRun)
#include "tst_pdfrun.moc"
