#pragma once

#include <QString>

// The one place where an errno value becomes text a person reads. Thread-safe.
namespace SystemError {

// The system's own description of `error` (an errno value), such as "No space left on device":
// a phrase without a final full stop, for a sentence to embed.
[[nodiscard]] QString describe(int error);

}  // namespace SystemError
