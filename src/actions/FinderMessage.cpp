#include "actions/FinderMessage.h"

#include <QRegularExpression>

namespace FinderMessage {

namespace {

const QRegularExpression& trailingNumber()
{
    static const QRegularExpression pattern(QStringLiteral("\\((-?\\d+)\\)\\s*$"));
    return pattern;
}

}  // namespace

std::optional<int> errorNumber(const QString& message)
{
    const QRegularExpressionMatch match = trailingNumber().match(message.trimmed());
    if (!match.hasMatch())
        return std::nullopt;
    return match.captured(1).toInt();
}

QString sentence(const QString& message)
{
    static const QString marker = QStringLiteral("error: ");
    QString text = message.trimmed();
    const qsizetype at = text.lastIndexOf(marker);
    if (at >= 0)
        text = text.mid(at + marker.size());
    text.remove(trailingNumber());
    return text.trimmed();
}

}  // namespace FinderMessage
