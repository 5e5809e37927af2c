// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
//
// The quirra program run as a user runs it: CSV files in, PDF files and
// messages out, read back with the poppler tools.
#include "columns.h"
#include "pdfprobe.h"
#include "quirrarun.h"
#include "spoolfixture.h"

#include "control/quirra.h"
#include "properties/jsonpropertybag.h"

#include <QStandardPaths>
#include <QTest>

#include <sys/stat.h>
#include <sys/sysmacros.h>

namespace {

using Run = QuirraRun;

QString dataFile(const QString &name)
{
    return QStringLiteral(QUIRRA_TEST_DATA "/") + name;
}

QString examples(const QString &name)
{
    return QStringLiteral(QUIRRA_SOURCE_ROOT "/examples/") + name;
}

// The lines of one page, top to bottom. Some fonts set "fi" as one glyph,
// which poppler hands back as the ligature: it is read as the two letters.
QList<pdfprobe::Line> pageLines(const QString &pdf, int page)
{
    QList<pdfprobe::Line> result;
    for (pdfprobe::Line line : pdfprobe::lines(pdf)) {
        if (line.page != page)
            continue;
        line.text.replace(QChar(0xFB01), QLatin1String("fi"))
            .replace(QChar(0xFB02), QLatin1String("fl"));
        result << line;
    }
    return result;
}

} // namespace

class TestCli : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        if (QStandardPaths::findExecutable(QStringLiteral("pdftotext")).isEmpty())
            QSKIP("pdftotext (poppler-utils) is not installed; scripts/install-deps installs it");
        QVERIFY(QFileInfo::exists(QStringLiteral(QUIRRA_BINARY)));
    }

    void init()
    {
        m_dir = std::make_unique<QTemporaryDir>();
        QVERIFY(m_dir->isValid());
    }

    void badInputLeavesNoFile_data()
    {
        const Rows<QStringList, int, QStringList> row("arguments", "status", "message");

        const QString pdf = QStringLiteral("--pdf=%OUT%/out.pdf");
        row("empty-file", {pdf, "%DATA%/empty.csv"}, 1,
            {"empty.csv: the file is empty", "header row"});
        row("header-only", {pdf, "%DATA%/header_only.csv"}, 1,
            {"header_only.csv: no records after the header"});
        row("ragged-row", {pdf, "%DATA%/ragged.csv"}, 1,
            {"ragged.csv: line 4: the row has 5 fields but the header has 6"});
        row("set-without-equals", {pdf, "--set", "ReturnText", "%DATA%/people.csv"}, 2,
            {"write it as NAME=VALUE"});
        row("layout-not-json", {pdf, "--layout", "%DATA%/broken_layout.json", "%DATA%/people.csv"},
            1, {"--layout", "broken_layout.json"});
        row("pdf-folder-missing", {"--pdf", "%OUT%/no/such/folder/out.pdf", "%DATA%/people.csv"}, 1,
            {"does not exist"});
        row("pdf-and-printer", {pdf, "--printer", "lp", "%DATA%/people.csv"}, 2,
            {"either --pdf or --printer"});
        row("unknown-printer", {"--printer", "no-such-printer", "%DATA%/people.csv"}, 1,
            {"there is no printer named \"no-such-printer\""});
        row("unknown-piece", {pdf, "--piece", "5160", "%DATA%/people.csv"}, 2,
            {"no piece \"5160\"; did you mean \"5160 - Address Labels\""});
        row("unknown-piece-in-layout",
            {pdf, "--layout", "%DATA%/unknown_piece_layout.json", "%DATA%/people.csv"}, 2,
            {"unknown_piece_layout.json: the catalogue has no piece \"5160 Address "
             "Labels\"; did you mean \"5160 - Address Labels\""});
        row("text-over-64-kib",
            {pdf, "--set", "ReturnText=" + QString(70000, QLatin1Char('x')), "%DATA%/people.csv"},
            1, {"ReturnText is 70000 characters long; a text may have at most 65536"});
        row("length-beyond-any-sheet", {pdf, "--set", "AddressTop=250", "%DATA%/people.csv"}, 1,
            {"AddressTop is 250 in; a length on a sheet is from 0 to 100 in"});
        row("scale-beyond-the-range", {pdf, "--set", "PrinterScaleX=120", "%DATA%/people.csv"}, 1,
            {"PrinterScaleX is 120 %; the printer's scale is from 90 to 110 %"});
        row("unknown-option", {pdf, "--colour", "red", "%DATA%/people.csv"}, 2,
            {"quirra print: Unknown option 'colour'"});
        row("copies-not-a-whole-number", {pdf, "--copies-column", "Last", "%DATA%/people.csv"}, 1,
            {"people.csv: line 2: the copies column \"Last\" holds \"Holloway\""});
        row("pages-beyond-the-run", {pdf, "--pages", "5-6", "%DATA%/people.csv"}, 1,
            {"pages 5-6: the pieces fill fewer pages than that"});
        row("pages-backwards", {pdf, "--pages", "3-2", "%DATA%/people.csv"}, 2,
            {"--pages 3-2: give a page or a range"});
        row("start-beyond-the-sheet",
            {pdf, "--piece", "5160 - Address Labels", "--start", "31", "%DATA%/people.csv"}, 1,
            {"--start 31: the sheet of \"5160 - Address Labels\" has 30 slots"});
        // A layout that cannot be laid out fails in the print run itself.
        row("no-piece-across", {pdf, "--set", "PieceNumAcross=0", "%DATA%/people.csv"}, 1,
            {"has 0 pieces across; set PieceNumAcross to 1 or more"});
    }

    void badInputLeavesNoFile()
    {
        const auto [arguments, message] = fetched<QStringList, QStringList>("arguments", "message");

        // An older file of the target's name stays as it was.
        QVERIFY(fixture::overwrite(out(QStringLiteral("out.pdf")), "older run"));

        const Run run = quirra(QStringList{QStringLiteral("print")} + expand(arguments));
        QTEST(run.status, "status");
        for (const QString &part : message)
            QVERIFY2(run.err.contains(part), qPrintable(run.err));
        QVERIFY2(!run.err.contains(QLatin1String("records,")), qPrintable(run.err));

        QCOMPARE(fixture::contents(out(QStringLiteral("out.pdf"))), QByteArray("older run"));
        const QStringList left = QDir(m_dir->path()).entryList(QDir::Files | QDir::Hidden);
        QCOMPARE(left, QStringList{QStringLiteral("out.pdf")});
    }

    void printsEveryRecordOnItsPiece_data()
    {
        // lastFirstName: the last record's first name
        columns<QString, QString, int, QSizeF, QString, QStringList>(
            "csv", "piece", "pages", "pageSize", "lastFirstName", "options");

        QTest::newRow("labels-30-up-69-records")
            << examples("addresses.csv") << "5160 - Address Labels" << 3 << QSizeF(612, 792)
            << "Albert" << QStringList();
        // Three of the first record, none of the second, one of the last.
        QTest::newRow("copies-from-a-column")
            << dataFile("copies.csv") << "Size 10 - Envelope" << 4 << QSizeF(684, 297) << "Li"
            << QStringList{"--copies-column", "count"};
    }

    void printsEveryRecordOnItsPiece()
    {
        const auto [csv, piece, pages, pageSize, lastFirstName, options] =
            fetched<QString, QString, int, QSizeF, QString, QStringList>(
                "csv", "piece", "pages", "pageSize", "lastFirstName", "options");

        const QString pdf = out(QStringLiteral("run.pdf"));
        const Run run = quirra(QStringList{"print", "--piece", piece, "--pdf", pdf, csv} + options);
        QVERIFY2(run.status == 0, qPrintable(run.err));
        QVERIFY2(run.err.contains(QStringLiteral("%1 %2 on \"%3\"")
                                      .arg(pages)
                                      .arg(pages == 1 ? "page" : "pages", piece)),
                 qPrintable(run.err));

        // Written through a private temporary file, the PDF still gets the
        // permissions of any new file.
        const mode_t mask = umask(0);
        umask(mask);
        struct stat info;
        QCOMPARE(::stat(QFile::encodeName(pdf).constData(), &info), 0);
        QCOMPARE(info.st_mode & 0777, 0666 & ~mask);

        const QList<QSizeF> sizes = pdfprobe::pageSizes(pdf);
        QCOMPARE(sizes.size(), pages);
        QCOMPARE(sizes.first().toSize(), pageSize.toSize());

        // The first record starts the first label; the last one is on the last page.
        const QList<pdfprobe::Word> words = pdfprobe::words(pdf);
        QCOMPARE(pdfprobe::find(words, QStringLiteral("Margaret"), 1), words.constData());
        QVERIFY(pdfprobe::find(words, lastFirstName, pages));
    }

    // The first page's lines, top to bottom, and where the address starts.
    void printedPage_data()
    {
        // addressLeft: points from the paper's edge
        const Rows<QStringList, QStringList, double> row("options", "lines", "addressLeft");

        const QStringList address{"Margaret Holloway", "1427 Birchwood Lane",
                                  "Springfield, IL 62704"};
        row("later-set-wins", {"--set", "ReturnText=First", "--set", "ReturnText=Second"},
            QStringList{"Second"} + address, 312.0);
        row("bool-hides-the-address",
            {"--set", "ReturnText=Sender", "--set", "AddressVisible=false"}, {"Sender"}, 0.0);
        // The saved layout moves the address to 0.5 inch from the envelope's edge.
        const QStringList layout{"--layout", "%OUT%/layout.json"};
        row("layout-alone", layout, QStringList{"From the layout"} + address, 36.0);
        row("set-overrides-layout", layout + QStringList{"--set", "ReturnText=Overridden"},
            QStringList{"Overridden"} + address, 36.0);
        // Choosing the piece again lays the items out afresh; texts stay, and
        // the empty ones get no placeholder.
        row("piece-reloads-default-boxes", layout + QStringList{"--piece", "Size 10 - Envelope"},
            QStringList{"From the layout"} + address, 312.0);
        // --set comes after --piece, wherever it stands on the command line.
        row("set-applies-after-piece",
            layout + QStringList{"--set", "AddressLeft=0.5", "--piece", "Size 10 - Envelope"},
            QStringList{"From the layout"} + address, 36.0);
    }

    void printedPage()
    {
        const auto [options, addressLeft] = fetched<QStringList, double>("options", "addressLeft");

        Quirra control;
        control.AddressLeft(0.5f);
        control.ReturnText(QStringLiteral("From the layout"));
        quirra::JsonPropertyBag bag;
        control.WriteProperties(bag);
        bag.save(out(QStringLiteral("layout.json")));
        const QString pdf = out(QStringLiteral("page.pdf"));
        const Run run =
            quirra(QStringList{"print", "--pdf", pdf} + expand(options) << dataFile("people.csv"));
        QVERIFY2(run.status == 0, qPrintable(run.err));
        QCOMPARE(pdfprobe::pageSizes(pdf).size(), 4);

        QStringList texts;
        double left = addressLeft;
        for (const pdfprobe::Line &l : pageLines(pdf, 1)) {
            texts << l.text;
            left = l.text == QLatin1String("Margaret Holloway") ? l.left : left;
        }
        QTEST(texts, "lines");
        QVERIFY2(qAbs(left - addressLeft) < 1,
                 qPrintable(QStringLiteral("left %1, expected %2").arg(left).arg(addressLeft)));
    }

    void readsStandardInput()
    {
        const QByteArray bytes = fixture::contents(dataFile(QStringLiteral("people.csv")));
        const QString pdf = out(QStringLiteral("stdin.pdf"));
        // The second run replaces the first one's file.
        for (const QStringList &source : {QStringList{"-"}, QStringList()}) {
            const Run run = quirra(QStringList{"print", "--pdf", pdf} + source, bytes);
            QVERIFY2(run.status == 0, qPrintable(run.err));
            QVERIFY(run.err.contains(QLatin1String("4 records, 4 pages")));
            QVERIFY(pdfprobe::find(pdfprobe::words(pdf), QStringLiteral("Ångström")));
        }
        const Run bad = quirra({"print", "--pdf", pdf, "-"}, "first,last\nAnn,\"Lee\n");
        QCOMPARE(bad.status, 1);
        QVERIFY2(bad.err.contains(QLatin1String("standard input: line 3: column 2")),
                 qPrintable(bad.err));
    }

    void outputPathKinds_data()
    {
        // kind: what stands at the --pdf path
        columns<QString, int, QString>("kind", "status", "message");

        QTest::newRow("fifo") << "fifo" << 1 << "is a named pipe (FIFO); --pdf needs";
        QTest::newRow("device") << "device" << 1 << "is a device; --pdf needs";
        QTest::newRow("symlink-followed") << "symlink" << 0 << "4 records, 4 pages";
        QTest::newRow("private-file-stays-private") << "file-0600" << 0 << "4 records, 4 pages";
    }

    void outputPathKinds()
    {
        const auto [kind, status, message] =
            fetched<QString, int, QString>("kind", "status", "message");

        const QString path = out(QStringLiteral("out.pdf"));
        const QByteArray native = QFile::encodeName(path);
        const QString real = out(QStringLiteral("real.pdf"));
        if (kind == QLatin1String("fifo")) {
            QCOMPARE(::mkfifo(native.constData(), 0644), 0);
        } else if (kind == QLatin1String("device")) {
            // The null device's numbers, made here: replacing it would need root.
            if (::mknod(native.constData(), S_IFCHR | 0600, makedev(1, 3)) != 0)
                QSKIP("cannot make a device node here (needs root)");
        } else if (kind == QLatin1String("symlink")) {
            QVERIFY(fixture::overwrite(real, "older run"));
            QVERIFY(QFile::link(QStringLiteral("real.pdf"), path));
        } else {
            QVERIFY(fixture::overwrite(path, "older run"));
            QCOMPARE(::chmod(native.constData(), 0600), 0);
        }
        struct stat before;
        QCOMPARE(::lstat(native.constData(), &before), 0);

        const Run run = quirra({"print", "--pdf", path, dataFile("people.csv")});
        QCOMPARE(run.status, status);
        QVERIFY2(run.err.contains(message), qPrintable(run.err));
        struct stat after;
        QCOMPARE(::lstat(native.constData(), &after), 0);
        if (status != 0) {
            // Refused before any work: the thing is as it was, nothing beside it.
            QCOMPARE(after.st_mode, before.st_mode);
            QCOMPARE(after.st_rdev, before.st_rdev);
            QCOMPARE(QDir(m_dir->path()).entryList(QDir::Files | QDir::Hidden | QDir::System),
                     QStringList{QStringLiteral("out.pdf")});
            return;
        }
        QCOMPARE(after.st_mode, before.st_mode); // the link is still a link; the mode kept
        QCOMPARE(pdfprobe::pageSizes(kind == QLatin1String("symlink") ? real : path).size(), 4);
    }

    void versionAndHelp_data()
    {
        // output: the start of standard output
        columns<QStringList, QString>("arguments", "output");

        QTest::newRow("version") << QStringList{"--version"} << "quirra 0.";
        QTest::newRow("help") << QStringList{"--help"} << "usage: quirra print";
        QTest::newRow("print-help") << QStringList{"print", "--help"} << "Usage: quirra print";
    }

    void versionAndHelp()
    {
        const auto [arguments, output] = fetched<QStringList, QString>("arguments", "output");

        const Run run = quirra(arguments);
        QCOMPARE(run.status, 0);
        QVERIFY2(run.out.startsWith(output), qPrintable(run.out));
        QCOMPARE(run.err, QString());
        // A command's options take one line each, every one of them listed.
        if (output.startsWith(QLatin1String("Usage:"))) {
            QVERIFY2(!run.out.contains(QLatin1String("\n      ")), qPrintable(run.out));
            for (const char *option :
                 {"--piece", "--layout", "--set", "--pdf", "--pages", "--printer", "--start",
                  "--outlines", "--copies-column", "--strict"})
                QVERIFY2(run.out.contains(QLatin1String("\n  ") + QLatin1String(option)), option);
        }
    }

    void progressOnRequestOnly()
    {
        const QString pdf = out(QStringLiteral("progress.pdf"));
        const Run quiet = quirra({"print", "--pdf", pdf, examples("addresses.csv")});
        QCOMPARE(quiet.status, 0);
        QVERIFY2(!quiet.err.contains(QLatin1Char('\r')), qPrintable(quiet.err));

        const Run shown = quirra({"print", "--progress", "--piece", "5160 - Address Labels",
                                  "--pdf", pdf, examples("addresses.csv")});
        QCOMPARE(shown.status, 0);
        QVERIFY2(shown.err.contains(QLatin1String("100%  69 records\n")), qPrintable(shown.err));
        QVERIFY2(shown.err.contains(QLatin1String("100%  page 3 of 3\n")), qPrintable(shown.err));
    }

    void previewWithoutDisplay()
    {
        QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
        for (const char *name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"})
            env.remove(QLatin1String(name));
        const Run run = runQuirra(m_dir->path(), {"preview", dataFile("people.csv")}, {}, env);
        QVERIFY2(run.status == 1 && run.err.contains(QLatin1String("no display")),
                 qPrintable(run.err));
    }

    // With the label-template database installed the list holds its products,
    // and the brand and search narrow it down to the one imported sheet.
    void piecesListsTheDatabase()
    {
        const QByteArray own = qgetenv("QUIRRA_TEMPLATE_DIR");
        qunsetenv("QUIRRA_TEMPLATE_DIR");
        const Run all = quirra({"pieces"});
        const Run one = quirra({"pieces", "--brand", "avery", "--search", "l7163"});
        const Run none = quirra({"pieces", "--search", "no such sheet"});
        qputenv("QUIRRA_TEMPLATE_DIR", own);
        QCOMPARE(all.status, 0);
        QCOMPARE(none.status, 1);
        QVERIFY2(none.err.contains(QLatin1String("no piece matches")), qPrintable(none.err));
        if (!QFileInfo::exists(QStringLiteral("/usr/share/libglabels-3.0/templates")))
            QSKIP("the label-template database (Debian glabels-data) is not installed");
        QVERIFY2(all.out.count(QLatin1Char('\n')) > 1000, qPrintable(all.out.left(200)));
        QCOMPARE(one.out,
                 QStringLiteral("Laser/InkJet Products\tAvery\tAvery L7163\t3.90139 x 1.5 in"
                                "\t2 x 7\tA4 (210 x 297 mm)\tMailing labels\n"));
    }

    void calibrationSheet_data()
    {
        // paper: points
        // pieces: the first piece's centre and the pitch, inches
        // measured: a reading, the settings it gives
        columns<QString, QSizeF, QRectF, QSize, QStringList>("piece", "paper", "pieces", "grid",
                                                             "measured");
        // The sheets' real geometry. A reading 1 % too wide over the 5.5 in
        // between the outer crosses, and one 0.6 % too tall over 9 in.
        QTest::newRow("letter-30-up")
            << "5160 - Address Labels" << QSizeF(612, 792) << QRectF(1.5, 1.0, 2.75, 1.0)
            << QSize(3, 10)
            << QStringList{"0,0.1,0.055,0.1",
                           "--set PrinterLeft=0.235 --set PrinterTop=0.350 "
                           "--set PrinterScaleX=99.01 --set PrinterScaleY=100.00\n"};
        QTest::newRow("a4-21-up") << "L7160 - Address Labels" << QSizeF(595.3, 841.9)
                                  << QRectF(1.5339, 1.3465, 2.6, 1.5) << QSize(3, 7)
                                  << QStringList{
                                         "-0.05,0,-0.05,0.06",
                                         "--set PrinterLeft=0.200 --set PrinterTop=0.241 "
                                         "--set PrinterScaleX=100.00 --set PrinterScaleY=99.34\n"};
    }

    void calibrationSheet()
    {
        QFETCH(QString, piece);
        QFETCH(QSizeF, paper);
        QFETCH(QRectF, pieces);
        QFETCH(QSize, grid);
        QFETCH(QStringList, measured);
        const QString pdf = out(QStringLiteral("calibration.pdf"));
        const Run run = quirra({"calibrate", "--piece", piece, "--pdf", pdf});
        QVERIFY2(run.status == 0, qPrintable(run.err));
        QCOMPARE(pdfprobe::pageSizes(pdf).size(), 1);
        QCOMPARE(pdfprobe::pageSizes(pdf).first().toSize(), paper.toSize());

        // A ruler number stands at its tick, n inches or n cm from the paper's
        // left edge (across the top) or top edge (down the side), whole on the
        // paper and covering no other word; each ruler has both kinds.
        const QList<pdfprobe::Word> words = pdfprobe::words(pdf);
        QMap<QString, int> count;
        for (int i = 0; i < words.size(); ++i) {
            const QRectF box = words[i].box;
            QVERIFY2(QRectF(QPointF(), paper).contains(box), qPrintable(words[i].text));
            for (int j = i + 1; j < words.size(); ++j)
                QVERIFY2(!box.intersects(words[j].box), qPrintable(words[i].text + words[j].text));
            bool number = false;
            const int n = words[i].text.toInt(&number);
            if (!number || (box.top() > 40 && box.left() > 60))
                continue; // the instruction
            const bool cm = i + 1 < words.size() && words[i + 1].text == QLatin1String("cm");
            const bool across = box.top() < 40;
            QVERIFY2(qAbs((across ? box.left() : box.center().y()) - n * (cm ? 72 / 2.54 : 72)) < 3,
                     qPrintable(words[i].text));
            ++count[QLatin1String(across ? "across " : "down ") + QLatin1String(cm ? "cm" : "in")];
        }
        QCOMPARE(count.size(), 4);
        for (int numbers : std::as_const(count))
            QVERIFY(numbers >= 6);
        // The instruction stands in the second row's upper half, above its
        // crosses, and names the piece where it starts and in its command.
        const double rowTop = (pieces.y() + pieces.height() / 2) * 72;
        const double crossTop = (pieces.y() + pieces.height() - 0.125) * 72;
        QStringList instruction;
        for (const pdfprobe::Word &word : words) {
            if (word.box.top() > 40 && word.box.left() > 60) {
                QVERIFY2(word.box.top() > rowTop && word.box.bottom() < crossTop,
                         qPrintable(word.text));
                instruction << word.text;
            }
        }
        const QString said = instruction.join(u' '), named = '"' + piece + '"';
        QVERIFY2(said.startsWith("Calibration of " + named + ':') &&
                     said.contains("--piece " + named + " --measured"),
                 qPrintable(said));

        // A cross at every real piece's centre (the printer's offsets cancel on
        // a PDF), plain paper a quarter pitch to its right.
        constexpr int Dpi = 150;
        const QImage image = pdfprobe::pages(pdf, Dpi).value(0);
        QVERIFY(!image.isNull());
        const auto darkest = [&](double x, double y) {
            int value = 255;
            for (int dy = -2; dy <= 2; ++dy)
                for (int dx = -2; dx <= 2; ++dx)
                    value =
                        std::min(value, qGray(image.pixel(int(x * Dpi) + dx, int(y * Dpi) + dy)));
            return value;
        };
        for (int slot = 0; slot < grid.width() * grid.height(); ++slot) {
            const double x = pieces.x() + slot % grid.width() * pieces.width();
            const double y = pieces.y() + slot / grid.width() * pieces.height();
            QVERIFY2(darkest(x, y) < 160 && darkest(x + pieces.width() / 4, y) > 230,
                     qPrintable(QString::number(slot + 1)));
        }

        const Run settings = quirra({"calibrate", "--piece", piece, "--measured", measured[0]});
        QCOMPARE(settings.out, measured[1]);
    }

    // Every command the usage names, and every option its help lists, has its
    // entry in the manual page.
    void manPageListsEveryOption_data()
    {
        columns<QString>("command");
        static const QRegularExpression named(QStringLiteral(R"(quirra ([a-z]+) )"));
        for (auto it = named.globalMatch(runQuirra(QDir::tempPath(), {"--help"}).out);
             it.hasNext();) {
            const QString command = it.next().captured(1);
            QTest::newRow(qPrintable(command)) << command;
        }
    }

    void manPageListsEveryOption()
    {
        QFETCH(QString, command);
        const QString page = QString::fromUtf8(
            fixture::contents(QStringLiteral(QUIRRA_SOURCE_ROOT "/doc/quirra.1")));
        QVERIFY(page.contains(QLatin1String(".SS ") + command));
        const Run help = quirra({command, "--help"});
        static const QRegularExpression option(QStringLiteral(R"(^  (?:-\w, )?--([\w-]+))"),
                                               QRegularExpression::MultilineOption);
        int listed = 0;
        for (auto it = option.globalMatch(help.out); it.hasNext(); ++listed) {
            const QString name = it.next().captured(1);
            if (name == QLatin1String("help-all"))
                continue; // Qt's own
            QVERIFY2(page.contains(QLatin1String("\\-\\-") + QString(name).replace('-', "\\-")),
                     qPrintable(name));
        }
        QVERIFY(listed > 2);
    }

private:
    Run quirra(const QStringList &arguments, const QByteArray &input = {})
    {
        return runQuirra(m_dir->path(), arguments, input);
    }
    QString out(const QString &name) const { return m_dir->filePath(name); }
    // "%DATA%/x.csv" names a fixture, "%OUT%/x" a file in the test's own folder.
    QStringList expand(QStringList arguments) const
    {
        for (QString &a : arguments) {
            a.replace(QLatin1String("%DATA%"), QStringLiteral(QUIRRA_TEST_DATA));
            a.replace(QLatin1String("%OUT%"), m_dir->path());
        }
        return arguments;
    }

    std::unique_ptr<QTemporaryDir> m_dir;
};

QTEST_MAIN(TestCli)
#include "tst_cli.moc"
