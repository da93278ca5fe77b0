#pragma once

#include <QString>

// The one file-size formatter: decimal units in the system's file-size style
// ("Zero KB", "512 bytes", "345 KB", "1.2 MB", "1.23 GB"). Everything that shows a size uses it.
namespace ByteCount {

QString format(qint64 bytes);
// A change in size with its sign: "+1.2 GB", "−900 MB", zero reads "Zero KB".
QString formatChange(qint64 bytes);

}  // namespace ByteCount
