// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#include "properties/fieldnames.h"

#include "model/fontconversion.h"

#include <QFont>

#include <algorithm>
#include <cstring>
#include <type_traits>

namespace quirra {

namespace {

// Alignments travel as 32-bit integers, the rest as their own type.
template <auto member, typename Record> QVariant getValue(const Record &record)
{
    using T = std::remove_reference_t<decltype(record.*member)>;
    if constexpr (std::is_enum_v<T>)
        return QVariant(qint32(record.*member));
    else
        return QVariant::fromValue(record.*member);
}

template <auto member, typename Record> void setValue(Record &record, const QVariant &value)
{
    using T = std::remove_reference_t<decltype(record.*member)>;
    if constexpr (std::is_enum_v<T>)
        record.*member = static_cast<T>(value.toInt());
    else
        record.*member = value.value<T>();
}

QVariant getFont(const Item &item)
{
    return QVariant::fromValue(toQFont(item.Font));
}

void setFont(Item &item, const QVariant &value)
{
    item.Font = toItemFont(value.value<QFont>());
}

struct ItemRow
{
    ItemId id;
    Field<Item> field;
};

#define QUIRRA_FIELD(Record, member)                                                               \
    Field<Record>                                                                                  \
    {                                                                                              \
#member, &getValue < &Record::member, Record>, &setValue < &Record::member, Record>        \
    }

#define QUIRRA_PROPERTY(type, name, save, init, defaultValue, initialValue, where, ...)            \
    QUIRRA_ITEM_ROW_##where(__VA_ARGS__)
#define QUIRRA_ITEM_ROW_ITEM(itemId, member) ItemRow{ItemId::itemId, QUIRRA_FIELD(Item, member)},
#define QUIRRA_ITEM_ROW_ITEM_FONT(itemId) ItemRow{ItemId::itemId, {"Font", &getFont, &setFont}},
#define QUIRRA_ITEM_ROW_PANE(...)
#define QUIRRA_ITEM_ROW_PANE_CLAMPED(...)
#define QUIRRA_ITEM_ROW_PIECE_NAME(...)
#define QUIRRA_ITEM_ROW_MODEL(...)
#define QUIRRA_ITEM_ROW_PIECE(...)
#define QUIRRA_ITEM_ROW_SURFACE(...)
#define QUIRRA_ITEM_ROW_INSTANCE(...)
const ItemRow ItemRows[] = {
#include "properties/properties.def"
};
#undef QUIRRA_PROPERTY

#define QUIRRA_PROPERTY(type, name, save, init, defaultValue, initialValue, where, ...)            \
    QUIRRA_PIECE_ROW_##where(__VA_ARGS__)
#define QUIRRA_PIECE_ROW_PIECE(member, announced)                                                  \
    PieceField{QUIRRA_FIELD(Piece, member), #announced},
#define QUIRRA_PIECE_ROW_PIECE_NAME(member) PieceField{QUIRRA_FIELD(Piece, member), ""},
#define QUIRRA_PIECE_ROW_ITEM(...)
#define QUIRRA_PIECE_ROW_ITEM_FONT(...)
#define QUIRRA_PIECE_ROW_PANE(...)
#define QUIRRA_PIECE_ROW_PANE_CLAMPED(...)
#define QUIRRA_PIECE_ROW_MODEL(...)
#define QUIRRA_PIECE_ROW_SURFACE(...)
#define QUIRRA_PIECE_ROW_INSTANCE(...)
const PieceField PieceRows[] = {
#include "properties/properties.def"
};
#undef QUIRRA_PROPERTY
#undef QUIRRA_FIELD

bool announced(const PieceField &field)
{
    return field.announced[0] != '\0';
}

} // namespace

const std::vector<Field<Item>> &ItemFields()
{
    static const std::vector<Field<Item>> fields = [] {
        std::vector<Field<Item>> result;
        for (const ItemRow &row : ItemRows) {
            if (row.id == ItemId::Address)
                result.push_back(row.field);
        }
        std::sort(result.begin(), result.end(),
                  [](const auto &a, const auto &b) { return std::strcmp(a.name, b.name) < 0; });
        return result;
    }();
    return fields;
}

const std::vector<PieceField> &PieceFields()
{
    static const std::vector<PieceField> fields = [] {
        std::vector<PieceField> named, quiet;
        for (const PieceField &row : PieceRows)
            (announced(row) ? named : quiet).push_back(row);
        std::sort(named.begin(), named.end(), [](const auto &a, const auto &b) {
            return std::strcmp(a.announced, b.announced) < 0;
        });
        // PieceName (the one not announced by a short form) leads.
        const auto name = std::find_if(quiet.begin(), quiet.end(), [](const PieceField &row) {
            return std::strcmp(row.field.name, "PieceName") == 0;
        });
        std::vector<PieceField> result;
        if (name != quiet.end()) {
            result.push_back(*name);
            quiet.erase(name);
        }
        result.insert(result.end(), named.begin(), named.end());
        result.insert(result.end(), quiet.begin(), quiet.end());
        return result;
    }();
    return fields;
}

const QStringList &PieceChangedNames()
{
    static const QStringList names = [] {
        QStringList list;
        for (const PieceField &row : PieceFields()) {
            if (announced(row))
                list.append(QLatin1String(row.announced));
        }
        return list;
    }();
    return names;
}

const QStringList &ItemsChangedNames()
{
    static const QStringList names = [] {
        QStringList list;
        for (ItemId id : ArgumentOrder) {
            for (const Field<Item> &field : ItemFields())
                list.append(itemName(id) + QLatin1String(field.name));
        }
        return list;
    }();
    return names;
}

} // namespace quirra
