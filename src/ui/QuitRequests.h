#pragma once

#include <QKeySequence>
#include <QObject>

#include <functional>

// Every way a person or the system asks the app to quit, funnelled into one callback: the Quit
// key (Cmd+Q, Ctrl+Q) pressed in any of the app's windows, sheets and questions included, and the
// session manager's request at log-out. Window shortcuts alone miss the key while a sheet has
// focus, which once let a cleanup run on with the request silently dropped. Lives on the GUI
// thread.
class QKeyEvent;

class QuitRequests : public QObject {
    Q_OBJECT

public:
    // `request` decides what to do (quit at once, or ask first). `isBusy` says whether a log-out
    // must be held back so the person can answer.
    QuitRequests(std::function<void()> request, std::function<bool()> isBusy, QObject* parent = nullptr);
    ~QuitRequests() override;

    // The keys that ask to quit on this system.
    static QList<QKeySequence> keys();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    static bool isQuitKey(const QKeyEvent& key);

    std::function<void()> m_request;
    std::function<bool()> m_isBusy;
};
