#pragma once

#include <QByteArray>
#include <QSettings>
#include <QTemporaryDir>

#include <memory>
#include <vector>

// A preferences store on an INI file in a temporary folder, for the stores' tests.
// QSettings shares one parsed copy of a file across the process, so reading "the same file"
// again would hand back the very values written. reopen() therefore copies the written file
// to a new name and parses that: the values come back as the INI text says (a one-element
// list as a plain string, a number as text), just as at the next launch.
class SettingsFile {
public:
    SettingsFile();

    // The settings currently in use; stays valid for the object's lifetime.
    QSettings* settings() const { return m_all.back().get(); }
    // Writes the current settings out and opens a freshly parsed copy, which becomes current.
    QSettings* reopen();
    // Opens a new file holding exactly `iniText`, which becomes current.
    QSettings* withText(const QByteArray& iniText);
    // The text of the current file after writing it out.
    QByteArray text() const;

private:
    QString nextPath();
    QSettings* open(const QString& path);

    QTemporaryDir m_dir;
    int m_files = 0;
    std::vector<std::unique_ptr<QSettings>> m_all;
};
