// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
//
// A host built with pkg-config alone from the installed headers: it needs the
// generated property accessors, the enumerations and the run report to
// compile and link against the installed library.
#include <QuirraControl/Error>
#include <QuirraControl/Quirra>
#include <QuirraControl/RunReport>

#include <QApplication>

#include <cstdio>

int main(int argc, char **argv)
{
    QApplication app(argc, argv);
    Quirra control;
    try {
        control.PieceName(QStringLiteral("5160 - Address Labels"));
        control.AddressHorzAlign(quirra::haCenter);
        control.AddressTop(0.5f);
        control.ClearPiece();
        control.NewPiece();
        control.PreflightNow();
    } catch (const quirra::Error &e) {
        std::fprintf(stderr, "%s\n", qPrintable(e.message()));
        return 1;
    }
    std::printf("%s|%d|%.2f|%d\n", qPrintable(control.PieceName()), int(control.AddressHorzAlign()),
                double(control.AddressTop()),
                int(control.LastRunReport().count(quirra::NoteKind::EmptyRecord)));
    return 0;
}
