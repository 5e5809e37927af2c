// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#include "catalogue/catalogue.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

using namespace quirra;

namespace {
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
} // namespace

// The master file and the paper list are found through QUIRRA_SYSTEM_DIR
// and QUIRRA_PAPER_CATALOGUE; each test points them at the fixture.
class TestCatalogue : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        qputenv("QUIRRA_SYSTEM_DIR", QUIRRA_TEST_DATA);
        qputenv("QUIRRA_PAPER_CATALOGUE", "");
    }
    void readPieceSpec_data();
    void readPieceSpec();
    void readPieceType_data();
    void readPieceType();
    void lists_data();
    void lists();
    void paperSizes();
    void catalogueFilePath();
};

void TestCatalogue::readPieceSpec_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("numbers");
    QTest::addColumn<QString>("pageDesc");

    const auto row = [](const char *tag, const QString &name, const QString &numbers,
                        const QString &pageDesc) {
        QTest::newRow(tag) << name << numbers << pageDesc;
    };
    const QString letter = QStringLiteral("Letter (8 1/2 x 11 in)");
    row("complete", "Acme 30-up", "2.625 1 8.5 11 0.1875 0.5 2.75 1 3 10", letter);
    row("key-ignores-case", "ACME 30-UP", "2.625 1 8.5 11 0.1875 0.5 2.75 1 3 10", letter);
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

void TestCatalogue::readPieceSpec()
{
    QFETCH(QString, name);
    QFETCH(QString, numbers);
    QFETCH(QString, pageDesc);
    const PieceSpec s = ReadPieceSpec(Fixture, name);
    QCOMPARE(::numbers(s), numbers);
    QCOMPARE(s.PageDesc, pageDesc);
    QCOMPARE(s.Name, name);
    QVERIFY(!s.IsCustom);
}

void TestCatalogue::readPieceType_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("type");
    QTest::newRow("cut") << "Acme 30-up" << int(PieceTypeCut);
    QTest::newRow("lower-case-cont-with-blanks") << "Lower Cont" << int(PieceTypeContinuous);
    QTest::newRow("continuous-spelt-out-is-cut") << "Word Continuous" << int(PieceTypeCut);
    QTest::newRow("type-is-the-last-field") << "Extra Fields" << int(PieceTypeContinuous);
    QTest::newRow("type-lost-past-254") << "Too Long" << int(PieceTypeCut);
    QTest::newRow("missing-record-is-cut") << "No Such Piece" << int(PieceTypeCut);
}

void TestCatalogue::readPieceType()
{
    QFETCH(QString, name);
    QFETCH(int, type);
    QCOMPARE(ReadPieceType(name), type);
}

void TestCatalogue::lists_data()
{
    QTest::addColumn<bool>("products");
    QTest::addColumn<QString>("section");
    QTest::addColumn<QStringList>("expected");
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

void TestCatalogue::lists()
{
    QFETCH(bool, products);
    QFETCH(QString, section);
    QFETCH(QStringList, expected);
    QCOMPARE(products ? ReadProductList(Fixture, section) : ReadPieceList(Fixture, section),
             expected);
}

void TestCatalogue::paperSizes()
{
    // The paper list is a setting of its own: the master is elsewhere here.
    qputenv("QUIRRA_SYSTEM_DIR", QUIRRA_SOURCE_ROOT "/no-such-folder");
    qputenv("QUIRRA_PAPER_CATALOGUE", Fixture.toUtf8());
    QCOMPARE(ReadPaperSizeCaptions(),
             (QStringList{"Letter (8 1/2 x 11 in)", "A4", "", "8.5 x 14"}));
    // index: expected width, height (a capital X is lowered; a gap reads "8.5x11": 0 x 0)
    const QList<QList<float>> sizes = {
        {0, 8.5f, 11}, {1, 8.2677f, 11.6929f}, {2, 0, 0}, {3, 8.5f, 14}, {99, 0, 0}, {-1, 0, 0}};
    for (const QList<float> &size : sizes) {
        float w = -1, h = -1;
        ReadPaperSize(int(size[0]), w, h);
        QCOMPARE(QList<float>({size[0], w, h}), size);
    }
}

void TestCatalogue::catalogueFilePath()
{
    QCOMPARE(CatalogueFilePath(), Fixture);
    QCOMPARE(ReadPieceProduct(QStringLiteral("Acme 30-up")), QStringLiteral("Acme Labels"));
    QTemporaryDir empty;
    qputenv("QUIRRA_SYSTEM_DIR", empty.path().toUtf8());
    QCOMPARE(CatalogueFilePath(), QString());
    QCOMPARE(ReadPieceProduct(QStringLiteral("Acme 30-up")), QString());
}

QTEST_GUILESS_MAIN(TestCatalogue)
#include "tst_catalogue.moc"
