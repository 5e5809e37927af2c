// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#pragma once

#include "dialogs/hostservices.h"

#include <QCoreApplication>
#include <QStringList>

#include <functional>

// Takes what the component asks of its host (messages, beeps, the font
// choice) for as long as it lives, set on the whole application.
struct HostRecorder : quirra::HostServices
{
    QStringList messages;
    int beeps = 0;
    std::function<bool(QFont &font)> fontChoice;

    HostRecorder() { set(QCoreApplication::instance(), this); }
    ~HostRecorder() override { set(QCoreApplication::instance(), nullptr); }
    void message(const QString &text, QWidget *) override { messages.append(text); }
    void beep() override { ++beeps; }
    bool chooseFont(QFont &font, QWidget *) override { return fontChoice && fontChoice(font); }
};
