#pragma once

#include <QDateTime>
#include <QJsonArray>
#include <QJsonObject>
#include <QString>
#include <QStringList>

#include <optional>

// Reads the fields of one JSON object as strictly as a typed decoder: a required field that is
// missing, null or of the wrong type, or an optional one of the wrong type, marks the whole
// read as failed, and the caller discards what it read. Integers must be whole numbers.
// A plain value used on one thread.
class JsonFields {
public:
    explicit JsonFields(QJsonObject object) : m_object(std::move(object)) {}

    QString string(const QString& key);
    qint64 integer(const QString& key);
    QDateTime date(const QString& key);
    QJsonObject object(const QString& key);
    QJsonArray array(const QString& key);
    std::optional<QString> optionalString(const QString& key);
    std::optional<QStringList> optionalStringList(const QString& key);
    std::optional<QJsonObject> optionalObject(const QString& key);

    [[nodiscard]] bool ok() const { return m_ok; }
    void fail() { m_ok = false; }

    // A whole number held by `value`; absent for anything else.
    static std::optional<qint64> integerOf(const QJsonValue& value);
    // A list of texts; absent when the value is not an array of strings only.
    static std::optional<QStringList> stringListOf(const QJsonValue& value);

private:
    QJsonValue required(const QString& key);
    bool isPresent(const QString& key) const;

    QJsonObject m_object;
    bool m_ok = true;
};
