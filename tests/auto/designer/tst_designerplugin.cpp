// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
//
// The Designer plugin loaded as Qt Designer loads it: a form editor core
// finds it in its plugin folder, opens the example form with a Quirra on it
// and edits the control through the plugin's property sheet and task menu.
#include "columns.h"
#include "control/quirra.h"
#include "controlsteps.h"
#include "modaldriver.h"

#include <QUndoStack>
#include <QtDesigner/QDesignerComponents>
#include <QtDesigner/QDesignerFormEditorInterface>
#include <QtDesigner/QDesignerFormWindowCursorInterface>
#include <QtDesigner/QDesignerFormWindowManagerInterface>
#include <QtDesigner/QDesignerIntegration>
#include <QtDesigner/QDesignerPropertySheetExtension>
#include <QtDesigner/QDesignerTaskMenuExtension>
#include <QtDesigner/QDesignerWidgetDataBaseInterface>
#include <QtDesigner/QExtensionManager>
#include <QtTest>
#include <QtUiPlugin/QDesignerCustomWidgetInterface>

namespace {
QVariantList valuesOf(const Quirra *widget)
{
    QVariantList values;
    const QMetaObject &meta = Quirra::staticMetaObject;
    for (int i = meta.propertyOffset(); i < meta.propertyCount(); ++i)
        values.append(meta.property(i).read(widget));
    return values;
}
} // namespace

class TestDesignerPlugin : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QPluginLoader loader(QStringLiteral(QUIRRA_DESIGNER_PLUGIN));
        QVERIFY2(loader.load(), qPrintable(loader.errorString()));
        m_plugin = qobject_cast<QDesignerCustomWidgetInterface *>(loader.instance());
        QVERIFY(m_plugin);

        // Designer looks for its plugins in <plugin path>/designer.
        QCoreApplication::addLibraryPath(QFileInfo(QStringLiteral(QUIRRA_DESIGNER_PLUGIN)).path() +
                                         QStringLiteral("/.."));
        QDesignerComponents::initializeResources();
        m_core = QDesignerComponents::createFormEditor(this);
        QDesignerComponents::initializePlugins(m_core);
        m_core->setPropertyEditor(QDesignerComponents::createPropertyEditor(m_core, nullptr));
        new QDesignerIntegration(m_core, m_core);
        QVERIFY(m_plugin->isInitialized());

        m_form = m_core->formWindowManager()->createFormWindow();
        openExample();
        // The example is what Designer writes for it, to the byte: nothing the
        // plugin reads back (a float as 0.300000011920929, say) drifts.
        QFile ui(QStringLiteral(QUIRRA_SOURCE_ROOT "/examples/designer-form/addressform.ui"));
        QVERIFY(ui.open(QIODevice::ReadOnly));
        QCOMPARE(m_form->contents(), QString::fromUtf8(ui.readAll()));
    }

    void widgetBoxOffersTheControl()
    {
        QVERIFY(!m_plugin->icon().pixmap(32).isNull());
        QVERIFY(m_plugin->domXml().contains(QLatin1String("class=\"Quirra\"")));
        const QString header = m_plugin->includeFile();
        QVERIFY2(
            header.startsWith(u'<') && header.endsWith(u'>') &&
                QFile::exists(QStringLiteral(QUIRRA_PUBLIC_INCLUDE "/") + header.mid(1).chopped(1)),
            qPrintable(header));
        QWidget parent;
        QVERIFY(qobject_cast<Quirra *>(m_plugin->createWidget(&parent)));

        // Designer took it in: uic will include that header for the class.
        QDesignerWidgetDataBaseInterface *db = m_core->widgetDataBase();
        const int at = db->indexOfClassName(QStringLiteral("Quirra"));
        QVERIFY(at >= 0);
        QCOMPARE(db->item(at)->group(), QStringLiteral("QuirraControl"));
        QCOMPARE(db->item(at)->includeFile(), m_plugin->includeFile());
    }

    void sheetGivesDesignerTypes_data()
    {
        // written: through the form's cursor, as the editor does
        columns<QString, QVariant, QByteArray, QVariant>("name", "written", "type", "read");
        QTest::newRow("short-as-int")
            << "ButtonMaxHeight" << QVariant(300) << QByteArray("int") << QVariant(300);
        QTest::newRow("short-kept-in-range")
            << "PieceNumAcross" << QVariant(70000) << QByteArray("int") << QVariant(32767);
        QTest::newRow("float-as-double")
            << "AddressTop" << QVariant(1.3) << QByteArray("double") << QVariant(1.3);
        QTest::newRow("font-stays-font")
            << "AddressFont" << QVariant() << QByteArray("QFont") << QVariant();
        QTest::newRow("alignment-stays-enum")
            << "StampVertAlign" << QVariant()
            << QByteArray("qdesigner_internal::PropertySheetEnumValue") << QVariant();
    }

    void sheetGivesDesignerTypes()
    {
        const auto [name, written, read] =
            fetched<QString, QVariant, QVariant>("name", "written", "read");
        auto *properties =
            qt_extension<QDesignerPropertySheetExtension *>(m_core->extensionManager(), m_quirra);
        const int index = properties->indexOf(name);
        QVERIFY(index >= 0);
        QVERIFY(properties->isVisible(index));
        if (written.isValid())
            m_form->cursor()->setWidgetProperty(m_quirra, name, written);
        const QVariant value = properties->property(index);
        QTEST(QByteArray(value.typeName()), "type");
        if (read.isValid()) {
            QCOMPARE(value, read);
            QVERIFY(properties->isChanged(index));
            QCOMPARE(m_quirra->property(name.toLatin1()).toFloat(), read.toFloat());
        }
    }

    void taskMenuOffersTheDialogs()
    {
        QDesignerTaskMenuExtension *menu = taskMenu(m_quirra);
        QVERIFY(menu);
        QStringList titles;
        for (const QAction *action : menu->taskActions())
            titles.append(action->text());
        QCOMPARE(titles,
                 QStringList({QStringLiteral("Select piece\u2026"),
                              QStringLiteral("Customize piece\u2026"),
                              QStringLiteral("Edit layout\u2026"),
                              QStringLiteral("Properties\u2026"), QStringLiteral("About\u2026")}));
        QCOMPARE(menu->preferredEditAction()->text(), QStringLiteral("Properties\u2026"));
    }

    void cancelledDialogChangesNothing_data()
    {
        columns<int, QString, bool>("action", "dialog", "onForm");
        QTest::newRow("select-piece") << 0 << "piece_select_form" << true;
        QTest::newRow("customize-piece") << 1 << "piece_customization_form" << true;
        QTest::newRow("edit-layout") << 2 << "piece_layout_edit_form" << true;
        QTest::newRow("properties") << 3 << "property_sheet" << true;
        QTest::newRow("select-piece-off-form") << 0 << "piece_select_form" << false;
    }

    void cancelledDialogChangesNothing()
    {
        const auto [action, dialog, onForm] =
            fetched<int, QString, bool>("action", "dialog", "onForm");
        Quirra loose;
        Quirra *widget = onForm ? m_quirra : &loose;
        QDesignerTaskMenuExtension *menu = taskMenu(widget);
        QVERIFY(menu);
        const QVariantList before = valuesOf(widget);
        const int steps = m_form->commandHistory()->count();

        ModalDriver driver;
        driver.onModal(dialog, [](QDialog *shown) { shown->reject(); });
        menu->taskActions().at(action)->trigger();

        QVERIFY(driver.ranOnce());
        QCOMPARE(valuesOf(widget), before);
        QCOMPARE(m_form->commandHistory()->count(), steps);
    }

    void acceptedDialogIsOneUndoStep()
    {
        openExample();
        // A layout of the user's own on the example's piece.
        m_form->cursor()->setWidgetProperty(m_quirra, QStringLiteral("AddressTop"), 0.25);
        const QString oldPiece = m_quirra->PieceName();
        const int steps = m_form->commandHistory()->count();

        ModalDriver driver;
        driver.onModal(QStringLiteral("piece_select_form"), [](QDialog *shown) {
            steps::pickPiece(shown, QStringLiteral("Envelopes"),
                             QStringLiteral("Size 10 - Envelope"));
            steps::click(shown, "ok_btn");
        });
        taskMenu(m_quirra)->taskActions().at(0)->trigger();
        QVERIFY(!driver.watchdogFired());

        QCOMPARE(m_quirra->PieceName(), QStringLiteral("Size 10 - Envelope"));
        const QVariantList chosen = valuesOf(m_quirra);
        QCOMPARE(m_form->commandHistory()->count(), steps + 1);
        // The form saves the new piece, still not for translation as the example had it.
        QVERIFY2(m_form->contents().contains(
                     QLatin1String("<string notr=\"true\">Size 10 - Envelope</string>")),
                 qPrintable(m_form->contents()));

        m_form->commandHistory()->undo();
        QCOMPARE(m_quirra->PieceName(), oldPiece);
        QCOMPARE(m_quirra->AddressTop(), 0.25f);
        m_form->commandHistory()->redo();
        QCOMPARE(valuesOf(m_quirra), chosen);
    }

private:
    void openExample()
    {
        // Every new control resets the piece all controls share: the form is read
        // afresh, as Designer reads a file, when a test needs its values.
        QFile ui(QStringLiteral(QUIRRA_SOURCE_ROOT "/examples/designer-form/addressform.ui"));
        QVERIFY(ui.open(QIODevice::ReadOnly));
        QVERIFY(m_form->setContents(&ui));
        m_quirra = m_form->findChild<Quirra *>(QStringLiteral("envelope"));
        QVERIFY(m_quirra);
        QCOMPARE(m_quirra->PieceName(), QStringLiteral("5160 - Address Labels"));
    }
    QDesignerTaskMenuExtension *taskMenu(QObject *widget) const
    {
        return qt_extension<QDesignerTaskMenuExtension *>(m_core->extensionManager(), widget);
    }

    QDesignerCustomWidgetInterface *m_plugin = nullptr;
    QDesignerFormEditorInterface *m_core = nullptr;
    QDesignerFormWindowInterface *m_form = nullptr;
    Quirra *m_quirra = nullptr;
};

QTEST_MAIN(TestDesignerPlugin)
#include "tst_designerplugin.moc"
