#include "support/ProgramRun.h"

#include <QProcess>

ProgramRun ProgramRun::finish(QProcess& process, int timeoutMs)
{
    if (!process.waitForFinished(timeoutMs)) {
        process.kill();
        process.waitForFinished();
    }
    return {process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1, process.readAllStandardOutput(),
            process.readAllStandardError()};
}

ProgramRun ProgramRun::run(const QString& program, const QStringList& arguments, int timeoutMs,
                           const QProcessEnvironment& environment)
{
    QProcess process;
    process.setProcessEnvironment(environment);
    process.start(program, arguments);
    return finish(process, timeoutMs);
}
