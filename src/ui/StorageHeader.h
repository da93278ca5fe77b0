#pragma once

#include <QTimer>
#include <QWidget>

class AppModel;
class QLabel;
class QProgressBar;
class QPushButton;
class QVBoxLayout;

// The top of the Storage and Large Folders screens: the title, when the disk was last measured
// or how far the running analysis has come, the notes of the report, and the button that
// starts (or stops) an analysis; shown before any analysis, it starts one. Polls the shared progress while an analysis runs.
class StorageHeader : public QWidget {
    Q_OBJECT

public:
    static constexpr int ageRefresh = 30'000;  // milliseconds between redraws of the report's age

    StorageHeader(AppModel* model, const QString& title, const QString& explanation, QWidget* parent = nullptr);

    QPushButton* button() const { return m_button; }
    QLabel* status() const { return m_status; }
    QProgressBar* activity() const { return m_activity; }

protected:
    // The first time a storage screen is shown without a report, it measures at once.
    void showEvent(QShowEvent* event) override;

private:
    void refresh();
    void refreshNotes();
    // The line under the explanation once no analysis runs: the report's age, or that there is none.
    void refreshStatus();
    void pollProgress();

    AppModel* m_model;
    QLabel* m_status;
    QProgressBar* m_activity;  // moves while an analysis runs; the walk can't know its end in advance
    QPushButton* m_button;
    QVBoxLayout* m_notes;
    QTimer m_progressTimer;
    QTimer m_ageTimer;
};
