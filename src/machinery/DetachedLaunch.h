#pragma once

#include <QString>
#include <QStringList>

#include <sys/types.h>

// Starts a program that lives on after the call (a file manager showing a folder) without ever
// leaving a zombie: it runs in a process group of its own, registered as a tool so that no
// stop of another tool takes it for an adopted orphan, and a detached thread collects it when
// it ends, then whatever of its group this process adopted. Thread-safe.
namespace DetachedLaunch {

// The program's process id, or minus the errno when it could not be started.
pid_t start(const QString& executable, const QStringList& arguments);

}  // namespace DetachedLaunch
