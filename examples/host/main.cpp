// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
//
// host: the smallest complete host of the control. It places a Quirra
// control, chooses a piece (a No. 10 envelope unless told otherwise), gives
// it a return address and a message, feeds a few recipients and prints them
// to the PDF file named on the command line.
//
//   host OUT.pdf [PIECE]
#include <QuirraControl/Error>
#include <QuirraControl/HostServices>
#include <QuirraControl/Quirra>

#include <QApplication>
#include <QPrinter>

#include <cstdio>
#include <iterator>

namespace {

struct Recipient
{
    const char *first, *middle, *last, *address1, *address2, *city, *state, *zip, *salutation;
};

const Recipient recipients[] = {
    {"Margaret", "A", "Holloway", "1427 Birchwood Ln", "", "Springfield", "IL", "62704",
     "Ms. Holloway"},
    {"Daniel", "", "Okafor", "88 Harbor View Dr", "Apt 4B", "Portland", "ME", "04101",
     "Mr. Okafor"},
    {"Rosa", "Elena", "Martinez", "2310 W Alameda Ave", "", "Denver", "CO", "80223",
     "Ms. Martinez"},
    {"Thomas", "J", "Whitfield", "9 Chestnut St", "", "Burlington", "vt", "05401", "Mr. Whitfield"},
    {"Priya", "", "Raman", "4501 Lakeshore Blvd", "Suite 210", "Cleveland", "OH", "44114",
     "Dr. Raman"},
};

} // namespace

int main(int argc, char **argv)
{
    // Printing needs no screen.
    if (qEnvironmentVariableIsEmpty("DISPLAY") && qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    if (argc < 2) {
        std::fprintf(stderr, "usage: host OUT.pdf [PIECE]\n");
        return 2;
    }

    // Without services of its own the control would show the printer's
    // message in a box.
    struct Services : quirra::HostServices
    {
        bool printerFailed = false;
        void message(const QString &text, QWidget *) override
        {
            std::fprintf(stderr, "host: %s\n", qPrintable(text));
            printerFailed = true;
        }
    } services;

    Quirra control;
    quirra::HostServices::set(&control, &services);
    try {
        // Properties by their published names: the host might as well be a
        // script that knows nothing but the names.
        control.setProperty("PieceName", argc > 2 ? QString::fromLocal8Bit(argv[2])
                                                  : QStringLiteral("Size 10 - Envelope"));
        control.setProperty("AddressHorzAlign", QVariant::fromValue(quirra::haCenter));
        // A piece's layout comes with placeholder texts for the layout
        // editor ("Return Address", a bulk-rate permit): start from empty ones.
        control.ClearReturn();
        control.ClearStamp();
        control.ClearMessage1();
        control.ClearMessage2();
        control.SetReturnText(QStringLiteral("Northwind Mail Room"));
        control.SetReturnText(QStringLiteral("400 Commerce Way\r\nSeattle, WA 98101"));
        control.SetMessage1Text(QStringLiteral("For <<salutation>>"));

        control.StartDoc();
        for (const Recipient &r : recipients) {
            control.ClearPiece();
            control.FirstName(QString::fromUtf8(r.first));
            control.MiddleName(QString::fromUtf8(r.middle));
            control.LastName(QString::fromUtf8(r.last));
            control.Address1(QString::fromUtf8(r.address1));
            control.Address2(QString::fromUtf8(r.address2));
            control.city(QString::fromUtf8(r.city));
            control.State(QString::fromUtf8(r.state));
            control.zip(QString::fromUtf8(r.zip));
            control.Substitute(QStringLiteral("salutation^") + QString::fromUtf8(r.salutation));
            control.NewPiece();
        }
        control.EndDoc();

        control.printer()->setOutputFormat(QPrinter::PdfFormat);
        control.printer()->setOutputFileName(QString::fromLocal8Bit(argv[1]));
        control.PrintNow();
    } catch (const quirra::Error &e) {
        std::fprintf(stderr, "host: %s\n", qPrintable(e.message()));
        return 1;
    }
    if (services.printerFailed)
        return 1;
    std::printf("host: %d recipients printed on \"%s\" to %s\n", int(std::size(recipients)),
                qPrintable(control.PieceName()), argv[1]);
    return 0;
}
