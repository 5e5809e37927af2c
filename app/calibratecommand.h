// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

#include <functional>
#include <optional>

class QCommandLineParser;

namespace quirra {

/**
 * @brief quirra calibrate: prints a piece's calibration sheet (--pdf or
 * --printer), or turns what the user read on it (--measured) into the
 * printer's offsets and scale.
 * @param parse parses the arguments as the other commands do
 * @return 0 when done, 1 for an error, 2 for a usage mistake
 */
int RunCalibrateCommand(const QStringList &arguments,
                        const std::function<std::optional<int>(
                            QCommandLineParser &, const QStringList &, const QString &)> &parse);

} // namespace quirra
