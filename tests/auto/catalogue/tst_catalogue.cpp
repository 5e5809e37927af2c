// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
//
// The piece catalogue: the master file's records and lists (a fixture of
// odd records), the shipped catalogue and its generator, and the imported
// label-template database.
#include "catalogue/catalogue.h"
#include "catalogue/piececatalogue.h"
#include "catalogue/pieceloader.h"
#include "catalogue/templatereader.h"
#include "columns.h"
#include "settings/settings.h"

#include <QBuffer>
#include <QFile>
#include <QProcess>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>

using namespace quirra;

namespace {
const QString Data = QStringLiteral(QUIRRA_SOURCE_ROOT "/data/");

QByteArray readAll(const QString &path)
{
    QFile f(path);
    return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
}

// The exit code of scripts/gen-catalogue, -1 when it did not run to its end.
int generate(const QStringList &args, QString *errors)
{
    QProcess p;
    p.start(QStandardPaths::findExecutable(QStringLiteral("python3")),
            QStringList{QStringLiteral(QUIRRA_SOURCE_ROOT "/scripts/gen-catalogue")} + args);
    if (!p.waitForFinished(60000) || p.exitStatus() != QProcess::NormalExit)
        return -1;
    *errors = QString::fromUtf8(p.readAllStandardError());
    return p.exitCode();
}

const QString Fixture = QStringLiteral(QUIRRA_TEST_DATA "/quirra.cfg");

// The numbers of a PieceSpec in file order: piece W H, page W H, margins, pitch, layout.
QString numbers(const PieceSpec &s)
{
    QStringList n;
    for (float v : {s.LabelWidth, s.LabelHeight, s.PageWidth, s.PageHeight, s.MarginSide,
                    s.MarginTop, s.PitchHorz, s.PitchVert})
        n.append(QString::number(v));
    return n.join(u' ') + QStringLiteral(" %1 %2").arg(s.NumAcross).arg(s.NumDown);
}

const PaperSizes papers = {{QStringLiteral("US-Letter"), QSizeF(8.5, 11)},
                           {QStringLiteral("A4"), QSizeF(210 / 25.4, 297 / 25.4)}};

TemplateReadResult readText(const QByteArray &text)
{
    TemplateReadResult result;
    QBuffer buffer;
    buffer.setData(text);
    buffer.open(QIODevice::ReadOnly);
    readTemplates(buffer, QStringLiteral("test-templates.xml"), papers, result);
    resolveTemplateAliases(result);
    return result;
}

const QByteArray goodLabel = R"(width="2.625in" height="1in" round="0.0625in")";
const QByteArray goodLayout = R"(nx="3" ny="10" x0="0.15625in" y0="0.5in" dx="2.78125in" dy="1in")";

// One uniform letter sheet of 3 x 10, to be spoiled one attribute at a time.
QByteArray sheet(const QByteArray &label = goodLabel, const QByteArray &layout = goodLayout)
{
    return "<Glabels-templates>\n"
           "<Template brand=\"Acme\" part=\"100\" size=\"US-Letter\" _description=\"Address\">\n"
           "<Label-rectangle id=\"0\" " +
           label + ">\n<Layout " + layout +
           "/>\n</Label-rectangle>\n"
           "</Template>\n</Glabels-templates>\n";
}

} // namespace

// Each test runs against the catalogue this tree ships; those of the
// master file's records point QUIRRA_SYSTEM_DIR at the fixture.
class TestCatalogue : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        PieceModel::resetShared();
        qputenv("QUIRRA_SYSTEM_DIR", Data.toUtf8());
        qputenv("QUIRRA_PAPER_CATALOGUE", "");
    }

    void loadPieceByName_data()
    {
        // layout: across x down, paper code, orientation
        const Rows<QString, bool, QString, QString, bool> row("name", "found", "layout", "pageSize",
                                                              "othersVisible");

        const QString no10 = QStringLiteral("4 1/8 x 9 1/2");
        row("no10-envelope", "Size 10 - Envelope", true, "1x1 20 1", no10, true);
        row("5160-letter-labels", "5160 - Address Labels", true, "3x10 1 0",
            "Letter (8 1/2 x 11 in.)", false);
        row("unknown-falls-back-keeping-name", "No Such Piece", false, "1x1 20 1", no10, true);
        row("name-ignores-case", "size 10 - envelope", true, "1x1 20 1", no10, true);
        row("c6-envelope-is-c6-paper", "C6 - Envelope", true, "1x1 31 1",
            "C6 (114 x 162 mm = 4.49 x 6.38 in.)", true);
        row("widest-continuous-row-is-a-custom-page", "4-Up 3 1/2 x 15/16 - Pin-Fed Address Labels",
            true, "4x1 256 1", "Continuous 14.8 in. wide", false);
    }

    void loadPieceByName()
    {
        QFETCH(QString, name);

        PieceModel &m = PieceModel::shared();
        m.piece.IsCustom = 1;
        m.piece.PrinterTop = 0.4f;
        QTEST(LoadPieceByName(name, m), "found");
        const Piece &p = m.piece;
        QCOMPARE(p.PieceName, name);
        QTEST(QString::asprintf("%dx%d %d %d", p.PieceNumAcross, p.PieceNumDown, p.PageSizeNum,
                                p.PieceOrientation),
              "layout");
        QTEST(p.PageSize, "pageSize");
        QCOMPARE(p.IsCustom, qint16(0));
        QCOMPARE(p.PrinterTop, 0.4f);
        // The items were laid out for this piece.
        const Item &address = m.item(ItemId::Address);
        QCOMPARE(address.Text, QStringLiteral("Delivery Address"));
        QVERIFY(address.Top > 0 && address.Top + address.Height < p.PieceHeight);
        for (ItemId id : {ItemId::Return, ItemId::Stamp, ItemId::Message1, ItemId::Message2})
            QTEST(m.item(id).Visible, "othersVisible");
    }

    void noCatalogueLeavesGeometryZero()
    {
        QTemporaryDir empty;
        qputenv("QUIRRA_SYSTEM_DIR", empty.path().toUtf8());
        QTest::ignoreMessage(QtWarningMsg,
                             QRegularExpression(QRegularExpression::escape(empty.path()) +
                                                QStringLiteral(".*QUIRRA_SYSTEM_DIR")));
        PieceModel m;
        m.piece.PieceNumAcross = 3;
        QVERIFY(!LoadPieceByName(QStringLiteral("5160 - Address Labels"), m));
        QCOMPARE(m.piece.PieceName, QStringLiteral("5160 - Address Labels"));
        QCOMPARE(m.piece.PieceNumAcross, qint16(0));
        QCOMPARE(m.piece.PieceWidth, 0.0f);
    }

    void appliedSpecMarksCustom()
    {
        PieceSpec entry =
            ReadPieceSpec(CatalogueFilePath(), QStringLiteral("5160 - Address Labels"));
        entry.IsCustom = true;
        entry.PageDesc = QStringLiteral("Legal");
        entry.PageHeight = 14;
        PieceModel m;
        m.piece.PieceName = QStringLiteral("Mine");
        ApplyPieceSpec(entry, m);
        QCOMPARE(m.piece.PieceName, QStringLiteral("Mine"));
        QCOMPARE(m.piece.IsCustom, qint16(1));
        QCOMPARE(m.piece.PageSizeNum, qint16(PaperLegal));
        QCOMPARE(m.piece.PieceMarginLeft, 0.1875f); // the side margin
    }

    // Every piece listed under a product of a family has a record that fits its
    // page, and every page's paper code is the control's; the master file holds the facts.
    void shippedCatalogueHoldsTheFacts()
    {
        const QByteArray tsv = readAll(Data + "catalogue-facts.tsv");
        const QList<QByteArray> rows = tsv.trimmed().split('\n'); // a header, then the facts
        const qsizetype dotMatrixRows = tsv.count("\nDot Matrix Products\t");
        for (const QString &name : {MasterCatalogueFileName, LaserCatalogueFileName}) {
            const QString file = Data + name;
            int pieces = 0;
            for (const QString &family : {LaserFamilySection, DotMatrixFamilySection}) {
                for (const QString &product : ReadProductList(file, family)) {
                    for (const QString &piece : ReadPieceList(file, product)) {
                        const PieceSpec s = ReadPieceSpec(file, piece);
                        QVERIFY2(s.NumAcross >= 1 && s.NumDown >= 1 &&
                                     s.MarginSide + (s.NumAcross - 1) * s.PitchHorz +
                                             s.LabelWidth <=
                                         s.PageWidth + 0.02f &&
                                     s.MarginTop + (s.NumDown - 1) * s.PitchVert + s.LabelHeight <=
                                         s.PageHeight + 0.02f,
                                 qPrintable(piece));
                        QCOMPARE(ReadSetting(file, DetailsSection, piece).section(u',', 0, 0),
                                 product);
                        ++pieces;
                    }
                }
            }
            QCOMPARE(pieces,
                     rows.size() - 1 - (name == LaserCatalogueFileName ? dotMatrixRows : 0));
        }
        for (qsizetype i = 1; i < rows.size(); ++i) {
            const QStringList f = QString::fromUtf8(rows.at(i)).split(u'\t');
            const PieceSpec s = ReadPieceSpec(CatalogueFilePath(), f.value(2));
            QList<float> facts;
            for (int c = 3; c <= 12; ++c)
                facts.append(f.value(c).toFloat());
            QCOMPARE((QList<float>{s.LabelWidth, s.LabelHeight, s.PageWidth, s.PageHeight,
                                   s.MarginSide, s.MarginTop, s.PitchHorz, s.PitchVert,
                                   float(s.NumAcross), float(s.NumDown)}),
                     facts);
            QCOMPARE(ReadPieceType(f.value(2)), f.value(14) == QLatin1String("CONT") ? 2 : 1);
        }
        const QStringList captions = ReadPaperSizeCaptions();
        QVERIFY(captions.contains(EnvelopeTenPageSize));
        // The code the generator writes beside each page is the one the control
        // derives from the page's real size.
        for (int n = 1; n <= captions.size(); ++n) {
            Piece p;
            p.PageSize = captions.at(n - 1);
            ReadPaperSize(n - 1, p.PageWidth, p.PageHeight);
            DerivePageSetup(p);
            const QString entry = ReadSetting(CatalogueFilePath(), PaperSizesSection,
                                              QStringLiteral("size(%1)").arg(n));
            QCOMPARE(entry.section(u',', 0, 0).toInt(), int(p.PageSizeNum));
        }
    }

    void generatedFilesAreCommitted()
    {
        if (QStandardPaths::findExecutable(QStringLiteral("python3")).isEmpty())
            QSKIP("python3 is not installed: cannot run scripts/gen-catalogue");
        QTemporaryDir out;
        QString errors;
        QCOMPARE(generate({QStringLiteral("--out-dir"), out.path()}, &errors), 0);
        for (const QString &name : {MasterCatalogueFileName, LaserCatalogueFileName}) {
            QVERIFY2(readAll(out.filePath(name)) == readAll(Data + name),
                     qPrintable(name + QStringLiteral(" is not what scripts/gen-catalogue writes "
                                                      "from the facts: run it")));
        }
    }

    void generatorRefusesBadFacts_data()
    {
        const Rows<QString, QString, QString> row("column", "value", "message");
        row("comma-in-a-product", "product", "Labels, large", "cannot carry");
        row("pieces-past-the-sheet", "sheet_w_in", "8", "past the sheet");
        row("no-pieces-across", "across", "0", "not a count");
    }

    void generatorRefusesBadFacts()
    {
        const auto [column, value, message] =
            fetched<QString, QString, QString>("column", "value", "message");
        if (QStandardPaths::findExecutable(QStringLiteral("python3")).isEmpty())
            QSKIP("python3 is not installed: cannot run scripts/gen-catalogue");

        // The header and the first row, with one field replaced.
        const QList<QByteArray> lines = readAll(Data + "catalogue-facts.tsv").split('\n');
        QList<QByteArray> row = lines.at(1).split('\t');
        row[lines.at(0).split('\t').indexOf(column.toUtf8())] = value.toUtf8();
        QTemporaryDir dir;
        QFile facts(dir.filePath(QStringLiteral("facts.tsv")));
        QVERIFY(facts.open(QIODevice::WriteOnly));
        facts.write(lines.at(0) + '\n' + row.join('\t') + '\n');
        facts.close();

        QString errors;
        QCOMPARE(generate({QStringLiteral("--facts"), facts.fileName(), QStringLiteral("--out-dir"),
                           dir.path()},
                          &errors),
                 1);
        QVERIFY2(errors.contains(message), qPrintable(errors));
        QVERIFY(!QFile::exists(dir.filePath(MasterCatalogueFileName)));
    }

    void readPieceSpec_data()
    {
        const Rows<QString, QString, QString> row("name", "numbers", "pageDesc");

        const QString letter = QStringLiteral("Letter (8 1/2 x 11 in)");
        row("complete", "Acme 30-up", "2.625 1 8.5 11 0.1875 0.5 2.75 1 3 10", letter);
        row("capital-x-does-not-split", "Capital X", "0 0 8.5 11 0.1875 0.5 2.75 1 3 10", "Letter");
        row("missing-fields-are-zero", "Short Record", "4 2 0 0 0 0 0 0 0 0", "");
        row("blanks-round-numbers", "Spaced Numbers", "4 2 8.5 11 0.25 0.5 4 2 2 5", "Page");
        row("text-is-no-number", "Not Numbers", "0 0 8.5 11 0 0 0 2 0 10", "Letter");
        row("count-over-16-bits", "Huge Count", "2 1 8.5 11 0 0 2 1 0 2", "Letter");
        row("fields-after-seventh-ignored", "Extra Fields", "3.5 1 4 1 0 0 3.5 1 1 1", "Wide");
        row("cut-at-254-ends-description", "Too Long", "2 1 8.5 11 0 0 2 1 1 1",
            QString(254 - 45, u'P'));
        row("missing-piece", "No Such Piece", "0 0 0 0 0 0 0 0 0 0", "");
    }

    void readPieceSpec()
    {
        const auto [name, numbers] = fetched<QString, QString>("name", "numbers");
        const PieceSpec s = ReadPieceSpec(Fixture, name);
        QCOMPARE(::numbers(s), numbers);
        QTEST(s.PageDesc, "pageDesc");
        QCOMPARE(s.Name, name);
        QVERIFY(!s.IsCustom);
    }

    void readPieceType_data()
    {
        columns<QString, int>("name", "type");
        QTest::newRow("cut") << "Acme 30-up" << int(PieceTypeCut);
        QTest::newRow("lower-case-cont-with-blanks") << "Lower Cont" << int(PieceTypeContinuous);
        QTest::newRow("continuous-spelt-out-is-cut") << "Word Continuous" << int(PieceTypeCut);
        QTest::newRow("type-is-the-last-field") << "Extra Fields" << int(PieceTypeContinuous);
        QTest::newRow("type-lost-past-254") << "Too Long" << int(PieceTypeCut);
        QTest::newRow("missing-record-is-cut") << "No Such Piece" << int(PieceTypeCut);
    }

    void readPieceType()
    {
        qputenv("QUIRRA_SYSTEM_DIR", QUIRRA_TEST_DATA);
        QFETCH(QString, name);
        QTEST(ReadPieceType(name), "type");
    }

    void lists_data()
    {
        columns<bool, QString, QStringList>("products", "section", "expected");
        QTest::newRow("gaps-kept-first-field-only")
            << true << LaserFamilySection << QStringList{"", "", "Acme Labels"};
        QTest::newRow("bare-product-key")
            << true << DotMatrixFamilySection << QStringList{"Tractor Forms"};
        QTest::newRow("product-names-its-section")
            << false << ReadProductList(Fixture, LaserFamilySection).value(2)
            << QStringList{"", "Acme 30-up", "", ""};
        QTest::newRow("bare-piece-key") << false << "Tractor Forms" << QStringList{"Tractor 1-up"};
        QTest::newRow("missing-section") << false << "Nobody's Labels" << QStringList{};
    }

    void lists()
    {
        const auto [products, section] = fetched<bool, QString>("products", "section");
        QTEST(products ? ReadProductList(Fixture, section) : ReadPieceList(Fixture, section),
              "expected");
    }

    void paperSizes()
    {
        // The paper list is a setting of its own: the master is elsewhere here.
        qputenv("QUIRRA_SYSTEM_DIR", QUIRRA_SOURCE_ROOT "/no-such-folder");
        qputenv("QUIRRA_PAPER_CATALOGUE", Fixture.toUtf8());
        QCOMPARE(ReadPaperSizeCaptions(),
                 (QStringList{"Letter (8 1/2 x 11 in)", "A4", "", "8.5 x 14"}));
        // index: expected width, height (a capital X is lowered; a gap reads "8.5x11": 0 x 0)
        const QList<QList<float>> sizes = {{0, 8.5f, 11}, {1, 8.2677f, 11.6929f},
                                           {2, 0, 0},     {3, 8.5f, 14},
                                           {99, 0, 0},    {-1, 0, 0}};
        for (const QList<float> &size : sizes) {
            float w = -1, h = -1;
            ReadPaperSize(int(size[0]), w, h);
            QCOMPARE(QList<float>({size[0], w, h}), size);
        }
    }

    void catalogueFilePath()
    {
        qputenv("QUIRRA_SYSTEM_DIR", QUIRRA_TEST_DATA);
        QCOMPARE(CatalogueFilePath(), Fixture);
        QCOMPARE(ReadPieceProduct(QStringLiteral("Acme 30-up")), QStringLiteral("Acme Labels"));
        QTemporaryDir empty;
        qputenv("QUIRRA_SYSTEM_DIR", empty.path().toUtf8());
        QCOMPARE(CatalogueFilePath(), QString());
        QCOMPARE(ReadPieceProduct(QStringLiteral("Acme 30-up")), QString());
    }

    void lengths_data()
    {
        columns<QString, bool, double>("text", "ok", "inches");
        QTest::newRow("unknown-unit") << "3ft" << false << 0.0;
        QTest::newRow("unit-alone") << "mm" << false << 0.0;
        QTest::newRow("empty") << "" << false << 0.0;
    }

    void lengths()
    {
        const auto [text, ok] = fetched<QString, bool>("text", "ok");
        double value = -1;
        QCOMPARE(parseTemplateLength(text, &value), ok);
        if (ok)
            QTEST(value, "inches");
    }

    // A folder as a user writes one, read through the catalogue the program
    // uses: every shape, an alias, a skipped sheet, a clash with a shipped name.
    void shapesAndAliases()
    {
        QTemporaryDir dir;
        const auto write = [&dir](const char *name, const QByteArray &text) {
            QFile file(dir.filePath(QLatin1String(name)));
            QVERIFY(file.open(QIODevice::WriteOnly));
            file.write(text);
        };
        write("paper-sizes.xml", R"(<Glabels-paper-sizes>
      <Paper-size id="A4" name="A4" width="210mm" height="297mm"/>
      <Paper-size id="US-Letter" name="US Letter" width="8.5in" height="11in"/>
    </Glabels-paper-sizes>)");
        write("acme-templates.xml", R"(<Glabels-templates>
      <Template brand="Acme" part="A1" equiv="R1"/>
      <Template brand="Acme" part="R1" size="A4" _description="Round stickers">
        <Meta category="label"/><Meta category="round-label"/>
        <Label-round id="0" radius="1.907cm"><Layout nx="4" ny="6" x0="10mm" y0="12mm" dx="50mm" dy="45mm"/></Label-round>
      </Template>
      <Template brand="Acme" part="CD1" size="Other" width="51pc" height="792" description="Business CD">
        <Label-cd id="0" radius="1.5in" hole="0.5in" width="3.5in"><Layout nx="2" ny="3" x0="36pt" y0="0.5in" dx="4in" dy="3.1in"/></Label-cd>
      </Template>
      <Template brand="Acme" part="CD2" size="US-Letter" description="Short CD">
        <Label-cd id="0" radius="1.5in" height="2.5in"><Layout nx="1" ny="1" x0="1in" y0="1in"/></Label-cd>
      </Template>
      <Template brand="Acme" part="E1" size="US-Letter" _description="Ovals">
        <Label-ellipse id="0" width="3in" height="2in"><Layout nx="1" ny="5" x0="1in" y0="0.5in" dy="2in"/></Label-ellipse>
      </Template>
      <Template brand="Acme" part="Two" size="US-Letter" _description="Two arrangements">
        <Label-rectangle id="0" width="1in" height="1in"><Layout nx="1" ny="1" x0="0" y0="0"/><Layout nx="1" ny="1" x0="100" y0="100"/></Label-rectangle>
      </Template>
      <Template brand="Acme" part="RL1" size="roll" width="4in" height="2in" _description="Roll">
        <Label-rectangle id="0" width="3.5in" height="1.5in"><Layout nx="1" ny="1" x0="0.25in" y0="0.25in"/></Label-rectangle>
      </Template>
      <Template brand="Acme" part="T1" size="US-Letter" _description="A thousand each way">
        <Label-rectangle id="0" width="0.005in" height="0.005in"><Layout nx="1000" ny="1000" x0="0" y0="0" dx="0.008in" dy="0.01in"/></Label-rectangle>
      </Template>
      <Template brand="Other" part="X" equiv="R1"/>
      <Template brand="5160" part="- Address Labels" size="A4" _description="Not ours">
        <Label-rectangle id="0" width="1in" height="1in"><Layout nx="1" ny="1"/></Label-rectangle>
      </Template>
    </Glabels-templates>)");
        write("broken-templates.xml", sheet(R"(width="-2in" height="1in")"));
        qputenv("QUIRRA_TEMPLATE_DIR", dir.path().toUtf8());
        const auto catalogue = Catalogue::system();
        qunsetenv("QUIRRA_TEMPLATE_DIR");

        // "Acme Two" is counted, not warned of; "Other X" names a product of
        // another brand; "Acme 100" has a negative width.
        QCOMPARE(catalogue->warnings().size(), 2);
        QVERIFY(catalogue->warnings()
                    .filter(QLatin1String("broken-templates.xml:2: template "
                                          "\"Acme 100\": width=\"-2in\" is negative"))
                    .size() == 1);
        QCOMPARE(catalogue->importedCount(), 7);
        QCOMPARE(catalogue->pieces(QStringLiteral("Acme")),
                 QStringList({"Acme A1", "Acme CD1", "Acme CD2", "Acme E1", "Acme R1", "Acme RL1",
                              "Acme T1"}));
        QVERIFY(catalogue->products(QStringLiteral("Laser/InkJet Products")).endsWith("Acme"));
        // The shipped piece of that name keeps its own sheet.
        QCOMPARE(catalogue->piece(QStringLiteral("5160 - Address Labels")).NumDown, 10);

        // Each imported sheet: kind, size line, then label, page, margins,
        // pitches and counts as numbers.
        const auto entry = [&](const char *name) -> QString {
            const CatalogueEntry &e = *catalogue->entry(QLatin1String(name));
            return QStringLiteral("%1 %2 %3 ")
                       .arg(int(e.shape))
                       .arg(e.metric ? "mm" : "in", e.sizeText) +
                   numbers(e.sheet) + u' ' + e.sheet.Name;
        };
        // An alias is its product's sheet; a tenth of a millimetre shows, no finer.
        const CatalogueEntry &alias = *catalogue->entry(QStringLiteral("Acme A1"));
        QCOMPARE(alias.product + '/' + alias.group, QStringLiteral("Round stickers/Acme"));
        QCOMPARE(entry("Acme A1"),
                 "1 mm 38.1 x 38.1 mm 1.50157 1.50157 8.26772 11.6929 0.393701 0.472441 "
                 "1.9685 1.77165 4 6 Acme A1");
        // A CD cut off at the sides: its own width or height bounds it, the
        // one not given is the disc's.
        QCOMPARE(entry("Acme CD1"), "3 in 3.5 x 3 in. 3.5 3 8.5 11 0.5 0.5 4 3.1 2 3 Acme CD1");
        QCOMPARE(entry("Acme CD2"), "3 in 3 x 2.5 in. 3 2.5 8.5 11 1 1 3 2.5 1 1 Acme CD2");
        QCOMPARE(catalogue->piece(QStringLiteral("Acme CD1")).PageDesc,
                 QStringLiteral("Custom (8.5 x 11 in.)"));
        // One column: a piece's own width is its step.
        QCOMPARE(entry("Acme E1"), "2 in 3 x 2 in. 3 2 8.5 11 1 0.5 3 2 1 5 Acme E1");
        // A roll in whole eighths of an inch is an inch sheet; a thousand each way still fit.
        QCOMPARE(entry("Acme RL1"),
                 "0 in 3.5 x 1.5 in. 3.5 1.5 4 2 0.25 0.25 3.5 1.5 1 1 Acme RL1");
        QCOMPARE(entry("Acme T1"),
                 "0 in 0.005 x 0.005 in. 0.005 0.005 8.5 11 0 0 0.008 0.01 1000 1000 Acme T1");
        QCOMPARE(catalogue->search(QStringLiteral("acme oval")), QStringList{"Acme E1"});
        QCOMPARE(catalogue->search(QString(), QStringLiteral("other")), QStringList());
    }

    void badTemplates_data()
    {
        columns<QByteArray, QString>("text", "why");
        QTest::newRow("unknown-unit") << sheet(R"(width="2.625furlong" height="1in")")
                                      << "width=\"2.625furlong\" is not a length";
        QTest::newRow("negative-size") << sheet(R"(width="-2in" height="1in")") << "is negative";
        QTest::newRow("no-height") << sheet(R"(width="2in")") << "no height";
        QTest::newRow("round-without-radius")
            << sheet("").replace("Label-rectangle", "Label-round") << "no radius";
        QTest::newRow("no-columns") << sheet(goodLabel, R"(nx="0" ny="10" dx="1in" dy="1in")")
                                    << "at least one label each way";
        QTest::newRow("too-many-rows") << sheet(goodLabel, R"(nx="1" ny="70000" dy="1in")")
                                       << "more labels than a sheet holds";
        QTest::newRow("layout-before-its-label")
            << "<Glabels-templates>\n<Template brand=\"Acme\" part=\"100\" "
               "size=\"US-Letter\"><Layout " +
                   goodLayout + "/><Label-rectangle id=\"0\" " + goodLabel +
                   "/></Template></Glabels-templates>"
            << "no label or no layout";
        QTest::newRow("pitch-missing") << sheet(goodLabel, R"(nx="3" ny="10" dy="1in")") << "no dx";
        QTest::newRow("off-the-sheet")
            << sheet(goodLabel,
                     R"(nx="3" ny="11" x0="0.15625in" y0="0.5in" dx="2.78125in" dy="1in")")
            << "reach 8.344 x 11.5 in. on a 8.5 x 11 in. sheet";
        QByteArray unknownPaper = sheet();
        unknownPaper.replace("US-Letter", "Tabloid");
        QTest::newRow("unknown-paper")
            << unknownPaper << "paper \"Tabloid\" is not in the paper sizes";
    }

    void badTemplates()
    {
        const auto [text, why] = fetched<QByteArray, QString>("text", "why");
        const TemplateReadResult result = readText(text);
        QVERIFY(result.templates.isEmpty());
        QCOMPARE(result.warnings.size(), 1);
        const QString warning = result.warnings.first();
        QVERIFY2(warning.startsWith(QLatin1String("test-templates.xml:2: template \"Acme 100\": ")),
                 qPrintable(warning));
        QVERIFY2(warning.contains(why), qPrintable(warning));
    }

    void truncatedFileKeepsWhatCameBefore()
    {
        QByteArray text = sheet();
        text.replace(
            "</Glabels-templates>\n",
            "<Template brand=\"Acme\" part=\"200\" size=\"A4\"><Label-rectangle width=\"1in\"");
        const TemplateReadResult result = readText(text);
        QCOMPARE(result.templates.size(), 1);
        QCOMPARE(result.templates.first().name(), QStringLiteral("Acme 100"));
        QCOMPARE(result.warnings.size(), 1);
        QVERIFY2(result.warnings.first().startsWith(
                     QLatin1String("test-templates.xml:7: template \"Acme 200\"")),
                 qPrintable(result.warnings.first()));
    }
};

QTEST_GUILESS_MAIN(TestCatalogue)
#include "tst_catalogue.moc"
