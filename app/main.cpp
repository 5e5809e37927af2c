// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
//
// quirra: the command-line host. Feeds the records of a CSV file to a Quirra
// control and prints them, writes them to a PDF file, or previews them in a
// window; lists the catalogue.
#include "calibratecommand.h"
#include "cataloguecheck.h"
#include "console.h"
#include "interruptcleanup.h"
#include "pdfoutput.h"
#include "preflightsummary.h"
#include "previewwindow.h"
#include "progressbar.h"
#include "recordfeed.h"
#include "runoptions.h"

#include "catalogue/catalogue.h"
#include "catalogue/piececatalogue.h"
#include "catalogue/pieceentry.h"
#include "control/quirra.h"
#include "control/translations.h"
#include "dialogs/hostservices.h"
#include "model/error.h"
#include "printing/printsurface.h"
#include "records/sharedspool.h"
#include "settings/files.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QFile>
#include <QLoggingCategory>
#include <QPrinter>
#include <QPrinterInfo>

#include <cstdio>
#include <functional>
#if defined(__GLIBC__)
#include <malloc.h>
#endif
#include <memory>
#include <optional>
#include <unistd.h>

extern "C" const char *quirraControlVersion();

using namespace quirra;

namespace {

void print(const QString &line)
{
    const QByteArray bytes = line.toUtf8() + '\n';
    std::fwrite(bytes.constData(), 1, size_t(bytes.size()), stdout);
}

// Asked for, the usage goes to standard output; after a mistake, to standard error.
int usage(bool asked = false)
{
    const QString text(QStringLiteral(
        "usage: quirra print [--piece NAME] [--layout FILE.json] [--set PROPERTY=VALUE]...\n"
        "                    [--pdf OUT.pdf | --printer NAME] [--progress] [CSV | -]\n"
        "       quirra preview [--piece NAME] [--layout FILE.json] [--set PROPERTY=VALUE]... "
        "[CSV | -]\n"
        "       quirra check [--piece NAME] [--layout FILE.json] [--set PROPERTY=VALUE]... "
        "[CSV | -]\n"
        "       quirra calibrate --piece NAME (--pdf OUT.pdf | --printer NAME |\n"
        "                        --measured LEFT,TOP,RIGHT,BOTTOM) [--set PROPERTY=VALUE]...\n"
        "       quirra pieces [--product NAME] [--search TEXT] [--brand NAME]\n"
        "       quirra --version\n"
        "Run 'quirra COMMAND --help' for the options of a command."));
    if (asked) {
        print(text);
        return 0;
    }
    say(text);
    return 2;
}

// A damaged catalogue is named with its line, once, before anything runs.
bool catalogueReadable(const QString &command)
{
    const QString file = CatalogueFilePath();
    if (file.isEmpty())
        return true; // each command says what it does without one
    const QString problem = catalogueProblem(file);
    if (problem.isEmpty())
        return true;
    say(Cli::tr("quirra %1: the catalogue is damaged: %2. Reinstall it, or set "
                "QUIRRA_SYSTEM_DIR to the folder of a complete one.")
            .arg(command, problem));
    return false;
}

/**
 * Parses a command's arguments; prints help or the mistake. Returns the exit
 * status to end with, or nothing when the command goes on.
 */
std::optional<int> parseArguments(QCommandLineParser &parser, const QStringList &arguments,
                                  const QString &command)
{
    parser.setSingleDashWordOptionMode(QCommandLineParser::ParseAsLongOptions);
    const QCommandLineOption help = parser.addHelpOption();
    if (!parser.parse(arguments)) {
        say(Cli::tr("quirra %1: %2\nRun 'quirra %1 --help' for its options.")
                .arg(command, parser.errorText()));
        return 2;
    }
    if (parser.isSet(help)) {
        // The parser names the program by its path alone.
        QString text = parser.helpText();
        const qsizetype lineEnd = text.indexOf(QLatin1Char('\n'));
        const QString usage = text.left(lineEnd);
        const qsizetype options = usage.indexOf(QLatin1String(" ["));
        text.replace(0, options < 0 ? lineEnd : options, Cli::tr("Usage: quirra %1").arg(command));
        // One line an option: the parser's wrapped descriptions joined up.
        QStringList lines;
        for (const QString &line : text.split(QLatin1Char('\n'))) {
            if (!lines.isEmpty() && line.startsWith(QLatin1String("      ")))
                lines.last() += QLatin1Char(' ') + line.trimmed();
            else
                lines.append(line);
        }
        print(lines.join(QLatin1Char('\n')).trimmed());
        return 0;
    }
    return std::nullopt;
}

bool wantProgress(RunOptions::Progress progress)
{
    switch (progress) {
    case RunOptions::Progress::On:
        return true;
    case RunOptions::Progress::Off:
        return false;
    case RunOptions::Progress::Auto:
        break;
    }
    return isatty(STDERR_FILENO);
}

// The feed's progress: records so far, and how much of the file that is.
RecordFeed::Progress feedProgress(ProgressBar *bar, const RecordFeed &feed)
{
    if (!bar)
        return {};
    const qint64 size = feed.sourceSize();
    return [bar, size](qint64 records, qint64 bytes) {
        const double fraction = size > 0 ? double(bytes) / double(size) : -1;
        //: The progress bar's stage while the CSV file is read
        bar->update(Cli::tr("reading"), fraction, Cli::tr("%1 records").arg(records));
        return true;
    };
}

// Where the printed pages go; checked before any record is read.
bool chooseDestination(const RunOptions &options, std::unique_ptr<PdfOutput> &pdf,
                       QString *printerName, QString *error)
{
    if (!options.pdfPath.isEmpty()) {
        pdf = std::make_unique<PdfOutput>(options.pdfPath);
        return pdf->open(error);
    }
    if (!options.printerName.isEmpty()) {
        if (QPrinterInfo::printerInfo(options.printerName).isNull()) {
            const QStringList names = QPrinterInfo::availablePrinterNames();
            *error = Cli::tr("there is no printer named \"%1\"; %2; --pdf OUT.pdf writes "
                             "a PDF file instead")
                         .arg(options.printerName, names.isEmpty()
                                                       ? Cli::tr("no printer is set up here")
                                                       : Cli::tr("the printers are: ") +
                                                             names.join(QStringLiteral(", ")));
            return false;
        }
        *printerName = options.printerName;
        return true;
    }
    const QPrinterInfo standard = QPrinterInfo::defaultPrinter();
    if (standard.isNull()) {
        *error = Cli::tr("no default printer is set up; name one with --printer NAME, or "
                         "write a PDF file with --pdf OUT.pdf");
        return false;
    }
    *printerName = standard.printerName();
    return true;
}

// The run's messages ("Ptr.error = 2") go to standard error, not a box.
class CommandLineServices : public HostServices
{
public:
    explicit CommandLineServices(std::function<void(const QString &)> say) : m_say(std::move(say))
    {
    }
    void message(const QString &text, QWidget *) override { m_say(text); }

private:
    std::function<void(const QString &)> m_say;
};

// While the command runs, Ctrl-C cancels the control's run instead of ending
// the process at once.
class CancelOnInterrupt
{
public:
    explicit CancelOnInterrupt(Quirra &control)
    {
        InterruptCleanup::cancelOnInterrupt(&control.cancelFlag());
    }
    ~CancelOnInterrupt() { InterruptCleanup::cancelOnInterrupt(nullptr); }
    CancelOnInterrupt(const CancelOnInterrupt &) = delete;
    CancelOnInterrupt &operator=(const CancelOnInterrupt &) = delete;
};

constexpr int InterruptedStatus = 130; // as a shell reports a process ended by SIGINT

int runPrint(const QStringList &arguments)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(
        Cli::tr("Prints the addresses of a CSV file (a header row, then one recipient a "
                "row) on the chosen piece, or writes them to a PDF file."));
    RunOptions::addTo(parser, true);
    const QCommandLineOption strict = StrictOption();
    parser.addOption(strict);
    if (const auto status = parseArguments(parser, arguments, QStringLiteral("print")))
        return *status;
    RunOptions options;
    QString error;
    if (!options.read(parser, true, &error)) {
        say(QStringLiteral("quirra print: %1").arg(error));
        return 2;
    }

    std::unique_ptr<PdfOutput> pdf;
    QString printerName;
    if (!chooseDestination(options, pdf, &printerName, &error)) {
        say(QStringLiteral("quirra print: %1").arg(error));
        return 1;
    }
    if (pdf)
        InterruptCleanup::watch(pdf->temporaryPath());

    Quirra control;
    const CancelOnInterrupt cancelOnInterrupt(control);
    const QString spoolPath = SharedSpool::instance().spoolPath();
    InterruptCleanup::watch(spoolPath);
    if (const auto status = options.applyTo(control, QStringLiteral("print")))
        return *status;

    RecordFeed feed(control);
    feed.setCopiesColumn(options.copiesColumn);
    if (!feed.open(options.csvPath, &error)) {
        say(QStringLiteral("quirra print: %1").arg(error));
        return 1;
    }
    QFile errorStream;
    std::unique_ptr<ProgressBar> bar;
    if (wantProgress(options.progress) && errorStream.open(stderr, QIODevice::WriteOnly))
        bar = std::make_unique<ProgressBar>(&errorStream);
    const RecordFeed::Progress read = feedProgress(bar.get(), feed);
    const bool fed = feed.feed(
        [&](qint64 records, qint64 bytes) {
            return !InterruptCleanup::interrupted() && (!read || read(records, bytes));
        },
        &error);
    if (bar)
        bar->finish(Cli::tr("reading"), fed ? 1.0 : -1, Cli::tr("%1 records").arg(feed.records()));
    if (InterruptCleanup::interrupted()) {
        say(Cli::tr("quirra print: interrupted while reading; nothing was printed"));
        return InterruptedStatus;
    }
    if (!fed) {
        say(QStringLiteral("quirra print: %1").arg(error));
        return 1;
    }

    QPrinter *printer = control.printer();
    if (pdf) {
        printer->setOutputFormat(QPrinter::PdfFormat);
        printer->setOutputFileName(pdf->temporaryPath());
    } else {
        // Through the surface: a printer that went away since it was
        // checked fails the run instead of printing on another one.
        control.surface()->setPrinterName(printerName);
        InterruptCleanup::watch(control.surface()->printFile());
    }
    bool printerFailed = false;
    CommandLineServices services([&](const QString &text) {
        if (bar)
            bar->interrupt();
        const QString why = pdf ? QString() : control.surface()->printerFailure();
        say(why.isEmpty()
                ? Cli::tr("quirra print: %1 (%2 cannot be written)")
                      .arg(text, pdf ? pdf->target() : Cli::tr("the printer ") + printerName)
                : Cli::tr("quirra print: %1; nothing was printed").arg(why));
        printerFailed = true;
    });
    HostServices::set(&control, &services);

    const qint64 perPage =
        qMax<qint64>(1, qint64(control.PieceNumAcross()) * qint64(control.PieceNumDown()));
    const qint64 pagesExpected = (feed.records() + perPage - 1) / perPage;
    auto pageDetail = [](qint64 page, qint64 pages) {
        return Cli::tr("page %1 of %2").arg(page).arg(pages);
    };
    if (bar) {
        // The run keeps this thread busy; the surface says when it begins a page.
        control.surface()->setPageObserver([&](int page) {
            const double fraction = pagesExpected > 0 ? double(page) / double(pagesExpected) : 1.0;
            //: The progress bar's stage while the pages are printed
            bar->update(Cli::tr("printing"), qMin(fraction, 1.0), pageDetail(page, pagesExpected));
        });
    }
    try {
        control.SetPrintPages(options.firstPage, options.lastPage);
        if (parser.isSet(strict) && !PreflightPasses(control, QStringLiteral("print")))
            return NotesExitStatus;
        control.PrintNow();
    } catch (const Error &e) {
        control.surface()->setPageObserver({});
        if (bar)
            bar->interrupt();
        say(QStringLiteral("quirra print: %1").arg(e.message()));
        return 1;
    }
    control.surface()->setPageObserver({});
    if (control.LastRunCancelled() || InterruptCleanup::interrupted()) {
        if (bar)
            bar->interrupt();
        if (!pdf)
            QFile::remove(control.surface()->printFile());
        say(Cli::tr("quirra print: interrupted; nothing was printed"));
        return InterruptedStatus;
    }
    const int pages = control.surface()->pageCount();
    if (bar)
        bar->finish(Cli::tr("printing"), 1.0, pageDetail(pages, pages));
    if (printerFailed || control.surface()->errorCode() != 0) {
        const QString why = pdf ? QString() : control.surface()->printerFailure();
        if (!printerFailed)
            say(why.isEmpty() ? QStringLiteral("quirra print: Ptr.error = %1")
                                    .arg(control.surface()->errorCode())
                              : QStringLiteral("quirra print: %1").arg(why));
        return 1;
    }
    QString destination = Cli::tr("printer ") + printerName;
    if (pdf) {
        const QString temporary = pdf->temporaryPath();
        if (!pdf->commit(&error)) {
            say(QStringLiteral("quirra print: %1").arg(error));
            return 1;
        }
        InterruptCleanup::unwatch(temporary);
        destination = pdf->target();
    }
    say(Cli::tr("quirra print: %1 %2, %3 %4 on \"%5\" -> %6")
            .arg(QString::number(feed.records()),
                 feed.records() == 1 ? Cli::tr("record") : Cli::tr("records"),
                 QString::number(pages), pages == 1 ? Cli::tr("page") : Cli::tr("pages"),
                 control.PieceName(), destination));
    TellNotes(control, QStringLiteral("print"));
    return 0;
}

int runPreview(const QStringList &arguments)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(
        Cli::tr("Shows the addresses of a CSV file on the chosen piece in a window, to "
                "page through, print, export as PDF or save the layout."));
    RunOptions::addTo(parser, false);
    if (const auto status = parseArguments(parser, arguments, QStringLiteral("preview")))
        return *status;
    RunOptions options;
    QString error;
    if (!options.read(parser, false, &error)) {
        say(QStringLiteral("quirra preview: %1").arg(error));
        return 2;
    }
    const QString platform = QGuiApplication::platformName();
    if (platform == QLatin1String("offscreen") || platform == QLatin1String("minimal")) {
        say(Cli::tr("quirra preview: there is no display to show the window on (%1); "
                    "quirra print --pdf OUT.pdf writes the pages to a file instead")
                .arg(qEnvironmentVariableIsEmpty("DISPLAY")
                         ? Cli::tr("DISPLAY is not set")
                         : Cli::tr("cannot open display %1").arg(qEnvironmentVariable("DISPLAY"))));
        return 1;
    }

    PreviewWindow window;
    Quirra &control = *window.control();
    InterruptCleanup::watch(SharedSpool::instance().spoolPath());
    if (const auto status = options.applyTo(control, QStringLiteral("preview")))
        return *status;
    // A layout saved before the print dialog existed reads it as off; at the
    // screen someone is there to choose the printer, copies and pages.
    control.PrintDialogOnPrint(true);
    RecordFeed feed(control);
    feed.setCopiesColumn(options.copiesColumn);
    if (!feed.open(options.csvPath, &error)) {
        say(QStringLiteral("quirra preview: %1").arg(error));
        return 1;
    }
    window.setSourceName(feed.sourceName());
    window.show();

    QFile errorStream;
    std::unique_ptr<ProgressBar> bar;
    if (wantProgress(options.progress) && errorStream.open(stderr, QIODevice::WriteOnly))
        bar = std::make_unique<ProgressBar>(&errorStream);
    const RecordFeed::Progress drawn = feedProgress(bar.get(), feed);
    // The control yields to events after each record: the window stays
    // responsive, and closing it stops the feed.
    const bool fed = feed.feed(
        [&](qint64 records, qint64 bytes) {
            return window.isVisible() && (!drawn || drawn(records, bytes));
        },
        &error);
    if (bar)
        bar->finish(Cli::tr("reading"), fed ? 1.0 : -1, Cli::tr("%1 records").arg(feed.records()));
    if (!window.isVisible())
        return 0;
    if (!fed) {
        say(QStringLiteral("quirra preview: %1").arg(error));
        return 1;
    }
    try {
        window.buildPreview();
    } catch (const Error &e) {
        say(QStringLiteral("quirra preview: %1").arg(e.message()));
        return 1;
    }
    if (control.LastRunCancelled())
        say(Cli::tr("quirra preview: stopped at page %1 (cancelled); the pages built so "
                    "far are shown")
                .arg(control.surface()->pageCount()));
    TellNotes(control, QStringLiteral("preview"));
    return QApplication::exec();
}

QString inches(float value)
{
    return QString::number(double(value), 'g', 6);
}

int runPieces(const QStringList &arguments)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(
        Cli::tr("Lists the catalogue's envelopes and labels: family, product, piece, size, "
                "layout, paper."));
    parser.addOption({QStringLiteral("product"), Cli::tr("Only the pieces of this product."),
                      Cli::tr("name", "an option's value in the help")});
    parser.addOption({QStringLiteral("search"),
                      Cli::tr("Only the pieces whose name, brand, part or product holds "
                              "every word of the text."),
                      Cli::tr("text", "an option's value in the help")});
    parser.addOption({QStringLiteral("brand"), Cli::tr("Only the imported products of this brand."),
                      Cli::tr("name", "an option's value in the help")});
    if (const auto status = parseArguments(parser, arguments, QStringLiteral("pieces")))
        return *status;
    if (!parser.positionalArguments().isEmpty()) {
        say(Cli::tr("quirra pieces: unexpected argument %1")
                .arg(parser.positionalArguments().first()));
        return 2;
    }

    const auto catalogue = Catalogue::system();
    const QString file = catalogue->masterFile();
    if (file.isEmpty()) {
        say(Cli::tr("quirra pieces: no catalogue (quirra.cfg) in %1; set "
                    "QUIRRA_SYSTEM_DIR to the folder that holds it")
                .arg(SystemDirectory()));
        return 1;
    }
    const QString only = parser.value(QStringLiteral("product"));
    int listed = 0;
    for (const QString &name : catalogue->search(parser.value(QStringLiteral("search")),
                                                 parser.value(QStringLiteral("brand")))) {
        const CatalogueEntry &entry = *catalogue->entry(name);
        if (!only.isEmpty() && entry.group.compare(only, Qt::CaseInsensitive))
            continue;
        const PieceSpec &sheet = entry.sheet;
        QStringList line{entry.type == PieceTypeContinuous ? DotMatrixFamilySection
                                                           : LaserFamilySection,
                         entry.group,
                         name,
                         inches(sheet.LabelWidth) + QStringLiteral(" x ") +
                             inches(sheet.LabelHeight) + QStringLiteral(" in"),
                         QStringLiteral("%1 x %2").arg(sheet.NumAcross).arg(sheet.NumDown),
                         sheet.PageDesc};
        if (entry.imported)
            line << entry.product;
        print(line.join(QLatin1Char('\t')));
        ++listed;
    }
    if (listed == 0 && parser.isSet(QStringLiteral("search")) +
                               parser.isSet(QStringLiteral("brand")) + !only.isEmpty() >
                           0) {
        say(Cli::tr("quirra pieces: no piece matches; 'quirra pieces' lists them all"));
        return 1;
    }
    // A damaged or foreign file reads as a catalogue of nothing.
    if (listed == 0) {
        say(Cli::tr("quirra pieces: the catalogue %1 lists no pieces; is it a catalogue "
                    "file? Set QUIRRA_SYSTEM_DIR to the folder of a complete one")
                .arg(file));
        return 1;
    }
    return 0;
}

// Printing needs fonts, not a screen: print and pieces always run on the
// offscreen platform, so they work on a server and over a dead X
// connection alike. The preview tries the display and falls back to
// offscreen, which it then reports instead of aborting.
void choosePlatform(const QString &command)
{
    if (command != QLatin1String("preview")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
        return;
    }
    if (!qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        return;
    QByteArray platforms;
    if (!qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY"))
        platforms += "wayland;";
    if (!qEnvironmentVariableIsEmpty("DISPLAY"))
        platforms += "xcb;";
    qputenv("QT_QPA_PLATFORM", platforms + "offscreen");
}

} // namespace

int main(int argc, char **argv)
{
#if defined(__GLIBC__)
    // A print run makes and frees page-sized buffers all the time: let the
    // heap keep 64 MB of room at its top instead of handing it back to the
    // system and taking it again page by page (a tenth of the run's CPU
    // time went to that; untouched room costs no memory).
    mallopt(M_TOP_PAD, 64 * 1024 * 1024);
#endif
    const QString command = argc >= 2 ? QString::fromLocal8Bit(argv[1]) : QString();
    if (command == QLatin1String("--help") || command == QLatin1String("-h") ||
        command == QLatin1String("help")) {
        return usage(true);
    }
    if (command == QLatin1String("--version") || command == QLatin1String("version")) {
        print(QStringLiteral("quirra %1").arg(QLatin1String(quirraControlVersion())));
        std::fflush(stdout);
        return 0;
    }
    if (command != QLatin1String("print") && command != QLatin1String("preview") &&
        command != QLatin1String("pieces") && command != QLatin1String("check") &&
        command != QLatin1String("calibrate")) {
        if (!command.isEmpty())
            say(Cli::tr("quirra: unknown command \"%1\"").arg(command));
        return usage();
    }
    choosePlatform(command);
    // The library's debug lines are for its developers; QT_LOGGING_RULES
    // still turns them on.
    QLoggingCategory::setFilterRules(QStringLiteral("quirra.*.debug=false"));
    // A server or a cron job has no session runtime folder; Qt says so on
    // every start, which tells the user nothing they can act on.
    static const QtMessageHandler qtHandler = qInstallMessageHandler(nullptr);
    qInstallMessageHandler(
        [](QtMsgType type, const QMessageLogContext &context, const QString &message) {
            if (message.startsWith(QLatin1String("QStandardPaths: XDG_RUNTIME_DIR not set")))
                return;
            if (qtHandler) {
                qtHandler(type, context, message);
            } else {
                const QByteArray line = qFormatLogMessage(type, context, message).toLocal8Bit();
                std::fprintf(stderr, "%s\n", line.constData());
            }
        });
    InterruptCleanup::install();
    // Listing the catalogue needs no fonts at all.
    const std::unique_ptr<QCoreApplication> app(command == QLatin1String("pieces")
                                                    ? new QCoreApplication(argc, argv)
                                                    : new QApplication(argc, argv));
    QCoreApplication::setApplicationName(QStringLiteral("quirra"));
    // Messages, help and the windows in the user's language, when there is a
    // translation for it.
    InstallTranslations();

    QStringList arguments = QCoreApplication::arguments();
    arguments.removeAt(1);
    arguments[0] += QLatin1Char(' ') + command;
    int status = 2;
    try {
        if (!arguments.contains(QStringLiteral("--help")) &&
            !arguments.contains(QStringLiteral("-h")) && !catalogueReadable(command))
            status = 1;
        else if (command == QLatin1String("print"))
            status = runPrint(arguments);
        else if (command == QLatin1String("preview"))
            status = runPreview(arguments);
        else if (command == QLatin1String("check"))
            status = RunCheckCommand(arguments, parseArguments);
        else if (command == QLatin1String("calibrate"))
            status = RunCalibrateCommand(arguments, parseArguments);
        else
            status = runPieces(arguments);
    } catch (const Error &e) {
        say(QStringLiteral("quirra %1: %2").arg(command, e.message()));
        status = 1;
    }
    std::fflush(stdout);
    return status;
}
