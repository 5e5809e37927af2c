// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#include "catalogue/piececatalogue.h"
#include "catalogue/templatereader.h"

#include <QBuffer>
#include <QDir>
#include <QTemporaryDir>
#include <QtTest>

using namespace quirra;

namespace {

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

class TestTemplateReader : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void lengths_data();
    void lengths();
    void shapesAndAliases();
    void badTemplates_data();
    void badTemplates();
    void truncatedFileKeepsWhatCameBefore();
    void installedDatabase();
};

void TestTemplateReader::lengths_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("ok");
    QTest::addColumn<double>("inches");
    QTest::newRow("inches") << "2.625in" << true << 2.625;
    QTest::newRow("millimetres") << "25.4mm" << true << 1.0;
    QTest::newRow("centimetres") << "2.54cm" << true << 1.0;
    QTest::newRow("points") << "36pt" << true << 0.5;
    QTest::newRow("bare-number-is-points") << "144" << true << 2.0;
    QTest::newRow("picas") << "6pc" << true << 1.0;
    QTest::newRow("unknown-unit") << "3ft" << false << 0.0;
    QTest::newRow("unit-alone") << "mm" << false << 0.0;
    QTest::newRow("empty") << "" << false << 0.0;
}

void TestTemplateReader::lengths()
{
    QFETCH(QString, text);
    QFETCH(bool, ok);
    QFETCH(double, inches);
    double value = -1;
    QCOMPARE(parseTemplateLength(text, &value), ok);
    if (ok)
        QCOMPARE(value, inches);
}

// A folder as a user writes one, read through the catalogue the program
// uses: every shape, an alias, a skipped sheet, a clash with a shipped name.
void TestTemplateReader::shapesAndAliases()
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
  <Template brand="Acme" part="E1" size="US-Letter" _description="Ovals">
    <Label-ellipse id="0" width="3in" height="2in"><Layout nx="1" ny="5" x0="1in" y0="0.5in" dy="2in"/></Label-ellipse>
  </Template>
  <Template brand="Acme" part="Two" size="US-Letter" _description="Two arrangements">
    <Label-rectangle id="0" width="1in" height="1in"><Layout nx="1" ny="1" x0="0" y0="0"/><Layout nx="1" ny="1" x0="100" y0="100"/></Label-rectangle>
  </Template>
  <Template brand="Acme" part="RL1" size="roll" width="4in" height="2in" _description="Roll">
    <Label-rectangle id="0" width="3.5in" height="1.5in"><Layout nx="1" ny="1" x0="0.25in" y0="0.25in"/></Label-rectangle>
  </Template>
  <Template brand="Acme" part="T1" size="US-Letter" _description="A thousand across">
    <Label-rectangle id="0" width="0.005in" height="1in"><Layout nx="1000" ny="1" x0="0" y0="0" dx="0.008in"/></Label-rectangle>
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
    QCOMPARE(catalogue->importedCount(), 6);
    QCOMPARE(catalogue->pieces(QStringLiteral("Acme")),
             QStringList({"Acme A1", "Acme CD1", "Acme E1", "Acme R1", "Acme RL1", "Acme T1"}));
    QVERIFY(catalogue->products(QStringLiteral("Laser/InkJet Products")).endsWith("Acme"));
    // The shipped piece of that name keeps its own sheet.
    QCOMPARE(catalogue->piece(QStringLiteral("5160 - Address Labels")).NumDown, 10);

    // Each imported sheet: kind, size line, then label, page, margins,
    // pitches and counts as numbers.
    const auto entry = [&](const char *name) -> QString {
        const CatalogueEntry &e = *catalogue->entry(QLatin1String(name));
        const PieceSpec &s = e.sheet;
        QStringList n{QString::number(int(e.shape)), e.metric ? "mm" : "in", e.sizeText};
        for (float v : {s.LabelWidth, s.LabelHeight, s.PageWidth, s.PageHeight, s.MarginSide,
                        s.MarginTop, s.PitchHorz, s.PitchVert})
            n.append(QString::number(v));
        return n.join(u' ') +
               QStringLiteral(" %1 %2 %3").arg(s.NumAcross).arg(s.NumDown).arg(s.Name);
    };
    // An alias is its product's sheet; a tenth of a millimetre shows, no finer.
    const CatalogueEntry &alias = *catalogue->entry(QStringLiteral("Acme A1"));
    QCOMPARE(alias.product + '/' + alias.group, QStringLiteral("Round stickers/Acme"));
    QCOMPARE(entry("Acme A1"),
             "1 mm 38.1 x 38.1 mm 1.50157 1.50157 8.26772 11.6929 0.393701 0.472441 "
             "1.9685 1.77165 4 6 Acme A1");
    // A CD cut off at the sides: its own width bounds it, no height given: the disc's.
    QCOMPARE(entry("Acme CD1"), "3 in 3.5 x 3 in. 3.5 3 8.5 11 0.5 0.5 4 3.1 2 3 Acme CD1");
    QCOMPARE(catalogue->piece(QStringLiteral("Acme CD1")).PageDesc,
             QStringLiteral("Custom (8.5 x 11 in.)"));
    // One column: a piece's own width is its step.
    QCOMPARE(entry("Acme E1"), "2 in 3 x 2 in. 3 2 8.5 11 1 0.5 3 2 1 5 Acme E1");
    // A roll in whole eighths of an inch is an inch sheet; a thousand across still fit.
    QCOMPARE(entry("Acme RL1"), "0 in 3.5 x 1.5 in. 3.5 1.5 4 2 0.25 0.25 3.5 1.5 1 1 Acme RL1");
    QCOMPARE(entry("Acme T1"), "0 in 0.005 x 1 in. 0.005 1 8.5 11 0 0 0.008 1 1000 1 Acme T1");
    QCOMPARE(catalogue->search(QStringLiteral("acme oval")), QStringList{"Acme E1"});
    QCOMPARE(catalogue->search(QString(), QStringLiteral("other")), QStringList());
}

void TestTemplateReader::badTemplates_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QString>("why");
    QTest::newRow("unknown-unit") << sheet(R"(width="2.625furlong" height="1in")")
                                  << "width=\"2.625furlong\" is not a length";
    QTest::newRow("negative-size") << sheet(R"(width="-2in" height="1in")") << "is negative";
    QTest::newRow("no-height") << sheet(R"(width="2in")") << "no height";
    QTest::newRow("no-columns") << sheet(goodLabel, R"(nx="0" ny="10" dx="1in" dy="1in")")
                                << "at least one label each way";
    QTest::newRow("too-many-rows")
        << sheet(goodLabel, R"(nx="1" ny="70000" dy="1in")") << "more labels than a sheet holds";
    QTest::newRow("pitch-missing") << sheet(goodLabel, R"(nx="3" ny="10" dy="1in")") << "no dx";
    QTest::newRow("off-the-sheet")
        << sheet(goodLabel, R"(nx="3" ny="11" x0="0.15625in" y0="0.5in" dx="2.78125in" dy="1in")")
        << "reach 8.344 x 11.5 in. on a 8.5 x 11 in. sheet";
    QByteArray unknownPaper = sheet();
    unknownPaper.replace("US-Letter", "Tabloid");
    QTest::newRow("unknown-paper") << unknownPaper << "paper \"Tabloid\" is not in the paper sizes";
}

void TestTemplateReader::badTemplates()
{
    QFETCH(QByteArray, text);
    QFETCH(QString, why);
    const TemplateReadResult result = readText(text);
    QVERIFY(result.templates.isEmpty());
    QCOMPARE(result.warnings.size(), 1);
    const QString warning = result.warnings.first();
    QVERIFY2(warning.startsWith(QLatin1String("test-templates.xml:2: template \"Acme 100\": ")),
             qPrintable(warning));
    QVERIFY2(warning.contains(why), qPrintable(warning));
}

void TestTemplateReader::truncatedFileKeepsWhatCameBefore()
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

void TestTemplateReader::installedDatabase()
{
    const QString folder = QStringLiteral("/usr/share/libglabels-3.0/templates");
    if (!QDir(folder).exists(QStringLiteral("paper-sizes.xml")))
        QSKIP("the template database (Debian glabels-data) is not installed");
    const TemplateReadResult result = readTemplateFolder(folder);
    QVERIFY(result.templates.size() > 1000);

    const auto letter =
        std::find_if(result.templates.begin(), result.templates.end(),
                     [](const LabelTemplate &t) { return t.name() == u"Avery 5160"; });
    QVERIFY(letter != result.templates.end());
    QCOMPARE(letter->paperId, QStringLiteral("US-Letter"));
    QCOMPARE(letter->across, 3);
    QCOMPARE(letter->down, 10);
    QCOMPARE(letter->labelWidth, 2.625);
    QCOMPARE(letter->pitchHorz, 2.78125);
}

QTEST_GUILESS_MAIN(TestTemplateReader)
#include "tst_templatereader.moc"
