#pragma once

#include <QString>
#include <QStringList>
#include <QTemporaryDir>

// Real Flatpak installations made by the real flatpak tool: a local repository of tiny apps (no
// runtime; installed without dependencies) that any installation folder can install from.
class FlatpakFixture {
public:
    // Exports one app per identifier into a private repository. `ok()` says whether it worked.
    explicit FlatpakFixture(const QStringList& identifiers);

    bool ok() const { return m_ok; }
    // Installs the app into the installation folder `installation` (made when missing).
    bool install(const QString& installation, const QString& identifier) const;
    bool uninstall(const QString& installation, const QString& identifier) const;
    // What the failing flatpak call said.
    const QString& error() const { return m_error; }

private:
    bool flatpak(const QString& installation, const QStringList& arguments) const;

    QTemporaryDir m_dir;
    bool m_ok = false;
    mutable QString m_error;
};
