// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QAbstractButton>
#include <QApplication>
#include <QDialog>
#include <QTest>
#include <QTimer>

#include <functional>

// Shows a form as a person would find it: shown, active, ready for keys.
inline bool showActive(QWidget *form)
{
    form->show();
    form->activateWindow();
    return QTest::qWaitForWindowActive(form);
}

// Drives a dialog that runs its own modal loop: once a dialog of the given
// object name is the active modal widget, the action runs on it (it clicks
// a button, types, opens a nested dialog). A watchdog rejects every dialog
// still open after a few seconds, so a dialog that fails to close fails
// the test instead of hanging it.
class ModalDriver : public QObject
{
public:
    explicit ModalDriver(int watchdogMs = 5000)
    {
        m_watchdog.setSingleShot(true);
        m_watchdog.setInterval(watchdogMs);
        connect(&m_watchdog, &QTimer::timeout, this, [this] {
            while (auto *dialog = qobject_cast<QDialog *>(QApplication::activeModalWidget())) {
                m_watchdogFired = true;
                dialog->reject();
                QCoreApplication::processEvents();
                if (QApplication::activeModalWidget() == dialog)
                    break;
            }
        });
        m_watchdog.start();
    }

    // Runs action on the first modal dialog named objectName; polls every
    // few milliseconds until the watchdog gives up.
    void onModal(const QString &objectName, std::function<void(QDialog *)> action)
    {
        QTimer::singleShot(0, this, [this, objectName, action] { poll(objectName, action); });
    }

    // Ends dialog as a person would: "return" and "escape" are keys pressed
    // in keys (the dialog itself by default), anything else names a button.
    static void close(QDialog *dialog, const QString &how, QWidget *keys = nullptr)
    {
        if (how == QLatin1String("return") || how == QLatin1String("escape"))
            QTest::keyClick(keys ? keys : dialog,
                            how == QLatin1String("return") ? Qt::Key_Return : Qt::Key_Escape);
        else if (auto *button = dialog->findChild<QAbstractButton *>(how))
            button->click();
    }

    bool watchdogFired() const { return m_watchdogFired; }
    int actionsRun() const { return m_actionsRun; }
    // The action ran once and every dialog closed by itself.
    bool ranOnce() const { return m_actionsRun == 1 && !m_watchdogFired; }

private:
    void poll(const QString &objectName, const std::function<void(QDialog *)> &action)
    {
        auto *dialog = qobject_cast<QDialog *>(QApplication::activeModalWidget());
        if (dialog && dialog->objectName() == objectName && dialog->isVisible()) {
            ++m_actionsRun;
            action(dialog);
            return;
        }
        if (m_watchdog.isActive())
            QTimer::singleShot(10, this, [this, objectName, action] { poll(objectName, action); });
    }

    QTimer m_watchdog;
    bool m_watchdogFired = false;
    int m_actionsRun = 0;
};
