// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QtUiPlugin/QDesignerCustomWidgetInterface>

/**
 * @brief The control in Qt Designer's widget box: "Quirra" in the group
 * "QuirraControl". On initialisation it registers the control's property
 * sheet (16-bit integers and floats edited as int and double) and its task
 * menu (the design-time dialogs) with the form editor's extension manager.
 */
class QuirraDesignerPlugin : public QObject, public QDesignerCustomWidgetInterface
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "org.qt-project.Qt.QDesignerCustomWidgetInterface")
    Q_INTERFACES(QDesignerCustomWidgetInterface)

public:
    explicit QuirraDesignerPlugin(QObject *parent = nullptr);

    QString name() const override;
    QString group() const override;
    QString toolTip() const override;
    QString whatsThis() const override;
    QString includeFile() const override;
    QIcon icon() const override;
    bool isContainer() const override;
    QWidget *createWidget(QWidget *parent) override;
    bool isInitialized() const override;
    void initialize(QDesignerFormEditorInterface *core) override;
    QString domXml() const override;

private:
    bool m_initialized = false;
};
