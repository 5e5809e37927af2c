// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#pragma once

#include "quirracontrol_export.h"

#include <QFont>
#include <QString>

class QObject;
class QWidget;

namespace quirra {

/**
 * @brief What the component asks of its host beyond drawing: showing a
 * message to the user, sounding the warning beep, letting the user choose a
 * font.
 *
 * This class is also the standard: a message box, the system beep, the font
 * dialog on scalable fonts. A headless host or a test derives from it and
 * sets its own on a control (the control's dialogs find it through their
 * parents) or once on the application.
 */
class QUIRRACONTROL_EXPORT HostServices
{
public:
    virtual ~HostServices();

    /** @brief Shows a message ("Ptr.error = 3"); the standard opens a box over parent. */
    virtual void message(const QString &text, QWidget *parent);

    /** @brief Sounds the warning beep (a dropped key, a value stepped past its bound). */
    virtual void beep();

    /**
     * @brief Lets the user choose a font, starting from font (size in points).
     * @return true with the choice in font, or false when the user cancelled
     * (font is then left as it was).
     */
    virtual bool chooseFont(QFont &font, QWidget *parent);

    /**
     * @brief The services that serve object: the nearest set on it or on one
     * of its parents, else those set on the application, else the standard.
     */
    static HostServices &of(const QObject *object);

    /**
     * @brief Sets the services for scope and its children (the application
     * for every control); nullptr takes them away again. The services must
     * outlive the setting.
     */
    static void set(QObject *scope, HostServices *services);

    /** @brief The standard services: message box, system beep, font dialog. */
    static HostServices &standard();
};

} // namespace quirra
