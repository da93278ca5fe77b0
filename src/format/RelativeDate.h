#pragma once

#include <QDateTime>
#include <QString>

// The one relative-date formatter ("just now", "5 minutes ago", "yesterday", "3 months ago").
namespace RelativeDate {

// How long before `now` the date lies, in words. A date after `now` reads "just now".
QString format(const QDateTime& date, const QDateTime& now);
QString format(const QDateTime& date);  // relative to the current time

}  // namespace RelativeDate
