#include "ui/SheetText.h"

#include <QLabel>

namespace SheetText {

void makeHeading(QLabel* label)
{
    QFont font = label->font();
    font.setPointSizeF(font.pointSizeF() * 1.3);
    font.setBold(true);
    label->setFont(font);
    makeBody(label);
}

void makeSubheading(QLabel* label)
{
    QFont font = label->font();
    font.setBold(true);
    label->setFont(font);
    label->setTextFormat(Qt::PlainText);
}

void makeBody(QLabel* label)
{
    label->setWordWrap(true);
    label->setTextFormat(Qt::PlainText);
}

void makeSecondary(QLabel* label)
{
    makeBody(label);
    label->setForegroundRole(QPalette::PlaceholderText);
}

}  // namespace SheetText
