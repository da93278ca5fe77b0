#include "scan/FlatpakApps.h"

#include "machinery/FileInfo.h"
#include "platform/Platform.h"
#include "vocabulary/FileStatus.h"

#include <QFile>

namespace {

// The names in a folder; empty when it doesn't exist, absent when it exists but can't be listed.
std::optional<QStringList> namesIn(const QString& folder)
{
    if (!FileStatus::exists(folder))
        return QStringList();
    if (!FileInfo::canList(folder))
        return std::nullopt;
    return FileInfo::children(folder);
}

// The folders that the files of `config` name in their "Path=" lines.
std::optional<QStringList> configuredInstallations(const QString& config)
{
    const std::optional<QStringList> files = namesIn(config);
    if (!files)
        return std::nullopt;
    QStringList paths;
    for (const QString& name : *files) {
        if (!name.endsWith(QLatin1String(".conf")))
            continue;
        QFile file(config + QLatin1Char('/') + name);
        if (!file.open(QIODevice::ReadOnly))
            return std::nullopt;
        for (const QByteArray& line : file.readAll().split('\n')) {
            const QByteArray trimmed = line.trimmed();
            if (trimmed.startsWith("Path="))
                paths.append(QString::fromUtf8(trimmed.mid(5).trimmed()));
        }
    }
    return paths;
}

// Whether any architecture and branch of the app at `app` is deployed.
std::optional<bool> isDeployed(const QString& app)
{
    const std::optional<QStringList> arches = namesIn(app);
    if (!arches)
        return std::nullopt;
    for (const QString& arch : *arches) {
        if (!FileStatus::isFolder(app + QLatin1Char('/') + arch))
            continue;  // "current" is a link to the default architecture and branch
        const std::optional<QStringList> branches = namesIn(app + QLatin1Char('/') + arch);
        if (!branches)
            return std::nullopt;
        for (const QString& branch : *branches) {
            if (FileStatus::exists(app + QLatin1Char('/') + arch + QLatin1Char('/') + branch + QStringLiteral("/active")))
                return true;
        }
    }
    return false;
}

bool addDeployedApps(const QString& installation, QSet<QString>& installed)
{
    const QString apps = installation + QStringLiteral("/app");
    const std::optional<QStringList> ids = namesIn(apps);
    if (!ids)
        return false;
    for (const QString& id : *ids) {
        const std::optional<bool> deployed = isDeployed(apps + QLatin1Char('/') + id);
        if (!deployed)
            return false;
        if (*deployed)
            installed.insert(id);
    }
    return true;
}

}  // namespace

std::optional<FlatpakApps> FlatpakApps::standard()
{
    if (Platform::desktop() != Platform::Desktop::freedesktop || !FileStatus::exists(QStringLiteral("/usr/bin/flatpak")))
        return std::nullopt;  // Flatpak is a Linux packaging
    FlatpakApps apps;
    const QByteArray userDir = qgetenv("FLATPAK_USER_DIR");
    const QByteArray dataHome = qgetenv("XDG_DATA_HOME");
    if (!userDir.isEmpty())
        apps.environmentInstallations.append(QFile::decodeName(userDir));
    else if (!dataHome.isEmpty())
        apps.environmentInstallations.append(QFile::decodeName(dataHome) + QStringLiteral("/flatpak"));
    return apps;
}

QStringList FlatpakApps::installations(const QString& home) const
{
    QStringList all{home + QStringLiteral("/.local/share/flatpak")};
    all += environmentInstallations;
    all += systemInstallations;
    all.removeDuplicates();
    return all;
}

std::optional<QSet<QString>> FlatpakApps::installed(const QString& home) const
{
    const std::optional<QStringList> configured = configuredInstallations(installationsConfig);
    if (!configured)
        return std::nullopt;
    QSet<QString> apps;
    for (const QString& installation : installations(home) + *configured) {
        if (!addDeployedApps(installation, apps))
            return std::nullopt;
    }
    return apps;
}
