#include "machinery/FolderListing.h"

#include "machinery/Descriptor.h"
#include "platform/Platform.h"

#include <fcntl.h>
#include <string>

namespace FolderListing {

std::optional<QByteArrayList> names(int folder)
{
    const Descriptor listing(::openat(folder, ".", O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    std::string buffer;
    if (!listing.isValid() || Platform::readFolderNames(listing.get(), buffer) != 0)
        return std::nullopt;
    QByteArrayList found;
    for (size_t start = 0; start < buffer.size();) {
        const size_t end = buffer.find('\0', start);
        found.append(QByteArray(buffer.data() + start, qsizetype(end - start)));
        start = end + 1;
    }
    return found;
}

}  // namespace FolderListing
