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

// `path` as a person reads it: "~" for the home folder itself, "~/..." inside it, the path
// itself elsewhere or when `home` is empty.
inline QString withTilde(const QString& path, const QString& home)
{
    if (home.isEmpty() || !isAtOrBelow(path, home))
        return path;
    return QLatin1Char('~') + path.mid(home.size());
}

}  // namespace PathRules
