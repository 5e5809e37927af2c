// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#include "properties/jsonpropertybag.h"

#include "model/error.h"

#include <QFile>
#include <QFont>
#include <QJsonDocument>
#include <QJsonParseError>
#include <QJsonValue>
#include <QSaveFile>

#include <cmath>
#include <limits>

namespace quirra {

namespace {

QString typeName(const QVariant &value)
{
    return QString::fromLatin1(value.metaType().name());
}

Error readError(const QString &name, const QString &what)
{
    return Error(QStringLiteral("The saved value of %1 is not %2.").arg(name, what));
}

template <typename Int>
QVariant wholeNumber(const QString &name, const QJsonValue &json, const QString &what)
{
    const double number = json.toDouble(std::numeric_limits<double>::quiet_NaN());
    if (!json.isDouble() || std::trunc(number) != number ||
        number < double(std::numeric_limits<Int>::min()) ||
        number > double(std::numeric_limits<Int>::max())) {
        throw readError(name, what);
    }
    return QVariant::fromValue(Int(number));
}

// The fewest digits that read back as the same float: 0.1f is saved as 0.1,
// not as the double it widens to.
double shortestDecimal(float value)
{
    for (int digits = 6; digits <= 9; ++digits) {
        const QString text = QString::number(double(value), 'g', digits);
        if (text.toFloat() == value)
            return text.toDouble();
    }
    return double(value);
}

bool equalsDefault(const QVariant &value, const QVariant &defaultValue)
{
    if (value.metaType() != defaultValue.metaType())
        return false;
    // Two fonts that save alike are alike for the bag.
    if (value.metaType() == QMetaType::fromType<QFont>())
        return value.value<QFont>().toString() == defaultValue.value<QFont>().toString();
    return value == defaultValue;
}

} // namespace

void JsonPropertyBag::load(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        throw Error(QStringLiteral("Cannot read the control's settings from \"%1\": %2.")
                        .arg(path, file.errorString()));
    }
    QJsonParseError parseError;
    const QJsonDocument document = QJsonDocument::fromJson(file.readAll(), &parseError);
    if (parseError.error != QJsonParseError::NoError) {
        throw Error(QStringLiteral("The settings file \"%1\" is not valid JSON: %2 at byte %3.")
                        .arg(path, parseError.errorString())
                        .arg(parseError.offset));
    }
    if (!document.isObject()) {
        throw Error(QStringLiteral("The settings file \"%1\" holds no JSON object of named "
                                   "values.")
                        .arg(path));
    }
    m_values = document.object();
}

void JsonPropertyBag::save(const QString &path) const
{
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly) ||
        file.write(QJsonDocument(m_values).toJson(QJsonDocument::Indented)) < 0 || !file.commit()) {
        throw Error(QStringLiteral("Cannot save the control's settings to \"%1\": %2.")
                        .arg(path, file.errorString()));
    }
}

QVariant JsonPropertyBag::read(const QString &name, const QVariant &defaultValue)
{
    const auto it = m_values.constFind(name);
    if (it == m_values.constEnd())
        return defaultValue;
    const QJsonValue json = it.value();

    switch (defaultValue.metaType().id()) {
    case QMetaType::Bool:
        if (!json.isBool())
            throw readError(name, QStringLiteral("true or false"));
        return json.toBool();
    case QMetaType::Short:
        return wholeNumber<qint16>(name, json,
                                   QStringLiteral("a whole number from -32768 to 32767"));
    case QMetaType::Int:
        return wholeNumber<qint32>(name, json, QStringLiteral("a 32-bit whole number"));
    case QMetaType::Float: {
        const double number = json.toDouble();
        if (!json.isDouble() || !std::isfinite(number) ||
            std::fabs(number) > double(std::numeric_limits<float>::max())) {
            throw readError(name, QStringLiteral("a number"));
        }
        return QVariant::fromValue(float(number));
    }
    case QMetaType::QString:
        if (!json.isString())
            throw readError(name, QStringLiteral("a text"));
        return json.toString();
    case QMetaType::QFont: {
        QFont font;
        if (!json.isString() || !font.fromString(json.toString()))
            throw readError(name, QStringLiteral("a font description"));
        return font;
    }
    default:
        throw Error(QStringLiteral("Cannot read %1: the settings file keeps no values of type %2.")
                        .arg(name, typeName(defaultValue)));
    }
}

void JsonPropertyBag::write(const QString &name, const QVariant &value,
                            const QVariant &defaultValue)
{
    if (equalsDefault(value, defaultValue)) {
        m_values.remove(name);
        return;
    }
    switch (value.metaType().id()) {
    case QMetaType::Bool:
        m_values.insert(name, value.toBool());
        return;
    case QMetaType::Short:
    case QMetaType::Int:
        m_values.insert(name, value.toInt());
        return;
    case QMetaType::Float:
        m_values.insert(name, shortestDecimal(value.toFloat()));
        return;
    case QMetaType::QString:
        m_values.insert(name, value.toString());
        return;
    case QMetaType::QFont:
        m_values.insert(name, value.value<QFont>().toString());
        return;
    default:
        throw Error(QStringLiteral("Cannot save %1: the settings file keeps no values of type %2.")
                        .arg(name, typeName(value)));
    }
}

} // namespace quirra
