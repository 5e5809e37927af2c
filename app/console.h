// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QCoreApplication>
#include <QString>

namespace quirra {

/**
 * @brief The command line's texts: Cli::tr("...") translates them in the
 * context "quirra"; without a translation they stay as written.
 */
struct Cli
{
    Q_DECLARE_TR_FUNCTIONS(quirra)
};

/**
 * @brief Writes one line to standard error. Every message goes through C's
 * stderr, as the progress bar does, so the two never overtake each other.
 */
void say(const QString &line);

} // namespace quirra
