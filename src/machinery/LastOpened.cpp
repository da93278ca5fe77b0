#include "machinery/LastOpened.h"

#include "machinery/ProcessRunner.h"
#include "platform/Platform.h"
#include "vocabulary/FileStatus.h"

#include <QStringList>
#include <QTimeZone>

#include <chrono>

namespace LastOpened {

namespace {

std::optional<QDateTime> fromSpotlight(const QString& path)
{
    const ProcessRunner::Result result = ProcessRunner::run(
        QStringLiteral("/usr/bin/mdls"),
        {QStringLiteral("-raw"), QStringLiteral("-name"), QStringLiteral("kMDItemLastUsedDate"), path},
        std::chrono::seconds(10));
    if (!result.launched() || result.output->timedOut || result.output->status != 0)
        return std::nullopt;
    return parseSpotlightDate(result.output->standardOutput);
}

std::optional<QDateTime> fromAccessTime(const QString& path)
{
    const auto info = FileStatus::of(path);
    if (!info)
        return std::nullopt;
    const qint64 accessed = Platform::accessNanoseconds(*info) / 1'000'000;
    const qint64 modified = Platform::modificationNanoseconds(*info) / 1'000'000;
    if (accessed <= modified)
        return std::nullopt;
    return QDateTime::fromMSecsSinceEpoch(accessed, QTimeZone::utc());
}

}  // namespace

std::optional<QDateTime> of(const QString& path)
{
    if (Platform::desktop() == Platform::Desktop::finder)
        return fromSpotlight(path);
    return fromAccessTime(path);
}

std::optional<QDateTime> parseSpotlightDate(const QString& text)
{
    const QStringList parts = text.trimmed().split(QLatin1Char(' '));
    if (parts.size() != 3 || parts[2].size() != 5)
        return std::nullopt;
    const QDate day = QDate::fromString(parts[0], QStringLiteral("yyyy-MM-dd"));
    const QTime time = QTime::fromString(parts[1], QStringLiteral("HH:mm:ss"));
    if (!day.isValid() || !time.isValid())
        return std::nullopt;
    const int sign = parts[2].startsWith(QLatin1Char('-')) ? -1 : 1;
    const int offset = parts[2].mid(1, 2).toInt() * 3600 + parts[2].mid(3, 2).toInt() * 60;
    return QDateTime(day, time, QTimeZone::utc()).addSecs(-sign * offset);
}

}  // namespace LastOpened
