// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#include "runoptions.h"

#include "console.h"

#include "cataloguecheck.h"
#include "valuelimits.h"

#include "catalogue/catalogue.h"
#include "catalogue/piececatalogue.h"
#include "catalogue/pieceentry.h"
#include "control/quirra.h"
#include "model/error.h"
#include "model/piece.h"
#include "properties/jsonpropertybag.h"
#include "settings/files.h"

#include <QCommandLineParser>
#include <QJsonObject>
#include <QMetaProperty>
#include <QRegularExpression>

namespace quirra {

namespace {

// An unknown name would print on the control's fallback piece, which is
// not what the user asked for: the run stops and names the nearest ones.
QString unknownPieceError(const QString &name)
{
    const QString file = CatalogueFilePath();
    if (file.isEmpty()) {
        return Cli::tr("there is no catalogue (quirra.cfg) in %1 to find the piece \"%2\" "
                       "in; set QUIRRA_SYSTEM_DIR to the folder that holds it")
            .arg(SystemDirectory(), name);
    }
    QStringList quoted;
    for (const QString &near : nearestPieceNames(file, name))
        quoted << QLatin1Char('"') + near + QLatin1Char('"');
    QString text = Cli::tr("the catalogue has no piece \"%1\"").arg(name);
    if (!quoted.isEmpty())
        text += Cli::tr("; did you mean %1?").arg(quoted.join(QStringLiteral(", ")));
    return text + Cli::tr(" (quirra pieces lists them all)");
}

// Choosing a piece gives every item without text the layout's placeholder
// ("Return Address", "Message 1", a bulk-rate permit), which is there for the
// layout editor to show. On printed pieces only what the user set belongs,
// so the texts that were empty before are emptied again.
template <typename Change> void keepEmptyTextsEmpty(Quirra &control, Change change)
{
    const bool message1 = control.Message1Text().isEmpty();
    const bool message2 = control.Message2Text().isEmpty();
    const bool returnText = control.ReturnText().isEmpty();
    const bool stamp = control.StampText().isEmpty();
    change();
    if (message1)
        control.ClearMessage1();
    if (message2)
        control.ClearMessage2();
    if (returnText)
        control.ClearReturn();
    if (stamp)
        control.ClearStamp();
}

} // namespace

void RunOptions::addTo(QCommandLineParser &parser, bool withOutput)
{
    parser.addPositionalArgument(
        QStringLiteral("csv"),
        Cli::tr("The CSV file (UTF-8, a header row naming the columns); - or nothing "
                "reads standard input."),
        QStringLiteral("[CSV]"));
    parser.addOption({QStringLiteral("piece"),
                      Cli::tr("The catalogue piece to print on (see quirra pieces); "
                              "default \"%1\".")
                          .arg(DefaultPieceName),
                      Cli::tr("name", "an option's value in the help")});
    parser.addOption({QStringLiteral("layout"),
                      Cli::tr("A saved layout (JSON, as quirra preview saves it), read "
                              "before --piece and --set."),
                      Cli::tr("file", "an option's value in the help")});
    parser.addOption({QStringLiteral("set"),
                      Cli::tr("Sets a property of the control by its name, e.g. "
                              "ReturnText=\"ACME Mail\\n1 Main St\", AddressHorzAlign="
                              "haCenter, AddressFont=\"Liberation Serif,12\"; applied in "
                              "order after --layout and --piece. May be repeated."),
                      Cli::tr("property=value", "an option's value in the help")});
    if (withOutput) {
        parser.addOption({QStringLiteral("pdf"),
                          Cli::tr("Write the pages to this PDF file instead of printing."),
                          Cli::tr("file", "an option's value in the help")});
        parser.addOption({QStringLiteral("pages"),
                          Cli::tr("Print only these pages: 3-5, 4 or 2- (to the end)."),
                          Cli::tr("range", "an option's value in the help")});
        parser.addOption({QStringLiteral("printer"),
                          Cli::tr("Print on this printer (default: the system's default "
                                  "printer)."),
                          Cli::tr("name", "an option's value in the help")});
    }
    parser.addOption({QStringLiteral("start"),
                      Cli::tr("Start on slot N of the first sheet (slots numbered row by "
                              "row from 1), to use up a sheet already used."),
                      QStringLiteral("N")});
    parser.addOption({QStringLiteral("outlines"),
                      Cli::tr("Draw each piece's outline, thin and grey, to check the "
                              "alignment on plain paper.")});
    parser.addOption({QStringLiteral("copies-column"),
                      Cli::tr("The column holding how many pieces of each record to "
                              "print (a whole number, 0 or more)."),
                      Cli::tr("name", "an option's value in the help")});
    parser.addOption({QStringLiteral("progress"),
                      Cli::tr("Draw a progress bar on standard error (the default when it "
                              "is a terminal).")});
    parser.addOption({QStringLiteral("no-progress"), Cli::tr("Draw no progress bar.")});
}

bool RunOptions::read(const QCommandLineParser &parser, bool withOutput, QString *error)
{
    const QStringList positional = parser.positionalArguments();
    if (positional.size() > 1) {
        *error = Cli::tr("give one CSV file, not %1 (%2)")
                     .arg(positional.size())
                     .arg(positional.join(QStringLiteral(", ")));
        return false;
    }
    csvPath = positional.value(0, QStringLiteral("-"));
    if (csvPath.isEmpty()) {
        *error = Cli::tr("the CSV file name is empty");
        return false;
    }
    if (parser.isSet(QStringLiteral("piece"))) {
        piece = parser.value(QStringLiteral("piece")).trimmed();
        if (piece.isEmpty()) {
            *error = Cli::tr("--piece needs a name (see quirra pieces)");
            return false;
        }
    }
    layoutPath = parser.value(QStringLiteral("layout"));
    settings.clear();
    for (const QString &argument : parser.values(QStringLiteral("set"))) {
        PropertyAssignment assignment;
        if (!PropertyAssignment::parse(argument, &assignment, error))
            return false;
        settings << assignment;
    }
    if (withOutput) {
        pdfPath = parser.value(QStringLiteral("pdf"));
        printerName = parser.value(QStringLiteral("printer"));
        if (parser.isSet(QStringLiteral("pdf")) && pdfPath.isEmpty()) {
            *error = Cli::tr("--pdf needs a file name");
            return false;
        }
        if (parser.isSet(QStringLiteral("printer")) && printerName.isEmpty()) {
            *error = Cli::tr("--printer needs a printer's name");
            return false;
        }
        if (!pdfPath.isEmpty() && !printerName.isEmpty()) {
            *error = Cli::tr("give either --pdf or --printer, not both");
            return false;
        }
    }
    startSlot = 0;
    if (parser.isSet(QStringLiteral("start"))) {
        bool ok = false;
        startSlot = parser.value(QStringLiteral("start")).trimmed().toInt(&ok);
        if (!ok || startSlot < 1 || startSlot > 32767) {
            *error = Cli::tr("--start %1: give the slot as a whole number from 1")
                         .arg(parser.value(QStringLiteral("start")));
            return false;
        }
    }
    firstPage = lastPage = 0;
    if (withOutput && parser.isSet(QStringLiteral("pages"))) {
        static const QRegularExpression range(
            QStringLiteral(R"(^\s*(\d{1,6})\s*(-\s*(\d{0,6}))?\s*$)"));
        const QString value = parser.value(QStringLiteral("pages"));
        const QRegularExpressionMatch m = range.match(value);
        firstPage = m.captured(1).toInt();
        lastPage = m.captured(2).isEmpty() ? firstPage : m.captured(3).toInt();
        if (!m.hasMatch() || firstPage < 1 || (lastPage != 0 && lastPage < firstPage)) {
            *error = Cli::tr("--pages %1: give a page or a range of pages from 1, as 3-5, "
                             "4 or 2-")
                         .arg(value);
            return false;
        }
    }
    outlines = parser.isSet(QStringLiteral("outlines"));
    copiesColumn = parser.value(QStringLiteral("copies-column")).trimmed();
    if (parser.isSet(QStringLiteral("copies-column")) && copiesColumn.isEmpty()) {
        *error = Cli::tr("--copies-column needs a column's name");
        return false;
    }
    const bool on = parser.isSet(QStringLiteral("progress"));
    const bool off = parser.isSet(QStringLiteral("no-progress"));
    if (on && off) {
        *error = Cli::tr("give either --progress or --no-progress, not both");
        return false;
    }
    progress = on ? Progress::On : off ? Progress::Off : Progress::Auto;
    return true;
}

bool RunOptions::catalogueHasPiece(const QString &name)
{
    // The test of LoadPieceByName: a record with at least one piece across.
    return Catalogue::system()->piece(name).NumAcross >= 1;
}

std::optional<int> RunOptions::applyTo(Quirra &control, const QString &command)
{
    QStringList warnings;
    QString error;
    const bool applied = applyTo(control, &warnings, &error);
    for (const QString &warning : std::as_const(warnings))
        say(QStringLiteral("quirra %1: warning: %2").arg(command, warning));
    if (applied)
        return std::nullopt;
    say(QStringLiteral("quirra %1: %2").arg(command, error));
    return unknownPiece ? 2 : 1;
}

bool RunOptions::applyTo(Quirra &control, QStringList *warnings, QString *error)
{
    if (!layoutPath.isEmpty()) {
        JsonPropertyBag bag;
        try {
            bag.load(layoutPath);
        } catch (const Error &e) {
            *error = QStringLiteral("--layout %1: %2").arg(layoutPath, e.message());
            return false;
        }
        // A text of megabytes, or a length no sheet has, is refused before
        // the control spends minutes on it.
        const QJsonObject values = bag.values();
        for (auto it = values.begin(); it != values.end(); ++it) {
            const QMetaObject *meta = control.metaObject();
            const int index = meta->indexOfProperty(it.key().toLatin1().constData());
            if (index < 0)
                continue;
            QVariant value;
            if (it.value().isString())
                value = it.value().toString();
            else if (it.value().isDouble() && meta->property(index).typeId() == QMetaType::Float)
                value = float(it.value().toDouble());
            const QString problem = valueProblem(it.key(), value);
            if (!problem.isEmpty()) {
                *error = QStringLiteral("--layout %1: %2").arg(layoutPath, problem);
                return false;
            }
        }
        // A piece named in the layout must be in the catalogue as well.
        const QString saved = bag.values().value(QStringLiteral("PieceName")).toString();
        if (piece.isEmpty() && !saved.isEmpty() && !catalogueHasPiece(saved)) {
            unknownPiece = true;
            *error = QStringLiteral("--layout %1: %2").arg(layoutPath, unknownPieceError(saved));
            return false;
        }
        control.ReadProperties(bag);
    }
    if (!piece.isEmpty()) {
        if (!catalogueHasPiece(piece)) {
            unknownPiece = true;
            *error = QStringLiteral("--piece: ") + unknownPieceError(piece);
            return false;
        }
        keepEmptyTextsEmpty(control, [&] { control.PieceName(piece); });
    }
    for (const PropertyAssignment &assignment : settings) {
        if (assignment.name() != QLatin1String("PieceName")) {
            if (!assignment.apply(&control, error, warnings))
                return false;
            continue;
        }
        bool applied = false;
        keepEmptyTextsEmpty(control,
                            [&] { applied = assignment.apply(&control, error, warnings); });
        if (!applied)
            return false;
        if (!catalogueHasPiece(control.PieceName())) {
            unknownPiece = true;
            *error = QStringLiteral("--set PieceName: ") + unknownPieceError(control.PieceName());
            return false;
        }
    }
    if (startSlot > 0) {
        const int slots = int(control.PieceNumAcross()) * int(control.PieceNumDown());
        if (startSlot > slots) {
            *error = Cli::tr("--start %1: the sheet of \"%2\" has %3 slots; give 1 to %3")
                         .arg(startSlot)
                         .arg(control.PieceName())
                         .arg(slots);
            return false;
        }
        control.PieceStartSlot(short(startSlot));
    }
    if (outlines)
        control.PieceOutlines(true);
    return true;
}

} // namespace quirra
