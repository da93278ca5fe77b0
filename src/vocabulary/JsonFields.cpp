#include "vocabulary/JsonFields.h"

#include "vocabulary/JsonDate.h"

#include <cmath>

std::optional<qint64> JsonFields::integerOf(const QJsonValue& value)
{
    if (!value.isDouble())
        return std::nullopt;
    const double number = value.toDouble();
    if (!std::isfinite(number) || std::trunc(number) != number)
        return std::nullopt;
    return value.toInteger();
}

std::optional<QStringList> JsonFields::stringListOf(const QJsonValue& value)
{
    if (!value.isArray())
        return std::nullopt;
    QStringList list;
    for (const QJsonValue& element : value.toArray()) {
        if (!element.isString())
            return std::nullopt;
        list.append(element.toString());
    }
    return list;
}

QJsonValue JsonFields::required(const QString& key)
{
    const QJsonValue value = m_object.value(key);
    if (value.isUndefined() || value.isNull())
        m_ok = false;
    return value;
}

bool JsonFields::isPresent(const QString& key) const
{
    const QJsonValue value = m_object.value(key);
    return !value.isUndefined() && !value.isNull();
}

QString JsonFields::string(const QString& key)
{
    const QJsonValue value = required(key);
    if (!value.isString())
        m_ok = false;
    return value.toString();
}

qint64 JsonFields::integer(const QString& key)
{
    const std::optional<qint64> number = integerOf(required(key));
    if (!number)
        m_ok = false;
    return number.value_or(0);
}

QDateTime JsonFields::date(const QString& key)
{
    const std::optional<QDateTime> date = JsonDate::decode(required(key));
    if (!date)
        m_ok = false;
    return date.value_or(QDateTime());
}

QJsonObject JsonFields::object(const QString& key)
{
    const QJsonValue value = required(key);
    if (!value.isObject())
        m_ok = false;
    return value.toObject();
}

QJsonArray JsonFields::array(const QString& key)
{
    const QJsonValue value = required(key);
    if (!value.isArray())
        m_ok = false;
    return value.toArray();
}

std::optional<QString> JsonFields::optionalString(const QString& key)
{
    if (!isPresent(key))
        return std::nullopt;
    return string(key);
}

std::optional<QStringList> JsonFields::optionalStringList(const QString& key)
{
    if (!isPresent(key))
        return std::nullopt;
    const std::optional<QStringList> list = stringListOf(m_object.value(key));
    if (!list)
        m_ok = false;
    return list;
}

std::optional<QJsonObject> JsonFields::optionalObject(const QString& key)
{
    if (!isPresent(key))
        return std::nullopt;
    return object(key);
}
