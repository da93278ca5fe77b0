#pragma once

#include <QByteArray>
#include <QString>

#include <functional>
#include <optional>

// A chain of folders nested deeper than any path call accepts, built and removed by
// descriptors (QDir stops at PATH_MAX). Removed with the object.
class DeepChain {
public:
    // `depth` folders named `component` below the existing folder `top`: level n (0 the top)
    // holds "file" of `fileBytes(n)` bytes and the next folder, the last one "bottom" (empty).
    DeepChain(const QString& top, const QByteArray& component, int depth, const std::function<qint64(int)>& fileBytes);
    ~DeepChain();
    DeepChain(const DeepChain&) = delete;
    DeepChain& operator=(const DeepChain&) = delete;

    // How often its folders were opened since the last call (inotify tells a watched folder's
    // own opening); nothing where inotify is missing, the largest number when its queue overflowed.
    std::optional<qint64> openings() const;

private:
    QString m_first;
    int m_inotify = -1;
};
