#pragma once

#include <QString>

namespace PathRules {

// True when `path` equals `base` or lies inside it. Containment is tested with a trailing
// "/", so "/tmpdir" is not inside "/tmp".
inline bool isAtOrBelow(const QString& path, const QString& base)
{
    if (path == base)
        return true;
    return path.size() > base.size() && path.startsWith(base) && path.at(base.size()) == QLatin1Char('/');
}

}  // namespace PathRules
