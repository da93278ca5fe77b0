#include "vocabulary/JsonDate.h"

#include <cmath>

namespace JsonDate {

QDateTime referenceDate()
{
    return QDateTime(QDate(2001, 1, 1), QTime(0, 0), Qt::UTC);
}

QJsonValue encode(const QDateTime& date)
{
    const qint64 milliseconds = referenceDate().msecsTo(date);
    return QJsonValue(static_cast<double>(milliseconds) / 1000.0);
}

std::optional<QDateTime> decode(const QJsonValue& value)
{
    if (!value.isDouble())
        return std::nullopt;
    const double seconds = value.toDouble();
    // Beyond a few hundred million years QDateTime cannot hold it; such a value is garbage.
    if (!std::isfinite(seconds) || std::fabs(seconds) > 1e13)
        return std::nullopt;
    return referenceDate().addMSecs(std::llround(seconds * 1000.0));
}

}  // namespace JsonDate
