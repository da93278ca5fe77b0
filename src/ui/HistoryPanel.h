#pragma once

#include <QWidget>

class HistoryChart;
class HistoryRecorder;
class QLabel;

// The Overview's look back: the change since the previous full scan and a chart of the kept
// scans; hidden until there is a scan to show.
class HistoryPanel : public QWidget {
    Q_OBJECT

public:
    HistoryPanel(HistoryRecorder* history, QWidget* parent = nullptr);

    QLabel* change() const { return m_change; }

private:
    void refresh();

    HistoryRecorder* m_history;
    QLabel* m_change;
    QLabel* m_notes;
    HistoryChart* m_chart;
};
