#include "actions/MoverCopyTool.h"

#include "platform/Platform.h"

namespace Mover {

namespace {

using namespace std::chrono_literals;
constexpr std::chrono::milliseconds sixHours = 6h;

}  // namespace

CopyTool CopyTool::standard()
{
    if (Platform::desktop() == Platform::Desktop::finder)
        return ditto();
    // -T: the target is the copy itself, never a folder to copy into. cp drops the extended
    // attributes a file system can't hold without failing.
    return {QStringLiteral("/bin/cp"), {QStringLiteral("-a"), QStringLiteral("-T"), QStringLiteral("--")}, sixHours, {}};
}

// Where attributes can't be kept, they are left behind rather than kept as "._" files: a copy
// then has exactly the original's files and passes the check, and Finder tags and download
// origins are lost on such a disk (as they are on any other system that reads it).
CopyTool CopyTool::ditto()
{
    return {QStringLiteral("/usr/bin/ditto"), {}, sixHours, {QStringLiteral("--noextattr"), QStringLiteral("--norsrc")}};
}

QStringList CopyTool::arguments(const QString& source, const QString& target, bool keepsExtendedAttributes) const
{
    const QStringList leading = keepsExtendedAttributes ? leadingArguments : leadingArguments + withoutExtendedAttributes;
    return leading + QStringList{source, target};
}

}  // namespace Mover
