#include "support/PrivateMount.h"

#include <QCoreApplication>
#include <QProcess>
#include <QStandardPaths>

#include <unistd.h>

QString PrivateMountRun::report() const
{
    for (const QString& line : output.split(QLatin1Char('\n'))) {
        if (line.startsWith(QLatin1String("REPORT ")))
            return line.mid(7);
    }
    return {};
}

std::optional<PrivateMountRun> runInPrivateMount(const QString& script, const QString& argument,
                                                 const QProcessEnvironment& environment, int timeoutMs)
{
    const QString unshare = QStandardPaths::findExecutable(QStringLiteral("unshare"));
    if (::geteuid() != 0 || unshare.isEmpty())
        return std::nullopt;
    QProcess child;
    child.setProcessEnvironment(environment);
    child.start(unshare, {QStringLiteral("--mount"), QStringLiteral("--propagation"), QStringLiteral("private"),
                          QStringLiteral("sh"), QStringLiteral("-c"), script, QStringLiteral("sh"), argument,
                          QCoreApplication::applicationFilePath()});
    PrivateMountRun run;
    if (!child.waitForFinished(timeoutMs))
        child.kill();
    run.output = QString::fromLocal8Bit(child.readAllStandardOutput());
    run.error = QString::fromLocal8Bit(child.readAllStandardError()).trimmed();
    run.mounted = run.output.contains(QLatin1String("MOUNTED"));
    return run;
}

QString whyNotMounted(const std::optional<PrivateMountRun>& run)
{
    if (!run)
        return QStringLiteral("mounting a disk in a private namespace needs root and unshare(1)");
    if (!run->mounted)
        return QStringLiteral("the disk could not be mounted in a private namespace here: ") + run->error;
    return {};
}
