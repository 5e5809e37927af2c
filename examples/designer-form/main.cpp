// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
//
// designer-form: shows addressform.ui, a form drawn in Qt Designer with a
// Quirra on it and compiled by uic, and previews one label laid out as the
// form says. With --check it builds the form without showing it and prints
// the values the form gave the control, one a line.
//
//   designer-form [--check]
#include "ui_addressform.h"

#include <QuirraControl/Error>
#include <QuirraControl/Quirra>

#include <QApplication>

#include <cstdio>

int main(int argc, char **argv)
{
    QApplication app(argc, argv);
    const QStringList args = QApplication::arguments().mid(1);
    if (args.size() > 1 || (args.size() == 1 && args.first() != QLatin1String("--check"))) {
        std::fprintf(stderr,
                     "designer-form: unknown argument \"%s\"; usage: designer-form "
                     "[--check]\n",
                     qPrintable(args.first()));
        return 2;
    }

    QWidget form;
    Ui::AddressForm ui;
    ui.setupUi(&form);

    Quirra *control = ui.envelope;
    if (args.isEmpty()) {
        try {
            control->FirstName(QStringLiteral("Margaret"));
            control->LastName(QStringLiteral("Holloway"));
            control->Address1(QStringLiteral("1427 Birchwood Ln"));
            control->city(QStringLiteral("Springfield"));
            control->State(QStringLiteral("IL"));
            control->zip(QStringLiteral("62704"));
            control->NewPiece();
            control->PreviewNow();
        } catch (const quirra::Error &error) {
            std::fprintf(stderr, "designer-form: %s\n", error.what());
            return 1;
        }
        form.show();
        return QApplication::exec();
    }
    std::printf("PieceName: %s\nReturnText: %s\nButtonMaxHeight: %d\nAddressTop: %g\n"
                "AddressHorzAlign: %d\n",
                qPrintable(control->PieceName()),
                qPrintable(control->ReturnText().section(QLatin1Char('\n'), 0, 0).trimmed()),
                control->ButtonMaxHeight(), double(control->AddressTop()),
                int(control->AddressHorzAlign()));
    return 0;
}
