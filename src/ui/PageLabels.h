#pragma once

#include <QString>

class QLabel;
class QWidget;

// The few text styles the side screens share, so their titles, section headings and quiet
// notes look alike. Sizes grow from the platform font rather than fixed points, so they stay
// in proportion with the native style.
namespace PageLabels {

QLabel* title(const QString& text, QWidget* parent);    // the screen's name
QLabel* heading(const QString& text, QWidget* parent);  // a section's name
QLabel* body(const QString& text, QWidget* parent);     // wrapping text
QLabel* note(const QString& text, QWidget* parent);     // wrapping, secondary colour
QLabel* figure(const QString& text, QWidget* parent);   // a large number

}  // namespace PageLabels
