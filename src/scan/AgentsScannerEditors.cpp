// Saved editor state: workspaces of deleted projects and superseded extension versions.
#include "scan/AgentsScanner.h"

#include "machinery/FileInfo.h"
#include "vocabulary/FileStatus.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>
#include <QUrl>

#include <algorithm>
#include <optional>

namespace {

// Workspace and extension lists are small; anything larger is not one.
constexpr qint64 largestList = 64 * 1024 * 1024;

std::optional<QJsonDocument> readJson(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly) || file.size() > largestList)
        return std::nullopt;
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(file.readAll(), &error);
    if (error.error != QJsonParseError::NoError)
        return std::nullopt;
    return document;
}

// The project folder a workspace.json points at, when it is a local file URL.
std::optional<QString> workspaceProject(const QString& workspaceFolder)
{
    const auto document = readJson(workspaceFolder + QStringLiteral("/workspace.json"));
    if (!document || !document->isObject())
        return std::nullopt;
    const QJsonObject object = document->object();
    QString target = object.value(QStringLiteral("folder")).toString();
    if (target.isEmpty())
        target = object.value(QStringLiteral("workspace")).toString();
    const QUrl url(target, QUrl::StrictMode);
    if (!url.isValid() || !url.isLocalFile())
        return std::nullopt;
    return url.toLocalFile();
}

QString lastComponent(QString path)
{
    while (path.endsWith(QLatin1Char('/')))
        path.chop(1);
    return path.section(QLatin1Char('/'), -1);
}

// The extension folder one entry of extensions.json names.
QString entryFolder(const QJsonObject& entry)
{
    const QString relative = entry.value(QStringLiteral("relativeLocation")).toString();
    if (!relative.isEmpty())
        return lastComponent(relative);
    const QJsonObject location = entry.value(QStringLiteral("location")).toObject();
    QString path = location.value(QStringLiteral("fsPath")).toString();
    if (path.isEmpty())
        path = location.value(QStringLiteral("path")).toString();
    return lastComponent(path);
}

// Adds the folders one list mentions; false when the list exists but cannot be read, so that
// nothing is called unused on the strength of a half-written list.
bool addMentioned(const QString& listPath, bool required, QSet<QString>& mentioned)
{
    if (!required && !FileStatus::exists(listPath))
        return true;
    const auto document = readJson(listPath);
    if (!document || !document->isArray())
        return false;
    for (const QJsonValue& entry : document->array())
        mentioned.insert(entryFolder(entry.toObject()));
    return true;
}

struct ExtensionFolder {
    QString name;
    QString identifier;      // "publisher.name"
    QList<int> version;      // its numbers, most significant first
};

ExtensionFolder parsed(const QString& name)
{
    static const QRegularExpression versioned(QStringLiteral("^(.*?)-(\\d+(?:\\.\\d+)*)(?:-.*)?$"));
    const QRegularExpressionMatch match = versioned.match(name);
    if (!match.hasMatch())
        return {name, name, {}};
    QList<int> numbers;
    for (const QString& part : match.captured(2).split(QLatin1Char('.')))
        numbers.append(part.toInt());
    return {name, match.captured(1), numbers};
}

bool comesBefore(const ExtensionFolder& a, const ExtensionFolder& b)
{
    if (a.identifier != b.identifier)
        return a.identifier < b.identifier;
    return std::lexicographical_compare(a.version.begin(), a.version.end(), b.version.begin(), b.version.end());
}

}  // namespace

QStringList AgentsScanner::orphanWorkspaces(const QString& workspaceStorage)
{
    QStringList names = FileInfo::children(workspaceStorage);
    std::sort(names.begin(), names.end());
    QStringList orphans;
    for (const QString& name : names) {
        const QString folder = workspaceStorage + QLatin1Char('/') + name;
        const auto project = workspaceProject(folder);
        // An external disk may only be unplugged: its projects are not gone.
        if (!project || project->startsWith(QLatin1String("/Volumes/")))
            continue;
        if (!FileStatus::exists(*project))
            orphans.append(folder);
    }
    return orphans;
}

QStringList AgentsScanner::oldExtensionVersions(const QString& extensionsFolder, const QStringList& profiles)
{
    QSet<QString> mentioned;
    if (!addMentioned(extensionsFolder + QStringLiteral("/extensions.json"), true, mentioned))
        return {};
    for (const QString& profile : profiles) {
        if (!addMentioned(profile + QStringLiteral("/extensions.json"), false, mentioned))
            return {};
    }
    QList<ExtensionFolder> candidates;
    for (const QString& name : FileInfo::children(extensionsFolder)) {
        if (!name.startsWith(QLatin1Char('.')) && !mentioned.contains(name)
            && FileStatus::isFolder(extensionsFolder + QLatin1Char('/') + name))
            candidates.append(parsed(name));
    }
    std::sort(candidates.begin(), candidates.end(), [](const auto& a, const auto& b) { return a.name < b.name; });
    std::stable_sort(candidates.begin(), candidates.end(), comesBefore);
    QStringList folders;
    for (const ExtensionFolder& candidate : candidates)
        folders.append(extensionsFolder + QLatin1Char('/') + candidate.name);
    return folders;
}
