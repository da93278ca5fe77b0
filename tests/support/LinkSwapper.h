#pragma once

#include <QFile>

#include <atomic>
#include <cstdio>
#include <thread>
#include <unistd.h>

// An attacker on a thread of its own: from the moment `signal` exists (at once when none is
// given) until destroyed, it keeps swapping `path` for a symbolic link to `elsewhere` and back.
// With `alsoWhereNothingIs` it puts the link there even while nothing stands at `path` (the
// object just moved away). At the end any link it made is gone and the real object, if still
// there, is back at `path`.
class LinkSwapper {
public:
    LinkSwapper(const QString& path, const QString& elsewhere, const QString& signal = {}, bool alsoWhereNothingIs = false)
        : m_path(QFile::encodeName(path)), m_aside(QFile::encodeName(path + QStringLiteral(".aside"))),
          m_elsewhere(QFile::encodeName(elsewhere)), m_signal(QFile::encodeName(signal)),
          m_alsoWhereNothingIs(alsoWhereNothingIs), m_thread([this] { run(); }) {}
    ~LinkSwapper()
    {
        m_stop = true;
        m_thread.join();
    }

private:
    void run()
    {
        while (!m_stop && !m_signal.isEmpty() && ::access(m_signal.constData(), F_OK) != 0)
            std::this_thread::yield();
        while (!m_stop) {
            const bool moved = std::rename(m_path.constData(), m_aside.constData()) == 0;
            if (!moved && !m_alsoWhereNothingIs)
                continue;
            if (::symlink(m_elsewhere.constData(), m_path.constData()) == 0) {
                std::this_thread::yield();
                ::unlink(m_path.constData());
            }
            if (moved)
                std::rename(m_aside.constData(), m_path.constData());
        }
    }

    const QByteArray m_path, m_aside, m_elsewhere, m_signal;
    const bool m_alsoWhereNothingIs;
    std::atomic<bool> m_stop{false};
    std::thread m_thread;
};
