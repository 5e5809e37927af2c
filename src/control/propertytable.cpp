// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#include "control/propertytable.h"

#include "control/quirra.h"
#include "model/piece.h"
#include "properties/defaultset.h"

#include <algorithm>

namespace quirra {

namespace {

// The "initial" column's word for "the same as the default".
struct SameAsDefault
{
};
constexpr SameAsDefault SAME{};

// Enumerations travel as 32-bit integers, the width they are saved with.
template <typename T> QMetaType savedTypeOf()
{
    if constexpr (std::is_enum_v<T>)
        return QMetaType::fromType<qint32>();
    else
        return QMetaType::fromType<T>();
}

template <typename T> QVariant toSaved(const T &value)
{
    if constexpr (std::is_enum_v<T>)
        return QVariant(qint32(value));
    else
        return QVariant::fromValue(value);
}

template <typename T> T fromSaved(const QVariant &value)
{
    if constexpr (std::is_enum_v<T>)
        return static_cast<T>(value.toInt());
    else
        return value.value<T>();
}

template <typename T, typename V> QVariant initialOf(const QVariant &defaultValue, const V &initial)
{
    if constexpr (std::is_same_v<V, SameAsDefault>)
        return defaultValue;
    else
        return toSaved<T>(T(initial));
}

std::vector<const PropertyInfo *> ordered(int PropertyInfo::*position)
{
    std::vector<const PropertyInfo *> result;
    for (const PropertyInfo &property : PropertyTable::all()) {
        if (property.*position > 0)
            result.push_back(&property);
    }
    std::sort(result.begin(), result.end(),
              [position](const auto *a, const auto *b) { return a->*position < b->*position; });
    return result;
}

} // namespace

// The default and initial columns of properties/properties.def read these.
#define SET_ITEM(itemId, field) set.item(ItemId::itemId).field
#define SET_PIECE(field) set.piece.field
#define SET_ICON set.Icon1
#define AMBIENT ambient

#define QUIRRA_PROPERTY(type, name, save, init, defaultValue, initialValue, ...)                   \
    PropertyInfo{                                                                                  \
        QStringLiteral(#name),                                                                     \
        QMetaType::fromType<type>(),                                                               \
        savedTypeOf<type>(),                                                                       \
        save,                                                                                      \
        init,                                                                                      \
        []([[maybe_unused]] const DefaultSet &set, [[maybe_unused]] const QFont &ambient)          \
            -> QVariant { return toSaved<type>(type(defaultValue)); },                             \
        []([[maybe_unused]] const DefaultSet &set,                                                 \
           [[maybe_unused]] const QFont &ambient) -> QVariant {                                    \
            return initialOf<type>(toSaved<type>(type(defaultValue)), initialValue);               \
        },                                                                                         \
        [](const Quirra &control) -> QVariant { return toSaved<type>(control.name()); },           \
        [](Quirra &control, const QVariant &value) { control.name(fromSaved<type>(value)); },      \
    },

const std::vector<PropertyInfo> &PropertyTable::all()
{
    static const std::vector<PropertyInfo> table = {
#include "properties/properties.def"
    };
    return table;
}

#undef QUIRRA_PROPERTY
#undef SET_ITEM
#undef SET_PIECE
#undef SET_ICON
#undef AMBIENT

const std::vector<const PropertyInfo *> &PropertyTable::savedInOrder()
{
    static const std::vector<const PropertyInfo *> list = ordered(&PropertyInfo::saveOrder);
    return list;
}

const std::vector<const PropertyInfo *> &PropertyTable::initialisedInOrder()
{
    static const std::vector<const PropertyInfo *> list = ordered(&PropertyInfo::initOrder);
    return list;
}

const PropertyInfo *PropertyTable::find(QStringView name)
{
    const std::vector<PropertyInfo> &table = all();
    const auto it = std::find_if(table.begin(), table.end(), [name](const PropertyInfo &property) {
        return property.name == name;
    });
    return it == table.end() ? nullptr : &*it;
}

} // namespace quirra
