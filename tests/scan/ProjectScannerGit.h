#pragma once

#include <QProcess>
#include <QProcessEnvironment>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>

#include <gtest/gtest.h>

// The tests' own git: a private HOME and no system configuration, a fixed author and committer
// and fixed commit dates, so repositories come out the same on every machine.
namespace ProjectScannerGit {

inline QProcessEnvironment environment()
{
    static const QTemporaryDir home;
    QProcessEnvironment variables;
    const QProcessEnvironment inherited = QProcessEnvironment::systemEnvironment();
    for (const QString& name : inherited.keys()) {
        if (!name.startsWith(QLatin1String("GIT_")))
            variables.insert(name, inherited.value(name));
    }
    variables.insert(QStringLiteral("HOME"), home.path());
    variables.insert(QStringLiteral("GIT_CONFIG_NOSYSTEM"), QStringLiteral("1"));
    for (const char* role : {"AUTHOR", "COMMITTER"}) {
        variables.insert(QStringLiteral("GIT_%1_NAME").arg(QLatin1String(role)), QStringLiteral("Test"));
        variables.insert(QStringLiteral("GIT_%1_EMAIL").arg(QLatin1String(role)), QStringLiteral("test@example.com"));
        variables.insert(QStringLiteral("GIT_%1_DATE").arg(QLatin1String(role)), QStringLiteral("2023-01-02T03:04:05Z"));
    }
    return variables;
}

// Runs git in `folder` and returns what it printed; a failing git fails the test.
inline QString run(const QString& folder, const QStringList& arguments)
{
    QProcess git;
    git.setProcessEnvironment(environment());
    git.setWorkingDirectory(folder);
    git.start(QStringLiteral("git"), QStringList{QStringLiteral("-c"), QStringLiteral("init.defaultBranch=main")} + arguments);
    if (!git.waitForFinished(30'000) || git.exitStatus() != QProcess::NormalExit || git.exitCode() != 0) {
        ADD_FAILURE() << "git " << qPrintable(arguments.join(' ')) << " in " << qPrintable(folder) << ": "
                      << git.readAllStandardError().constData();
        return {};
    }
    return QString::fromUtf8(git.readAllStandardOutput());
}

// A new repository in `folder` with everything in it committed.
inline void commitAll(const QString& folder, const QString& message = QStringLiteral("work"))
{
    run(folder, {QStringLiteral("add"), QStringLiteral("-A")});
    run(folder, {QStringLiteral("commit"), QStringLiteral("-q"), QStringLiteral("--allow-empty"), QStringLiteral("-m"), message});
}

inline void initRepository(const QString& folder)
{
    run(folder, {QStringLiteral("init"), QStringLiteral("-q")});
    commitAll(folder, QStringLiteral("first"));
}

}  // namespace ProjectScannerGit
