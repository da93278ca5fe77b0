#pragma once

#include "platform/Platform.h"
#include "scan/Scanner.h"

#include <QString>

// Fills the installers category: disk images and installer packages (".dmg", ".pkg", ".mpkg",
// ".xip"; on Linux also ".deb", ".rpm", ".AppImage", ".flatpakref"; in any case) in "~/Downloads" and "~/Desktop" and their subfolders, down to three
// levels. Application bundles are not entered. A value type; scan() holds no state.
class InstallersScanner : public Scanner {
public:
    // Entries directly in Downloads are at level 1; installers are looked for down to this level.
    static constexpr int deepestLevel = 3;

    QList<CategoryID> categories() const override { return {CategoryID::installers}; }
    ScanOutputs scan(const ScanContext& context) const override;

    // Whether a name has one of the installer extensions (compared in lower case).
    [[nodiscard]] static bool isInstaller(const QString& name);

    [[nodiscard]] static QString unreadableNote(Platform::Desktop desktop = Platform::desktop());
};
