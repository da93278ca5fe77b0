#pragma once

#include "machinery/CancellationToken.h"

#include <QMap>
#include <QString>
#include <QStringList>

#include <chrono>
#include <optional>

// Runs one command-line tool (docker, git, xcrun, osascript, ...) as a child process: no shell,
// a cleaned environment with a fixed PATH, null input, both outputs captured, a time limit, and
// a stop that reaches the tool's own children. Stateless; every call owns its child from launch
// to exit, so any number of runs may be in flight on different threads at once.
namespace ProcessRunner {

// Variable names to values.
using Environment = QMap<QString, QString>;

// What one run of a tool produced.
struct Output {
    // The exit status when the tool exited, or the number of the signal that ended it
    // (15 after a stop it obeyed, 9 after the forced follow-up); -1 if it could not be learned.
    qint32 status = 0;
    QString standardOutput;  // UTF-8 with invalid bytes replaced; at most 64 MiB were kept
    QString standardError;   // the same, capped separately
    bool timedOut = false;   // the time limit ran out and the runner stopped the tool

    // The one-line reason to show when the tool failed: the time-out text, else the trimmed
    // error output (or, if that is blank, the trimmed standard output) cut to 300 characters,
    // else "Exit code N".
    [[nodiscard]] QString errorMessage() const;

    bool operator==(const Output&) const = default;
};

// The outcome of run(): the tool's output, or why the system could not start it. A non-zero
// exit status is a normal output; callers test `status` themselves.
struct Result {
    std::optional<Output> output;  // present when the tool was launched
    QString launchError;           // the system's description (e.g. "No such file or directory")

    [[nodiscard]] bool launched() const { return output.has_value(); }
};

// Runs `executable` (a full path, never looked up in PATH) with `arguments` and blocks the
// calling worker thread until the tool has ended and its output is collected. The environment is
// baseEnvironment() with `extraEnvironment` laid over it. When `timeout` runs out, or
// `cancellation` (may be null) fires, the tool and everything it started are stopped (ToolStop):
// SIGTERM now, SIGKILL 5 s later to what is left, and the call returns once nothing is left. A
// grandchild that keeps an output open holds the call at most about 2 s after the tool itself
// ended; what the tool leaves running is collected when it ends (OrphanReaper), never left a
// zombie. Never call on the GUI thread.
[[nodiscard]] Result run(const QString& executable, const QStringList& arguments,
                         std::chrono::milliseconds timeout, const Environment& extraEnvironment = {},
                         const CancellationToken* cancellation = nullptr);

// The first of `candidates` that is a regular file the person may execute; absent when none is.
[[nodiscard]] std::optional<QString> firstExecutable(const QStringList& candidates);

// The environment every tool starts from, computed once on first use from this process's own
// environment (thread-safe).
[[nodiscard]] const Environment& baseEnvironment();

// `inherited` without variables that would change how tools load (DYLD_*, LD_*), which
// repository git picks (GIT_*) or docker's build plug-in (BUILDX_*), with PATH set to the
// system folders, Homebrew's and `home`/.docker/bin.
[[nodiscard]] Environment cleanedEnvironment(const Environment& inherited, const QString& home);

}  // namespace ProcessRunner
