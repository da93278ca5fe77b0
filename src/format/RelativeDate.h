#pragma once

#include <QDateTime>
#include <QString>

// The one relative-date formatter ("just now", "5 minutes ago", "yesterday", "3 months ago").
namespace RelativeDate {

// How long before `now` the date lies, in words. A date after `now` reads "just now".
QString format(const QDateTime& date, const QDateTime& now);
QString format(const QDateTime& date);  // relative to the current time

// A date kept inside a text that is made once and read later (a row's detail line), put into
// words only when the text is shown, so "changed 5 minutes ago" agrees with the moment it is
// read and with the row's date column. The marker is made of private-use characters and digits.
QString marker(const QDateTime& date);
// `text` with every marker put into words relative to `now`.
QString expand(const QString& text, const QDateTime& now);
QString expand(const QString& text);  // relative to the current time

}  // namespace RelativeDate
