#include "support/SettingsFile.h"

#include <QFile>

SettingsFile::SettingsFile()
{
    open(nextPath());
}

QString SettingsFile::nextPath()
{
    return m_dir.filePath(QStringLiteral("settings-%1.ini").arg(++m_files));
}

QSettings* SettingsFile::open(const QString& path)
{
    m_all.push_back(std::make_unique<QSettings>(path, QSettings::IniFormat));
    return m_all.back().get();
}

QSettings* SettingsFile::reopen()
{
    settings()->sync();
    const QString copy = nextPath();
    QFile::copy(settings()->fileName(), copy);
    return open(copy);
}

QSettings* SettingsFile::withText(const QByteArray& iniText)
{
    const QString path = nextPath();
    QFile file(path);
    if (file.open(QIODevice::WriteOnly))
        file.write(iniText);
    file.close();
    return open(path);
}

QByteArray SettingsFile::text() const
{
    settings()->sync();
    QFile file(settings()->fileName());
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}
