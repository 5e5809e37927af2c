// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#include "interruptcleanup.h"

#include <QFile>

#include <csignal>
#include <cstring>
#include <unistd.h>

namespace quirra {

namespace {

// Fixed buffers: the handler may only read memory, never allocate.
constexpr int PathBytes = 4096;
char watched[InterruptCleanup::MaxFiles][PathBytes];
volatile sig_atomic_t inUse[InterruptCleanup::MaxFiles];
std::atomic<std::atomic_bool *> cancelFlag{nullptr};
volatile sig_atomic_t cancelled = 0;

extern "C" void removeWatchedFiles(int signalNumber)
{
    std::atomic_bool *flag = cancelFlag.load();
    if (signalNumber == SIGINT && flag && !cancelled) {
        cancelled = 1;
        flag->store(true);
        return;
    }
    for (int i = 0; i < InterruptCleanup::MaxFiles; ++i) {
        if (inUse[i])
            ::unlink(watched[i]);
    }
    std::signal(signalNumber, SIG_DFL);
    std::raise(signalNumber);
}

} // namespace

void InterruptCleanup::install()
{
    static bool installed = false;
    if (installed)
        return;
    installed = true;
    for (int signalNumber : {SIGINT, SIGTERM, SIGHUP}) {
        struct sigaction action;
        std::memset(&action, 0, sizeof action);
        action.sa_handler = removeWatchedFiles;
        sigemptyset(&action.sa_mask);
        sigaction(signalNumber, &action, nullptr);
    }
}

bool InterruptCleanup::watch(const QString &path)
{
    const QByteArray encoded = QFile::encodeName(path);
    if (encoded.isEmpty() || encoded.size() >= PathBytes)
        return false;
    for (int i = 0; i < MaxFiles; ++i) {
        if (!inUse[i]) {
            std::memcpy(watched[i], encoded.constData(), size_t(encoded.size()) + 1);
            inUse[i] = 1;
            return true;
        }
    }
    return false;
}

void InterruptCleanup::unwatch(const QString &path)
{
    const QByteArray encoded = QFile::encodeName(path);
    for (int i = 0; i < MaxFiles; ++i) {
        if (inUse[i] && encoded == watched[i])
            inUse[i] = 0;
    }
}

void InterruptCleanup::cancelOnInterrupt(std::atomic_bool *flag)
{
    cancelFlag.store(flag);
}

bool InterruptCleanup::interrupted()
{
    return cancelled != 0;
}

} // namespace quirra
