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
// starts (or stops) an analysis; shown before any analysis, it starts one. Polls the shared progress while an analysis runs;
// the report's age follows the model's clock.
class StorageHeader : public QWidget {
    Q_OBJECT

public:
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
    void showProgress(qint64 entries);

    AppModel* m_model;
    QLabel* m_status;
    // While an analysis runs: entries looked at of those the last report counted, never going
    // back; without such a guess it only moves.
    QProgressBar* m_activity;
    QPushButton* m_button;
    QVBoxLayout* m_notes;
    QTimer m_progressTimer;
};
