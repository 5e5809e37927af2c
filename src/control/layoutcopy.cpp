// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#include "control/layoutcopy.h"

#include "control/logging_p.h"
#include "control/propertytable.h"
#include "control/quirra.h"
#include "properties/fieldnames.h"

namespace quirra {

namespace {

const Field<Item> *findItemField(QStringView name)
{
    for (const Field<Item> &field : ItemFields()) {
        if (name == QLatin1String(field.name))
            return &field;
    }
    return nullptr;
}

const Field<Piece> *findPieceField(QStringView name)
{
    for (const PieceField &row : PieceFields()) {
        if (name == QLatin1String(row.field.name))
            return &row.field;
    }
    return nullptr;
}

// Splits "Message1Text" into the item and its field.
bool splitItemName(const QString &name, ItemId *id, const Field<Item> **field)
{
    for (ItemId candidate : StorageOrder) {
        const QString prefix = itemName(candidate);
        if (!name.startsWith(prefix))
            continue;
        if (const Field<Item> *found = findItemField(QStringView(name).mid(prefix.size()))) {
            *id = candidate;
            *field = found;
            return true;
        }
    }
    return false;
}

QStringList itemNames(std::initializer_list<ItemId> items)
{
    QStringList names;
    for (ItemId id : items) {
        for (const QString &field : LayoutCopy::itemFields())
            names.append(itemName(id) + field);
    }
    return names;
}

// The piece's names but PieceName: those announced by a short form, or the
// others (the sheet's size).
QStringList pieceNames(bool announcedOnes)
{
    QStringList names;
    for (const PieceField &row : PieceFields()) {
        const bool isName = qstrcmp(row.field.name, "PieceName") == 0;
        if ((row.announced[0] != '\0') == announcedOnes && !isName)
            names.append(QLatin1String(row.field.name));
    }
    return names;
}

void writeProperty(Quirra &control, const QString &name, const QVariant &value)
{
    const PropertyInfo *property = PropertyTable::find(name);
    if (!property) {
        // Only a table that lost a row gets here; the copy's names are the
        // control's own.
        qCWarning(lcControl).noquote() << "the control has no property" << name;
        return;
    }
    property->write(control, value);
}

} // namespace

const QStringList &LayoutCopy::itemFields()
{
    static const QStringList fields = [] {
        QStringList names;
        for (const Field<Item> &field : ItemFields())
            names.append(QLatin1String(field.name));
        return names;
    }();
    return fields;
}

const QStringList &LayoutCopy::readOrder()
{
    // Return comes after Message2 when reading, before Message1 when
    // writing; either way every item is read and written whole.
    static const QStringList names = itemNames({ItemId::Address, ItemId::Message1, ItemId::Message2,
                                                ItemId::Return, ItemId::Stamp}) +
                                     QStringList{QStringLiteral("PieceName")} + pieceNames(true) +
                                     pieceNames(false);
    return names;
}

const QStringList &LayoutCopy::writeOrder()
{
    static const QStringList names = pieceNames(true) +
                                     itemNames({ItemId::Address, ItemId::Return, ItemId::Message1,
                                                ItemId::Message2, ItemId::Stamp}) +
                                     pieceNames(false);
    return names;
}

void LayoutCopy::readFrom(const Quirra &control)
{
    for (const QString &name : readOrder()) {
        const PropertyInfo *property = PropertyTable::find(name);
        if (!property) {
            qCWarning(lcControl).noquote() << "the control has no property" << name;
            continue;
        }
        setValue(name, property->read(control));
    }
}

void LayoutCopy::writeTo(Quirra &control) const
{
    // Setting the name loads the catalogue piece and lays its items out
    // afresh; the copy's own values follow and overwrite all of that.
    if (m_model.piece.PieceName != control.PieceName())
        writeProperty(control, QStringLiteral("PieceName"), m_model.piece.PieceName);
    for (const QString &name : writeOrder())
        writeProperty(control, name, value(name));
}

void LayoutCopy::writeItem(Quirra &control, ItemId id, const Item &item)
{
    const QString prefix = itemName(id);
    for (const Field<Item> &field : ItemFields())
        writeProperty(control, prefix + QLatin1String(field.name), field.get(item));
}

QVariant LayoutCopy::value(const QString &name) const
{
    ItemId id;
    const Field<Item> *itemField = nullptr;
    if (splitItemName(name, &id, &itemField))
        return itemField->get(m_model.item(id));
    if (const Field<Piece> *pieceField = findPieceField(name))
        return pieceField->get(m_model.piece);
    return QVariant();
}

bool LayoutCopy::setValue(const QString &name, const QVariant &value)
{
    ItemId id;
    const Field<Item> *itemField = nullptr;
    if (splitItemName(name, &id, &itemField)) {
        itemField->set(m_model.item(id), value);
        return true;
    }
    if (const Field<Piece> *pieceField = findPieceField(name)) {
        pieceField->set(m_model.piece, value);
        return true;
    }
    return false;
}

} // namespace quirra
