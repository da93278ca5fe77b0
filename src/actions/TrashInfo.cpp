#include "actions/TrashInfo.h"

#include <cstring>

namespace TrashInfo {

namespace {

constexpr qsizetype nameLimit = 255;

bool isContinuationByte(char byte)
{
    return (static_cast<unsigned char>(byte) & 0xC0) == 0x80;
}

// The first at most `limit` bytes of `name`, never ending inside a multi-byte character.
QByteArray cutAtCharacter(const QByteArray& name, qsizetype limit)
{
    if (name.size() <= limit)
        return name;
    qsizetype end = limit;
    while (end > 0 && isContinuationByte(name.at(end)))
        --end;
    return name.left(end);
}

}  // namespace

QByteArray candidateName(const QByteArray& name, int attempt)
{
    const QByteArray counter = attempt <= 1 ? QByteArray() : '.' + QByteArray::number(attempt);
    const qsizetype room = nameLimit - qsizetype(std::strlen(suffix)) - counter.size();
    return cutAtCharacter(name, room) + counter;
}

QByteArray contents(const QByteArray& originalPath, const QDateTime& deleted)
{
    return QByteArray("[Trash Info]\nPath=") + originalPath.toPercentEncoding("/") + "\nDeletionDate="
        + deleted.toLocalTime().toString(QStringLiteral("yyyy-MM-dd'T'HH:mm:ss")).toLatin1() + '\n';
}

}  // namespace TrashInfo
