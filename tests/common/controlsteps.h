// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#pragma once

#include "control/propertytable.h"
#include "dialogs/piece_layout_edit_form.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QDialog>
#include <QFont>
#include <QLineEdit>
#include <QListWidget>
#include <QSignalSpy>
#include <QTest>

// Steps the control's tests share: the names a control announced, a button
// clicked by object name, a piece picked in the selection dialog, a length
// typed into the layout editor, a value of a property's saved type that
// differs for every seed.
namespace steps {

inline QStringList emitted(const QSignalSpy &spy)
{
    QStringList names;
    for (const QList<QVariant> &arguments : spy)
        names.append(arguments.at(0).toString());
    return names;
}

// Every item field, items in the given order, fields alphabetical.
inline QStringList itemNames(const QStringList &items)
{
    QStringList names;
    for (const QString &item : items) {
        for (const char *field : {"Border", "Font", "Height", "HorzAlign", "Left", "LineSpacing",
                                  "Text", "Top", "VertAlign", "Visible", "Width", "Wrap"})
            names.append(item + QLatin1String(field));
    }
    return names;
}

inline void click(QWidget *parent, const char *name)
{
    auto *button = parent->findChild<QAbstractButton *>(QLatin1String(name));
    QVERIFY2(button, name);
    QTest::mouseClick(button, Qt::LeftButton);
}

inline void pickPiece(QDialog *dialog, const QString &product, const QString &piece)
{
    auto *products = dialog->findChild<QComboBox *>(QStringLiteral("product_cbo"));
    auto *list = dialog->findChild<QListWidget *>(QStringLiteral("piece_lst"));
    QVERIFY(products && list);
    products->setCurrentIndex(products->findText(product));
    const QList<QListWidgetItem *> found = list->findItems(piece, Qt::MatchExactly);
    QVERIFY2(!found.isEmpty(), qPrintable(piece));
    list->setCurrentItem(found.first());
}

// In the layout editor: pick item (1..5) and type a length into a field.
inline void editField(QDialog *dialog, int item, const char *field, const QString &inches)
{
    auto *form = qobject_cast<quirra::piece_layout_edit_form *>(dialog);
    QVERIFY(form);
    form->selectItem(item);
    auto *edit = dialog->findChild<QLineEdit *>(QLatin1String(field));
    QVERIFY2(edit, field);
    edit->setText(inches);
}

inline QVariant distinctValue(const quirra::PropertyInfo &property, int seed)
{
    switch (property.savedType.id()) {
    case QMetaType::Float:
        return QVariant::fromValue(0.125f * float(seed % 40 + 1));
    case QMetaType::Short:
        return QVariant::fromValue(short(seed % 300 + 2));
    case QMetaType::Bool:
        return QVariant(seed % 2 == 0);
    case QMetaType::Int: // the alignments and the envelope's orientation
        return QVariant(seed % 3);
    case QMetaType::QString:
        return QVariant(QStringLiteral("text %1\r\n2nd line").arg(seed)); // a break survives too
    default: {
        QFont font(seed % 2 ? QStringLiteral("DejaVu Sans") : QStringLiteral("Liberation Serif"));
        font.setPointSize(6 + seed % 20);
        font.setBold(seed % 3 == 0);
        return QVariant::fromValue(font);
    }
    }
}

} // namespace steps
