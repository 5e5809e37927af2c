// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#include "quirrasheet.h"

#include "control/quirra.h"

#include <QMetaProperty>
#include <QtDesigner/QExtensionManager>

#include <charconv>
#include <limits>

QuirraPropertySheet::QuirraPropertySheet(QObject *widget, QDesignerPropertySheetExtension *base,
                                         QObject *parent)
    : QObject(parent), m_widget(widget), m_base(base)
{
}

int QuirraPropertySheet::narrowType(int index) const
{
    const auto cached = m_narrow.constFind(index);
    if (cached != m_narrow.constEnd())
        return *cached;
    int type = 0;
    if (m_widget) {
        const QMetaObject *meta = m_widget->metaObject();
        const int at = meta->indexOfProperty(m_base->propertyName(index).toLatin1().constData());
        // Only the control's own properties: what QWidget publishes stays as
        // Designer knows it.
        if (at >= Quirra::staticMetaObject.propertyOffset()) {
            const int id = meta->property(at).metaType().id();
            if (id == QMetaType::Short || id == QMetaType::Float)
                type = id;
        }
    }
    m_narrow.insert(index, type);
    return type;
}

int QuirraPropertySheet::count() const
{
    return m_base->count();
}

int QuirraPropertySheet::indexOf(const QString &name) const
{
    return m_base->indexOf(name);
}

QString QuirraPropertySheet::propertyName(int index) const
{
    return m_base->propertyName(index);
}

QString QuirraPropertySheet::propertyGroup(int index) const
{
    return m_base->propertyGroup(index);
}

void QuirraPropertySheet::setPropertyGroup(int index, const QString &group)
{
    m_base->setPropertyGroup(index, group);
}

bool QuirraPropertySheet::hasReset(int index) const
{
    return m_base->hasReset(index);
}

bool QuirraPropertySheet::reset(int index)
{
    return m_base->reset(index);
}

bool QuirraPropertySheet::isVisible(int index) const
{
    return m_base->isVisible(index);
}

void QuirraPropertySheet::setVisible(int index, bool visible)
{
    m_base->setVisible(index, visible);
}

bool QuirraPropertySheet::isAttribute(int index) const
{
    return m_base->isAttribute(index);
}

void QuirraPropertySheet::setAttribute(int index, bool attribute)
{
    m_base->setAttribute(index, attribute);
}

QVariant QuirraPropertySheet::property(int index) const
{
    const QVariant value = m_base->property(index);
    switch (narrowType(index)) {
    case QMetaType::Short:
        return QVariant(value.toInt());
    case QMetaType::Float: {
        // The shortest decimal that reads back as the same float.
        char text[32];
        const auto end = std::to_chars(text, text + sizeof text, value.toFloat()).ptr;
        return QVariant(QByteArray(text, int(end - text)).toDouble());
    }
    default:
        return value;
    }
}

void QuirraPropertySheet::setProperty(int index, const QVariant &value)
{
    switch (narrowType(index)) {
    case QMetaType::Short: {
        const qlonglong low = std::numeric_limits<short>::min();
        const qlonglong high = std::numeric_limits<short>::max();
        const qlonglong kept = qBound(low, value.toLongLong(), high);
        m_base->setProperty(index, QVariant::fromValue(static_cast<short>(kept)));
        return;
    }
    case QMetaType::Float:
        m_base->setProperty(index, QVariant::fromValue(static_cast<float>(value.toDouble())));
        return;
    default:
        m_base->setProperty(index, value);
    }
}

bool QuirraPropertySheet::isChanged(int index) const
{
    return m_base->isChanged(index);
}

void QuirraPropertySheet::setChanged(int index, bool changed)
{
    m_base->setChanged(index, changed);
}

bool QuirraPropertySheet::isEnabled(int index) const
{
    return m_base->isEnabled(index);
}

QuirraSheetFactory::QuirraSheetFactory(QExtensionManager *manager)
    : QObject(manager), m_manager(manager)
{
}

QObject *QuirraSheetFactory::extension(QObject *object, const QString &iid) const
{
    if (iid != QLatin1String(Q_TYPEID(QDesignerPropertySheetExtension)) ||
        !qobject_cast<Quirra *>(object) || m_resolving.contains(object))
        return nullptr;
    if (QuirraPropertySheet *sheet = m_sheets.value(object))
        return sheet;

    m_resolving.insert(object);
    auto *base = qt_extension<QDesignerPropertySheetExtension *>(m_manager, object);
    m_resolving.remove(object);
    if (!base)
        return nullptr;

    auto *sheet = new QuirraPropertySheet(object, base, const_cast<QuirraSheetFactory *>(this));
    m_sheets.insert(object, sheet);
    connect(object, &QObject::destroyed, this, [this, object] { delete m_sheets.take(object); });
    return sheet;
}
