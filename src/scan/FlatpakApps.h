#pragma once

#include <QSet>
#include <QString>
#include <QStringList>

#include <optional>

// The Flatpak apps installed for the person and the system, read from the folders Flatpak keeps
// its installations in. Running `flatpak list` would make Flatpak's own folders in a home that
// lacks them, and a scan only reads. A plain value; reading is thread-safe.
struct FlatpakApps {
    // Installations outside the home: the system's, and the folder of files that name more
    // ("Path=" lines), as Flatpak itself reads them.
    QStringList systemInstallations{QStringLiteral("/var/lib/flatpak")};
    QString installationsConfig = QStringLiteral("/etc/flatpak/installations.d");
    // The person's installation as the environment names it (FLATPAK_USER_DIR, else
    // XDG_DATA_HOME/flatpak); the one under the scanned home is always read too.
    QStringList environmentInstallations;

    // Flatpak's places on this system; absent off Linux and where flatpak is not installed.
    [[nodiscard]] static std::optional<FlatpakApps> standard();

    // The installation folders read for `home`, the user's own first.
    [[nodiscard]] QStringList installations(const QString& home) const;

    // The identifiers of the apps deployed in any installation (an "active" entry under
    // app/ID/ARCH/BRANCH, which Flatpak removes when it uninstalls); absent when an installation,
    // or the folder naming more of them, exists but can't be read.
    [[nodiscard]] std::optional<QSet<QString>> installed(const QString& home) const;
};
