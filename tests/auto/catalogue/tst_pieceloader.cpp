// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#include "catalogue/pieceloader.h"

#include "catalogue/catalogue.h"
#include "settings/settings.h"

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
} // namespace

// Runs against the catalogue this tree ships.
class TestPieceLoader : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        PieceModel::resetShared();
        qputenv("QUIRRA_SYSTEM_DIR", Data.toUtf8());
        qputenv("QUIRRA_PAPER_CATALOGUE", "");
    }
    void loadPieceByName_data();
    void loadPieceByName();
    void noCatalogueLeavesGeometryZero();
    void appliedSpecMarksCustom();
    void shippedCatalogueHoldsTheFacts();
    void generatedFilesAreCommitted();
    void generatorRefusesBadFacts_data();
    void generatorRefusesBadFacts();
};

void TestPieceLoader::loadPieceByName_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("found");
    QTest::addColumn<QString>("layout"); // across x down, paper code, orientation
    QTest::addColumn<QString>("pageSize");
    QTest::addColumn<bool>("othersVisible");
    const auto row = [](const char *tag, const QString &name, bool found, const QString &layout,
                        const QString &pageSize, bool othersVisible) {
        QTest::newRow(tag) << name << found << layout << pageSize << othersVisible;
    };

    const QString no10 = QStringLiteral("4 1/8 x 9 1/2");
    row("no10-envelope", "Size 10 - Envelope", true, "1x1 20 1", no10, true);
    row("5160-letter-labels", "5160 - Address Labels", true, "3x10 1 0", "Letter (8 1/2 x 11 in.)",
        false);
    row("unknown-falls-back-keeping-name", "No Such Piece", false, "1x1 20 1", no10, true);
    row("name-ignores-case", "size 10 - envelope", true, "1x1 20 1", no10, true);
    row("c6-envelope-is-c6-paper", "C6 - Envelope", true, "1x1 31 1",
        "C6 (114 x 162 mm = 4.49 x 6.38 in.)", true);
    row("widest-continuous-row-is-a-custom-page", "4-Up 3 1/2 x 15/16 - Pin-Fed Address Labels",
        true, "4x1 256 1", "Continuous 14.8 in. wide", false);
}

void TestPieceLoader::loadPieceByName()
{
    QFETCH(QString, name);
    QFETCH(bool, found);
    QFETCH(QString, layout);
    QFETCH(QString, pageSize);
    QFETCH(bool, othersVisible);

    PieceModel &m = PieceModel::shared();
    m.piece.IsCustom = 1;
    m.piece.PrinterTop = 0.4f;
    QCOMPARE(LoadPieceByName(name, m), found);
    const Piece &p = m.piece;
    QCOMPARE(p.PieceName, name);
    QCOMPARE(QString::asprintf("%dx%d %d %d", p.PieceNumAcross, p.PieceNumDown, p.PageSizeNum,
                               p.PieceOrientation),
             layout);
    QCOMPARE(p.PageSize, pageSize);
    QCOMPARE(p.IsCustom, qint16(0));
    QCOMPARE(p.PrinterTop, 0.4f);
    // The items were laid out for this piece.
    const Item &address = m.item(ItemId::Address);
    QCOMPARE(address.Text, QStringLiteral("Delivery Address"));
    QVERIFY(address.Top > 0 && address.Top + address.Height < p.PieceHeight);
    for (ItemId id : {ItemId::Return, ItemId::Stamp, ItemId::Message1, ItemId::Message2})
        QCOMPARE(m.item(id).Visible, othersVisible);
}

void TestPieceLoader::noCatalogueLeavesGeometryZero()
{
    QTemporaryDir empty;
    qputenv("QUIRRA_SYSTEM_DIR", empty.path().toUtf8());
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QRegularExpression::escape(empty.path()) +
                                                          QStringLiteral(".*QUIRRA_SYSTEM_DIR")));
    PieceModel m;
    m.piece.PieceNumAcross = 3;
    QVERIFY(!LoadPieceByName(QStringLiteral("5160 - Address Labels"), m));
    QCOMPARE(m.piece.PieceName, QStringLiteral("5160 - Address Labels"));
    QCOMPARE(m.piece.PieceNumAcross, qint16(0));
    QCOMPARE(m.piece.PieceWidth, 0.0f);
}

void TestPieceLoader::appliedSpecMarksCustom()
{
    PieceSpec entry = ReadPieceSpec(CatalogueFilePath(), QStringLiteral("5160 - Address Labels"));
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
void TestPieceLoader::shippedCatalogueHoldsTheFacts()
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
                                 s.MarginSide + (s.NumAcross - 1) * s.PitchHorz + s.LabelWidth <=
                                     s.PageWidth + 0.02f &&
                                 s.MarginTop + (s.NumDown - 1) * s.PitchVert + s.LabelHeight <=
                                     s.PageHeight + 0.02f,
                             qPrintable(piece));
                    QCOMPARE(ReadSetting(file, DetailsSection, piece).section(u',', 0, 0), product);
                    ++pieces;
                }
            }
        }
        QCOMPARE(pieces, rows.size() - 1 - (name == LaserCatalogueFileName ? dotMatrixRows : 0));
    }
    for (qsizetype i = 1; i < rows.size(); ++i) {
        const QStringList f = QString::fromUtf8(rows.at(i)).split(u'\t');
        const PieceSpec s = ReadPieceSpec(CatalogueFilePath(), f.value(2));
        QList<float> facts;
        for (int c = 3; c <= 12; ++c)
            facts.append(f.value(c).toFloat());
        QCOMPARE((QList<float>{s.LabelWidth, s.LabelHeight, s.PageWidth, s.PageHeight, s.MarginSide,
                               s.MarginTop, s.PitchHorz, s.PitchVert, float(s.NumAcross),
                               float(s.NumDown)}),
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
        const QString entry =
            ReadSetting(CatalogueFilePath(), PaperSizesSection, QStringLiteral("size(%1)").arg(n));
        QCOMPARE(entry.section(u',', 0, 0).toInt(), int(p.PageSizeNum));
    }
}

void TestPieceLoader::generatedFilesAreCommitted()
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

void TestPieceLoader::generatorRefusesBadFacts_data()
{
    QTest::addColumn<QString>("column");
    QTest::addColumn<QString>("value");
    QTest::addColumn<QString>("message");
    const auto row = [](const char *tag, const QString &column, const QString &value,
                        const QString &message) {
        QTest::newRow(tag) << column << value << message;
    };
    row("comma-in-a-product", "product", "Labels, large", "cannot carry");
    row("pieces-past-the-sheet", "sheet_w_in", "8", "past the sheet");
    row("no-pieces-across", "across", "0", "not a count");
}

void TestPieceLoader::generatorRefusesBadFacts()
{
    QFETCH(QString, column);
    QFETCH(QString, value);
    QFETCH(QString, message);
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

QTEST_GUILESS_MAIN(TestPieceLoader)
#include "tst_pieceloader.moc"
