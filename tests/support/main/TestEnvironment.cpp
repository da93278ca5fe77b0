#include "TestEnvironment.h"

#include <QDir>
#include <QStandardPaths>

TestEnvironment::TestEnvironment()
{
    const QString base = m_dir.path();
    for (const char* sub : {"/data", "/config", "/cache", "/runtime"})
        QDir().mkpath(base + QLatin1String(sub));
    qputenv("XDG_DATA_HOME", QFile::encodeName(base + QStringLiteral("/data")));
    qputenv("XDG_CONFIG_HOME", QFile::encodeName(base + QStringLiteral("/config")));
    qputenv("XDG_CACHE_HOME", QFile::encodeName(base + QStringLiteral("/cache")));
    QFile::setPermissions(base + QStringLiteral("/runtime"), QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner);
    qputenv("XDG_RUNTIME_DIR", QFile::encodeName(base + QStringLiteral("/runtime")));
    // No test may talk to the developer's desktop (its file manager, its notifications).
    qputenv("DBUS_SESSION_BUS_ADDRESS", "unix:path=" + QFile::encodeName(base + QStringLiteral("/runtime/no-bus")));
    // Tests read English texts and numbers, whatever the developer's own language: the app and
    // the report tool follow these variables.
    for (const char* name : {"LANGUAGE", "LC_ALL", "LC_MESSAGES"})
        qunsetenv(name);
    qputenv("LANG", "C.UTF-8");
    QStandardPaths::setTestModeEnabled(false);
}
