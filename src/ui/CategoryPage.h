#pragma once

#include "model/CategoryID.h"

#include <QWidget>

class QLabel;

// The detail area of one category: its title, explanation and, until it has been scanned,
// the empty state.
class CategoryPage : public QWidget {
    Q_OBJECT

public:
    explicit CategoryPage(QWidget* parent = nullptr);

    void showCategory(CategoryID category);
    CategoryID category() const { return m_category; }

private:
    CategoryID m_category = CategoryID::projects;
    QLabel* m_title;
    QLabel* m_explanation;
    QLabel* m_emptyState;
};
