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
    // Added to the leading ones where the target's file system keeps no extended attributes of
    // its own (exFAT, FAT): macOS would store them as "._name" files there, and the copy would
    // no longer match the original.
    QStringList withoutExtendedAttributes;

    // macOS: `ditto()`; Linux: coreutils "cp -a" (never into an existing folder). Six hours.
    [[nodiscard]] static CopyTool standard();
    // "/usr/bin/ditto SRC DST", with "--noextattr --norsrc" where attributes can't be kept.
    [[nodiscard]] static CopyTool ditto();

    [[nodiscard]] QStringList arguments(const QString& source, const QString& target, bool keepsExtendedAttributes = true) const;
};

}  // namespace Mover
