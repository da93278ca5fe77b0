#pragma once

#include <QLabel>
#include <QTimer>

// A short message at the bottom of the window ("“node_modules” is on the Safe List.") that
// goes away by itself after a few seconds. It never takes focus or blocks a click elsewhere.
class Toast : public QLabel {
    Q_OBJECT

public:
    explicit Toast(QWidget* window);

    void showMessage(const QString& text);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void place();

    QTimer m_hideTimer;
};
