#include "platform/ProcessArguments.h"

#include <QFile>

#include <cstring>

namespace Platform {

QString commandLineOfProcessArguments(QByteArrayView record)
{
    int count = 0;
    if (record.size() < qsizetype(sizeof count))
        return {};
    std::memcpy(&count, record.data(), sizeof count);
    qsizetype at = sizeof count;
    const auto endOfString = [&record](qsizetype from) { return record.indexOf('\0', from); };
    at = endOfString(at);  // past the executable path
    while (at >= 0 && at < record.size() && record[at] == '\0')
        ++at;
    QByteArray line;
    for (int argument = 0; argument < count && at >= 0 && at < record.size(); ++argument) {
        const qsizetype end = endOfString(at);
        if (end < 0)
            break;  // an argument without its end: the record was cut short
        if (!line.isEmpty())
            line += ' ';
        line += record.sliced(at, end - at);
        at = end + 1;
    }
    return QFile::decodeName(line);
}

}  // namespace Platform
