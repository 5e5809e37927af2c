// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

namespace quirra {

/**
 * @brief The first thing wrong with the catalogue file, as "FILE: line N:
 * what", or the empty text when it reads as a catalogue.
 *
 * The library reads whatever a file holds and takes what it cannot read as
 * absent, which for a damaged file ends in a run on a piece of nothing; the
 * host checks the file first so the user hears of the one line at fault.
 * A line must be blank, a comment (";"), a [section] or key=value, in UTF-8
 * without NUL bytes; every piece record under [Details] needs its sizes and
 * at least one piece across and down.
 */
QString catalogueProblem(const QString &file);

/**
 * @brief Up to count piece names of the catalogue closest to name: names
 * holding it first, then by fewest edits, ignoring case.
 */
QStringList nearestPieceNames(const QString &file, const QString &name, int count = 5);

} // namespace quirra
