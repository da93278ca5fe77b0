#include "machinery/RunningPrograms.h"

#include "platform/Platform.h"

RunningPrograms::RunningPrograms() : m_source(&Platform::runningExecutables) {}

const QStringList& RunningPrograms::list() const
{
    std::call_once(m_read, [this] {
        if (m_source)
            m_list = m_source();
    });
    return m_list;
}
