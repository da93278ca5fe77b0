#pragma once

#include <QLocalServer>
#include <QLockFile>
#include <QObject>
#include <QString>

#include <chrono>

// One running copy per user. The first launch holds a lock file and listens on a local socket
// beside it, in the user's own runtime folder; a later launch finds the lock taken, asks the
// running copy to come to the front and ends, so two windows never clean at the same time. The
// lock decides rather than the socket alone: two launches at the same moment can't both listen.
class SingleInstance : public QObject {
    Q_OBJECT

public:
    // `folder` holds the lock and the socket; the user's runtime folder unless a test says otherwise.
    explicit SingleInstance(const QString& folder = defaultFolder(), QObject* parent = nullptr);

    // What a later launch asks of the copy that runs.
    enum class Request { raise, showOverview };

    // True when this process is the one that runs (and now listens); false when another copy
    // was asked to come to the front (on the Overview, with `showOverview`), or held the lock
    // without ever answering within `patience`.
    bool claim(std::chrono::milliseconds patience = std::chrono::seconds(5), Request request = Request::raise);

    static QString defaultFolder();

signals:
    // Another launch asked this copy to show itself.
    void activationRequested();
    // Another launch asked this copy to show itself on the Overview (a click on a notification).
    void overviewRequested();

private:
    bool askRunningCopy(std::chrono::milliseconds patience, Request request) const;
    void answer();

    QString m_socket;
    QLockFile m_lock;
    QLocalServer m_server;
};
