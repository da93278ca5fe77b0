#pragma once

#include <QByteArray>
#include <QString>

#include <functional>

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

private:
    QString m_first;
};
