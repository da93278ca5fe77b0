#pragma once

#include "scan/AppFolders.h"
#include "support/TempTree.h"

#include <QString>
#include <QStringList>

// A temporary home with its own "system" app folders, for building real ".app" bundles with
// Info.plist files and Library data around them.
class AppFixture {
public:
    AppFixture();

    // Writes BUNDLE/Contents/Info.plist (XML) with the identifier, unless it is empty, and the
    // display name, unless it is empty; plus a main program of `programBytes` bytes. `bundle`
    // is relative to the tree's root. Returns the bundle's absolute path.
    QString app(const QString& bundle, const QString& identifier, const QString& displayName = {},
                qint64 programBytes = 4096) const;
    // A file or folder of `bytes` below home's Library; returns its absolute path.
    QString libraryFile(const QString& relative, qint64 bytes = 1000) const;
    QString libraryFolder(const QString& relative, qint64 bytes = 1000) const;

    QString home() const { return tree.path(QStringLiteral("home")); }
    QString systemApps() const { return tree.path(QStringLiteral("Applications")); }
    QString userApps() const { return tree.path(QStringLiteral("home/Applications")); }

    TempTree tree;
    AppFolders folders;
};

// The XML property list of an Info.plist or an entitlements file.
QByteArray plistXml(const QStringList& keysAndValues);
