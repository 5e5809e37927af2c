// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#include "catalogue/catalogue.h"

#include "catalogue/logging_p.h"
#include "model/error.h"
#include "settings/files.h"
#include "settings/settings.h"
#include "settings/strings.h"

namespace quirra {

namespace {

// Field n (from 0) of a comma-separated record; empty when the record is
// shorter. There is no quoting: a field never holds a comma.
QString field(const QStringList &fields, int n)
{
    return n < fields.size() ? fields.at(n) : QString();
}

// The two numbers of "a x b", split at the first lower-case "x" only: a
// capital X leaves the whole text as the first number, which then does not
// convert.
void splitPair(const QString &pair, QString &first, QString &second)
{
    first = TextBefore(pair, QStringLiteral("x"));
    second = TextAfter(pair, QStringLiteral("x"));
}

qint16 countOf(const QString &text, const QString &name)
{
    try {
        return ParseInteger(text);
    } catch (const Error &e) {
        qCDebug(lcCatalogue).noquote() << "piece" << name << ":" << e.message() << "; read as 0";
        return 0;
    }
}

QStringList firstFields(const QString &file, const QString &section, const QString &stem, int bound)
{
    QStringList slots(bound);
    const int last = ReadSettingList(file, section, stem, slots);
    QStringList list;
    list.reserve(last);
    for (int i = 0; i < last; ++i)
        list.append(TextBefore(slots.at(i), QStringLiteral(",")));
    return list;
}

} // namespace

PieceSpec ReadPieceSpec(const QString &file, const QString &name)
{
    const QString record = ReadSetting(file, DetailsSection, name);
    PieceSpec entry;
    entry.Name = name;
    if (record.isEmpty()) {
        qCDebug(lcCatalogue).noquote() << "no record of piece" << name << "in"
                                       << (file.isEmpty() ? QStringLiteral("(no file)") : file);
        return entry;
    }
    const QStringList fields = record.split(u',');
    QString a, b;
    splitPair(field(fields, 1), a, b);
    entry.LabelWidth = ParseSingle(a);
    entry.LabelHeight = ParseSingle(b);
    splitPair(field(fields, 2), a, b);
    entry.PageWidth = ParseSingle(a);
    entry.PageHeight = ParseSingle(b);
    splitPair(field(fields, 3), a, b);
    entry.MarginSide = ParseSingle(a);
    entry.MarginTop = ParseSingle(b);
    splitPair(field(fields, 4), a, b);
    entry.PitchHorz = ParseSingle(a);
    entry.PitchVert = ParseSingle(b);
    splitPair(field(fields, 5), a, b);
    entry.NumAcross = countOf(a, name);
    entry.NumDown = countOf(b, name);
    entry.PageDesc = field(fields, 6);
    return entry;
}

int ReadPieceType(const QString &name)
{
    const QString record = ReadSetting(CatalogueFilePath(), DetailsSection, name);
    const QString type = TextAfterLast(record, QStringLiteral(",")).trimmed().toUpper();
    return type == QLatin1String("CONT") ? PieceTypeContinuous : PieceTypeCut;
}

QString ReadPieceProduct(const QString &name)
{
    return TextBefore(ReadSetting(CatalogueFilePath(), DetailsSection, name), QStringLiteral(","));
}

QString CatalogueFilePath()
{
    const QString path = SystemDirectory() + MasterCatalogueFileName;
    return FileExists(path) ? path : QString();
}

QStringList ReadProductList(const QString &file, const QString &family)
{
    return firstFields(file, family, QStringLiteral("product"), ProductListBound);
}

QStringList ReadPieceList(const QString &file, const QString &product)
{
    return firstFields(file, product, QStringLiteral("Piece"), PieceListBound);
}

QStringList ReadPaperSizeCaptions()
{
    QStringList slots(PaperSizeListBound);
    const int last =
        ReadSettingList(PaperCatalogueFile(), PaperSizesSection, QStringLiteral("size"), slots);
    QStringList captions;
    captions.reserve(last);
    for (int i = 0; i < last; ++i)
        captions.append(TextAfterLast(slots.at(i), QStringLiteral(",")));
    return captions;
}

void ReadPaperSize(int index, float &width, float &height)
{
    QString value = ReadSetting(PaperCatalogueFile(), PaperSizesSection,
                                QStringLiteral("size(%1)").arg(qint64(index) + 1));
    // The default has no comma, hence no dimension field: it reads as 0 x 0.
    if (value.isEmpty())
        value = QStringLiteral("8.5x11");
    const QString dimensions = field(value.split(u','), 1).toLower();
    width = ParseSingle(TextBefore(dimensions, QStringLiteral("x")));
    height = ParseSingle(TextAfterLast(dimensions, QStringLiteral("x")));
}

} // namespace quirra
