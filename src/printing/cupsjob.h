// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QList>
#include <QString>

#include <utility>

namespace quirra::cupsjob {

/** @brief A CUPS job option: name and value. */
using Option = std::pair<QByteArray, QByteArray>;

/**
 * @brief Why the CUPS queue (a "name" or "name/instance") would not print a
 * job now: it does not accept jobs, or it is stopped. The text holds the
 * queue's own reason (the message its administrator gave). Empty when the
 * queue takes jobs, or when CUPS cannot be asked (the job itself then fails).
 */
QString queueProblem(const QString &queue);

/**
 * @brief Sends file to the queue as one job and follows it for a moment.
 * @return empty when CUPS took the job and did not stop it within
 * waitMs; else why the job was refused, aborted or stopped, in CUPS's
 * words.
 */
QString printFile(const QString &queue, const QString &file, const QString &title,
                  const QList<Option> &options, int waitMs);

} // namespace quirra::cupsjob
