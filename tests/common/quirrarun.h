// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QProcess>
#include <QString>
#include <QStringList>

// The quirra program run as a user runs it, in a folder of the test's own;
// the tests that use it define QUIRRA_BINARY.
struct QuirraRun
{
    int status = -1; ///< the exit status; -1 did not start or finish, -2 crashed
    QString out;
    QString err;
};

inline QuirraRun
runQuirra(const QString &folder, const QStringList &arguments, const QByteArray &input = {},
          const QProcessEnvironment &environment = QProcessEnvironment::systemEnvironment())
{
    QProcess process;
    process.setWorkingDirectory(folder);
    process.setProcessEnvironment(environment);
    process.start(QStringLiteral(QUIRRA_BINARY), arguments);
    QuirraRun run;
    if (!process.waitForStarted(30000))
        return run;
    if (!input.isEmpty())
        process.write(input);
    process.closeWriteChannel(); // standard input is a pipe at its end, never a terminal
    if (!process.waitForFinished(150000)) {
        process.kill();
        process.waitForFinished();
        run.err = QStringLiteral("<did not finish>");
        return run;
    }
    run.status = process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -2;
    run.out = QString::fromUtf8(process.readAllStandardOutput());
    run.err = QString::fromUtf8(process.readAllStandardError());
    return run;
}
