#pragma once

class QLabel;

// The few text styles the sheets share, so every sheet reads the same.
namespace SheetText {

void makeHeading(QLabel* label);     // the sheet's title
void makeSubheading(QLabel* label);  // a part's heading
void makeBody(QLabel* label);        // wrapped plain text
void makeSecondary(QLabel* label);   // wrapped plain text in the quieter colour

}  // namespace SheetText
