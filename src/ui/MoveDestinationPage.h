#pragma once

#include "vocabulary/CleanupItem.h"

#include <QPointer>
#include <QWidget>

class AppModel;
class QDialogButtonBox;
class QFileDialog;
class QHBoxLayout;
class QLabel;
class QPushButton;
class QVBoxLayout;

// The first step of a move: which item, the folder chooser for the destination, and the checks'
// sentence about the chosen folder before anything starts. The checks read the disk on a worker
// thread; Move is enabled only once they passed for the folder shown.
class MoveDestinationPage : public QWidget {
    Q_OBJECT

public:
    MoveDestinationPage(AppModel* model, CleanupItem item, QWidget* parent = nullptr);

    // Shows `folder` as the destination and checks it (what the chooser does when one is picked).
    void choose(const QString& folder);
    const QString& destination() const { return m_destination; }
    // Replaces the checks' line, e.g. with why the move could not start.
    void showProblem(const QString& sentence);

    QLabel* problem() const { return m_problem; }
    QPushButton* moveButton() const { return m_move; }

signals:
    void moveConfirmed(const QString& destination);
    void cancelled();

private:
    void addIntroduction(QVBoxLayout* layout);
    QHBoxLayout* makeDestinationRow();
    QDialogButtonBox* makeButtons();
    void openChooser();
    void checked(const QString& folder, const std::optional<QString>& problem);

    AppModel* m_model;
    CleanupItem m_item;
    QString m_destination;
    QLabel* m_destinationLabel;
    QLabel* m_problem;
    QPushButton* m_choose;
    QPushButton* m_move;
    QPointer<QFileDialog> m_chooser;
};
