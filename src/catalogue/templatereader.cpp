// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#include "catalogue/templatereader.h"

#include "catalogue/logging_p.h"

#include <QDir>
#include <QFile>
#include <QXmlStreamReader>

#include <cmath>

namespace quirra {

namespace {

constexpr double PointsPerInch = 72.0;

// Far edges may pass the sheet's by this much: bleed labels are drawn to the
// edge and a little past it, and metric sheets are rounded.
constexpr double EdgeTolerance = 0.0625; // inches

struct Unit
{
    QLatin1String suffix;
    double perInch;
};

constexpr Unit units[] = {
    {QLatin1String("in"), 1.0},
    {QLatin1String("mm"), 25.4},
    {QLatin1String("cm"), 2.54},
    {QLatin1String("pt"), PointsPerInch},
    {QLatin1String("pc"), PointsPerInch / 12.0},
};

// A template is read into this and either handed over whole or dropped
// with the first thing found wrong with it.
class TemplateBuilder
{
public:
    TemplateBuilder(QXmlStreamReader &xml, const QString &fileName, const PaperSizes &papers)
        : m_xml(xml), m_papers(papers)
    {
        m_template.file = fileName;
        m_template.line = xml.lineNumber();
    }

    // Reads from the Template start tag to its end tag; false when the
    // template cannot be used (the reason in error()), or when it describes
    // a sheet with more than one arrangement (nonUniform()).
    bool read();

    const LabelTemplate &result() const { return m_template; }
    const QString &error() const { return m_error; }
    bool nonUniform() const { return m_layouts > 1 || m_labels > 1; }

private:
    bool fail(const QString &why)
    {
        if (m_error.isEmpty())
            m_error = why;
        return false;
    }
    bool length(const QXmlStreamAttributes &attributes, QLatin1String name, double *inches,
                bool required = true);
    bool readPage(const QXmlStreamAttributes &attributes);
    bool readLabel(const QXmlStreamAttributes &attributes);
    bool readLayout(const QXmlStreamAttributes &attributes);
    bool checkFits();

    QXmlStreamReader &m_xml;
    const PaperSizes &m_papers;
    LabelTemplate m_template;
    QString m_error;
    int m_labels = 0;
    int m_layouts = 0;
};

bool TemplateBuilder::length(const QXmlStreamAttributes &attributes, QLatin1String name,
                             double *inches, bool required)
{
    if (!attributes.hasAttribute(name)) {
        *inches = 0;
        return !required || fail(QStringLiteral("no %1").arg(name));
    }
    const QStringView text = attributes.value(name);
    if (!parseTemplateLength(text, inches))
        return fail(
            QStringLiteral("%1=\"%2\" is not a length (a number, then in, mm, cm, pt or pc)")
                .arg(name, text));
    if (*inches < 0)
        return fail(QStringLiteral("%1=\"%2\" is negative").arg(name, text));
    return true;
}

bool TemplateBuilder::readPage(const QXmlStreamAttributes &attributes)
{
    m_template.paperId = attributes.value(QLatin1String("size")).toString();
    if (m_template.paperId.isEmpty() || m_template.paperId == QLatin1String("Other") ||
        m_template.paperId == QLatin1String("roll")) {
        if (!length(attributes, QLatin1String("width"), &m_template.pageWidth) ||
            !length(attributes, QLatin1String("height"), &m_template.pageHeight))
            return false;
    } else {
        const auto paper = m_papers.constFind(m_template.paperId);
        if (paper == m_papers.cend())
            return fail(
                QStringLiteral("paper \"%1\" is not in the paper sizes").arg(m_template.paperId));
        m_template.pageWidth = paper->width();
        m_template.pageHeight = paper->height();
    }
    if (m_template.pageWidth <= 0 || m_template.pageHeight <= 0)
        return fail(QStringLiteral("the sheet has no size"));
    return true;
}

bool TemplateBuilder::readLabel(const QXmlStreamAttributes &attributes)
{
    LabelTemplate &t = m_template;
    const QStringView kind = m_xml.name();
    if (kind == QLatin1String("Label-rectangle")) {
        t.shape = LabelShape::Rectangle;
        return length(attributes, QLatin1String("width"), &t.labelWidth) &&
               length(attributes, QLatin1String("height"), &t.labelHeight) &&
               length(attributes, QLatin1String("round"), &t.cornerRadius, false);
    }
    if (kind == QLatin1String("Label-ellipse")) {
        t.shape = LabelShape::Ellipse;
        return length(attributes, QLatin1String("width"), &t.labelWidth) &&
               length(attributes, QLatin1String("height"), &t.labelHeight);
    }
    double radius = 0;
    if (!length(attributes, QLatin1String("radius"), &radius))
        return false;
    t.cornerRadius = radius;
    t.labelWidth = t.labelHeight = 2 * radius;
    if (kind == QLatin1String("Label-round")) {
        t.shape = LabelShape::Round;
        return true;
    }
    // A business-card CD is cut off at the sides: its own width and height
    // bound it where they are given.
    t.shape = LabelShape::Cd;
    double width = 0, height = 0;
    if (!length(attributes, QLatin1String("width"), &width, false) ||
        !length(attributes, QLatin1String("height"), &height, false))
        return false;
    if (width > 0)
        t.labelWidth = width;
    if (height > 0)
        t.labelHeight = height;
    return true;
}

bool TemplateBuilder::readLayout(const QXmlStreamAttributes &attributes)
{
    LabelTemplate &t = m_template;
    bool okX = false, okY = false;
    t.across = attributes.value(QLatin1String("nx")).toInt(&okX);
    t.down = attributes.value(QLatin1String("ny")).toInt(&okY);
    if (!okX || !okY || t.across < 1 || t.down < 1)
        return fail(
            QStringLiteral("nx=\"%1\" ny=\"%2\": a layout needs at least one label each way")
                .arg(attributes.value(QLatin1String("nx")), attributes.value(QLatin1String("ny"))));
    // Whole numbers beyond what a sheet holds would overflow the piece's counts.
    if (t.across > 1000 || t.down > 1000)
        return fail(QStringLiteral("nx=\"%1\" ny=\"%2\": more labels than a sheet holds")
                        .arg(t.across)
                        .arg(t.down));
    return length(attributes, QLatin1String("x0"), &t.marginLeft, false) &&
           length(attributes, QLatin1String("y0"), &t.marginTop, false) &&
           length(attributes, QLatin1String("dx"), &t.pitchHorz, t.across > 1) &&
           length(attributes, QLatin1String("dy"), &t.pitchVert, t.down > 1);
}

bool TemplateBuilder::checkFits()
{
    const LabelTemplate &t = m_template;
    if (t.labelWidth <= 0 || t.labelHeight <= 0)
        return fail(QStringLiteral("the label has no size"));
    const double right = t.marginLeft + (t.across - 1) * t.pitchHorz + t.labelWidth;
    const double bottom = t.marginTop + (t.down - 1) * t.pitchVert + t.labelHeight;
    if (right > t.pageWidth + EdgeTolerance || bottom > t.pageHeight + EdgeTolerance)
        return fail(QStringLiteral("the labels reach %1 x %2 in. on a %3 x %4 in. sheet")
                        .arg(right, 0, 'g', 4)
                        .arg(bottom, 0, 'g', 4)
                        .arg(t.pageWidth, 0, 'g', 4)
                        .arg(t.pageHeight, 0, 'g', 4));
    return true;
}

bool TemplateBuilder::read()
{
    const QXmlStreamAttributes attributes = m_xml.attributes();
    LabelTemplate &t = m_template;
    t.brand = attributes.value(QLatin1String("brand")).toString().trimmed();
    t.part = attributes.value(QLatin1String("part")).toString().trimmed();
    t.aliasOf = attributes.value(QLatin1String("equiv")).toString().trimmed();
    t.description = attributes.value(QLatin1String("_description")).toString();
    if (t.description.isEmpty())
        t.description = attributes.value(QLatin1String("description")).toString();
    t.description = t.description.simplified();
    bool ok = !t.brand.isEmpty() && !t.part.isEmpty();
    if (!ok)
        fail(QStringLiteral("a template needs a brand and a part"));
    else if (t.aliasOf.isEmpty())
        ok = readPage(attributes);

    int depth = 1;
    bool inLabel = false;
    while (depth > 0 && !m_xml.atEnd()) {
        switch (m_xml.readNext()) {
        case QXmlStreamReader::StartElement: {
            ++depth;
            const QStringView name = m_xml.name();
            const QXmlStreamAttributes inner = m_xml.attributes();
            if (name == QLatin1String("Meta")) {
                const QString category = inner.value(QLatin1String("category")).toString();
                if (!category.isEmpty())
                    t.categories.append(category);
            } else if (name.startsWith(QLatin1String("Label-"))) {
                inLabel = true;
                if (++m_labels == 1 && ok)
                    ok = readLabel(inner);
            } else if (name == QLatin1String("Layout") && inLabel) {
                if (++m_layouts == 1 && ok)
                    ok = readLayout(inner);
            }
            break;
        }
        case QXmlStreamReader::EndElement:
            --depth;
            if (m_xml.name().startsWith(QLatin1String("Label-")))
                inLabel = false;
            break;
        default:
            break;
        }
    }
    if (m_xml.hasError())
        return fail(m_xml.errorString());
    if (!ok || nonUniform())
        return false;
    if (!t.aliasOf.isEmpty())
        return true;
    if (m_labels == 0 || m_layouts == 0)
        return fail(QStringLiteral("no label or no layout"));
    return checkFits();
}

QString where(const LabelTemplate &t)
{
    return QStringLiteral("%1:%2: template \"%3\"").arg(t.file).arg(t.line).arg(t.name());
}

} // namespace

bool parseTemplateLength(QStringView text, double *inches)
{
    text = text.trimmed();
    double perInch = PointsPerInch;
    for (const Unit &unit : units) {
        if (text.endsWith(unit.suffix)) {
            perInch = unit.perInch;
            text.chop(unit.suffix.size());
            break;
        }
    }
    bool ok = false;
    const double value = text.trimmed().toDouble(&ok);
    if (!ok || !std::isfinite(value))
        return false;
    *inches = value / perInch;
    return true;
}

PaperSizes readPaperSizes(QIODevice &device)
{
    PaperSizes papers;
    QXmlStreamReader xml(&device);
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement ||
            xml.name() != QLatin1String("Paper-size"))
            continue;
        const QXmlStreamAttributes attributes = xml.attributes();
        double width = 0, height = 0;
        if (parseTemplateLength(attributes.value(QLatin1String("width")), &width) &&
            parseTemplateLength(attributes.value(QLatin1String("height")), &height) && width > 0 &&
            height > 0)
            papers.insert(attributes.value(QLatin1String("id")).toString(), QSizeF(width, height));
    }
    return papers;
}

void readTemplates(QIODevice &device, const QString &fileName, const PaperSizes &papers,
                   TemplateReadResult &result)
{
    QXmlStreamReader xml(&device);
    bool errorReported = false;
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement ||
            xml.name() != QLatin1String("Template"))
            continue;
        TemplateBuilder builder(xml, fileName, papers);
        if (builder.read()) {
            result.templates.append(builder.result());
        } else if (builder.nonUniform() && builder.error().isEmpty()) {
            ++result.skippedNonUniform;
        } else {
            result.warnings.append(where(builder.result()) + QStringLiteral(": ") +
                                   builder.error());
            errorReported = xml.hasError();
        }
    }
    // A file that breaks off between templates keeps what was read before.
    if (xml.hasError() && !errorReported)
        result.warnings.append(
            QStringLiteral("%1:%2: %3").arg(fileName).arg(xml.lineNumber()).arg(xml.errorString()));
}

void resolveTemplateAliases(TemplateReadResult &result)
{
    QHash<QString, qsizetype> products;
    for (qsizetype i = 0; i < result.templates.size(); ++i) {
        const LabelTemplate &t = result.templates.at(i);
        if (t.aliasOf.isEmpty())
            products.insert(t.brand + QLatin1Char('\n') + t.part, i);
    }
    QList<LabelTemplate> kept;
    kept.reserve(result.templates.size());
    for (const LabelTemplate &t : std::as_const(result.templates)) {
        if (t.aliasOf.isEmpty()) {
            kept.append(t);
            continue;
        }
        const auto product = products.constFind(t.brand + QLatin1Char('\n') + t.aliasOf);
        if (product == products.cend()) {
            result.warnings.append(
                where(t) +
                QStringLiteral(": it names \"%1 %2\", which is not there").arg(t.brand, t.aliasOf));
            continue;
        }
        LabelTemplate alias = result.templates.at(*product);
        alias.part = t.part;
        alias.aliasOf = t.aliasOf;
        alias.file = t.file;
        alias.line = t.line;
        if (!t.description.isEmpty())
            alias.description = t.description;
        kept.append(alias);
    }
    result.templates = kept;
}

TemplateReadResult readTemplateFolder(const QString &folder, const PaperSizes &fallbackPapers)
{
    TemplateReadResult result;
    const QDir dir(folder);
    PaperSizes papers = fallbackPapers;
    QFile paperFile(dir.filePath(QStringLiteral("paper-sizes.xml")));
    if (paperFile.open(QIODevice::ReadOnly)) {
        const PaperSizes own = readPaperSizes(paperFile);
        for (auto it = own.cbegin(); it != own.cend(); ++it)
            papers.insert(it.key(), it.value());
    }
    const QStringList files = dir.entryList({QStringLiteral("*-templates.xml")},
                                            QDir::Files | QDir::Readable, QDir::Name);
    for (const QString &name : files) {
        QFile file(dir.filePath(name));
        if (!file.open(QIODevice::ReadOnly)) {
            result.warnings.append(
                QStringLiteral("%1: cannot be read: %2").arg(file.fileName(), file.errorString()));
            continue;
        }
        readTemplates(file, file.fileName(), papers, result);
    }
    resolveTemplateAliases(result);
    qCDebug(lcCatalogue) << folder << ":" << result.templates.size() << "templates,"
                         << result.warnings.size() << "skipped with a warning,"
                         << result.skippedNonUniform << "non-uniform sheets skipped";
    return result;
}

} // namespace quirra
