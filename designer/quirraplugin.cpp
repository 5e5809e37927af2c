// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#include "quirraplugin.h"

#include "control/quirra.h"
#include "quirrasheet.h"
#include "quirrataskmenu.h"

#include <QIcon>
#include <QtDesigner/QDesignerFormEditorInterface>
#include <QtDesigner/QExtensionManager>

QuirraDesignerPlugin::QuirraDesignerPlugin(QObject *parent) : QObject(parent) {}

QString QuirraDesignerPlugin::name() const
{
    return QStringLiteral("Quirra");
}

QString QuirraDesignerPlugin::group() const
{
    return QStringLiteral("QuirraControl");
}

QString QuirraDesignerPlugin::toolTip() const
{
    return tr("Envelope and label printing control");
}

QString QuirraDesignerPlugin::whatsThis() const
{
    return tr("Prints addresses on envelopes and label sheets and previews the pieces. "
              "Right-click it to choose the piece and lay out its items.");
}

QString QuirraDesignerPlugin::includeFile() const
{
    // The installed package's include folder is on the host's path, the
    // control's headers in its QuirraControl/; the brackets make it a system
    // include in the code uic writes.
    return QStringLiteral("<QuirraControl/Quirra>");
}

QIcon QuirraDesignerPlugin::icon() const
{
    return QIcon(QStringLiteral(":/quirra-designer/quirra.png"));
}

bool QuirraDesignerPlugin::isContainer() const
{
    return false;
}

QWidget *QuirraDesignerPlugin::createWidget(QWidget *parent)
{
    return new Quirra(parent);
}

bool QuirraDesignerPlugin::isInitialized() const
{
    return m_initialized;
}

void QuirraDesignerPlugin::initialize(QDesignerFormEditorInterface *core)
{
    if (m_initialized)
        return;
    m_initialized = true;
    QExtensionManager *manager = core->extensionManager();
    if (!manager)
        return;
    // Registered after the form editor's own factories, so asked first.
    manager->registerExtensions(new QuirraSheetFactory(manager),
                                Q_TYPEID(QDesignerPropertySheetExtension));
    manager->registerExtensions(new QuirraTaskMenuFactory(manager),
                                Q_TYPEID(QDesignerTaskMenuExtension));
}

QString QuirraDesignerPlugin::domXml() const
{
    return QStringLiteral(R"(<ui language="c++">
 <widget class="Quirra" name="quirraControl">
  <property name="geometry">
   <rect><x>0</x><y>0</y><width>480</width><height>320</height></rect>
  </property>
 </widget>
</ui>
)");
}
