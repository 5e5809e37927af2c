// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QMetaProperty>
#include <QString>
#include <QStringList>
#include <QVariant>

class QObject;

namespace quirra {

/**
 * @brief One "--set NAME=VALUE" of the command line: a property of the
 * control reached by its published name and set from text.
 *
 * Only the target class's own properties are reachable (not QObject's or
 * QWidget's). The text is converted to the property's type: whole numbers
 * within the type's range, numbers with a full stop as decimal point,
 * booleans as true/false/1/0, enumerations by key ("haCenter") or by value,
 * fonts as QFont::toString() text (a family, or a family and a point
 * size, change only those: "Liberation Serif,12"), and text as it stands,
 * except that "\n" becomes a line break (CR LF) and "\\" a backslash.
 * Anything else is refused with a message that names the property and says
 * what it takes.
 */
class PropertyAssignment
{
public:
    PropertyAssignment() = default;
    /** @brief The assignment of value (as given on the command line) to the property name. */
    PropertyAssignment(const QString &name, const QString &value);

    /**
     * @brief Splits "NAME=VALUE" at the first '='.
     * @return false with a message when there is no '=' or no name.
     */
    static bool parse(const QString &argument, PropertyAssignment *out, QString *error);

    /** @brief The property's published name as given. */
    QString name() const { return m_name; }

    /** @brief The value as given on the command line. */
    QString value() const { return m_value; }

    /**
     * @brief Converts the value to the property's type and writes it.
     * @param warnings receives remarks that do not stop the run (a font
     * family that is not installed); may be nullptr
     * @return false with a message when the property is unknown or the value
     * does not fit its type.
     */
    bool apply(QObject *target, QString *error, QStringList *warnings = nullptr) const;

    /**
     * @brief Converts text to a value of the property's type.
     * @param current the property's value now: a font given by family, or by
     * family and size, keeps the rest of it
     * @return false with why: what the property takes.
     */
    static bool convert(const QMetaProperty &property, const QString &text, const QVariant &current,
                        QVariant *out, QString *why);

    /** @brief What a property of this type takes, in words ("a whole number from 0 to 400"). */
    static QString describeType(const QMetaProperty &property);

    /** @brief A text value as the control stores it: "\n" becomes CR LF, "\\" a backslash. */
    static QString unescapeText(const QString &text);

private:
    QString m_name;
    QString m_value;
};

} // namespace quirra
