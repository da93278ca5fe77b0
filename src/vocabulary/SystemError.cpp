#include "vocabulary/SystemError.h"

#include <system_error>

namespace SystemError {

// The standard library's text rather than strerror(): the same words on every thread, with no
// shared buffer and no dependence on the process's locale.
QString describe(int error)
{
    return QString::fromStdString(std::generic_category().message(error));
}

}  // namespace SystemError
