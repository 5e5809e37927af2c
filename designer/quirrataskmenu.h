// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QPointer>
#include <QtDesigner/QDesignerTaskMenuExtension>
#include <QtDesigner/QExtensionFactory>

#include <functional>

class QAction;
class Quirra;

/**
 * @brief The control's entries in Designer's context menu: "Select piece…",
 * "Customize piece…", "Edit layout…", "Properties…" and "About…".
 *
 * Each opens the control's own dialog on the widget. What the dialog changed
 * goes back through the form window's cursor as one undoable step, so the
 * form records it and Undo restores the control; outside a form window the
 * widget simply keeps what the dialog did.
 */
class QuirraTaskMenu : public QObject, public QDesignerTaskMenuExtension
{
    Q_OBJECT
    Q_INTERFACES(QDesignerTaskMenuExtension)

public:
    QuirraTaskMenu(Quirra *widget, QObject *parent);

    QAction *preferredEditAction() const override;
    QList<QAction *> taskActions() const override;

private:
    // Runs dialog (which returns whether it may have changed the widget) and
    // records the difference under title.
    void edit(const QString &title, const std::function<bool()> &dialog);

    QPointer<Quirra> m_widget;
    QList<QAction *> m_actions;
    QAction *m_properties = nullptr;
};

/** @brief Gives every Quirra its task menu. */
class QuirraTaskMenuFactory : public QExtensionFactory
{
    Q_OBJECT

public:
    explicit QuirraTaskMenuFactory(QExtensionManager *parent);

protected:
    QObject *createExtension(QObject *object, const QString &iid, QObject *parent) const override;
};
