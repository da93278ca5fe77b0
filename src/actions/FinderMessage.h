#pragma once

#include <QString>

#include <optional>

// Reads the error text osascript prints when Finder refused, e.g.
// "12:80: execution error: Finder got an error: The item is in use. (-5000)".
namespace FinderMessage {

// The error number in parentheses at the end, if there is one.
[[nodiscard]] std::optional<int> errorNumber(const QString& message);

// Finder's own sentence: the text after the last "error: ", without the trailing number in
// parentheses, trimmed. Empty when nothing is left.
[[nodiscard]] QString sentence(const QString& message);

}  // namespace FinderMessage
