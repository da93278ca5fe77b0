#include "vocabulary/Safety.h"

#include <QCoreApplication>

namespace Safeties {

QString title(Safety safety)
{
    switch (safety) {
    //: Safety label of a row: it comes back on its own
    case Safety::safe: return QCoreApplication::translate("Safety", "Safe");
    //: Safety label of a row: ask an AI assistant whether to remove it
    case Safety::askAI: return QCoreApplication::translate("Safety", "Ask AI");
    //: Safety label of a row: may hold data that exists nowhere else
    case Safety::risky: return QCoreApplication::translate("Safety", "Risky");
    }
    return {};
}

QString help(Safety safety)
{
    switch (safety) {
    //: Tooltip of the Safe label
    case Safety::safe: return QCoreApplication::translate("Safety", "Safe to remove: it comes back on its own when needed; you only lose the time to rebuild or download it.");
    //: Tooltip of the Ask AI label; clicking it copies a question
    case Safety::askAI: return QCoreApplication::translate("Safety", "Depends on how you use it. Click to copy a description for an AI assistant (Claude, Codex, ChatGPT) and ask.");
    //: Tooltip of the Risky label
    case Safety::risky: return QCoreApplication::translate("Safety", "Risky: you can lose data that exists nowhere else. Remove only if you're sure.");
    }
    return {};
}

QString rawValue(Safety safety)
{
    switch (safety) {
    case Safety::safe: return QStringLiteral("safe");
    case Safety::askAI: return QStringLiteral("askAI");
    case Safety::risky: return QStringLiteral("risky");
    }
    return {};
}

}  // namespace Safeties
