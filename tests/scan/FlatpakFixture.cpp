#include "scan/FlatpakFixture.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QProcessEnvironment>

namespace {

bool writeFile(const QString& path, const QByteArray& content)
{
    QDir().mkpath(path.section(QLatin1Char('/'), 0, -2));
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(content) == content.size();
}

}  // namespace

FlatpakFixture::FlatpakFixture(const QStringList& identifiers)
{
    m_ok = true;
    for (const QString& id : identifiers) {
        const QString build = m_dir.path() + QStringLiteral("/build/") + id;
        m_ok = m_ok && writeFile(build + QStringLiteral("/metadata"),
                                 "[Application]\nname=" + id.toUtf8() + "\nruntime=org.freedesktop.Platform/x86_64/23.08\n")
            && writeFile(build + QStringLiteral("/files/bin/tool"), "#!/bin/sh\n")
            && flatpak({}, {"build-finish", build, "--command=tool"})
            && flatpak({}, {"build-export", m_dir.path() + QStringLiteral("/repo"), build});
    }
}

bool FlatpakFixture::flatpak(const QString& installation, const QStringList& arguments) const
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("HOME"), m_dir.path());
    if (!installation.isEmpty())
        environment.insert(QStringLiteral("FLATPAK_USER_DIR"), installation);
    QProcess process;
    process.setProcessEnvironment(environment);
    process.start(QStringLiteral("flatpak"), arguments);
    if (!process.waitForFinished(60'000)) {
        process.kill();
        process.waitForFinished();
    }
    if (process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0)
        return true;
    m_error = QStringLiteral("flatpak %1: %2").arg(arguments.join(QLatin1Char(' ')),
                                                   QString::fromUtf8(process.readAllStandardError()));
    return false;
}

bool FlatpakFixture::install(const QString& installation, const QString& identifier) const
{
    const QString repo = m_dir.path() + QStringLiteral("/repo");
    return flatpak(installation, {"--user", "remote-add", "--if-not-exists", "--no-gpg-verify", "fixture", repo})
        && flatpak(installation, {"--user", "install", "-y", "--noninteractive", "--no-deps", "fixture", identifier});
}

bool FlatpakFixture::uninstall(const QString& installation, const QString& identifier) const
{
    return flatpak(installation, {"--user", "uninstall", "-y", "--noninteractive", identifier});
}
