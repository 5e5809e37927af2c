// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QFont>
#include <QMetaType>
#include <QString>
#include <QStringView>
#include <QVariant>

#include <type_traits>
#include <vector>

class Quirra;

namespace quirra {

struct DefaultSet;

/** @brief How a property setter takes its value: small types by value, others by reference. */
template <typename T> using PropertyArg = std::conditional_t<std::is_class_v<T>, const T &, T>;

/**
 * @brief One property of the control, as saving, reading and the property
 * page see it.
 *
 * Values travel as QVariants in their saved form: the enumerations as
 * 32-bit integers, everything else as its own type (short, float, bool,
 * QString, QFont).
 */
struct PropertyInfo
{
    /** @brief Computes a value from the control's default set and its inherited font. */
    using ValueFunction = QVariant (*)(const DefaultSet &set, const QFont &ambient);

    QString name;        ///< the published name
    QMetaType type;      ///< the property's C++ type
    QMetaType savedType; ///< the type its values travel as
    int saveOrder = 0;   ///< 1..92 when saved and read back; 0: never saved
    int initOrder = 0;   ///< 1..92 when a new control is initialised; 0: left alone
    ValueFunction defaultValue = nullptr;              ///< what a saved control may omit
    ValueFunction initialValue = nullptr;              ///< what a new control gets
    QVariant (*read)(const Quirra &control) = nullptr; ///< the getter, in saved form
    /** @brief The setter (with its clamps and notifications); value in saved form. */
    void (*write)(Quirra &control, const QVariant &value) = nullptr;
};

/**
 * @brief Every property of the control, from the one list in
 * properties/properties.def.
 */
class PropertyTable
{
public:
    /** @brief All properties in the order they are declared. */
    static const std::vector<PropertyInfo> &all();

    /** @brief The saved properties in saving order: the 84 published, then PageWidth, PageHeight.
     */
    static const std::vector<const PropertyInfo *> &savedInOrder();

    /** @brief The properties a new control sets, in that order (92 of them). */
    static const std::vector<const PropertyInfo *> &initialisedInOrder();

    /** @brief The property of that name (case counts), or nullptr. */
    static const PropertyInfo *find(QStringView name);
};

} // namespace quirra
