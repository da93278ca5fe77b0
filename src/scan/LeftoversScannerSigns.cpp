#include "scan/LeftoversScanner.h"

#include "machinery/FileInfo.h"
#include "machinery/TreeWalker.h"

#include <QCoreApplication>
#include <QFile>

#include <array>

namespace {

enum Kind { savedPasswords, bookmarks, browsingHistory, documents, databases, kindCount };

QString kindText(Kind kind)
{
    switch (kind) {
    //: Kind of personal data found in a leftover, in a list
    case savedPasswords: return QCoreApplication::translate("LeftoversScanner", "saved passwords");
    //: Kind of personal data found in a leftover, in a list
    case bookmarks: return QCoreApplication::translate("LeftoversScanner", "bookmarks");
    //: Kind of personal data found in a leftover, in a list
    case browsingHistory: return QCoreApplication::translate("LeftoversScanner", "browsing history");
    //: Kind of personal data found in a leftover, in a list
    case documents: return QCoreApplication::translate("LeftoversScanner", "documents");
    //: Kind of personal data found in a leftover, in a list
    case databases: return QCoreApplication::translate("LeftoversScanner", "databases");
    case kindCount: break;
    }
    return {};
}

const QStringList databaseExtensions = {QStringLiteral("sqlite"), QStringLiteral("sqlite3"), QStringLiteral("db"),
                                        QStringLiteral("realm"), QStringLiteral("storedata"), QStringLiteral("kdbx"),
                                        QStringLiteral("wallet")};

// Files people write themselves; plain text is left out because caches and logs are full of it.
const QStringList documentExtensions = {
    QStringLiteral("pdf"), QStringLiteral("doc"), QStringLiteral("docx"), QStringLiteral("pages"),
    QStringLiteral("numbers"), QStringLiteral("key"), QStringLiteral("xls"), QStringLiteral("xlsx"),
    QStringLiteral("ppt"), QStringLiteral("pptx"), QStringLiteral("odt"), QStringLiteral("ods"),
    QStringLiteral("odp"), QStringLiteral("rtf"),
};

// Only the places where apps keep what the person made; caches and settings are not looked into.
bool holdsOwnData(const QString& path)
{
    return path.contains(QLatin1String("/Library/Application Support/")) || path.contains(QLatin1String("/Library/Containers/"))
        || path.contains(QLatin1String("/.var/app/"));
}

std::optional<Kind> kindOf(const QString& name)
{
    if (name == QLatin1String("Login Data"))
        return savedPasswords;
    if (name == QLatin1String("Bookmarks"))
        return bookmarks;
    if (name == QLatin1String("History"))
        return browsingHistory;
    const QString extension = name.section(QLatin1Char('.'), -1).toLower();
    if (!name.contains(QLatin1Char('.')))
        return std::nullopt;
    if (databaseExtensions.contains(extension))
        return databases;
    if (documentExtensions.contains(extension))
        return documents;
    return std::nullopt;
}

using Found = std::array<bool, kindCount>;

bool allFound(const Found& found)
{
    return std::all_of(found.begin(), found.end(), [](bool one) { return one; });
}

// Looks at the names of the regular files below a leftover (and at the leftover's own name)
// until every kind has been seen.
class SignSearch : public TreeVisitor {
public:
    explicit SignSearch(Found& found) : m_found(found) {}

    Verdict enterFolder(const TreeEntry& entry) override
    {
        if (entry.depth() == 0)
            note(entry);
        return allFound(m_found) ? Verdict::Stop : Verdict::Enter;
    }

    Verdict visitItem(const TreeEntry& entry) override
    {
        if (entry.depth() == 0 || S_ISREG(entry.status().st_mode))
            note(entry);
        return allFound(m_found) ? Verdict::Stop : Verdict::Enter;
    }

private:
    void note(const TreeEntry& entry)
    {
        const std::string_view name = entry.name();
        if (auto kind = kindOf(QFile::decodeName(QByteArray(name.data(), qsizetype(name.size())))))
            m_found[*kind] = true;
    }

    Found& m_found;
};

void lookInto(const QString& path, Found& found, const CancellationToken* cancellation)
{
    TreeWalker::Options options;
    options.cancellation = cancellation;
    SignSearch search(found);
    TreeWalker(options).walk(QFile::encodeName(path), search);
}

}  // namespace

QStringList LeftoversScanner::userDataSigns(const QStringList& paths, const CancellationToken* cancellation)
{
    Found found{};
    for (const QString& path : paths) {
        if (holdsOwnData(path) && !allFound(found))
            lookInto(path, found, cancellation);
    }
    QStringList kinds;
    for (int kind = 0; kind < kindCount; ++kind) {
        if (found[kind])
            kinds.append(kindText(static_cast<Kind>(kind)));
    }
    return kinds;
}

LeftoversScanner::Groups LeftoversScanner::flatpakLeftovers(const QString& home, const std::optional<FlatpakApps>& flatpak)
{
    if (!flatpak)
        return {};
    const std::optional<QSet<QString>> installed = flatpak->installed(home);
    if (!installed)
        return {};  // without the installed list, every data folder would look abandoned
    const QString data = home + QStringLiteral("/.var/app");
    Groups groups;
    for (const QString& id : FileInfo::children(data)) {
        if (!id.startsWith(QLatin1Char('.')) && !installed->contains(id))
            groups[id].append(data + QLatin1Char('/') + id);
    }
    return groups;
}
