#pragma once

#include <QHash>
#include <QString>

// The label on every row, in severity order (comparisons use it).
enum class Safety : int { safe, askAI, risky };

namespace Safeties {

QString title(Safety safety);    // "Ask AI"
QString help(Safety safety);     // tooltip
QString rawValue(Safety safety); // "askAI", as the report tool writes it

}  // namespace Safeties

inline size_t qHash(Safety safety, size_t seed = 0) noexcept
{
    return ::qHash(static_cast<int>(safety), seed);
}
