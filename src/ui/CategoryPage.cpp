#include "ui/CategoryPage.h"

#include <QLabel>
#include <QVBoxLayout>

CategoryPage::CategoryPage(QWidget* parent)
    : QWidget(parent), m_title(new QLabel(this)), m_explanation(new QLabel(this)), m_emptyState(new QLabel(this))
{
    QFont titleFont = m_title->font();
    titleFont.setPointSizeF(titleFont.pointSizeF() * 1.6);
    titleFont.setBold(true);
    m_title->setFont(titleFont);
    m_explanation->setWordWrap(true);
    m_explanation->setForegroundRole(QPalette::PlaceholderText);
    m_emptyState->setAlignment(Qt::AlignCenter);
    m_emptyState->setForegroundRole(QPalette::PlaceholderText);
    //: Empty state of a category that was never scanned
    m_emptyState->setText(tr("Scan to see what's here."));

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(24, 20, 24, 20);
    layout->setSpacing(10);
    layout->addWidget(m_title);
    layout->addWidget(m_explanation);
    layout->addWidget(m_emptyState, 1);
    showCategory(m_category);
}

void CategoryPage::showCategory(CategoryID category)
{
    m_category = category;
    m_title->setText(Categories::title(category));
    m_explanation->setText(Categories::explanation(category));
}
