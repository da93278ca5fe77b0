// The Safe List's stored "safeItemInfo" value. Whatever decodes must survive being saved and
// read back unchanged: the app rewrites the store on every change, and an entry lost on the way
// would leave its paths unprotected.
#include "FuzzInput.h"

#include "vocabulary/SafeItemInfo.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    const QMap<QString, SafeItemInfo> infos = SafeItemInfo::decodeAll(fuzzBytes(data, size));
    for (const SafeItemInfo& info : infos) {
        (void)info.categoryID();
        (void)info.protectedPaths();
    }
    fuzzRequire(SafeItemInfo::decodeAll(SafeItemInfo::encodeAll(infos)) == infos, "Safe List info reads back as saved");
    return 0;
}
