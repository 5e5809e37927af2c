// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#include "propertyassignment.h"

#include "console.h"

#include "valuelimits.h"

#include <QFont>
#include <QFontDatabase>
#include <QLocale>
#include <QMetaEnum>
#include <QObject>

#include <cmath>
#include <limits>

namespace quirra {

namespace {

struct IntRange
{
    qint64 low;
    qint64 high;
};

bool integerRange(QMetaType type, IntRange *range)
{
    switch (type.id()) {
    case QMetaType::Short:
        *range = {std::numeric_limits<qint16>::min(), std::numeric_limits<qint16>::max()};
        return true;
    case QMetaType::UShort:
        *range = {0, std::numeric_limits<quint16>::max()};
        return true;
    case QMetaType::Int:
    case QMetaType::Long:
        *range = {std::numeric_limits<qint32>::min(), std::numeric_limits<qint32>::max()};
        return true;
    case QMetaType::UInt:
        *range = {0, std::numeric_limits<quint32>::max()};
        return true;
    case QMetaType::LongLong:
        *range = {std::numeric_limits<qint64>::min(), std::numeric_limits<qint64>::max()};
        return true;
    default:
        return false;
    }
}

QString enumChoices(const QMetaEnum &e)
{
    QStringList choices;
    for (int i = 0; i < e.keyCount(); ++i)
        choices << QStringLiteral("%1 (%2)").arg(QLatin1String(e.key(i))).arg(e.value(i));
    return choices.join(QStringLiteral(", "));
}

// QFont::fromString() takes a family alone, a family and a size, or the
// full toString() text of 10 to 17 fields; it warns on anything else, so the
// shape is checked first.
bool parseFont(const QString &text, QFont *font)
{
    const QStringList parts = text.trimmed().split(QLatin1Char(','));
    const qsizetype count = parts.size();
    if (parts.first().trimmed().isEmpty() || (count > 2 && count < 10) || count > 17)
        return false;
    if (count >= 2) {
        bool ok = false;
        const double size = parts.at(1).trimmed().toDouble(&ok);
        // A full description may carry -1 as point size (a pixel-sized font).
        if (!ok || !std::isfinite(size) || (size <= 0 && !(count >= 10 && size == -1)))
            return false;
    }
    QStringList cleaned;
    for (const QString &part : parts)
        cleaned << part.trimmed();
    return font->fromString(cleaned.join(QLatin1Char(',')));
}

QStringList similarNames(const QMetaObject *meta, const QString &name)
{
    QStringList exact;
    QStringList close;
    for (int i = meta->propertyOffset(); i < meta->propertyCount(); ++i) {
        const QString candidate = QString::fromLatin1(meta->property(i).name());
        if (candidate.compare(name, Qt::CaseInsensitive) == 0)
            exact << candidate;
        else if (name.size() >= 3 && candidate.contains(name, Qt::CaseInsensitive))
            close << candidate;
    }
    if (!exact.isEmpty())
        return exact;
    close.sort();
    return close.mid(0, 6);
}

} // namespace

PropertyAssignment::PropertyAssignment(const QString &name, const QString &value)
    : m_name(name), m_value(value)
{
}

bool PropertyAssignment::parse(const QString &argument, PropertyAssignment *out, QString *error)
{
    const qsizetype equals = argument.indexOf(QLatin1Char('='));
    if (equals < 0) {
        *error = Cli::tr("--set %1: write it as NAME=VALUE, e.g. --set AddressHorzAlign=haCenter")
                     .arg(argument);
        return false;
    }
    const QString name = argument.left(equals).trimmed();
    if (name.isEmpty()) {
        *error = Cli::tr("--set %1: the property's name is missing before '='").arg(argument);
        return false;
    }
    *out = PropertyAssignment(name, argument.mid(equals + 1));
    return true;
}

QString PropertyAssignment::unescapeText(const QString &text)
{
    if (!text.contains(QLatin1Char('\\')))
        return text;
    QString result;
    result.reserve(text.size() + 8);
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar c = text.at(i);
        if (c == QLatin1Char('\\') && i + 1 < text.size()) {
            const QChar n = text.at(i + 1);
            if (n == QLatin1Char('n')) {
                result += QLatin1String("\r\n");
                ++i;
                continue;
            }
            if (n == QLatin1Char('\\')) {
                result += QLatin1Char('\\');
                ++i;
                continue;
            }
        }
        result += c;
    }
    return result;
}

QString PropertyAssignment::describeType(const QMetaProperty &property)
{
    if (property.isEnumType()) {
        return Cli::tr("one of %1, by name or number").arg(enumChoices(property.enumerator()));
    }
    const QMetaType type = property.metaType();
    IntRange range{};
    if (integerRange(type, &range))
        return Cli::tr("a whole number from %1 to %2").arg(range.low).arg(range.high);
    switch (type.id()) {
    case QMetaType::Float:
    case QMetaType::Double:
        return Cli::tr("a number with a full stop as decimal point, e.g. 0.25 (inches for "
                       "lengths)");
    case QMetaType::Bool:
        return Cli::tr("true or false (or 1 or 0)");
    case QMetaType::QString:
        return Cli::tr("text; \\n starts a new line");
    case QMetaType::QFont:
        return Cli::tr("a font as family and point size, e.g. \"Liberation Serif,12\", or "
                       "a full QFont::toString() text");
    default:
        return Cli::tr("a value of type %1, which cannot be given on the command line")
            .arg(QLatin1String(type.name()));
    }
}

bool PropertyAssignment::convert(const QMetaProperty &property, const QString &text,
                                 const QVariant &current, QVariant *out, QString *why)
{
    const QMetaType type = property.metaType();
    const QString trimmed = text.trimmed();
    auto refuse = [&] {
        *why = describeType(property);
        return false;
    };

    if (property.isEnumType()) {
        const QMetaEnum e = property.enumerator();
        bool isNumber = false;
        const int number = trimmed.toInt(&isNumber);
        if (isNumber) {
            if (!e.valueToKey(number))
                return refuse();
            *out = QVariant(number);
            return true;
        }
        for (int i = 0; i < e.keyCount(); ++i) {
            if (trimmed.compare(QLatin1String(e.key(i)), Qt::CaseInsensitive) == 0) {
                *out = QVariant(e.value(i));
                return true;
            }
        }
        return refuse();
    }

    IntRange range{};
    if (integerRange(type, &range)) {
        bool ok = false;
        const qlonglong number = trimmed.toLongLong(&ok);
        if (!ok || number < range.low || number > range.high)
            return refuse();
        QVariant v(number);
        if (!v.convert(type))
            return refuse();
        *out = v;
        return true;
    }

    switch (type.id()) {
    case QMetaType::Float:
    case QMetaType::Double: {
        bool ok = false;
        const double number = QLocale::c().toDouble(trimmed, &ok);
        if (!ok || !std::isfinite(number))
            return refuse();
        if (type.id() == QMetaType::Float) {
            if (std::fabs(number) > double(std::numeric_limits<float>::max()))
                return refuse();
            *out = QVariant(float(number));
        } else {
            *out = QVariant(number);
        }
        return true;
    }
    case QMetaType::Bool: {
        const QString lower = trimmed.toLower();
        if (lower == QLatin1String("true") || lower == QLatin1String("1")) {
            *out = QVariant(true);
            return true;
        }
        if (lower == QLatin1String("false") || lower == QLatin1String("0")) {
            *out = QVariant(false);
            return true;
        }
        return refuse();
    }
    case QMetaType::QString:
        *out = QVariant(unescapeText(text));
        return true;
    case QMetaType::QFont: {
        QFont font = current.value<QFont>();
        if (!parseFont(text, &font))
            return refuse();
        *out = QVariant(font);
        return true;
    }
    default:
        return refuse();
    }
}

bool PropertyAssignment::apply(QObject *target, QString *error, QStringList *warnings) const
{
    const QMetaObject *meta = target->metaObject();
    const int index = meta->indexOfProperty(m_name.toLatin1().constData());
    if (index < meta->propertyOffset() || m_name.contains(QLatin1Char('\0'))) {
        *error = Cli::tr("--set %1: the control has no property \"%1\"").arg(m_name);
        const QStringList similar = similarNames(meta, m_name);
        if (!similar.isEmpty())
            *error += Cli::tr("; did you mean %1?").arg(similar.join(QStringLiteral(", ")));
        return false;
    }
    const QMetaProperty property = meta->property(index);
    if (!property.isWritable()) {
        *error = Cli::tr("--set %1: the property cannot be set").arg(m_name);
        return false;
    }
    QVariant value;
    QString why;
    if (!convert(property, m_value, property.read(target), &value, &why)) {
        *error = Cli::tr("--set %1=%2: %1 takes %3").arg(m_name, m_value, why);
        return false;
    }
    const QString limit = valueProblem(m_name, value);
    if (!limit.isEmpty()) {
        *error = QStringLiteral("--set ") + limit;
        return false;
    }
    if (!property.write(target, value)) {
        *error = Cli::tr("--set %1=%2: the control did not take the value; %1 takes %3")
                     .arg(m_name, m_value, describeType(property));
        return false;
    }
    if (warnings && value.metaType().id() == QMetaType::QFont) {
        const QString family = value.value<QFont>().family();
        if (!QFontDatabase::hasFamily(family)) {
            *warnings << Cli::tr("--set %1: no font family \"%2\" is installed; the "
                                 "closest one is used")
                             .arg(m_name, family);
        }
    }
    return true;
}

} // namespace quirra
