// Property lists (XML and binary) as the app, leftover, device and Xcode scanners read them,
// with the lookups those scanners make.
#include "FuzzInput.h"

#include "scan/PropertyList.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    const std::optional<PropertyList> list = PropertyList::parse(fuzzBytes(data, size));
    if (!list)
        return 0;
    (void)list->string(QStringLiteral("CFBundleIdentifier"));
    (void)list->string(QStringList{QStringLiteral("ApplicationProperties"), QStringLiteral("CFBundleIdentifier")});
    (void)list->strings(QStringLiteral("ProgramArguments"));
    (void)list->integer(QStringLiteral("state"));
    (void)list->date(QStringLiteral("Last Backup Date"));
    (void)list->date(QStringLiteral("CreationDate"));
    return 0;
}
