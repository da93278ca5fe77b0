#include "scan/AppFixture.h"

AppFixture::AppFixture()
{
    tree.dir(QStringLiteral("home/Library"));
    tree.dir(QStringLiteral("Applications"));
    folders.applications = systemApps();
    folders.systemApplications = tree.dir(QStringLiteral("System/Applications"));
    folders.coreServices = tree.dir(QStringLiteral("System/Library/CoreServices"));
}

QByteArray plistXml(const QStringList& keysAndValues)
{
    QByteArray xml = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<plist version=\"1.0\">\n<dict>\n";
    for (qsizetype i = 0; i + 1 < keysAndValues.size(); i += 2)
        xml += "<key>" + keysAndValues[i].toUtf8() + "</key><string>" + keysAndValues[i + 1].toUtf8() + "</string>\n";
    return xml + "</dict>\n</plist>\n";
}

QString AppFixture::app(const QString& bundle, const QString& identifier, const QString& displayName,
                        qint64 programBytes) const
{
    const QString executable = bundle.section(QLatin1Char('/'), -1).section(QLatin1Char('.'), 0, -2);
    QStringList keys = {QStringLiteral("CFBundleExecutable"), executable};
    if (!identifier.isEmpty())
        keys += {QStringLiteral("CFBundleIdentifier"), identifier};
    if (!displayName.isEmpty())
        keys += {QStringLiteral("CFBundleDisplayName"), displayName};
    tree.file(bundle + QStringLiteral("/Contents/Info.plist"), plistXml(keys));
    tree.file(bundle + QStringLiteral("/Contents/MacOS/") + executable, programBytes);
    return tree.path(bundle);
}

QString AppFixture::libraryFile(const QString& relative, qint64 bytes) const
{
    return tree.file(QStringLiteral("home/Library/") + relative, bytes);
}

QString AppFixture::libraryFolder(const QString& relative, qint64 bytes) const
{
    tree.file(QStringLiteral("home/Library/") + relative + QStringLiteral("/data"), bytes);
    return tree.path(QStringLiteral("home/Library/") + relative);
}
