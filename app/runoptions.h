// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#pragma once

#include "propertyassignment.h"

#include <QList>
#include <QString>

#include <QStringList>
#include <optional>

class QCommandLineParser;
class Quirra;

namespace quirra {

/**
 * @brief The options that print and preview share, read from the command
 * line, checked, and put onto a control.
 */
class RunOptions
{
public:
    /** @brief Whether the progress bar is drawn. */
    enum class Progress { Auto, On, Off };

    /** @brief Declares the options; withOutput adds --pdf and --printer (print only). */
    static void addTo(QCommandLineParser &parser, bool withOutput);

    /**
     * @brief Reads the parsed options and the CSV argument.
     * @return false with a message for a usage mistake (both --pdf and
     * --printer, two CSV files, a --set without '=').
     */
    bool read(const QCommandLineParser &parser, bool withOutput, QString *error);

    /**
     * @brief Sets up control: the saved layout (--layout), then the piece
     * (--piece), then every --set in the order given.
     * @param warnings receives what does not stop the run (an unknown piece
     * name, a font that is not installed)
     * @return false with a message when the layout file cannot be read, a
     * --set names no property or gives a value its type cannot take, or the
     * piece chosen (by --piece, --set PieceName or the layout) is not in the
     * catalogue (unknownPiece is then set: a usage mistake).
     */
    bool applyTo(Quirra &control, QStringList *warnings, QString *error);

    /**
     * @brief applyTo() for a command of the host: warnings and the error
     * go to standard error as "quirra COMMAND: ...".
     * @return the exit status when the run cannot go on: 2 for an unknown
     * piece (a usage mistake), 1 for anything else.
     */
    std::optional<int> applyTo(Quirra &control, const QString &command);

    /** @brief True when the catalogue holds a piece of this name. */
    static bool catalogueHasPiece(const QString &name);

    QString csvPath;                    ///< "-" for standard input
    QString piece;                      ///< empty when --piece was not given
    QString layoutPath;                 ///< empty when --layout was not given
    QList<PropertyAssignment> settings; ///< the --set options, in order
    QString pdfPath;                    ///< --pdf
    QString printerName;                ///< --printer
    Progress progress = Progress::Auto;
    int startSlot = 0;         ///< --start; 0 when not given
    bool outlines = false;     ///< --outlines
    QString copiesColumn;      ///< --copies-column; empty when not given
    int firstPage = 0;         ///< --pages; 0 when not given
    int lastPage = 0;          ///< --pages; 0 for an open end
    bool unknownPiece = false; ///< set by applyTo() when the piece is not in the catalogue
};

} // namespace quirra
