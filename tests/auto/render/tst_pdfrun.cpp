// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
//
// Whole runs printed to PDF and read back with the poppler tools.
#include "columns.h"
#include "pdfprobe.h"
#include "spoolfixture.h"

#include "catalogue/catalogue.h"
#include "catalogue/piececatalogue.h"
#include "catalogue/pieceloader.h"
#include "records/intelligentmail.h"
#include "render/pdfexport.h"
#include "settings/files.h"

#include <QStandardPaths>
#include <QTest>

using namespace quirra;

namespace {
constexpr double Tolerance = 0.25; // points

// The installed label-template database, whatever the test's own setting.
QString installedTemplates()
{
    const QByteArray own = qgetenv("QUIRRA_TEMPLATE_DIR");
    qunsetenv("QUIRRA_TEMPLATE_DIR");
    const QStringList folders = Catalogue::defaultTemplateFolders();
    qputenv("QUIRRA_TEMPLATE_DIR", own);
    return folders.isEmpty() ? QString() : folders.last();
}
} // namespace

class TestPdfRun : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        if (QStandardPaths::findExecutable(QStringLiteral("pdftotext")).isEmpty())
            QSKIP("pdftotext (poppler-utils) is not installed; scripts/install-deps installs it");
        QVERIFY(m_dir.isValid());
    }

    void init()
    {
        PieceModel::resetShared();
        fixture::newSpool();
    }
    void cleanup() { QFile::remove(SharedSpool::instance().spoolPath()); }

    void itemPlacement_data()
    {
        // left: inches; below 0: where the envelope's layout has it
        columns<int, int, float>("item", "align", "left");
        QTest::newRow("address-centred") << int(ItemId::Address) << int(haCenter) << -1.f;
        QTest::newRow("address-right") << int(ItemId::Address) << int(haRight) << -1.f;
        // Inside the strip the printer cannot reach: the box starts at its edge, 18 pt in.
        QTest::newRow("return-at-the-printable-edge")
            << int(ItemId::Return) << int(haCenter) << 0.05f;
    }

    void itemPlacement()
    {
        QFETCH(int, item);
        QFETCH(int, align);
        QFETCH(float, left);
        PieceModel &model = PieceModel::shared();
        QVERIFY(LoadPieceByName(QStringLiteral("Size 10 - Envelope"), model));
        Item &it = model.item(ItemId(item));
        it.HorzAlign = eHorzAlign(align);
        if (left >= 0)
            it.Left = left;
        model.item(ItemId::Return).Text = QStringLiteral("ACME Mail\r1 Way");
        model.item(ItemId::Stamp).Visible = false; // on the return's first line, far right
        fixture::feed({QStringLiteral("Ann;;Lee;1 Elm St;;Troy;NY;12180")});
        const QString pdf = m_dir.filePath(QStringLiteral("%1.pdf").arg(QTest::currentDataTag()));
        QCOMPARE(PrintSpoolToPdf(pdf, model, SharedSpool::instance().reader()).errorCode, 0);

        const double boxLeft = std::max(18.0, std::lrint(it.Left * 1440) / 20.0);
        const double boxRight = boxLeft + std::lrint(it.Width * 1440) / 20.0;
        const double boxTop = std::max(18.0, std::lrint(it.Top * 1440) / 20.0);
        QList<pdfprobe::Line> lines = pdfprobe::lines(pdf);
        lines.removeIf([&](const pdfprobe::Line &l) {
            return l.top < boxTop - 1 || l.top > boxTop + 40 || l.right < boxLeft ||
                   l.left > boxRight;
        });
        QCOMPARE(lines.size(), item == int(ItemId::Address) ? 3 : 2);
        for (const pdfprobe::Line &l : lines) {
            const double off = align == haCenter ? (l.left + l.right - boxLeft - boxRight) / 2
                                                 : l.right - boxRight;
            QVERIFY2(qAbs(off) < 1.0,
                     qPrintable(QStringLiteral("%1: %2 pt off").arg(l.text).arg(off)));
        }
    }

    void everyProductOnItsRealSheet_data()
    {
        columns<QString>("piece");
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
        // Imported products, checked against the database's own numbers.
        for (const char *piece : {"Avery L7163", "Avery 5160", "Avery L7651", "Herma 4284"})
            QTest::newRow(piece) << QString::fromLatin1(piece);
    }

    // A full sheet of each shipped product: the page is the sheet's real size
    // and each slot's marker lies where the sheet's geometry puts its address.
    void everyProductOnItsRealSheet()
    {
        QFETCH(QString, piece);
        PieceModel &model = PieceModel::shared();
        PieceSpec sheet = ReadPieceSpec(CatalogueFilePath(), piece);
        LabelTemplate imported;
        if (sheet.NumAcross < 1) {
            const QString folder = installedTemplates();
            if (folder.isEmpty())
                QSKIP("the label-template database (Debian glabels-data) is not installed");
            const Catalogue catalogue(SystemDirectory(), {folder});
            QVERIFY(catalogue.loadPiece(piece, model));
            sheet = catalogue.piece(piece);
            for (const LabelTemplate &t : readTemplateFolder(folder).templates) {
                if (t.name() == piece)
                    imported = t;
            }
            QCOMPARE(imported.name(), piece);
            QVERIFY(qAbs(sheet.PageWidth - imported.pageWidth) < 1e-5 &&
                    qAbs(sheet.PageHeight - imported.pageHeight) < 1e-5);
        } else {
            QVERIFY(LoadPieceByName(piece, model));
        }
        const Piece &p = model.piece;
        const int perSheet = p.PieceNumAcross * p.PieceNumDown;
        QStringList markers;
        for (int slot = 1; slot <= perSheet; ++slot)
            markers.append(QStringLiteral("Q%1").arg(slot));
        fixture::feed(markers);
        const QString pdf = m_dir.filePath(QStringLiteral("product.pdf"));
        QCOMPARE(PrintSpoolToPdf(pdf, model, SharedSpool::instance().reader()).errorCode, 0);

        const QList<QSizeF> sizes = pdfprobe::pageSizes(pdf);
        QCOMPARE(sizes.size(), 1);
        QSizeF page = sizes.first();
        const QSizeF real(sheet.PageWidth * 72.0, sheet.PageHeight * 72.0);
        if ((page.width() > page.height()) != (real.width() > real.height()))
            page.transpose();
        QVERIFY2(
            qAbs(page.width() - real.width()) <= 1.5 && qAbs(page.height() - real.height()) <= 1.5,
            qPrintable(QString::asprintf("page %g x %g pt, sheet %g x %g pt", sizes.first().width(),
                                         sizes.first().height(), real.width(), real.height())));

        const Item &address = model.item(ItemId::Address);
        const QList<pdfprobe::Word> words = pdfprobe::words(pdf);
        for (int slot = 1; slot <= perSheet; ++slot) {
            SlotPlace place = placeOfSlot(p, slot);
            if (!imported.part.isEmpty()) {
                // Where the database puts the label of that row and column.
                QVERIFY(place.column < imported.across && place.row < imported.down);
                place.left = inchesToTwips(imported.marginLeft + place.column * imported.pitchHorz);
                place.top = inchesToTwips(imported.marginTop + place.row * imported.pitchVert);
            }
            // What lies in the strip the printer cannot reach is drawn at its edge.
            const double left =
                std::max(place.left + inchesToTwips(address.Left), inchesToTwips(p.PrinterLeft)) /
                20.0;
            const double top =
                std::max(place.top + inchesToTwips(address.Top), inchesToTwips(p.PrinterTop)) /
                20.0;
            const QString marker = QStringLiteral("Q%1").arg(slot);
            const pdfprobe::Word *w = pdfprobe::find(words, marker, 1);
            QVERIFY2(w, qPrintable(marker + QStringLiteral(" is not on the page")));
            QVERIFY2(qAbs(w->box.left() - left) < 1 && w->box.top() > top - 1 &&
                         w->box.top() < top + 6 && w->box.right() <= sizes.first().width() &&
                         w->box.bottom() <= sizes.first().height(),
                     qPrintable(QString::asprintf("Q%d at %g, %g pt; its box at %g, %g pt", slot,
                                                  w->box.left(), w->box.top(), left, top)));
        }
    }

    void barcodeAsThePostalServiceMeasuresIt_data()
    {
        const Rows<QString, QString, int, int> row("barCode", "zip", "align", "vertical");
        row("zip5-after-dash", "01234567094987654321-01234", "99999", int(haLeft), int(vaTop));
        row("zip11-run-on", "0123456709498765432101234567891", "", int(haCenter), int(vaMiddle));
        row("zip9-from-record", "01234567094987654321", "01234-5678", int(haLeft), int(vaBottom));
    }

    void barcodeAsThePostalServiceMeasuresIt()
    {
        QFETCH(QString, barCode);
        QFETCH(QString, zip);
        QFETCH(int, align);
        QFETCH(int, vertical);
        PieceModel &model = PieceModel::shared();
        QVERIFY(LoadPieceByName(QStringLiteral("Size 10 - Envelope"), model));
        model.AddressBarcode = true;
        Item &address = model.item(ItemId::Address);
        address.HorzAlign = eHorzAlign(align);
        address.VertAlign = eVertAlign(vertical);
        for (ItemId id : {ItemId::Return, ItemId::Message1, ItemId::Message2, ItemId::Stamp})
            model.item(id).Visible = false;
        fixture::feed({QStringLiteral("Ann;;Lee;1 Elm St;;Troy;NY;%1;;%2").arg(zip, barCode)});
        const QString pdf = m_dir.filePath(QStringLiteral("imb.pdf"));
        QCOMPARE(PrintSpoolToPdf(pdf, model, SharedSpool::instance().reader()).errorCode, 0);
        const QImage page = pdfprobe::pages(pdf, 600).value(0);
        QVERIFY(!page.isNull());

        // The bars are the lowest ink on the envelope, apart from the text above them.
        const auto dark = [&](int x, int y) { return page.constScanLine(y)[x] < 128; };
        const auto rowInked = [&](int y) {
            for (int x = 0; x < page.width(); ++x)
                if (dark(x, y))
                    return true;
            return false;
        };
        int bottom = page.height() - 1;
        while (bottom > 0 && !rowInked(bottom))
            --bottom;
        int top = bottom;
        while (top > 0 && rowInked(top - 1))
            --top;
        // The block makes room for its barcode line, wherever it stands in its box.
        QVERIFY2(bottom <= (address.Top + address.Height) * 600,
                 qPrintable(QStringLiteral("%1 > %2").arg(bottom).arg(
                     (address.Top + address.Height) * 600)));
        QString bars;
        QList<int> lefts;
        constexpr double Dpi = 600, Edge = 3; // pixels of rounding at a bar's end
        for (int x = 0; x < page.width(); ++x) {
            int y0 = -1, y1 = -1;
            for (int y = top; y <= bottom; ++y) {
                if (dark(x, y)) {
                    y1 = y;
                    y0 = y0 < 0 ? y : y0;
                }
            }
            if (y0 < 0)
                continue;
            // A new bar: its ends tell its state. A tracker is 0.039 to 0.057 in
            // long, an ascender or descender 0.085 to 0.115 in.
            const bool up = y0 - top < Edge, down = bottom - y1 < Edge;
            const double length = (y1 - y0 + 1) / Dpi;
            if (!up && !down)
                QVERIFY(length >= 0.039 && length <= 0.057);
            else if (up != down)
                QVERIFY2(length >= 0.085 && length <= 0.115, qPrintable(QString::number(length)));
            bars.append(QLatin1Char(up && down ? 'F' : up ? 'A' : down ? 'D' : 'T'));
            int width = 0;
            while (x + width < page.width() && dark(x + width, (y0 + y1) / 2))
                ++width;
            QVERIFY2(width >= 0.015 * Dpi && width <= 0.025 * Dpi,
                     qPrintable(QString::number(width)));
            lefts.append(x);
            x += width - 1;
        }
        QCOMPARE(bars, IntelligentMailBarcode(barCode, zip).bars());
        const double full = (bottom - top + 1) / Dpi;
        QVERIFY2(full >= 0.125 && full <= 0.165, qPrintable(QString::number(full)));
        const double perInch = (lefts.size() - 1) * Dpi / (lefts.last() - lefts.first());
        QVERIFY2(perInch >= 20 && perInch <= 24, qPrintable(QString::number(perInch)));
    }

private:
    QTemporaryDir m_dir;
};

QTEST_MAIN(TestPdfRun)
#include "tst_pdfrun.moc"
