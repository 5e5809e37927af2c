// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QHash>
#include <QObject>
#include <QPointer>
#include <QSet>
#include <QVector>
#include <QtDesigner/QAbstractExtensionFactory>
#include <QtDesigner/QDesignerPropertySheetExtension>

class QExtensionManager;

/**
 * @brief The property sheet Designer edits a Quirra through.
 *
 * It wraps the form editor's own sheet for the widget and keeps its indexes,
 * names, groups and change marks; only the values of the control's 16-bit
 * integer and float properties change type on the way: they read as int and
 * double (a float as the shortest decimal that gives it back, so 4.125 is
 * not saved as 4.125000476...) and are written back as short (kept within
 * its range) and float. Fonts, strings and the alignment enumerations pass
 * through as Designer's own sheet gives them, so its editors apply.
 */
class QuirraPropertySheet : public QObject, public QDesignerPropertySheetExtension
{
    Q_OBJECT
    Q_INTERFACES(QDesignerPropertySheetExtension)

public:
    QuirraPropertySheet(QObject *widget, QDesignerPropertySheetExtension *base,
                        QObject *parent = nullptr);

    int count() const override;
    int indexOf(const QString &name) const override;
    QString propertyName(int index) const override;
    QString propertyGroup(int index) const override;
    void setPropertyGroup(int index, const QString &group) override;
    bool hasReset(int index) const override;
    bool reset(int index) override;
    bool isVisible(int index) const override;
    void setVisible(int index, bool visible) override;
    bool isAttribute(int index) const override;
    void setAttribute(int index, bool attribute) override;
    QVariant property(int index) const override;
    void setProperty(int index, const QVariant &value) override;
    bool isChanged(int index) const override;
    void setChanged(int index, bool changed) override;
    bool isEnabled(int index) const override;

    /** @brief The C++ type of the widget's property at index when it is remapped, else 0. */
    int narrowType(int index) const;

private:
    QPointer<QObject> m_widget;
    QDesignerPropertySheetExtension *m_base;
    mutable QHash<int, int> m_narrow;
};

/**
 * @brief Hands out a QuirraPropertySheet for every Quirra, wrapping the sheet
 * the factories registered before it would give.
 */
class QuirraSheetFactory : public QObject, public QAbstractExtensionFactory
{
    Q_OBJECT
    Q_INTERFACES(QAbstractExtensionFactory)

public:
    explicit QuirraSheetFactory(QExtensionManager *manager);

    QObject *extension(QObject *object, const QString &iid) const override;

private:
    QExtensionManager *m_manager;
    mutable QHash<QObject *, QuirraPropertySheet *> m_sheets;
    // Objects whose underlying sheet is being looked up: this factory steps
    // aside for them, so the manager asks the next one.
    mutable QSet<QObject *> m_resolving;
};
