#pragma once

#include <QString>
#include <QStringList>

#include <chrono>

namespace Mover {

// The command that copies one file or folder to a path that does not exist yet, keeping modes,
// times, links and extended attributes: data that differs by system. Replaceable so tests can
// let a failing or hanging stand-in play the tool. Plain value.
struct CopyTool {
    QString executable;
    QStringList leadingArguments;  // put before the source and the target
    std::chrono::milliseconds timeLimit{0};

    // macOS: "/usr/bin/ditto SRC DST"; Linux: coreutils "cp -a" (never into an existing folder).
    // Both get six hours.
    [[nodiscard]] static CopyTool standard();

    [[nodiscard]] QStringList arguments(const QString& source, const QString& target) const;
};

}  // namespace Mover
