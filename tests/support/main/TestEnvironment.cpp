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
    QStandardPaths::setTestModeEnabled(false);
}
