#include "actions/MoverCopyTool.h"

#include "platform/Platform.h"

namespace Mover {

CopyTool CopyTool::standard()
{
    using namespace std::chrono_literals;
    constexpr std::chrono::milliseconds sixHours = 6h;
    if (Platform::desktop() == Platform::Desktop::finder)
        return {QStringLiteral("/usr/bin/ditto"), {}, sixHours};
    // -T: the target is the copy itself, never a folder to copy into.
    return {QStringLiteral("/bin/cp"), {QStringLiteral("-a"), QStringLiteral("-T"), QStringLiteral("--")}, sixHours};
}

QStringList CopyTool::arguments(const QString& source, const QString& target) const
{
    return leadingArguments + QStringList{source, target};
}

}  // namespace Mover
