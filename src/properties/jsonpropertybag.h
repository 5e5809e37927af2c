// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#pragma once

#include "properties/propertybag.h"
#include <QJsonObject>
#include <QString>

namespace quirra {

/**
 * @brief A property bag kept as one JSON object, in memory or in a file.
 *
 * Values equal to their default are left out. Booleans are JSON booleans,
 * numbers JSON numbers (floats with the fewest digits that give them back
 * exactly), texts JSON strings, fonts the string of QFont::toString().
 * Reading a value of the wrong JSON type, a whole number out of its range,
 * a fraction where a whole number belongs or a font string QFont cannot
 * parse raises quirra::Error naming the value.
 */
class JsonPropertyBag : public PropertyBag
{
public:
    JsonPropertyBag() = default;

    /**
     * @brief Replaces the bag's values by the JSON object in the file at path.
     * @throws Error when the file cannot be read or holds no JSON object;
     * the bag is then left as it was.
     */
    void load(const QString &path);

    /**
     * @brief Writes the values to the file at path as an indented JSON
     * object; an old file is replaced only once the new one is complete.
     * @throws Error when the file cannot be written.
     */
    void save(const QString &path) const;

    /** @brief The values as they would be saved. */
    const QJsonObject &values() const { return m_values; }

    /** @brief Replaces every value. */
    void setValues(const QJsonObject &values) { m_values = values; }

    /**
     * @brief The saved value of name in the type of defaultValue, or
     * defaultValue when name is not in the bag.
     * @throws Error when the saved value does not fit that type.
     */
    QVariant read(const QString &name, const QVariant &defaultValue) override;

    /**
     * @brief Saves value under name, or removes name when value equals
     * defaultValue.
     * @throws Error for a type the bag cannot keep.
     */
    void write(const QString &name, const QVariant &value, const QVariant &defaultValue) override;

private:
    QJsonObject m_values;
};

} // namespace quirra
