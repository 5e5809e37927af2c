// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QHash>
#include <QList>
#include <QSizeF>
#include <QString>
#include <QStringList>

class QIODevice;

namespace quirra {

/** @brief The outline of one label of an imported sheet; the piece is its bounding box. */
enum class LabelShape { Rectangle, Round, Ellipse, Cd };

/**
 * @brief One product of the open label-template database, as read from its
 * XML files.
 *
 * Every length is in inches. A template that names another product of its
 * brand (`equiv`) reads with that product's geometry and keeps its own part
 * number in `part` and the named one in `aliasOf`.
 */
struct LabelTemplate
{
    QString brand;       ///< "Avery"
    QString part;        ///< "5160", "L7163"
    QString aliasOf;     ///< the part this one is an alias of; empty for a product
    QString description; ///< the product family, "Address Labels"
    QStringList categories;
    QString paperId;       ///< the paper's id in the database ("A4", "US-Letter", "Other")
    double pageWidth = 0;  ///< inches
    double pageHeight = 0; ///< inches
    LabelShape shape = LabelShape::Rectangle;
    double labelWidth = 0;   ///< inches, the bounding box for rounds, ellipses and CDs
    double labelHeight = 0;  ///< inches
    double cornerRadius = 0; ///< inches; the radius for rounds and CDs
    int across = 0;          ///< labels per row
    int down = 0;            ///< rows per sheet
    double marginLeft = 0;   ///< inches from the sheet's left edge to the first column
    double marginTop = 0;    ///< inches from the sheet's top edge to the first row
    double pitchHorz = 0;    ///< inches from one column's left edge to the next's
    double pitchVert = 0;    ///< inches from one row's top edge to the next's
    QString file;            ///< where it was read, for messages
    qint64 line = 0;         ///< the line of its start tag

    /** @brief "Avery 5160": the name the catalogue lists it under. */
    QString name() const { return brand + QLatin1Char(' ') + part; }
};

/** @brief The named papers of the database, by id, in inches. */
using PaperSizes = QHash<QString, QSizeF>;

/**
 * @brief What reading template files gave: the products, and a line for each
 * template that was passed over.
 */
struct TemplateReadResult
{
    QList<LabelTemplate> templates;
    /** @brief "file:line: template "Avery 1234": what is wrong", one per skipped template. */
    QStringList warnings;
    /** @brief Sheets with labels in more than one arrangement, which one piece cannot describe. */
    int skippedNonUniform = 0;
};

/**
 * @brief A length of the database in inches: a bare number is points, else
 * the unit follows the number ("in", "mm", "cm", "pt", "pc").
 * @return false for an empty text, a unit nobody knows, or no number at all.
 */
bool parseTemplateLength(QStringView text, double *inches);

/** @brief Reads a `paper-sizes.xml` file; unreadable entries are left out. */
PaperSizes readPaperSizes(QIODevice &device);

/**
 * @brief Reads one `*-templates.xml` file into @p result.
 *
 * Aliases are kept with an empty geometry until resolveTemplateAliases()
 * gives them their product's, which may stand in another file.
 * @param fileName used in warnings only
 */
void readTemplates(QIODevice &device, const QString &fileName, const PaperSizes &papers,
                   TemplateReadResult &result);

/**
 * @brief Gives each alias the geometry of the product of its brand that it
 * names; an alias whose product is missing is dropped with a warning.
 */
void resolveTemplateAliases(TemplateReadResult &result);

/**
 * @brief Reads every template of a folder: its `paper-sizes.xml` (or the one
 * of @p fallbackPapers when it has none) and each `*-templates.xml`, in name order.
 */
TemplateReadResult readTemplateFolder(const QString &folder, const PaperSizes &fallbackPapers = {});

} // namespace quirra
