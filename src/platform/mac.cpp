#include "platform/Platform.h"

namespace Platform {

bool isDataless(const struct stat& info)
{
    return (info.st_flags & SF_DATALESS) != 0;
}

}  // namespace Platform
