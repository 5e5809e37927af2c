// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
//
// quirra: the command-line host. Feeds the records of a CSV file to the
// spool and prints them, or lists the catalogue.
#include "addresscolumns.h"
#include "csvreader.h"

#include "catalogue/catalogue.h"
#include "catalogue/pieceloader.h"
#include "model/error.h"
#include "model/piecemodel.h"
#include "records/record.h"
#include "records/sharedspool.h"
#include "records/spoolwriter.h"
#include "render/messagehook.h"
#include "render/pdfexport.h"
#include "settings/files.h"

#include <QCommandLineParser>
#include <QFile>
#include <QFileInfo>
#include <QGuiApplication>
#include <QTextStream>

#include <cstdio>
#include <unistd.h>

using namespace quirra;

namespace {

QTextStream &err()
{
    static QTextStream stream(stderr);
    return stream;
}

QTextStream &out()
{
    static QTextStream stream(stdout);
    return stream;
}

int usage()
{
    err() << "usage: quirra print [--piece NAME] --pdf OUT.pdf [CSV | -]\n"
             "       quirra pieces [--product NAME]\n"
             "Run 'quirra COMMAND --help' for the options of a command.\n";
    err().flush();
    return 2;
}

// Removes the spool file however the command ends.
class SpoolFile
{
public:
    SpoolFile() { SharedSpool::instance().makeNewSpoolFile(); }
    ~SpoolFile() { DeleteFileAndWait(SharedSpool::instance().spoolPath()); }
};

void feedRecord(const AddressRow &row, Record &record)
{
    static const std::pair<AddressField, RecordField> mapping[] = {
        {AddressField::FirstName, RecordField::nm_first},
        {AddressField::MiddleName, RecordField::nm_middle},
        {AddressField::LastName, RecordField::nm_last},
        {AddressField::Address1, RecordField::addr_1},
        {AddressField::Address2, RecordField::addr_2},
        {AddressField::City, RecordField::city},
        {AddressField::State, RecordField::state},
        {AddressField::Zip, RecordField::zip},
        {AddressField::Substitute, RecordField::substitute},
    };
    record.clear();
    for (const auto &[from, to] : mapping)
        record.setValue(to, row[from]);
}

// Reads every row of the CSV into the spool. Returns the records written, or
// -1 after printing what is wrong with the input.
qint64 spoolCsv(QIODevice &device, const QString &sourceName)
{
    CsvReader reader(&device);
    QStringList fields;
    AddressColumns columns;
    QString problem;
    if (!reader.readRow(fields)) {
        if (reader.error().isEmpty())
            err() << sourceName << ": the file is empty; it needs a header row naming its "
                  << "columns: " << AddressColumns::acceptedNames() << "\n";
        else
            err() << sourceName << ": " << reader.error() << "\n";
        return -1;
    }
    if (!columns.setHeader(fields, &problem)) {
        err() << sourceName << ": line 1: " << problem << "\n";
        return -1;
    }

    SpoolWriter writer;
    writer.setYieldHook({}); // nothing to keep responsive here
    writer.StartDoc();
    Record record;
    AddressRow row;
    qint64 count = 0;
    while (reader.readRow(fields)) {
        if (fields.size() == 1 && fields.first().isEmpty())
            continue; // a blank line
        if (!columns.mapRow(fields, row, &problem)) {
            err() << sourceName << ": line " << reader.rowLine() << ": " << problem << "\n";
            return -1;
        }
        feedRecord(row, record);
        writer.NewPiece(record);
        ++count;
    }
    writer.EndDoc();
    if (!reader.error().isEmpty()) {
        err() << sourceName << ": " << reader.error() << "\n";
        return -1;
    }
    return count;
}

int runPrint(const QStringList &arguments)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(
        QStringLiteral("Prints the addresses of a CSV file (a header row, then one recipient a "
                       "row) on the chosen piece."));
    parser.addHelpOption();
    parser.addPositionalArgument(QStringLiteral("csv"),
                                 QStringLiteral("The CSV file; - or nothing reads standard input."));
    const QCommandLineOption pieceOption(QStringLiteral("piece"),
                                         QStringLiteral("The catalogue piece (see quirra pieces)."),
                                         QStringLiteral("name"), DefaultPieceName);
    const QCommandLineOption pdfOption(QStringLiteral("pdf"),
                                       QStringLiteral("Write the pages to this PDF file."),
                                       QStringLiteral("file"));
    parser.addOptions({pieceOption, pdfOption});
    parser.process(arguments);

    const QString pdfPath = parser.value(pdfOption);
    if (pdfPath.isEmpty()) {
        err() << "quirra print: say where the pages go with --pdf OUT.pdf\n";
        return 2;
    }
    const QStringList positional = parser.positionalArguments();
    if (positional.size() > 1) {
        err() << "quirra print: give one CSV file, not " << positional.size() << "\n";
        return 2;
    }
    const QString csvPath = positional.value(0, QStringLiteral("-"));

    QFile csv;
    QString sourceName = csvPath;
    if (csvPath == QLatin1String("-")) {
        if (isatty(STDIN_FILENO)) {
            err() << "quirra print: no CSV file given and standard input is a terminal; "
                     "name a file or pipe one in\n";
            return 2;
        }
        sourceName = QStringLiteral("standard input");
        csv.open(stdin, QIODevice::ReadOnly);
    } else {
        csv.setFileName(csvPath);
        if (!csv.open(QIODevice::ReadOnly)) {
            err() << csvPath << ": cannot read the file: " << csv.errorString() << "\n";
            return 1;
        }
    }

    PieceModel &model = PieceModel::shared();
    const QString piece = parser.value(pieceOption);
    if (!LoadPieceByName(piece, model)) {
        err() << "quirra print: warning: the catalogue has no piece \"" << piece << "\"; \""
              << DefaultPieceName << "\" is used (see quirra pieces)\n";
    }

    // As on a newly placed control: the item texts start empty (the catalogue's
    // placeholder texts are for the layout editor) and the stamp has a frame.
    for (ItemId id : StorageOrder)
        model.item(id).Text.clear();
    model.item(ItemId::Stamp).Border = 2;

    SpoolFile spool;
    const qint64 records = spoolCsv(csv, sourceName);
    if (records < 0)
        return 1;

    // Written beside the target and renamed at the end, so a failed run
    // leaves no half-written file and an old file stays until the new one is whole.
    const QString partial = pdfPath + QStringLiteral(".partial");
    int printerError = 0;
    setMessageHook([&](const QString &text) {
        err() << "quirra print: " << text << " (cannot write " << pdfPath << ")\n";
        printerError = 1;
    });
    PdfRunResult result;
    try {
        result = PrintSpoolToPdf(partial, model, SharedSpool::instance().reader());
    } catch (const Error &e) {
        QFile::remove(partial);
        err() << "quirra print: " << e.message() << "\n";
        return 1;
    }
    if (printerError || result.errorCode != 0) {
        QFile::remove(partial);
        return 1;
    }
    QFile::remove(pdfPath);
    if (!QFile::rename(partial, pdfPath)) {
        QFile::remove(partial);
        err() << pdfPath << ": cannot write the file there\n";
        return 1;
    }
    err() << "quirra print: " << records << " records, " << result.pages << " pages on \""
          << model.piece.PieceName << "\" -> " << pdfPath << "\n";
    return 0;
}

QString inches(float value)
{
    return QString::number(double(value), 'g', 6);
}

int runPieces(const QStringList &arguments)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral("Lists the catalogue's envelopes and labels."));
    parser.addHelpOption();
    const QCommandLineOption productOption(QStringLiteral("product"),
                                           QStringLiteral("Only the pieces of this product."),
                                           QStringLiteral("name"));
    parser.addOption(productOption);
    parser.process(arguments);

    const QString file = CatalogueFilePath();
    if (file.isEmpty()) {
        err() << "quirra pieces: no catalogue (quirra.cfg) in " << SystemDirectory()
              << "; set QUIRRA_SYSTEM_DIR to the folder that holds it\n";
        return 1;
    }
    const QString only = parser.value(productOption);
    int listed = 0;
    for (const QString &family : {LaserFamilySection, DotMatrixFamilySection}) {
        for (const QString &product : ReadProductList(file, family)) {
            if (product.isEmpty() || (!only.isEmpty() && product.compare(only, Qt::CaseInsensitive)))
                continue;
            for (const QString &name : ReadPieceList(file, product)) {
                if (name.isEmpty())
                    continue;
                const PieceSpec entry = ReadPieceSpec(file, name);
                out() << family << '\t' << product << '\t' << name << '\t'
                      << inches(entry.LabelWidth) << " x " << inches(entry.LabelHeight) << " in\t"
                      << entry.NumAcross << " x " << entry.NumDown << '\t' << entry.PageDesc << '\n';
                ++listed;
            }
        }
    }
    if (listed == 0 && !only.isEmpty()) {
        err() << "quirra pieces: no product \"" << only << "\" in " << file << "\n";
        return 1;
    }
    return 0;
}

} // namespace

int main(int argc, char **argv)
{
    // Printing needs fonts, not a screen: run headless where there is none.
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM") && qEnvironmentVariableIsEmpty("DISPLAY")
        && qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication app(argc, argv);
    QGuiApplication::setApplicationName(QStringLiteral("quirra"));

    QStringList arguments = QGuiApplication::arguments();
    if (arguments.size() < 2)
        return usage();
    const QString command = arguments.takeAt(1);
    const QString program = arguments.first() + QLatin1Char(' ') + command;
    arguments[0] = program;
    int status = 2;
    try {
        if (command == QLatin1String("print"))
            status = runPrint(arguments);
        else if (command == QLatin1String("pieces"))
            status = runPieces(arguments);
        else
            status = usage();
    } catch (const Error &e) {
        err() << "quirra " << command << ": " << e.message() << "\n";
        status = 1;
    }
    err().flush();
    out().flush();
    return status;
}
