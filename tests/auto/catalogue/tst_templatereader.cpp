// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#include "catalogue/templatereader.h"

#include <QBuffer>
#include <QDir>
#include <QElapsedTimer>
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

void TestTemplateReader::shapesAndAliases()
{
    const TemplateReadResult result = readText(R"(<Glabels-templates>
  <Template brand="Acme" part="A1" equiv="R1"/>
  <Template brand="Acme" part="R1" size="A4" _description="Round stickers">
    <Meta category="label"/><Meta category="round-label"/>
    <Label-round id="0" radius="20mm"><Layout nx="4" ny="6" x0="10mm" y0="12mm" dx="50mm" dy="45mm"/></Label-round>
  </Template>
  <Template brand="Acme" part="CD1" size="Other" width="8.5in" height="11in" description="Business CD">
    <Label-cd id="0" radius="1.5in" hole="0.5in" width="3.5in" height="2.5in"><Layout nx="2" ny="4" x0="0.5in" y0="0.5in" dx="4in" dy="2.6in"/></Label-cd>
  </Template>
  <Template brand="Acme" part="E1" size="US-Letter" _description="Ovals">
    <Label-ellipse id="0" width="3in" height="2in"><Layout nx="1" ny="5" x0="1in" y0="0.5in" dy="2in"/></Label-ellipse>
  </Template>
  <Template brand="Acme" part="Two" size="US-Letter" _description="Two arrangements">
    <Label-rectangle id="0" width="1in" height="1in"><Layout nx="1" ny="1" x0="0" y0="0"/><Layout nx="1" ny="1" x0="100" y0="100"/></Label-rectangle>
  </Template>
  <Template brand="Other" part="X" equiv="R1"/>
</Glabels-templates>)");

    QCOMPARE(result.skippedNonUniform, 1);
    QCOMPARE(result.warnings.size(), 1); // "Other X" names a product of another brand
    QVERIFY2(result.warnings.first().contains(QLatin1String("\"Other X\"")),
             qPrintable(result.warnings.first()));
    QCOMPARE(result.templates.size(), 4);

    const LabelTemplate &alias = result.templates.at(0);
    QCOMPARE(alias.name(), QStringLiteral("Acme A1"));
    QCOMPARE(alias.aliasOf, QStringLiteral("R1"));
    QCOMPARE(alias.description, QStringLiteral("Round stickers"));
    QCOMPARE(alias.shape, LabelShape::Round);
    QCOMPARE(alias.across, 4);
    QCOMPARE(alias.down, 6);
    QCOMPARE(alias.labelWidth, 40 / 25.4);
    QCOMPARE(alias.pitchVert, 45 / 25.4);
    QCOMPARE(alias.pageHeight, 297 / 25.4);
    QCOMPARE(alias.line, 2);

    const LabelTemplate &cd = result.templates.at(2);
    QCOMPARE(cd.shape, LabelShape::Cd);
    QCOMPARE(cd.labelWidth, 3.5); // cut off at the sides: its own width bounds it
    QCOMPARE(cd.labelHeight, 2.5);
    QCOMPARE(cd.pageWidth, 8.5);
    QCOMPARE(cd.description, QStringLiteral("Business CD"));

    const LabelTemplate &ellipse = result.templates.at(3);
    QCOMPARE(ellipse.shape, LabelShape::Ellipse);
    QCOMPARE(ellipse.pitchHorz, 0.0); // one column needs no pitch
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
    QElapsedTimer timer;
    timer.start();
    const TemplateReadResult result = readTemplateFolder(folder);
    qInfo("%lld templates in %lld ms; %lld skipped with a warning, %d non-uniform sheets",
          qint64(result.templates.size()), timer.elapsed(), qint64(result.warnings.size()),
          result.skippedNonUniform);
    QVERIFY(result.templates.size() > 1000);

    auto find = [&](const QString &name) {
        for (const LabelTemplate &t : result.templates)
            if (t.name() == name)
                return t;
        return LabelTemplate();
    };
    const LabelTemplate letter = find(QStringLiteral("Avery 5160"));
    QCOMPARE(letter.paperId, QStringLiteral("US-Letter"));
    QCOMPARE(letter.across, 3);
    QCOMPARE(letter.down, 10);
    QCOMPARE(letter.labelWidth, 2.625);
    QCOMPARE(letter.pitchHorz, 2.78125);
    const LabelTemplate a4 = find(QStringLiteral("Avery L7163"));
    QCOMPARE(a4.aliasOf, QStringLiteral("7163"));
    QCOMPARE(a4.paperId, QStringLiteral("A4"));
    QCOMPARE(a4.across * a4.down, 14);
    QVERIFY(qAbs(a4.pageWidth - 210 / 25.4) < 1e-9);
}

QTEST_GUILESS_MAIN(TestTemplateReader)
#include "tst_templatereader.moc"
