#pragma once

#include "vocabulary/CleanupItem.h"

#include <QWidget>

class CleanupSession;
class QLabel;
class QPushButton;
class QVBoxLayout;

// The first face of the cleanup sheet: what the prepared session removes and how, with the
// Risky items named and the permanent removals asked for separately.
class CleanupConfirmation : public QWidget {
    Q_OBJECT

public:
    // `home` decides the items' safety labels.
    CleanupConfirmation(const CleanupSession* session, const QString& home, QWidget* parent = nullptr);

    QLabel* title() const { return m_title; }
    QPushButton* confirmButton() const { return m_confirm; }
    QPushButton* cancelButton() const { return m_cancel; }
    // Every text the sheet states, top to bottom (for tests and accessibility).
    QStringList texts() const;

signals:
    void confirmed();
    void cancelled();

private:
    void addWarning(const QString& text);
    // A part of the sheet: its heading and total, what it means, and its items by category.
    void addPart(const QString& heading, const QList<CleanupItem>& items, const QString& text);
    void addButtons();

    const CleanupSession* m_session;
    QString m_home;
    QVBoxLayout* m_layout;
    QLabel* m_title;
    QPushButton* m_confirm;
    QPushButton* m_cancel;
};
