// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#include "columns.h"
#include "surface/pageengine.h"
#include "surface/pdftarget.h"

#include "pdfprobe.h"

#include <QPainter>
#include <QRegularExpression>
#include <QTest>

using namespace quirra;

namespace {

// Liberation Sans (the Arial the tests print with) has a line of 1.149 em:
// 230 twips at 10 points.
constexpr int arialLine10 = 230;
constexpr double quarterPoint = 0.25;

using Script = std::function<void(PageEngine &)>;

long peakRssKiB()
{
    QFile status(QStringLiteral("/proc/self/status"));
    if (!status.open(QIODevice::ReadOnly))
        return -1;
    for (const QByteArray &line : status.readAll().split('\n'))
        if (line.startsWith("VmHWM:"))
            return line.mid(6).trimmed().split(' ').first().toLong();
    return -1;
}

int darkPixels(const QImage &image, const QRect &area)
{
    int n = 0;
    const QRect r = area.intersected(image.rect());
    for (int y = r.top(); y <= r.bottom(); ++y)
        for (int x = r.left(); x <= r.right(); ++x)
            n += qGray(image.pixel(x, y)) < 128 ? 1 : 0;
    return n;
}

// Horizontal extent of the ink in rows top..bottom-1; (-1, -1) when there is none.
QPair<int, int> inkSpan(const QImage &image, int top, int bottom)
{
    int left = -1, right = -1;
    for (int y = top; y < bottom; ++y)
        for (int x = 0; x < image.width(); ++x)
            if (qGray(image.pixel(x, y)) < 128) {
                left = left < 0 ? x : std::min(left, x);
                right = std::max(right, x);
            }
    return {left, right};
}

void box(Surface &e, const QString &text, int left = 0, int top = 0, bool border = false)
{
    e.textBox(text, left, top, 2880, 720, true, false, border);
}

} // namespace

class TestPageEngine : public QObject
{
    Q_OBJECT

private:
    // Prints script to a PDF file in print mode and returns its path.
    QString print(const QString &name, const Script &script, QPoint origin = QPoint())
    {
        const QString path = m_dir.filePath(name + u".pdf");
        PdfTarget target(path);
        PageEngine engine;
        engine.setPrintTarget(&target);
        engine.setPreview(false);
        engine.setPrintableOrigin(origin.x(), origin.y());
        script(engine);
        return path;
    }
    // Records script in preview and paints page 1 at dpi into a white image.
    static QImage previewImage(const Script &script, int dpi)
    {
        PageEngine engine;
        script(engine);
        QImage image((engine.pageSizeTwips(1) * dpi / 1440.0).toSize(), QImage::Format_RGB32);
        image.fill(Qt::white);
        QPainter painter(&image);
        engine.paintPage(painter, 1, dpi);
        return image;
    }

    QTemporaryDir m_dir;

private Q_SLOTS:
    void initTestCase()
    {
        QVERIFY(m_dir.isValid());
        for (const char *tool : {"pdfinfo", "pdftotext", "pdftoppm"})
            QVERIFY2(QProcess::execute(QString::fromLatin1(tool), {QStringLiteral("-v")}) == 0,
                     "the PDF checks need poppler-utils");
    }

    void paperAndOrientation_data()
    {
        // paperTaken, orientationTaken: read back; a refused value leaves Letter portrait
        // customTwips: given before the paper code; empty: none
        columns<int, int, QSizeF, int, int, QSize>("paper", "orientation", "points", "paperTaken",
                                                   "orientationTaken", "customTwips");

        QTest::newRow("letter-portrait") << 1 << 0 << QSizeF(612, 792) << 1 << 0 << QSize();
        QTest::newRow("legal") << 5 << 0 << QSizeF(612, 1008) << 5 << 0 << QSize();
        QTest::newRow("no10-envelope-landscape")
            << 20 << 1 << QSizeF(684, 297) << 20 << 1 << QSize();
        QTest::newRow("a4") << 9 << 0 << QSizeF(595.3, 841.9) << 9 << 0 << QSize();
        QTest::newRow("dl-landscape") << 27 << 1 << QSizeF(623.6, 311.8) << 27 << 1 << QSize();
        QTest::newRow("c5") << 28 << 0 << QSizeF(459.2, 649.1) << 28 << 0 << QSize();
        QTest::newRow("monarch") << 37 << 0 << QSizeF(279, 540) << 37 << 0 << QSize();
        QTest::newRow("six-and-three-quarter") << 38 << 0 << QSizeF(261, 468) << 38 << 0 << QSize();
        QTest::newRow("paper-code-zero-refused") << 0 << 1 << QSizeF(792, 612) << 1 << 1 << QSize();
        QTest::newRow("unknown-paper-code-refused")
            << 999 << 0 << QSizeF(612, 792) << 1 << 0 << QSize();
        QTest::newRow("b6-envelope-landscape-stays-landscape")
            << 35 << 1 << QSizeF(498.9, 354.3) << 35 << 1 << QSize();
        QTest::newRow("custom-continuous-row-landscape")
            << 256 << 1 << QSizeF(1065.6, 72) << 256 << 1 << QSize(21312, 1440);
        QTest::newRow("custom-without-a-size-refused")
            << 256 << 0 << QSizeF(612, 792) << 1 << 0 << QSize();
        QTest::newRow("orientation-two-refused")
            << 5 << 2 << QSizeF(612, 1008) << 5 << 0 << QSize();
    }

    void paperAndOrientation()
    {
        QFETCH(int, paper);
        QFETCH(int, orientation);
        QFETCH(QSizeF, points);
        QFETCH(QSize, customTwips);

        const QString file = print(QTest::currentDataTag(), [&](PageEngine &e) {
            e.setOrientation(orientation);
            e.setCustomPaperSize(customTwips.width(), customTwips.height());
            e.setPaperSize(paper);
            QTEST(e.paperSize(), "paperTaken");
            QTEST(e.orientation(), "orientationTaken");
            e.setAction(SurfaceAction::StartDoc);
            e.setAction(SurfaceAction::EndDoc);
        });
        const QList<QSizeF> sizes = pdfprobe::pageSizes(file);
        QCOMPARE(sizes.size(), 1);
        QVERIFY2(
            qAbs(sizes[0].width() - points.width()) < 1 &&
                qAbs(sizes[0].height() - points.height()) < 1,
            qPrintable(QStringLiteral("%1 x %2 pt").arg(sizes[0].width()).arg(sizes[0].height())));
    }

    void textPlacement_data()
    {
        // margins: left, top; indents: left, right
        columns<QString, int, bool, QPoint, QPoint, QPoint, QStringList, QString>(
            "text", "align", "wrap", "origin", "margins", "indents", "lines", "edges");
        // Per line: L starts at the text's left edge, R ends at its right edge,
        // C is centred between them, B touches both.

        const QString fox = QStringLiteral(
            "The quick brown fox jumps over the lazy dog and keeps running far away");
        const QStringList foxLines{"The quick brown fox jumps over",
                                   "the lazy dog and keeps running", "far away"};
        const QString hello = QStringLiteral("Hello world");
        const auto row = [](const char *tag, const QString &text, int align,
                            const QStringList &lines, const QString &edges, QPoint origin = {},
                            QPoint margins = {}, QPoint indents = {}, bool wrap = true) {
            QTest::newRow(tag) << text << align << wrap << origin << margins << indents << lines
                               << edges;
        };
        row("left-at-the-box-corner", hello, 0, {hello}, "L");
        row("printable-origin-moves-everything", hello, 0, {hello}, "L", QPoint(360, 720));
        row("margins-and-indent-move-the-text", hello, 0, {hello}, "L", QPoint(360, 360),
            QPoint(720, 288), QPoint(432, 0));
        row("centred", hello, 1, {hello}, "C");
        row("centred-between-indents", hello, 1, {hello}, "C", {}, {}, QPoint(720, 0));
        row("right", hello, 2, {hello}, "R", QPoint(250, 0));
        row("right-short-of-the-indent", hello, 2, {hello}, "R", {}, {}, QPoint(0, 576));
        row("wrap-breaks-at-words", fox, 0, foxLines, "LLL");
        row("justified-but-the-last-line", fox, 9, foxLines, "BBL");
        row("justified-paragraphs-end-unstretched",
            QStringLiteral("The quick brown fox jumps over the lazy dog\rand stops"), 9,
            {"The quick brown fox jumps over", "the lazy dog", "and stops"}, "BLL");
        row("cr-lf-cr-and-lf-all-break", QStringLiteral("One\r\nTwo\rThree\nFour"), 2,
            {"One", "Two", "Three", "Four"}, "RRRR");
        row("unwrapped-long-line-starts-at-the-left", fox, 1, {fox}, "L", {}, {}, {}, false);
    }

    void textPlacement()
    {
        QFETCH(QString, text);
        QFETCH(int, align);
        QFETCH(bool, wrap);
        QFETCH(QPoint, origin);
        QFETCH(QPoint, margins);
        QFETCH(QPoint, indents);
        QFETCH(QString, edges);

        const QRect area(1440, 1440, 2880, 1440);
        const QString file = print(
            QTest::currentDataTag(),
            [&](PageEngine &e) {
                e.setMarginLeft(margins.x());
                e.setMarginTop(margins.y());
                e.setIndentLeft(indents.x());
                e.setIndentRight(indents.y());
                e.setTextAlign(align);
                e.setAction(SurfaceAction::StartDoc);
                e.textBox(text, area.x(), area.y(), area.width(), area.height(), wrap, false,
                          false);
                e.setAction(SurfaceAction::EndDoc);
            },
            origin);

        const QList<pdfprobe::Line> printed = pdfprobe::lines(file);
        QStringList texts;
        for (const auto &l : printed)
            texts << l.text;
        QTEST(texts, "lines");

        const double left = (origin.x() + margins.x() + area.x() + indents.x()) / 20.0;
        const double right =
            (origin.x() + margins.x() + area.x() + area.width() - indents.y()) / 20.0;
        const double top = (origin.y() + margins.y() + area.y()) / 20.0;
        for (int i = 0; i < printed.size(); ++i) {
            const auto &l = printed[i];
            const QString where = QString::asprintf("line %d: %g..%g pt in %g..%g pt", i, l.left,
                                                    l.right, left, right);
            QVERIFY2(qAbs(l.top - (top + i * arialLine10 / 20.0)) < quarterPoint,
                     qPrintable(where));
            const QChar edge = edges.at(i);
            if (edge == u'L' || edge == u'B')
                QVERIFY2(qAbs(l.left - left) < quarterPoint, qPrintable(where));
            if (edge == u'R' || edge == u'B')
                QVERIFY2(qAbs(l.right - right) < quarterPoint, qPrintable(where));
            if (edge == u'L' && wrap) // not stretched
                QVERIFY2(l.right < right - 1, qPrintable(where));
            if (edge == u'C')
                QVERIFY2(qAbs((l.left + l.right) / 2 - (left + right) / 2) < quarterPoint,
                         qPrintable(where));
        }
    }

    void textHeight_data()
    {
        // wrap: in a box 2 inches wide
        columns<QString, int, bool, int>("text", "spacing", "wrap", "twips");

        const auto row = [](const char *tag, const QString &text, int twips, int spacing = 100,
                            bool wrap = false) {
            QTest::newRow(tag) << text << spacing << wrap << twips;
        };
        row("one-line", "Alpha", arialLine10);
        row("two-lines", "Alpha\rBeta", 2 * arialLine10);
        row("three-lines", "A\rB\rC", 3 * arialLine10);
        row("three-lines-at-80-percent", "A\rB\rC", 552, 80);
        row("cr-lf-is-one-break", "A\r\nB", 460);
        row("break-at-the-end-adds-no-line", "A\r", 230);
        row("cr-lf-at-the-end-adds-no-line", "A\r\n", 230);
        row("blank-line-between-counts", "A\r\rB", 690);
        row("empty-text-has-no-height", QString(), 0);
        row("wrapping-adds-a-line", "The quick brown fox jumps over the lazy dog", 460, 100, true);
        row("kerned-line-trailing-blanks", QString::fromUtf8("AVAWAY Tö Wavy  OH  43604   "),
            arialLine10);
    }

    void textHeight()
    {
        const auto [text, spacing, wrap, twips] =
            fetched<QString, int, bool, int>("text", "spacing", "wrap", "twips");
        PageEngine e;
        e.setFontSize(10);
        e.setLineSpacing(spacing);
        e.textBox(text, 0, 0, 2880, 100, wrap, true, false);
        QVERIFY2(qAbs(e.textHeight() - twips) <= 1, qPrintable(QString::number(e.textHeight())));
        // What is measured (the city line's fit) is what the box lays out.
        if (!wrap)
            QCOMPARE(qRound(e.TextWidth(text)), e.textWidthLaidOut());
    }

    // Each style a host sets shows in what is drawn.
    void fontStylesShow_data()
    {
        const Rows<int> row("style");
        row("bold", 0);
        row("italic", 1);
        row("underline", 2);
        row("strike-out", 3);
    }

    void fontStylesShow()
    {
        QFETCH(int, style);
        const auto drawn = [style](bool on) {
            return previewImage(
                [&](PageEngine &e) {
                    e.setAction(SurfaceAction::StartDoc);
                    const std::array<void (PageEngine::*)(bool), 4> setters{
                        &PageEngine::setFontBold, &PageEngine::setFontItalic,
                        &PageEngine::setFontUnderline, &PageEngine::setFontStrikethrough};
                    (e.*setters[size_t(style)])(on);
                    box(e, QStringLiteral("Hello"));
                    e.setAction(SurfaceAction::EndDoc);
                },
                144);
        };
        QVERIFY(drawn(true) != drawn(false));
    }

    void outputTextFollowsTheCurrentPosition()
    {
        int afterHello = 0, nextY = 0;
        double helloWidth = 0, worldWidth = 0;
        const QString file = print(QStringLiteral("output-text"), [&](PageEngine &e) {
            e.outputText(QStringLiteral("Ignored")); // no document yet
            e.setAction(SurfaceAction::StartDoc);
            e.setCurrentX(1440);
            e.setCurrentY(2880);
            helloWidth = e.TextWidth(QStringLiteral("Hello"));
            worldWidth = e.TextWidth(QStringLiteral("world"));
            e.outputText(QStringLiteral("Hello "));
            afterHello = e.currentX();
            e.outputText(QStringLiteral("world\rNext\r")); // a return ends its line only
            nextY = e.currentY();
            e.setAction(SurfaceAction::EndDoc);
        });
        const auto lines = pdfprobe::lines(file);
        QCOMPARE(lines.size(), 2);
        QCOMPARE(lines[0].text, QStringLiteral("Hello world"));
        QVERIFY(qAbs(lines[0].left - 72.0) < quarterPoint &&
                qAbs(lines[0].top - 144.0) < quarterPoint);
        // What the surface measures is what it prints: "world" starts where
        // "Hello " left the position (a blank past "Hello") and ends its measured
        // width later.
        QVERIFY(afterHello > 1440 + helloWidth + 20 && afterHello < 1440 + helloWidth + 80);
        QVERIFY(qAbs(lines[0].right - (afterHello + worldWidth) / 20.0) < quarterPoint);
        QCOMPARE(lines[1].text, QStringLiteral("Next"));
        QVERIFY(qAbs(lines[1].left) < quarterPoint &&
                qAbs(lines[1].top - (144.0 + arialLine10 / 20.0)) < quarterPoint);
        QCOMPARE(nextY, 2880 + arialLine10);
    }

    void headerAndFooter_data()
    {
        // expected: page 1 then page 2, top to bottom
        columns<QString, QString, int, QStringList>("header", "footer", "firstNumber", "expected");

        QTest::newRow("header-counts-from-the-first-number")
            << QStringLiteral("Page %d") << QString() << 5
            << QStringList{"Page 5", "body", "Page 6", "body"};
        QTest::newRow("footer-below-the-body") << QString() << QStringLiteral("Sheet %d") << 1
                                               << QStringList{"body", "Sheet 1", "body", "Sheet 2"};
        // Wider than the margins leave: one line from the left margin, never a second.
        const QString wide =
            QStringLiteral("Page %d of the spring mailing to all the members and friends of "
                           "the Westbury Garden Society");
        QTest::newRow("wide-header-stays-one-line")
            << wide << QString() << 1
            << QStringList{QString(wide).replace("%d", "1"), "body",
                           QString(wide).replace("%d", "2"), "body"};
    }

    void headerAndFooter()
    {
        QFETCH(QString, header);
        QFETCH(QString, footer);
        QFETCH(int, firstNumber);
        const int margin = 720, origin = 360;
        const QString file = print(
            QTest::currentDataTag(),
            [&](PageEngine &e) {
                e.setMarginTop(margin);
                e.setMarginBottom(margin);
                e.setMarginLeft(2880);
                e.setMarginRight(2880);
                e.setHeader(header);
                e.setFooter(footer);
                e.setFirstPageNumber(firstNumber);
                e.setAction(SurfaceAction::StartDoc);
                box(e, QStringLiteral("body"));
                e.setAction(SurfaceAction::NewPage);
                box(e, QStringLiteral("body"));
                e.setAction(SurfaceAction::EndDoc);
            },
            QPoint(origin, origin));
        QStringList texts;
        for (const auto &l : pdfprobe::lines(file)) {
            texts << l.text;
            if (l.text == u"body")
                continue;
            // Centred between the margins of the printable area (Letter less the
            // origin's strip on both sides), inside the top or bottom margin.
            const double left = (origin + 2880) / 20.0, right = (12240 - origin - 2880) / 20.0;
            if (l.right - l.left < right - left)
                QVERIFY2(qAbs((l.left + l.right) / 2 - (left + right) / 2) < quarterPoint,
                         qPrintable(l.text));
            else
                QVERIFY2(qAbs(l.left - left) < quarterPoint, qPrintable(l.text));
            const double band = header.isEmpty() ? (15840 - origin - margin) / 20.0 : origin / 20.0;
            QVERIFY2(l.top >= band && l.top + arialLine10 / 20.0 <= band + margin / 20.0,
                     qPrintable(l.text));
        }
        QTEST(texts, "expected");
    }

    void previewFrames_data()
    {
        // frame: ink along all four edges; filled: ink in the lower right of the box;
        // inkBelow: text running on below the box
        columns<QString, bool, bool, int, int, int, bool, bool, bool>(
            "text", "border", "layoutOnly", "pen", "brush", "penWidth", "frame", "filled",
            "inkBelow");

        const QString hi = QStringLiteral("Hi"), tall = QStringLiteral("1\r2\r3\r4\r5\r6");
        QTest::newRow("frame-round-the-box-not-the-text")
            << hi << true << false << 1 << 0 << 20 << true << false << false;
        QTest::newRow("thick-frame-stays-inside")
            << QString() << true << false << 1 << 0 << 100 << true << false << false;
        QTest::newRow("no-border-no-frame")
            << hi << false << false << 1 << 0 << 20 << false << false << false;
        QTest::newRow("layout-only-draws-nothing")
            << hi << true << true << 1 << 1 << 20 << false << false << false;
        QTest::newRow("pen-none-draws-no-frame")
            << QString() << true << false << 0 << 0 << 20 << false << false << false;
        QTest::newRow("solid-brush-fills-the-box")
            << QString() << true << false << 1 << 1 << 20 << true << true << false;
        QTest::newRow("tall-text-runs-on-below")
            << tall << true << false << 1 << 0 << 20 << true << false << true;
    }

    void previewFrames()
    {
        QFETCH(QString, text);
        QFETCH(bool, border);
        QFETCH(bool, layoutOnly);
        QFETCH(int, pen);
        QFETCH(int, brush);
        QFETCH(int, penWidth);
        QFETCH(bool, frame);
        // No style the rows set (none, solid) is taken for an unknown one.
        QTest::failOnWarning(QRegularExpression(QStringLiteral("is not known")));

        // At 144 dpi a pixel is 10 twips: the box is (144, 144) 288 x 72 pixels.
        const QImage image = previewImage(
            [&](PageEngine &e) {
                e.setPenStyle(pen);
                e.setBrushStyle(brush);
                e.setPenWidth(penWidth);
                e.setAction(SurfaceAction::StartDoc);
                e.textBox(text, 1440, 1440, 2880, 720, true, layoutOnly, border);
                e.setAction(SurfaceAction::EndDoc);
            },
            144);
        const QRect area(144, 144, 288, 72);
        // Nothing above or beside the box (a pixel of rounding allowed); below it
        // only text that runs on.
        const QRect upToBox(0, 0, image.width(), area.bottom() + 2);
        QCOMPARE(darkPixels(image, upToBox) - darkPixels(image, area.adjusted(-1, -1, 1, 1)), 0);
        QTEST(darkPixels(image, QRect(0, area.bottom() + 2, image.width(), image.height())) > 0,
              "inkBelow");
        const QList<QRect> edges{QRect(area.left() + 40, area.top(), 200, 1),
                                 QRect(area.left() + 40, area.bottom(), 200, 1),
                                 QRect(area.left(), area.top() + 20, 1, 30),
                                 QRect(area.right(), area.top() + 20, 1, 30)};
        for (const QRect &edge : edges)
            QCOMPARE(darkPixels(image, edge) > edge.width() * edge.height() / 3, frame);
        QTEST(darkPixels(image, QRect(area.left() + 160, area.top() + 40, 100, 20)) > 0, "filled");
        if (penWidth >= 100) // a ring 10 pixels wide, all inside
            QCOMPARE(darkPixels(image, QRect(area.left() + 40, area.top() + 8, 200, 1)), 200);
    }

    void previewAndPdfBreakAlike_data()
    {
        columns<QString, int, double>("text", "align", "points");

        QTest::newRow("justified") << QStringLiteral("Please deliver to the back door between nine "
                                                     "and five on weekdays only, thank you")
                                   << 9 << 11.0;
        QTest::newRow("centred-odd-size")
            << QStringLiteral("Winterbottom Logistics International Holdings Limited") << 1 << 13.5;
    }

    void previewAndPdfBreakAlike()
    {
        QFETCH(QString, text);
        QFETCH(int, align);
        QFETCH(double, points);

        int lineTwips = 0;
        const Script script = [&](PageEngine &e) {
            e.setFontSize(points);
            e.setTextAlign(align);
            e.setAction(SurfaceAction::StartDoc);
            e.textBox(QStringLiteral("X"), 0, 0, 100, 100, false, true, false);
            lineTwips = e.textHeight();
            e.textBox(text, 1440, 1440, 2500, 2880, true, false, false);
            e.setAction(SurfaceAction::EndDoc);
        };
        const int dpi = 144;
        const QImage preview = previewImage(script, dpi);
        const QString stem = m_dir.filePath(QString::fromLatin1(QTest::currentDataTag()));
        QCOMPARE(QProcess::execute(QStringLiteral("pdftoppm"),
                                   {"-r", QString::number(dpi), "-gray", "-singlefile",
                                    print(QTest::currentDataTag(), script), stem}),
                 0);
        const QImage printed(stem + u".pgm");
        QCOMPARE(printed.size(), preview.size());

        // Line by line the ink must start and end at the same place (within two
        // pixels of anti-aliasing): a word on another line would move an end by
        // a word's width. Only the band between x-height and baseline is looked
        // at, where the lines above and below never reach.
        const double pitch = lineTwips * dpi / 1440.0;
        int lines = 0;
        for (int i = 0; i < 12; ++i) {
            const int top = int(144 + (i + 0.4) * pitch), bottom = int(144 + (i + 0.75) * pitch);
            const auto a = inkSpan(preview, top, bottom), b = inkSpan(printed, top, bottom);
            QVERIFY2(qAbs(a.first - b.first) <= 2 && qAbs(a.second - b.second) <= 2,
                     qPrintable(QString::asprintf("line %d: preview %d..%d, pdf %d..%d", i, a.first,
                                                  a.second, b.first, b.second)));
            lines += a.first >= 0 ? 1 : 0;
        }
        QVERIFY(lines >= 2);
    }

    void errorCodes_data()
    {
        columns<bool, QString, bool, int>("preview", "file", "abort", "error");

        QTest::newRow("preview-never-fails") << true << QString() << false << 0;
        QTest::newRow("writable-pdf") << false << QStringLiteral("ok.pdf") << false << 0;
        QTest::newRow("aborted-pdf-leaves-no-file")
            << false << QStringLiteral("gone.pdf") << true << 0;
        QTest::newRow("unwritable-pdf")
            << false << QStringLiteral("/quirra-no-such-dir/x.pdf") << false << 2;
        QTest::newRow("no-output-at-all") << false << QString() << false << 1;
    }

    void errorCodes()
    {
        const auto [preview, file, abort, error] =
            fetched<bool, QString, bool, int>("preview", "file", "abort", "error");
        const QString path = file.startsWith(u'/') || file.isEmpty() ? file : m_dir.filePath(file);
        PdfTarget target(path);
        PageEngine e;
        e.setPreview(preview);
        e.setPrintTarget(file.isEmpty() ? nullptr : &target);
        e.setAction(SurfaceAction::StartDoc);
        QCOMPARE(e.errorCode(), error);
        // A document that failed to open takes drawing calls without harm.
        e.textBox(QStringLiteral("text"), 0, 0, 1440, 1440, true, false, true);
        e.outputText(QStringLiteral("text"));
        e.setAction(SurfaceAction::NewPage);
        e.setAction(abort ? SurfaceAction::AbortDoc : SurfaceAction::EndDoc);
        const bool printed = error == 0 && !preview && !abort;
        QCOMPARE(pdfprobe::pageSizes(path).size(), printed ? 2 : 0);
        QCOMPARE(QFile::exists(path), printed);
        // The next good start clears the error.
        e.setPreview(true);
        e.setAction(SurfaceAction::StartDoc);
        QCOMPARE(e.errorCode(), 0);
    }

    void printPageSendsThePageOnShow()
    {
        // Three pages; an orientation set on a page takes effect on the next one.
        const Script pages = [](PageEngine &e) {
            e.setAction(SurfaceAction::StartDoc);
            const QStringList texts{"First page", "Second page", "Third page"};
            for (int i = 0; i < 3; ++i) {
                if (i > 0)
                    e.setAction(SurfaceAction::NewPage);
                box(e, texts[i], 2000, 1000, true);
                e.setOrientation(i == 0 ? 1 : 0);
            }
            e.setAction(SurfaceAction::EndDoc);
        };
        const QString direct = print(QStringLiteral("direct"), pages, QPoint(360, 360));
        QCOMPARE(pdfprobe::pageSizes(direct), (QList<QSizeF>{{612, 792}, {792, 612}, {612, 792}}));

        const QString path = m_dir.filePath(QStringLiteral("print-page.pdf"));
        PdfTarget target(path);
        PageEngine e;
        e.setPrintTarget(&target);
        e.setPrintableOrigin(360, 360);
        pages(e);
        QCOMPARE(e.pageCount(), 3);
        e.setPreviewPage(7);
        QCOMPARE(e.previewPage(), 3);
        e.setPreviewPage(2);
        e.setAction(SurfaceAction::PrintPage);
        QCOMPARE(e.errorCode(), 0);

        // The page on show reaches the printer as it printed directly.
        QCOMPARE(pdfprobe::pageSizes(path), QList<QSizeF>{QSizeF(792, 612)});
        const auto printed = pdfprobe::lines(path), expected = pdfprobe::lines(direct);
        QCOMPARE(printed.size(), 1);
        QCOMPARE(printed[0].text, expected[1].text);
        for (auto edge : {&pdfprobe::Line::left, &pdfprobe::Line::right, &pdfprobe::Line::top})
            QVERIFY(qAbs(printed[0].*edge - expected[1].*edge) < quarterPoint);
    }

    void memoryStaysFlat_data()
    {
        // kibPerThousandPages: growth allowed past the first thousand
        columns<bool, int, int>("preview", "pages", "kibPerThousandPages");
        // Print keeps nothing per page but the file's page index, a few bytes
        // each (keeping the drawing: some 60 MB more). A long preview keeps its
        // first page and the last few shown (keeping every page shown: some 3 MB
        // more). Print runs first: the preview's peak would hide it.
        QTest::newRow("print") << false << 20000 << 215;
        QTest::newRow("preview-paged-through") << true << 6000 << 100;
    }

    void memoryStaysFlat()
    {
#if defined(__SANITIZE_ADDRESS__)
        QSKIP("the address sanitizer holds freed memory back for a while: peak memory tells "
              "nothing about the engine here (make test measures it)");
#endif
        QFETCH(bool, preview);
        QFETCH(int, pages);
        QFETCH(int, kibPerThousandPages);
        const auto drawPage = [](Surface &s, int page) {
            for (int slot = 0; slot < 3; ++slot)
                box(s,
                    QStringLiteral("Recipient %1\r12 Long Street\rSpringfield")
                        .arg(page * 3 + slot),
                    slot * 3960, 0, true);
        };
        PdfTarget target(m_dir.filePath(QStringLiteral("long-run.pdf")));
        PageEngine e;
        e.setPrintTarget(&target);
        e.setPreview(preview);
        e.setAction(SurfaceAction::StartDoc);
        if (preview) {
            drawPage(e, 1);
            e.setAction(SurfaceAction::EndDoc);
            e.setPageSource(pages, [&](int page, Surface &s) {
                s.setAction(SurfaceAction::StartDoc);
                drawPage(s, page);
                s.setAction(SurfaceAction::EndDoc);
            });
        }
        long afterFirstThousand = 0;
        for (int page = 1; page <= pages; ++page) {
            if (!preview && page > 1)
                e.setAction(SurfaceAction::NewPage);
            if (!preview)
                drawPage(e, page);
            else // shown: drawn by the source
                QVERIFY(!e.pageSizeTwips(page).isEmpty());
            if (page == 1000)
                afterFirstThousand = peakRssKiB();
        }
        e.setAction(SurfaceAction::EndDoc);
        const long afterAll = peakRssKiB();
        QCOMPARE(e.pageCount(), pages);
        QVERIFY(afterFirstThousand > 0);
        QVERIFY2(afterAll - afterFirstThousand < long(kibPerThousandPages) * (pages - 1000) / 1000,
                 qPrintable(QStringLiteral("peak RSS grew from %1 KiB to %2 KiB")
                                .arg(afterFirstThousand)
                                .arg(afterAll)));
    }
};

QTEST_MAIN(TestPageEngine)
#include "tst_pageengine.moc"
