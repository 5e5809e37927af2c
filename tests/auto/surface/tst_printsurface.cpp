// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#include "columns.h"
#include "printing/printsurface.h"

#include "nowindowleft.h"
#include "pdfprobe.h"

#include <QPrinter>
#include <QScrollBar>
#include <QTest>

using namespace quirra;

class TestPrintSurface : public QObject
{
    Q_OBJECT

private:
    QTemporaryDir m_dir;

private Q_SLOTS:
    void cleanup() { verifyNoWindowLeft(); }
    void printing_data()
    {
        columns<QString, QString, bool>("outputFile", "printerName", "fails");

        QTest::newRow("pdf-file") << m_dir.filePath(QStringLiteral("out.pdf")) << QString()
                                  << false;
        QTest::newRow("unwritable-output-file")
            << QStringLiteral("/quirra-no-such-dir/out.pdf") << QString() << true;
        QTest::newRow("no-such-printer")
            << QString() << QStringLiteral("quirra-no-such-printer") << true;
    }

    void printing()
    {
        const auto [outputFile, printerName, fails] =
            fetched<QString, QString, bool>("outputFile", "printerName", "fails");
        PrintSurface surface;
        if (!printerName.isEmpty()) {
            surface.printer()->setOutputFormat(QPrinter::NativeFormat);
            // Not printer()->setPrinterName(): QPrinter keeps the default
            // printer for a name it does not know, and would print there.
            surface.setPrinterName(printerName);
        } else {
            surface.printer()->setOutputFileName(outputFile);
        }
        surface.setPreview(false);
        surface.setPrintableOrigin(360, 720);
        surface.setPaperSize(20);
        surface.setOrientation(1);
        QCOMPARE(surface.paperSize(), 20);
        surface.setAction(SurfaceAction::StartDoc);
        QCOMPARE(surface.errorCode() != 0, fails);
        surface.textBox(QStringLiteral("Printed"), 1440, 1440, 2880, 720, true, false, false);
        surface.setAction(SurfaceAction::EndDoc);
        if (fails)
            return;
        // The printer is used full page: the text lies one inch from the
        // printable corner, which lies at the origin from the paper's corner.
        QCOMPARE(pdfprobe::pageSizes(outputFile), QList<QSizeF>{QSizeF(684, 297)});
        const auto words = pdfprobe::words(outputFile);
        QCOMPARE(words.size(), 1);
        QVERIFY(qAbs(words[0].box.left() - (360 + 1440) / 20.0) < 0.25);
        QVERIFY(qAbs(words[0].box.top() - (720 + 1440) / 20.0) < 0.25);
    }

    void pageOnShow_data()
    {
        // inches: the page on show, as oriented
        columns<int, int, QSizeF>("page", "zoom", "inches");

        QTest::newRow("first-page-at-a-quarter") << 1 << 25 << QSizeF(8.5, 11);
        QTest::newRow("landscape-second-page") << 2 << 25 << QSizeF(11, 8.5);
        QTest::newRow("larger-than-the-widget-scrolls") << 1 << 400 << QSizeF(8.5, 11);
    }

    void pageOnShow()
    {
        const auto [page, zoom, inches] = fetched<int, int, QSizeF>("page", "zoom", "inches");
        PrintSurface surface;
        surface.resize(900, 700);
        surface.show();
        QVERIFY(QTest::qWaitForWindowExposed(&surface));
        // Page 1: Letter with a framed box one inch from the printable corner;
        // page 2: Letter landscape.
        surface.setPrintableOrigin(360, 360);
        surface.setPenWidth(120);
        surface.setAction(SurfaceAction::StartDoc);
        surface.textBox(QString(), 1440, 1440, 2880, 1440, true, false, true);
        surface.setOrientation(1);
        surface.setAction(SurfaceAction::NewPage);
        surface.setAction(SurfaceAction::EndDoc);
        surface.setZoom(zoom);
        surface.setPreviewPage(page);

        const double pixelsPerInch = surface.logicalDpiX() * zoom / 100.0;
        const QRect rect = surface.pageRect();
        QVERIFY(qAbs(rect.width() - inches.width() * pixelsPerInch) <= 1);
        QVERIFY(qAbs(rect.height() - inches.height() * pixelsPerInch) <= 1);
        const QSize view = surface.viewport()->size();
        QScrollBar *h = surface.horizontalScrollBar();
        if (rect.width() < view.width()) {
            QCOMPARE(h->maximum(), 0);
            QVERIFY(qAbs(rect.center().x() - view.width() / 2) <= 1);
            QVERIFY(qAbs(rect.center().y() - view.height() / 2) <= 1);
        } else {
            QVERIFY(h->maximum() >= rect.width() - view.width());
            h->setValue(500);
            QCOMPARE(surface.pageRect().left(), rect.left() - 500);
            return;
        }
        const QImage shot = surface.viewport()->grab().toImage();
        const int ground = qGray(shot.pixel(2, 2));
        QVERIFY(ground > 128 && ground < 230); // a grey round the page
        QCOMPARE(QColor(shot.pixel(rect.center())), QColor(Qt::white));
        QVERIFY(qGray(shot.pixel(rect.bottomRight() + QPoint(3, 3))) < ground - 16); // shadow
        // The frame of page 1, 1.25 inch from the paper's corner.
        const QPoint onFrame = rect.topLeft() + QPoint(int(2.25 * pixelsPerInch),
                                                       int((1800 + 60) * pixelsPerInch / 1440));
        QCOMPARE(qGray(shot.pixel(onFrame)) < 160, page == 1);
    }
};

QTEST_MAIN(TestPrintSurface)
#include "tst_printsurface.moc"
