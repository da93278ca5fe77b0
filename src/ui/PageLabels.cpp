#include "ui/PageLabels.h"

#include <QLabel>

namespace PageLabels {

namespace {

QLabel* scaled(const QString& text, QWidget* parent, qreal factor, bool bold)
{
    auto* label = new QLabel(text, parent);
    QFont font = label->font();
    font.setPointSizeF(font.pointSizeF() * factor);
    font.setBold(bold);
    label->setFont(font);
    return label;
}

}  // namespace

QLabel* title(const QString& text, QWidget* parent)
{
    return scaled(text, parent, 1.6, true);
}

QLabel* heading(const QString& text, QWidget* parent)
{
    return scaled(text, parent, 1.1, true);
}

QLabel* body(const QString& text, QWidget* parent)
{
    auto* label = new QLabel(text, parent);
    label->setWordWrap(true);
    return label;
}

QLabel* note(const QString& text, QWidget* parent)
{
    QLabel* label = body(text, parent);
    label->setForegroundRole(QPalette::PlaceholderText);
    return label;
}

QLabel* figure(const QString& text, QWidget* parent)
{
    return scaled(text, parent, 1.5, false);
}

}  // namespace PageLabels
