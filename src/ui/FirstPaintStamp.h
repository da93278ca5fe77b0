#pragma once

#include <QObject>
#include <QString>

#include <functional>

class QWidget;

// Tells once, at the first paint of a window, how long after the given launch moment it came:
// the time a person waits for the window. For measuring by hand (bench/); the app makes one
// only when the launching script hands it the moment it started the program.
class FirstPaintStamp : public QObject {
    Q_OBJECT

public:
    // `launchedAtMs`: milliseconds since the epoch when the program was started. `tell` gets
    // the elapsed milliseconds once.
    FirstPaintStamp(QWidget* window, qint64 launchedAtMs, std::function<void(qint64)> tell);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    qint64 m_launchedAtMs;
    std::function<void(qint64)> m_tell;
};
