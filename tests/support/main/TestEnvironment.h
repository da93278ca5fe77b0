#pragma once

#include <QTemporaryDir>

// Points every per-user location (data, config, cache, the freedesktop trash) at a private
// temporary folder before any test runs, so no test touches the developer's own files.
class TestEnvironment {
public:
    TestEnvironment();
    QString root() const { return m_dir.path(); }

private:
    QTemporaryDir m_dir;
};
