#include "ui/Navigation.h"

Navigation::Step Navigation::choose(const SidebarDestination& wanted, bool hasSelection)
{
    if (wanted == m_destination) {
        m_pending.reset();
        return Step::stay;
    }
    if (hasSelection) {
        m_pending = wanted;
        return Step::ask;
    }
    m_pending.reset();
    m_destination = wanted;
    return Step::go;
}

bool Navigation::goToPending()
{
    if (!m_pending)
        return false;
    m_destination = *std::exchange(m_pending, std::nullopt);
    return true;
}
