#pragma once

#include "actions/Notice.h"

#include <QDate>
#include <QString>

// The day each condition was last told, kept in a small JSON file in the app's data folder, so
// the app and the background scan together tell one condition at most once a day. A file that
// can't be read counts as empty: a lost log costs one notification too many, never one too few
// a day later.
class NoticeLog {
public:
    // `folder` is the app's data folder (SystemPlaces::appDataFolder).
    explicit NoticeLog(QString folder) : m_folder(std::move(folder)) {}

    // True unless the condition was told on `today` already.
    [[nodiscard]] bool isDue(Notice::Condition condition, const QDate& today) const;
    // Notes the condition as told on `today`; false when the file could not be written.
    bool record(Notice::Condition condition, const QDate& today) const;

    QString path() const;

private:
    QString m_folder;
};
