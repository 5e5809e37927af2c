// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#include "catalogue/piececatalogue.h"

#include "catalogue/catalogue.h"
#include "catalogue/logging_p.h"
#include "catalogue/pieceloader.h"
#include "model/piece.h"
#include "model/piecemodel.h"
#include "settings/files.h"
#include "settings/settings.h"
#include "settings/strings.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QMutex>
#include <QStandardPaths>

#include <cmath>

namespace quirra {

namespace {

const QString ProductStem = QStringLiteral("product");
const QString PieceStem = QStringLiteral("Piece");

// Names are looked up in any case, as the settings reader finds keys.
QString nameKey(const QString &name)
{
    return name.toLower();
}

QString listKey(const QString &stem, const QString &section)
{
    return stem + QLatin1Char('\n') + section;
}

// A length as the Info box shows it: up to two decimals of mm, four of inches.
QString number(double value, int decimals)
{
    QString text = QString::number(value, 'f', decimals);
    if (text.contains(u'.')) {
        while (text.endsWith(u'0'))
            text.chop(1);
        if (text.endsWith(u'.'))
            text.chop(1);
    }
    return text;
}

QString pair(double a, double b, bool metric)
{
    return metric ? QStringLiteral("%1 x %2 mm").arg(number(a * 25.4, 1), number(b * 25.4, 1))
                  : QStringLiteral("%1 x %2 in.").arg(number(a, 4), number(b, 4));
}

// US papers and sheets in whole eighths of an inch are inch sheets; the
// rest (A4, A5, the metric sizes of "Other") are metric.
bool isMetric(const LabelTemplate &t)
{
    if (t.paperId.startsWith(QLatin1String("US")))
        return false;
    if (!t.paperId.isEmpty() && t.paperId != QLatin1String("Other") &&
        t.paperId != QLatin1String("roll"))
        return true;
    const auto eighths = [](double inches) {
        return std::abs(inches * 8 - std::round(inches * 8)) < 1e-3;
    };
    return !(eighths(t.pageWidth) && eighths(t.pageHeight));
}

CatalogueEntry entryOf(const LabelTemplate &t)
{
    CatalogueEntry e;
    e.imported = true;
    e.brand = t.brand;
    e.part = t.part;
    e.product = t.description;
    e.group = t.brand;
    e.shape = t.shape;
    e.metric = isMetric(t);
    PieceSpec &s = e.sheet;
    s.Name = t.name();
    QString paper = t.paperId;
    paper.replace(u'-', u' ');
    if (paper.isEmpty() || paper == QLatin1String("Other") || paper == QLatin1String("roll"))
        paper = QStringLiteral("Custom");
    s.PageDesc = QStringLiteral("%1 (%2)").arg(paper, pair(t.pageWidth, t.pageHeight, e.metric));
    s.PageWidth = float(t.pageWidth);
    s.PageHeight = float(t.pageHeight);
    s.MarginSide = float(t.marginLeft);
    s.MarginTop = float(t.marginTop);
    s.LabelWidth = float(t.labelWidth);
    s.LabelHeight = float(t.labelHeight);
    // A single column or row has no pitch in the database; one label's
    // size is the step a piece takes.
    s.PitchHorz = float(t.across > 1 ? t.pitchHorz : t.labelWidth);
    s.PitchVert = float(t.down > 1 ? t.pitchVert : t.labelHeight);
    s.NumAcross = qint16(t.across);
    s.NumDown = qint16(t.down);
    e.sizeText = pair(t.labelWidth, t.labelHeight, e.metric);
    e.layoutText = QStringLiteral("%1 x %2").arg(t.across).arg(t.down);
    return e;
}

} // namespace

Catalogue::Catalogue(const QString &folder, const QStringList &templateFolders)
{
    QElapsedTimer clock;
    clock.start();
    readShipped(folder);
    readTemplates(templateFolders);
    qCDebug(lcCatalogue).noquote()
        << m_names.size() << "pieces," << m_imported << "imported," << m_warnings.size()
        << "templates skipped; read in" << clock.elapsed() << "ms";
}

void Catalogue::readShipped(const QString &folder)
{
    m_folder = WithTrailingSlash(folder);
    m_masterFile =
        FileExists(path(MasterCatalogueFileName)) ? path(MasterCatalogueFileName) : QString();
    if (m_masterFile.isEmpty())
        return;
    for (const QString &family : {LaserFamilySection, DotMatrixFamilySection}) {
        const QStringList products = ReadProductList(m_masterFile, family);
        m_lists.insert(listKey(ProductStem, family), products);
        for (const QString &product : products) {
            const QString key = listKey(PieceStem, product);
            if (product.isEmpty() || m_lists.contains(key))
                continue;
            const QStringList pieces = ReadPieceList(m_masterFile, product);
            m_lists.insert(key, pieces);
            for (const QString &name : pieces) {
                if (name.isEmpty() || m_entries.contains(nameKey(name)))
                    continue;
                const QString record = ReadSetting(m_masterFile, DetailsSection, name);
                const QStringList fields = record.split(u',');
                CatalogueEntry e;
                e.sheet = ReadPieceSpec(m_masterFile, name);
                e.product = fields.value(0);
                e.group = e.product;
                e.sizeText = fields.value(1);
                e.layoutText = fields.value(5);
                e.type = TextAfterLast(record, QStringLiteral(",")).trimmed().toUpper() ==
                                 QLatin1String("CONT")
                             ? PieceTypeContinuous
                             : PieceTypeCut;
                e.metric = e.sheet.PageDesc.contains(QLatin1String(" mm"));
                // A metric sheet's sizes read in millimetres, as printed on its box.
                if (e.metric)
                    e.sizeText = pair(e.sheet.LabelWidth, e.sheet.LabelHeight, true);
                if (!record.isEmpty())
                    add(name, e);
            }
        }
    }
}

void Catalogue::readTemplates(const QStringList &folders)
{
    // Each folder may lean on the papers of another (a user's folder has
    // none of its own).
    PaperSizes papers;
    for (const QString &folder : folders) {
        QFile file(QDir(folder).filePath(QStringLiteral("paper-sizes.xml")));
        if (file.open(QIODevice::ReadOnly)) {
            papers = readPaperSizes(file);
            break;
        }
    }
    for (const QString &folder : folders) {
        const TemplateReadResult read = readTemplateFolder(folder, papers);
        m_warnings += read.warnings;
        for (const LabelTemplate &t : read.templates) {
            if (m_entries.contains(nameKey(t.name())))
                continue;
            add(t.name(), entryOf(t));
            ++m_imported;
            QStringList &pieces = m_brandPieces[t.brand];
            if (pieces.isEmpty())
                m_brands.append(t.brand);
            pieces.append(t.name());
        }
    }
    m_brands.sort(Qt::CaseInsensitive);
    for (QStringList &pieces : m_brandPieces)
        pieces.sort(Qt::CaseInsensitive);
    for (const QString &warning : std::as_const(m_warnings))
        qCDebug(lcCatalogue).noquote() << warning;
}

void Catalogue::add(const QString &name, CatalogueEntry entry)
{
    m_searchKeys.append(
        QStringList{name, entry.brand, entry.part, entry.product}.join(u'\n').toLower());
    m_entries.insert(nameKey(name), std::move(entry));
    m_names.append(name);
}

std::shared_ptr<const Catalogue> Catalogue::system()
{
    // One load per set of folders: a process that points QUIRRA_SYSTEM_DIR
    // or QUIRRA_TEMPLATE_DIR elsewhere gets the catalogue of the new place.
    static QMutex lock;
    static QString loadedKey;
    static std::shared_ptr<const Catalogue> loaded;
    const QString folder = SystemDirectory();
    const QStringList templates = defaultTemplateFolders();
    const QString key = folder + QLatin1Char('\n') + templates.join(QLatin1Char('\n'));
    const QMutexLocker locked(&lock);
    if (!loaded || key != loadedKey) {
        loaded = std::make_shared<const Catalogue>(folder, templates);
        loadedKey = key;
    }
    return loaded;
}

QStringList Catalogue::defaultTemplateFolders()
{
    // A test names its own folder (or none, with an empty value) and sees
    // nothing else.
    if (qEnvironmentVariableIsSet("QUIRRA_TEMPLATE_DIR")) {
        const QString forTests = qEnvironmentVariable("QUIRRA_TEMPLATE_DIR");
        return forTests.isEmpty() ? QStringList() : QStringList{forTests};
    }
    QStringList folders;
    const QString own =
        QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) + "/quirra/templates";
    if (QDir(own).exists())
        folders << own;
    QStringList data = qEnvironmentVariable("XDG_DATA_DIRS").split(u':', Qt::SkipEmptyParts);
    if (data.isEmpty())
        data = {QStringLiteral("/usr/local/share"), QStringLiteral("/usr/share")};
    for (const QString &dir : std::as_const(data)) {
        const QString installed = dir + QStringLiteral("/libglabels-3.0/templates");
        if (QDir(installed).exists()) {
            folders << installed;
            break;
        }
    }
    return folders;
}

const CatalogueEntry *Catalogue::entry(const QString &name) const
{
    const auto it = m_entries.constFind(nameKey(name));
    return it == m_entries.cend() ? nullptr : &*it;
}

PieceSpec Catalogue::piece(const QString &name) const
{
    if (const CatalogueEntry *e = entry(name)) {
        PieceSpec sheet = e->sheet;
        sheet.Name = name;
        return sheet;
    }
    // A record no product lists is still a piece of the master file.
    return ReadPieceSpec(m_masterFile, name);
}

PieceSpec Catalogue::pieceOrDefault(const QString &name, bool *found) const
{
    PieceSpec sheet = piece(name);
    const bool there = sheet.NumAcross >= 1;
    if (found)
        *found = there;
    if (!there)
        sheet = piece(DefaultPieceName);
    return sheet;
}

bool Catalogue::loadPiece(const QString &name, PieceModel &model) const
{
    bool found = false;
    const PieceSpec sheet = pieceOrDefault(name, &found);
    if (!found && sheet.NumAcross >= 1) {
        qCDebug(lcCatalogue).noquote()
            << "piece" << name << "is not in the catalogue; loaded" << DefaultPieceName;
    } else if (!found && m_masterFile.isEmpty()) {
        qCWarning(lcCatalogue).noquote()
            << "No catalogue to load the piece" << name << "from:" << MasterCatalogueFileName
            << "is not in" << SystemDirectory()
            << "- set QUIRRA_SYSTEM_DIR to the folder that holds it. The piece's size stays 0.";
    } else if (!found) {
        qCWarning(lcCatalogue).noquote()
            << "The catalogue" << m_masterFile << "holds neither the piece" << name << "nor"
            << DefaultPieceName
            << "- check the file, or set QUIRRA_SYSTEM_DIR to the folder of a complete "
               "catalogue. The piece's size stays 0.";
    }
    ApplyPieceSpec(sheet, model);
    model.piece.PieceName = name;
    return found;
}

int Catalogue::type(const QString &name) const
{
    if (const CatalogueEntry *e = entry(name))
        return e->type;
    const QString record = ReadSetting(m_masterFile, DetailsSection, name);
    return TextAfterLast(record, QStringLiteral(",")).trimmed().toUpper() == QLatin1String("CONT")
               ? PieceTypeContinuous
               : PieceTypeCut;
}

QString Catalogue::group(const QString &name) const
{
    if (const CatalogueEntry *e = entry(name))
        return e->group;
    return TextBefore(ReadSetting(m_masterFile, DetailsSection, name), QStringLiteral(","));
}

QStringList Catalogue::products(const QString &family) const
{
    QStringList list = m_lists.value(listKey(ProductStem, family));
    if (family == LaserFamilySection)
        list += m_brands;
    return list;
}

QStringList Catalogue::pieces(const QString &product) const
{
    const auto shipped = m_lists.constFind(listKey(PieceStem, product));
    if (shipped != m_lists.cend())
        return *shipped;
    return m_brandPieces.value(product);
}

QStringList Catalogue::search(const QString &text, const QString &brand) const
{
    const QStringList words = text.toLower().split(u' ', Qt::SkipEmptyParts);
    QStringList found;
    for (qsizetype i = 0; i < m_names.size(); ++i) {
        const QString &name = m_names.at(i);
        if (!brand.isEmpty() && entry(name)->brand.compare(brand, Qt::CaseInsensitive) != 0)
            continue;
        const QString &key = m_searchKeys.at(i);
        if (std::all_of(words.cbegin(), words.cend(),
                        [&key](const QString &word) { return key.contains(word); }))
            found.append(name);
    }
    return found;
}

void CopyPieceSpec(const PieceSpec &entry, Piece &piece)
{
    piece.PieceMarginLeft = entry.MarginSide;
    piece.PieceMarginTop = entry.MarginTop;
    piece.PieceNumAcross = entry.NumAcross;
    piece.PieceNumDown = entry.NumDown;
    piece.PieceHeight = entry.LabelHeight;
    piece.PieceWidth = entry.LabelWidth;
    piece.PiecePitchHorz = entry.PitchHorz;
    piece.PiecePitchVert = entry.PitchVert;
    piece.IsCustom = entry.IsCustom ? 1 : 0;
    piece.PageSize = entry.PageDesc;
    piece.PageWidth = entry.PageWidth;
    piece.PageHeight = entry.PageHeight;
    DerivePageSetup(piece);
}

} // namespace quirra
