// Display names of Claude Code's session-history folders.
#include "scan/AgentsScanner.h"

#include "machinery/FileInfo.h"
#include "vocabulary/PathRules.h"

#include <QCoreApplication>

namespace {

// How Claude Code names a project's folder: every character but an ASCII letter or digit
// becomes "-" ("/Users/me/my.app" is "-Users-me-my-app").
QString encoded(const QString& name)
{
    QString result = name;
    for (QChar& c : result) {
        const char16_t u = c.unicode();
        const bool kept = (u >= 'a' && u <= 'z') || (u >= 'A' && u <= 'Z') || (u >= '0' && u <= '9');
        if (!kept)
            c = QLatin1Char('-');
    }
    return result;
}

// The longest entry of `folder` whose encoded name is `rest` or a prefix of it ending at a "-".
QString longestMatchingEntry(const QString& folder, const QString& rest)
{
    QString best;
    for (const QString& entry : FileInfo::children(folder)) {
        const QString code = encoded(entry);
        const bool matches = rest == code || (rest.startsWith(code) && rest.at(code.size()) == QLatin1Char('-'));
        if (matches && code.size() > encoded(best).size())
            best = entry;
    }
    return best;
}

// The encoding is lossy ("-" may have been "/", ".", "_", " " or "-"), so the folders that
// still exist decide, level by level, longest name first; below the first level that no
// longer exists every "-" reads as "/".
QString decodedPath(const QString& name)
{
    QString path;
    QString rest = name.mid(1);
    while (!rest.isEmpty()) {
        const QString entry = longestMatchingEntry(path.isEmpty() ? QStringLiteral("/") : path, rest);
        if (entry.isEmpty())
            return path + QLatin1Char('/') + QString(rest).replace(QLatin1Char('-'), QLatin1Char('/'));
        path += QLatin1Char('/') + entry;
        rest = rest.mid(encoded(entry).size() + 1);
    }
    return path;
}

}  // namespace

QString AgentsScanner::projectName(const QString& folder, const QString& home)
{
    const QString name = folder.section(QLatin1Char('/'), -1);
    if (!name.startsWith(QLatin1Char('-')))
        return name;
    const QString path = decodedPath(name);
    const QString probe = path + QLatin1Char('/');
    if (probe.contains(QLatin1String("/Claude/scratch/")))
        //: Name of the project of Claude desktop's scratch sessions, shown in a Claude Code sessions row
        return QCoreApplication::translate("AgentsScanner", "Claude app scratch");
    if (probe.contains(QLatin1String("/claude/sandbox/status")))
        //: Name of the project of Claude's sandbox status sessions, shown in a Claude Code sessions row
        return QCoreApplication::translate("AgentsScanner", "Claude sandbox status");
    return PathRules::withTilde(path, home);
}
