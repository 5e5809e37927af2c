// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#pragma once

#include "catalogue/pieceentry.h"
#include "catalogue/templatereader.h"
#include <QHash>
#include <QString>
#include <QStringList>

#include <memory>

namespace quirra {

struct Piece;
class PieceModel;

/** @brief One piece the catalogue holds, with what the picker shows of it. */
struct CatalogueEntry
{
    PieceSpec sheet;  ///< the geometry, inches
    QString product;  ///< the product (family): the record's first field, a template's description
    QString group;    ///< the picker's product row: the product, or the brand of an import
    QString sizeText; ///< the piece size as the Info box shows it
    QString layoutText; ///< "3 x 10"
    int type = 1;       ///< PieceTypeCut or PieceTypeContinuous
    QString brand;      ///< imports only: "Avery"
    QString part;       ///< imports only: "L7163"
    LabelShape shape = LabelShape::Rectangle;
    bool imported = false;
    bool metric = false; ///< the paper is a metric one: sizes read in mm
};

/**
 * @brief The pieces a program can choose: the shipped catalogue of a folder
 * and the products of the label-template database, read once.
 *
 * Shipped names win over an import of the same name. Imports are listed by
 * brand ("Avery" holds "Avery 5160", "Avery L7163") after the shipped
 * products of the cut-sheet family. The object never changes once opened;
 * the control and the dialogs share the one system() gives.
 */
class Catalogue
{
public:
    /**
     * @brief Opens the master catalogue of folder (the file "quirra.cfg" in
     * it) and the templates of each folder of templateFolders, in order:
     * the first folder naming a product wins.
     */
    explicit Catalogue(const QString &folder, const QStringList &templateFolders = {});

    /**
     * @brief The catalogue of the system folder and the default template
     * folders, loaded once per process for those folders (a new load when
     * QUIRRA_SYSTEM_DIR or QUIRRA_TEMPLATE_DIR points elsewhere).
     */
    static std::shared_ptr<const Catalogue> system();

    /**
     * @brief Where templates are looked for: the installed database
     * ($XDG_DATA_DIRS/libglabels-3.0/templates), the user's own
     * ($XDG_DATA_HOME/quirra/templates), those that exist, the user's first.
     * QUIRRA_TEMPLATE_DIR, when set, is the only one (none when empty).
     */
    static QStringList defaultTemplateFolders();

    /** @brief The path of a catalogue file of the folder (it may not be there). */
    QString path(const QString &fileName) const { return m_folder + fileName; }
    /** @brief The master file's full path, or empty when it cannot be read. */
    QString masterFile() const { return m_masterFile; }

    /** @brief The entry of name, or null when the catalogue has none. */
    const CatalogueEntry *entry(const QString &name) const;

    /** @brief The geometry of name; all zeros (NumAcross 0) when it is not there. */
    PieceSpec piece(const QString &name) const;

    /**
     * @brief The geometry of name, or of "Size 10 - Envelope" when name is
     * missing or broken (fewer than 1 across). @p found tells which.
     */
    PieceSpec pieceOrDefault(const QString &name, bool *found = nullptr) const;

    /**
     * @brief Loads name into the model as setting the piece's name does:
     * pieceOrDefault(), applied with ApplyPieceSpec(); PieceName stays name.
     * A warning names the folder when there is no catalogue at all.
     * @return true when name itself was found.
     */
    bool loadPiece(const QString &name, PieceModel &model) const;

    /** @brief PieceTypeContinuous or PieceTypeCut (also for a name not there). */
    int type(const QString &name) const;
    /** @brief The picker's product row of name: its product, or its brand for an import. */
    QString group(const QString &name) const;

    /**
     * @brief The products of a printer family section, gaps kept as empty
     * entries; the cut-sheet family ends with the brands of the imports.
     */
    QStringList products(const QString &family) const;
    /** @brief The pieces of a product (gaps kept) or of a brand. */
    QStringList pieces(const QString &product) const;

    /** @brief Every piece, shipped ones first, each once. */
    const QStringList &names() const { return m_names; }

    /**
     * @brief The pieces whose name, brand, part or product holds every word
     * of text (any case), and whose brand is brand when one is given.
     */
    QStringList search(const QString &text, const QString &brand = {}) const;

    /** @brief Pieces imported from the templates. */
    int importedCount() const { return m_imported; }
    /** @brief A line per template passed over, "file:line: template "X": why". */
    const QStringList &warnings() const { return m_warnings; }

private:
    void readShipped(const QString &folder);
    void readTemplates(const QStringList &folders);
    void add(const QString &name, CatalogueEntry entry);

    QString m_folder;
    QString m_masterFile;
    QHash<QString, CatalogueEntry> m_entries;
    QStringList m_names;
    QStringList m_searchKeys;            ///< lower-cased words to search, one per name
    QHash<QString, QStringList> m_lists; ///< section "\n" stem -> indexed list
    QStringList m_brands;
    QHash<QString, QStringList> m_brandPieces;
    QStringList m_warnings;
    int m_imported = 0;
};

/**
 * @brief Copies a catalogue entry's geometry onto a piece: margins, counts,
 * sizes, pitch, the page's description and real size, the custom flag; then
 * derives the orientation and paper code. The name and the items are left.
 */
void CopyPieceSpec(const PieceSpec &entry, Piece &piece);

} // namespace quirra
