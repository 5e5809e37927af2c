// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#include "quirrataskmenu.h"

#include "control/propertysheet.h"
#include "control/quirra.h"

#include <QAction>
#include <QMetaProperty>
#include <QUndoStack>
#include <QtDesigner/QDesignerFormEditorInterface>
#include <QtDesigner/QDesignerFormWindowCursorInterface>
#include <QtDesigner/QDesignerFormWindowInterface>
#include <QtDesigner/QDesignerPropertySheetExtension>
#include <QtDesigner/QExtensionManager>

namespace {

// The control's own properties with their values, in declaration order:
// the order they are saved and read back in, PieceName before the piece and
// the items it resets.
using Snapshot = QList<QPair<QMetaProperty, QVariant>>;

Snapshot snapshot(const Quirra *widget)
{
    Snapshot values;
    const QMetaObject &meta = Quirra::staticMetaObject;
    for (int i = meta.propertyOffset(); i < meta.propertyCount(); ++i)
        values.append({meta.property(i), meta.property(i).read(widget)});
    return values;
}

void restore(Quirra *widget, const Snapshot &values)
{
    for (const auto &[property, value] : values)
        property.write(widget, value);
}

} // namespace

QuirraTaskMenu::QuirraTaskMenu(Quirra *widget, QObject *parent) : QObject(parent), m_widget(widget)
{
    const auto add = [this](const QString &text, std::function<bool()> dialog) {
        auto *action = new QAction(text, this);
        QString title = text;
        title.remove(QChar(0x2026));
        connect(action, &QAction::triggered, this, [this, title, dialog] { edit(title, dialog); });
        m_actions.append(action);
        return action;
    };
    add(tr("Select piece\u2026"), [this] {
        bool changed = false;
        m_widget->PieceSelectDialogShow(changed);
        return changed;
    });
    add(tr("Customize piece\u2026"), [this] {
        bool changed = false;
        m_widget->PieceCustomizationDialogShow(changed);
        return changed;
    });
    add(tr("Edit layout\u2026"), [this] {
        bool changed = false;
        m_widget->PieceLayoutDialogShow(changed);
        return changed;
    });
    m_properties = add(tr("Properties\u2026"), [this] {
        quirra::PropertySheet sheet(m_widget, m_widget->window());
        bool applied = false;
        connect(&sheet, &quirra::PropertySheet::applied, this, [&applied] { applied = true; });
        sheet.exec();
        return applied;
    });
    auto *about = new QAction(tr("About\u2026"), this);
    connect(about, &QAction::triggered, this, [this] {
        if (m_widget)
            m_widget->ShowAboutBox();
    });
    m_actions.append(about);
}

QAction *QuirraTaskMenu::preferredEditAction() const
{
    return m_properties;
}

QList<QAction *> QuirraTaskMenu::taskActions() const
{
    return m_actions;
}

void QuirraTaskMenu::edit(const QString &title, const std::function<bool()> &dialog)
{
    if (!m_widget)
        return;
    QDesignerFormWindowInterface *form = QDesignerFormWindowInterface::findFormWindow(m_widget);
    const Snapshot before = snapshot(m_widget);
    if (!dialog() || !m_widget || !form)
        return;
    const Snapshot after = snapshot(m_widget);

    auto *sheet = qt_extension<QDesignerPropertySheetExtension *>(form->core()->extensionManager(),
                                                                  m_widget.data());
    if (!sheet)
        return;
    // The new values as the form's property sheet has them: strings keep
    // their translation settings, enumerations their names.
    QList<QPair<QString, QVariant>> changed;
    bool pieceChanged = false;
    for (int i = 0; i < after.size(); ++i) {
        const QString name = QLatin1String(after[i].first.name());
        const bool differs = after[i].second != before[i].second;
        if (!differs && !pieceChanged)
            continue;
        // A new piece resets every item: from there on everything is recorded.
        if (differs && name == QLatin1String("PieceName"))
            pieceChanged = true;
        changed.append({name, sheet->property(sheet->indexOf(name))});
    }
    if (changed.isEmpty())
        return;

    // The commands take their undo values from the widget: hand it back as it
    // was, then let the cursor apply the dialog's result step by step.
    restore(m_widget, before);
    QDesignerFormWindowCursorInterface *cursor = form->cursor();
    form->commandHistory()->beginMacro(title);
    if (pieceChanged) {
        // Undo runs backwards and PieceName's undo loads the old piece with its
        // default layout; the first pass lets the old values be set after it.
        for (const auto &[name, value] : changed) {
            if (name != QLatin1String("PieceName"))
                cursor->setWidgetProperty(m_widget, name, value);
        }
    }
    for (const auto &[name, value] : changed)
        cursor->setWidgetProperty(m_widget, name, value);
    form->commandHistory()->endMacro();
}

QuirraTaskMenuFactory::QuirraTaskMenuFactory(QExtensionManager *parent) : QExtensionFactory(parent)
{
}

QObject *QuirraTaskMenuFactory::createExtension(QObject *object, const QString &iid,
                                                QObject *parent) const
{
    if (iid != QLatin1String(Q_TYPEID(QDesignerTaskMenuExtension)))
        return nullptr;
    if (auto *widget = qobject_cast<Quirra *>(object))
        return new QuirraTaskMenu(widget, parent);
    return nullptr;
}
