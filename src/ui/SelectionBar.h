#pragma once

#include <QWidget>

class AppModel;
class QLabel;
class QPushButton;

// The line under a list: what is selected in every category, and the button that opens the
// cleanup of it.
class SelectionBar : public QWidget {
    Q_OBJECT

public:
    explicit SelectionBar(AppModel* model, QWidget* parent = nullptr);

    QPushButton* cleanButton() const { return m_clean; }
    // "1.2 GB in 3 items" for a selection; what the switch question and this bar name.
    static QString describe(qint64 bytes, qsizetype count);

private:
    void refresh();

    AppModel* m_model;
    QLabel* m_summary;
    QPushButton* m_clean;
};
