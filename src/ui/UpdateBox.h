#pragma once

#include <QWidget>

#include <functional>

class AppModel;
class QLabel;
class QPushButton;
class QUrl;

// "Check for Updates" with the answer beneath it, shared by the settings and the About screen.
// An available release shows its version, "Install and Relaunch" where this copy may replace
// itself, and a button to its release page. GUI thread only.
class UpdateBox : public QWidget {
    Q_OBJECT

public:
    explicit UpdateBox(AppModel* model, QWidget* parent = nullptr);

    // What opening the release page runs (the desktop's browser by default).
    void setOpenURL(std::function<void(const QUrl&)> open) { m_open = std::move(open); }

    QPushButton* checkButton() const { return m_check; }
    QPushButton* releasePageButton() const { return m_releasePage; }
    QPushButton* installButton() const { return m_install; }
    QLabel* status() const { return m_status; }

private:
    void refresh();
    void openReleasePage();

    AppModel* m_model;
    QPushButton* m_check;
    QLabel* m_status;
    QPushButton* m_releasePage;
    QPushButton* m_install;
    std::function<void(const QUrl&)> m_open;
};
