#include "scan/GitCommand.h"
#include "scan/WorktreeFinder.h"

#include <QRegularExpression>

#include <chrono>

// The three git queries about one worktree. Each answers nothing when git fails, times out
// or prints something unusable, so the row says its changes were not checked.
namespace WorktreeFinder {

namespace {

using namespace std::chrono_literals;

constexpr auto configTimeLimit = 20s;
constexpr auto statusTimeLimit = 60s;
constexpr auto revListTimeLimit = 60s;

// "filter.<driver>.<kind>" as `git config --name-only` prints it; the driver may hold dots.
const QRegularExpression& filterKey()
{
    static const QRegularExpression pattern(QStringLiteral("^filter\\.(.+)\\.(clean|smudge|process|required)$"));
    return pattern;
}

// An empty command is no filter at all for git; a filter no longer required may be skipped.
std::optional<QString> switchedOff(const QString& key)
{
    const QRegularExpressionMatch match = filterKey().match(key);
    if (!match.hasMatch() || key.contains(QLatin1Char('=')))
        return std::nullopt;  // "-c" would read such a name wrongly: don't guess
    const bool required = match.captured(2) == QLatin1String("required");
    return key + (required ? QStringLiteral("=false") : QStringLiteral("="));
}

std::optional<int> count(const QString& text)
{
    bool ok = false;
    const int value = text.trimmed().toInt(&ok);
    return ok && value >= 0 ? std::optional(value) : std::nullopt;
}

}  // namespace

std::optional<QStringList> filtersOff(const QString& worktree, const QString& git, const CancellationToken* cancellation)
{
    const auto output = GitCommand::run(
        git, worktree,
        {QStringLiteral("config"), QStringLiteral("--name-only"), QStringLiteral("--get-regexp"),
         QStringLiteral("^filter\\..+\\.(clean|smudge|process|required)$")},
        configTimeLimit, cancellation);
    // `git config --get-regexp` exits 1 when nothing matches: no filter to switch off.
    if (output && !output->timedOut && output->status == 1 && output->standardOutput.trimmed().isEmpty())
        return QStringList();
    const std::optional<QString> keys = GitCommand::succeeded(output);
    if (!keys)
        return std::nullopt;
    QStringList settings;
    for (const QString& key : keys->split(QLatin1Char('\n'), Qt::SkipEmptyParts)) {
        const std::optional<QString> setting = switchedOff(key.trimmed());
        if (!setting)
            return std::nullopt;
        settings << QStringLiteral("-c") << *setting;
    }
    return settings;
}

std::optional<int> uncommittedChanges(const QString& worktree, const QString& git, const QStringList& filterSettings,
                                      const CancellationToken* cancellation)
{
    const std::optional<QString> status = GitCommand::succeeded(GitCommand::run(
        git, worktree,
        {QStringLiteral("status"), QStringLiteral("--porcelain"), QStringLiteral("--untracked-files=normal"),
         QStringLiteral("--ignore-submodules=all")},
        statusTimeLimit, cancellation, filterSettings));
    if (!status)
        return std::nullopt;
    return int(status->split(QLatin1Char('\n'), Qt::SkipEmptyParts).size());
}

std::optional<int> commitsOnNoBranch(const QString& worktree, const QString& git, const CancellationToken* cancellation)
{
    const std::optional<QString> printed = GitCommand::succeeded(GitCommand::run(
        git, worktree,
        {QStringLiteral("rev-list"), QStringLiteral("--count"), QStringLiteral("HEAD"), QStringLiteral("--not"),
         QStringLiteral("--branches"), QStringLiteral("--tags"), QStringLiteral("--remotes")},
        revListTimeLimit, cancellation));
    return printed ? count(*printed) : std::nullopt;
}

}  // namespace WorktreeFinder
