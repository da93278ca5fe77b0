#pragma once

#include "scan/AgentsScanner.h"
#include "support/TempTree.h"

#include <QSet>

// A fixture home for the agent and cache scanners: nothing outside the home counts as
// installed or running unless a test says so.
class AgentsFixture {
public:
    AgentsFixture() { context.home = tree.dir(QStringLiteral("home")); }

    QString home(const QString& relative) const { return context.home + QLatin1Char('/') + relative; }
    // A file big enough for a row of its own.
    QString big(const QString& relative) const { return tree.file(QStringLiteral("home/") + relative, 1'200'000); }
    QString dir(const QString& relative) const { return tree.dir(QStringLiteral("home/") + relative); }

    // An application bundle outside the home with this identifier; returns its executable.
    QString bundle(const QString& name, const QString& identifier) const
    {
        const QString app = QStringLiteral("Applications/") + name + QStringLiteral(".app");
        tree.file(app + QStringLiteral("/Contents/Info.plist"),
                  "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<plist version=\"1.0\"><dict>"
                  "<key>CFBundleIdentifier</key><string>" + identifier.toUtf8() + "</string></dict></plist>\n");
        return tree.file(app + QStringLiteral("/Contents/MacOS/") + name, 10);
    }

    // The context with `running` as the scan's running programs.
    ScanContext scanContext() const
    {
        ScanContext copy = context;
        copy.runningPrograms = std::make_shared<RunningPrograms>([programs = running] { return programs; });
        return copy;
    }

    AgentsScanner::Environment environment() const
    {
        AgentsScanner::Environment environment;
        environment.hasApplication = [apps = applications](const QString& id) { return apps.contains(id); };
        environment.commandFolders = {QStringLiteral("~/.local/bin")};
        return environment;
    }

    TempTree tree;
    ScanContext context;
    QSet<QString> applications;  // bundle identifiers the system "finds"
    QStringList running;         // executable paths of running programs
};
