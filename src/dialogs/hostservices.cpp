// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#include "dialogs/hostservices.h"

#include "dialogs/logging_p.h"

#include <QApplication>
#include <QFontDialog>
#include <QMessageBox>
#include <QVariant>

namespace quirra {

namespace {

constexpr char ServicesProperty[] = "_quirra_hostServices";

HostServices *setOn(const QObject *object)
{
    return reinterpret_cast<HostServices *>(object->property(ServicesProperty).value<quintptr>());
}

} // namespace

HostServices::~HostServices() = default;

void HostServices::message(const QString &text, QWidget *parent)
{
    QMessageBox box(QMessageBox::NoIcon, QCoreApplication::applicationName(), text, QMessageBox::Ok,
                    parent);
    box.exec();
}

void HostServices::beep()
{
    qCDebug(lcDialogs) << "beep";
    QApplication::beep();
}

bool HostServices::chooseFont(QFont &font, QWidget *parent)
{
    bool ok = false;
    // Scalable fonts only: the piece is printed at any size the item asks.
    const QFont chosen =
        QFontDialog::getFont(&ok, font, parent, QString(), QFontDialog::ScalableFonts);
    qCDebug(lcDialogs) << "font dialog" << (ok ? "chose" : "cancelled") << chosen;
    if (ok)
        font = chosen;
    return ok;
}

HostServices &HostServices::of(const QObject *object)
{
    for (const QObject *scope = object; scope; scope = scope->parent()) {
        if (HostServices *services = setOn(scope))
            return *services;
    }
    if (const QObject *application = QCoreApplication::instance()) {
        if (HostServices *services = setOn(application))
            return *services;
    }
    return standard();
}

void HostServices::set(QObject *scope, HostServices *services)
{
    scope->setProperty(ServicesProperty,
                       services ? QVariant::fromValue(reinterpret_cast<quintptr>(services))
                                : QVariant());
}

HostServices &HostServices::standard()
{
    static HostServices services;
    return services;
}

} // namespace quirra
