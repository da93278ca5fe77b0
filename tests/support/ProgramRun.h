#pragma once

#include <QByteArray>
#include <QProcessEnvironment>
#include <QString>
#include <QStringList>

class QProcess;

// A program run to its end, with what it printed. A run that crashed, or was killed because it
// outlived its time, has exit code -1.
struct ProgramRun {
    int exitCode = -1;
    QByteArray standardOutput;
    QByteArray standardError;

    // Waits for a started `process`, killing it after `timeoutMs`.
    static ProgramRun finish(QProcess& process, int timeoutMs = 120'000);
    static ProgramRun run(const QString& program, const QStringList& arguments, int timeoutMs = 120'000,
                          const QProcessEnvironment& environment = QProcessEnvironment::systemEnvironment());
};
