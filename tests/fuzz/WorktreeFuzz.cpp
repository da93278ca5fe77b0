// git's worktree metadata as the worktree finder reads it from disk. The input is up to four
// parts split by NUL bytes: the metadata's "gitdir" file, its "HEAD" file, the worktree's ".git"
// file, and (when present) a "locked" file. They are written into a throw-away repository
// "repo" with one worktree "wt" beside it, so relative paths such as "../../../../wt/.git"
// reach real folders.
#include "FuzzInput.h"

#include "scan/WorktreeFinder.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

namespace {

void write(const QString& path, const QByteArray& bytes)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate) || file.write(bytes) != bytes.size())
        std::abort();  // the harness's own folder is broken, not the parser
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    static const QTemporaryDir top;
    const QString repository = top.path() + QStringLiteral("/repo");
    const QString metadata = repository + QStringLiteral("/.git/worktrees/w");
    const QString worktree = top.path() + QStringLiteral("/wt");
    if (!QDir().mkpath(metadata) || !QDir().mkpath(worktree))
        std::abort();

    const QList<QByteArray> parts = fuzzBytes(data, size).split('\0');
    write(metadata + QStringLiteral("/gitdir"), parts.value(0));
    write(metadata + QStringLiteral("/HEAD"), parts.value(1));
    write(worktree + QStringLiteral("/.git"), parts.value(2));
    if (parts.size() > 3)
        write(metadata + QStringLiteral("/locked"), parts.value(3));
    else
        QFile::remove(metadata + QStringLiteral("/locked"));

    (void)WorktreeFinder::worktrees(repository);
    return 0;
}
