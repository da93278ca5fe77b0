#include "platform/Platform.h"

namespace Platform {

bool isDataless(const struct stat&)
{
    return false;  // Linux file systems have no evicted-to-the-cloud flag
}

}  // namespace Platform
