#include "machinery/FileInfo.h"

#include <QFile>

#include <cstring>
#include <dirent.h>

namespace FileInfo {

namespace {

bool isDotEntry(const char* name)
{
    return std::strcmp(name, ".") == 0 || std::strcmp(name, "..") == 0;
}

}  // namespace

QStringList children(const QString& directory)
{
    DIR* listing = ::opendir(QFile::encodeName(directory).constData());
    if (!listing)
        return {};
    QStringList names;
    while (const dirent* entry = ::readdir(listing)) {
        if (!isDotEntry(entry->d_name))
            names.append(QFile::decodeName(entry->d_name));
    }
    ::closedir(listing);
    return names;
}

bool canList(const QString& directory)
{
    DIR* listing = ::opendir(QFile::encodeName(directory).constData());
    if (!listing)
        return false;
    ::closedir(listing);
    return true;
}

}  // namespace FileInfo
