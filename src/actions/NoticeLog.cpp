#include "actions/NoticeLog.h"

#include <QDir>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSaveFile>

namespace {

QJsonObject readLog(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    return QJsonDocument::fromJson(file.readAll()).object();
}

}  // namespace

QString NoticeLog::path() const
{
    return m_folder + QStringLiteral("/notices.json");
}

bool NoticeLog::isDue(Notice::Condition condition, const QDate& today) const
{
    const QJsonObject log = readLog(path());
    return QDate::fromString(log.value(Notice::conditionKey(condition)).toString(), Qt::ISODate) != today;
}

bool NoticeLog::record(Notice::Condition condition, const QDate& today) const
{
    if (!QDir().mkpath(m_folder))
        return false;
    QJsonObject log = readLog(path());
    log.insert(Notice::conditionKey(condition), today.toString(Qt::ISODate));
    QSaveFile file(path());
    if (!file.open(QIODevice::WriteOnly))
        return false;
    file.write(QJsonDocument(log).toJson(QJsonDocument::Indented));
    return file.commit();
}
