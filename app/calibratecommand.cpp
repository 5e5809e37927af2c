// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#include "calibratecommand.h"

#include "console.h"
#include "propertyassignment.h"
#include "runoptions.h"

#include "control/quirra.h"
#include "model/error.h"
#include "model/piecemodel.h"
#include "printing/printsurface.h"
#include "render/calibration.h"
#include "render/pdfexport.h"

#include <QCommandLineParser>
#include <QPrinterInfo>

#include <cmath>
#include <cstdio>

namespace quirra {

namespace {

void printLine(const QString &line)
{
    const QByteArray bytes = line.toUtf8() + '\n';
    std::fwrite(bytes.constData(), 1, size_t(bytes.size()), stdout);
}

int fail(const QString &message, int status = 1)
{
    say(QStringLiteral("quirra calibrate: %1").arg(message));
    return status;
}

} // namespace

int RunCalibrateCommand(const QStringList &arguments,
                        const std::function<std::optional<int>(
                            QCommandLineParser &, const QStringList &, const QString &)> &parse)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(Cli::tr(
        "Prints a calibration sheet of a piece: each piece's outline and a cross at its centre, "
        "rulers along the top and left edges. Held over a real sheet, it tells how far off the "
        "printer puts things; --measured turns that reading into PrinterLeft, PrinterTop, "
        "PrinterScaleX and PrinterScaleY."));
    parser.addOption({QStringLiteral("piece"), Cli::tr("The catalogue piece (required)."),
                      Cli::tr("name", "an option's value in the help")});
    parser.addOption({QStringLiteral("set"),
                      Cli::tr("Sets a property first, e.g. the present PrinterLeft."),
                      Cli::tr("property=value", "an option's value in the help")});
    parser.addOption({QStringLiteral("pdf"), Cli::tr("Write the sheet to this PDF file."),
                      Cli::tr("file", "an option's value in the help")});
    parser.addOption({QStringLiteral("printer"), Cli::tr("Print the sheet on this printer."),
                      Cli::tr("name", "an option's value in the help")});
    parser.addOption({QStringLiteral("measured"),
                      Cli::tr("How far the crosses of the first and the last piece lie "
                              "from the real pieces' centres, inches, right and down "
                              "positive: LEFT,TOP,RIGHT,BOTTOM."),
                      Cli::tr("l,t,r,b", "an option's value in the help")});
    if (const auto status = parse(parser, arguments, QStringLiteral("calibrate")))
        return *status;

    const QString piece = parser.value(QStringLiteral("piece")).trimmed();
    if (piece.isEmpty())
        return fail(Cli::tr("name the piece with --piece (see quirra pieces)"), 2);
    if (!RunOptions::catalogueHasPiece(piece))
        return fail(
            Cli::tr("there is no piece \"%1\" in the catalogue (see quirra pieces)").arg(piece), 2);
    const bool measured = parser.isSet(QStringLiteral("measured"));
    const QString pdfPath = parser.value(QStringLiteral("pdf"));
    const QString printerName = parser.value(QStringLiteral("printer"));
    if (int(measured) + int(!pdfPath.isEmpty()) + int(!printerName.isEmpty()) != 1)
        return fail(Cli::tr("give one of --pdf FILE, --printer NAME or --measured L,T,R,B"), 2);

    Quirra control;
    control.PieceName(piece);
    QString error;
    for (const QString &argument : parser.values(QStringLiteral("set"))) {
        PropertyAssignment assignment;
        if (!PropertyAssignment::parse(argument, &assignment, &error) ||
            !assignment.apply(&control, &error))
            return fail(error, 2);
    }
    const PieceModel &model = PieceModel::shared();

    if (measured) {
        const QStringList parts = parser.value(QStringLiteral("measured")).split(QLatin1Char(','));
        double v[4] = {};
        bool ok = parts.size() == 4;
        for (int i = 0; ok && i < 4; ++i)
            v[i] = parts.at(i).trimmed().toDouble(&ok);
        if (!ok || std::abs(v[0]) > 1 || std::abs(v[1]) > 1 || std::abs(v[2]) > 1 ||
            std::abs(v[3]) > 1)
            return fail(Cli::tr("--measured %1: give four distances in inches, each "
                                "within 1 in, as LEFT,TOP,RIGHT,BOTTOM (e.g. "
                                "0.03,-0.02,0.05,0.01)")
                            .arg(parser.value(QStringLiteral("measured"))),
                        2);
        const PrinterCalibration c = CalibrationFromReading(model, v[0], v[1], v[2], v[3]);
        printLine(QStringLiteral("--set PrinterLeft=%1 --set PrinterTop=%2 --set PrinterScaleX=%3 "
                                 "--set PrinterScaleY=%4")
                      .arg(c.left, 0, 'f', 3)
                      .arg(c.top, 0, 'f', 3)
                      .arg(c.scaleX, 0, 'f', 2)
                      .arg(c.scaleY, 0, 'f', 2));
        return 0;
    }

    if (!pdfPath.isEmpty()) {
        const PdfRunResult result = DrawToPdf(
            pdfPath, model, [&](Surface &surface) { PrintCalibrationSheet(surface, model); });
        if (result.errorCode != 0)
            return fail(Cli::tr("%1 cannot be written").arg(pdfPath));
        say(Cli::tr("quirra calibrate: the sheet of \"%1\" -> %2").arg(piece, pdfPath));
        return 0;
    }
    if (QPrinterInfo::printerInfo(printerName).isNull())
        return fail(Cli::tr("there is no printer named \"%1\"").arg(printerName));
    PrintSurface *surface = control.surface();
    surface->setPrinterName(printerName);
    surface->setPreview(false);
    surface->setPrintableOrigin(inchesToTwips(model.piece.PrinterLeft),
                                inchesToTwips(model.piece.PrinterTop));
    PrintCalibrationSheet(*surface, model);
    if (surface->errorCode() != 0)
        return fail(surface->printerFailure());
    say(Cli::tr("quirra calibrate: the sheet of \"%1\" -> printer %2").arg(piece, printerName));
    return 0;
}

} // namespace quirra
