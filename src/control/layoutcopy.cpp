// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#include "control/layoutcopy.h"

#include "control/fontconversion.h"
#include "control/logging_p.h"
#include "control/propertytable.h"
#include "control/quirra.h"

#include <QFont>

#include <type_traits>

namespace quirra {

namespace {

template <typename Record> struct Field
{
    const char *name;
    QVariant (*get)(const Record &record);
    void (*set)(Record &record, const QVariant &value);
};

// A plain member travels as its own type; the property table's saved form
// for lengths, counts, flags and texts is the same.
template <auto member, typename Record> QVariant getPlain(const Record &record)
{
    return QVariant::fromValue(record.*member);
}

template <auto member, typename Record> void setPlain(Record &record, const QVariant &value)
{
    using T = std::remove_reference_t<decltype(record.*member)>;
    record.*member = value.value<T>();
}

// Alignments are saved as 32-bit integers.
template <auto member> QVariant getEnum(const Item &item)
{
    return QVariant(qint32(item.*member));
}

template <auto member> void setEnum(Item &item, const QVariant &value)
{
    using T = std::remove_reference_t<decltype(item.*member)>;
    item.*member = static_cast<T>(value.toInt());
}

QVariant getFont(const Item &item)
{
    return QVariant::fromValue(toQFont(item.Font));
}

void setFont(Item &item, const QVariant &value)
{
    item.Font = toItemFont(value.value<QFont>());
}

template <auto member, typename Record> Field<Record> plain(const char *name)
{
    return {name, &getPlain<member, Record>, &setPlain<member, Record>};
}

#define QUIRRA_PLAIN(Record, member) plain<&Record::member, Record>(#member)

// In the order an item's fields are read and written.
const Field<Item> ItemFieldTable[] = {
    QUIRRA_PLAIN(Item, Border),
    {"Font", &getFont, &setFont},
    QUIRRA_PLAIN(Item, Height),
    {"HorzAlign", &getEnum<&Item::HorzAlign>, &setEnum<&Item::HorzAlign>},
    QUIRRA_PLAIN(Item, Left),
    QUIRRA_PLAIN(Item, LineSpacing),
    QUIRRA_PLAIN(Item, Text),
    QUIRRA_PLAIN(Item, Top),
    {"VertAlign", &getEnum<&Item::VertAlign>, &setEnum<&Item::VertAlign>},
    QUIRRA_PLAIN(Item, Visible),
    QUIRRA_PLAIN(Item, Width),
    QUIRRA_PLAIN(Item, Wrap),
};

// In the order the piece is read; writing skips the name and starts at
// IsCustom.
const Field<Piece> PieceFieldTable[] = {
    QUIRRA_PLAIN(Piece, PieceName),        QUIRRA_PLAIN(Piece, IsCustom),
    QUIRRA_PLAIN(Piece, PieceMarginLeft),  QUIRRA_PLAIN(Piece, PieceMarginTop),
    QUIRRA_PLAIN(Piece, PieceNumAcross),   QUIRRA_PLAIN(Piece, PieceNumDown),
    QUIRRA_PLAIN(Piece, PieceOrientation), QUIRRA_PLAIN(Piece, PageSize),
    QUIRRA_PLAIN(Piece, PageSizeNum),      QUIRRA_PLAIN(Piece, PieceHeight),
    QUIRRA_PLAIN(Piece, PieceWidth),       QUIRRA_PLAIN(Piece, PiecePitchHorz),
    QUIRRA_PLAIN(Piece, PiecePitchVert),   QUIRRA_PLAIN(Piece, PrinterLeft),
    QUIRRA_PLAIN(Piece, PrinterTop),
};

// The sheet's real size, read and written after every published name.
const Field<Piece> PageSizeFieldTable[] = {
    QUIRRA_PLAIN(Piece, PageWidth),
    QUIRRA_PLAIN(Piece, PageHeight),
};

#undef QUIRRA_PLAIN

const Field<Item> *findItemField(QStringView name)
{
    for (const Field<Item> &field : ItemFieldTable) {
        if (name == QLatin1String(field.name))
            return &field;
    }
    return nullptr;
}

const Field<Piece> *findPieceField(QStringView name)
{
    for (const Field<Piece> &field : PieceFieldTable) {
        if (name == QLatin1String(field.name))
            return &field;
    }
    for (const Field<Piece> &field : PageSizeFieldTable) {
        if (name == QLatin1String(field.name))
            return &field;
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

QStringList pieceNames(bool withName)
{
    QStringList names;
    for (const Field<Piece> &field : PieceFieldTable)
        names.append(QLatin1String(field.name));
    if (!withName)
        names.removeFirst();
    return names;
}

QStringList pageSizeNames()
{
    QStringList names;
    for (const Field<Piece> &field : PageSizeFieldTable)
        names.append(QLatin1String(field.name));
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
        for (const Field<Item> &field : ItemFieldTable)
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
                                     pieceNames(true) + pageSizeNames();
    return names;
}

const QStringList &LayoutCopy::writeOrder()
{
    static const QStringList names =
        pieceNames(false) +
        itemNames({ItemId::Address, ItemId::Return, ItemId::Message1, ItemId::Message2,
                   ItemId::Stamp}) +
        pageSizeNames();
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
    for (const Field<Item> &field : ItemFieldTable)
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
