#include "format/RelativeDate.h"

#include <QCoreApplication>
#include <QRegularExpression>
#include <QTimeZone>

namespace RelativeDate {

namespace {

// Whole calendar months between two dates, counting a month only once its day is reached.
int monthsBetween(const QDate& from, const QDate& to)
{
    int months = (to.year() - from.year()) * 12 + (to.month() - from.month());
    if (to.day() < from.day())
        --months;
    return months;
}

QString months(int count)
{
    if (count < 12) {
        if (count == 1)
            //: Relative date
            return QCoreApplication::translate("RelativeDate", "last month");
        //: Relative date; %1 is a number of months (2 to 11)
        return QCoreApplication::translate("RelativeDate", "%1 months ago").arg(count);
    }
    const int years = count / 12;
    if (years == 1)
        //: Relative date
        return QCoreApplication::translate("RelativeDate", "last year");
    //: Relative date; %1 is a number of years (2 or more)
    return QCoreApplication::translate("RelativeDate", "%1 years ago").arg(years);
}

}  // namespace

QString format(const QDateTime& date, const QDateTime& now)
{
    const qint64 seconds = date.secsTo(now);
    if (seconds < 60)
        //: Relative date of something that happened less than a minute ago
        return QCoreApplication::translate("RelativeDate", "just now");
    if (seconds < 3600) {
        const qint64 minutes = seconds / 60;
        if (minutes == 1)
            //: Relative date
            return QCoreApplication::translate("RelativeDate", "1 minute ago");
        //: Relative date; %1 is a number of minutes (2 to 59)
        return QCoreApplication::translate("RelativeDate", "%1 minutes ago").arg(minutes);
    }
    if (seconds < 86400) {
        const qint64 hours = seconds / 3600;
        if (hours == 1)
            //: Relative date
            return QCoreApplication::translate("RelativeDate", "1 hour ago");
        //: Relative date; %1 is a number of hours (2 to 23)
        return QCoreApplication::translate("RelativeDate", "%1 hours ago").arg(hours);
    }
    const qint64 days = seconds / 86400;
    if (days == 1)
        //: Relative date
        return QCoreApplication::translate("RelativeDate", "yesterday");
    if (days < 7)
        //: Relative date; %1 is a number of days (2 to 6)
        return QCoreApplication::translate("RelativeDate", "%1 days ago").arg(days);
    const int monthCount = monthsBetween(date.date(), now.date());
    if (monthCount < 1) {
        const qint64 weeks = days / 7;
        if (weeks == 1)
            //: Relative date
            return QCoreApplication::translate("RelativeDate", "last week");
        //: Relative date; %1 is a number of weeks (2 to 4)
        return QCoreApplication::translate("RelativeDate", "%1 weeks ago").arg(weeks);
    }
    return months(monthCount);
}

QString format(const QDateTime& date)
{
    return format(date, QDateTime::currentDateTime());
}

namespace {

constexpr QChar markerStart(0xE000);
constexpr QChar markerEnd(0xE001);

}  // namespace

QString marker(const QDateTime& date)
{
    return markerStart + QString::number(date.toMSecsSinceEpoch()) + markerEnd;
}

QString expand(const QString& text, const QDateTime& now)
{
    if (!text.contains(markerStart))
        return text;
    static const QRegularExpression markers(QStringLiteral("\\x{E000}(-?\\d+)\\x{E001}"));
    QString result;
    qsizetype done = 0;
    for (const QRegularExpressionMatch& match : markers.globalMatch(text)) {
        const QDateTime date = QDateTime::fromMSecsSinceEpoch(match.captured(1).toLongLong(), QTimeZone::utc());
        result += text.mid(done, match.capturedStart() - done) + format(date, now);
        done = match.capturedEnd();
    }
    return result + text.mid(done);
}

QString expand(const QString& text)
{
    return expand(text, QDateTime::currentDateTime());
}

}  // namespace RelativeDate
