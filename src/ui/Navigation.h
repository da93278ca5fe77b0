#pragma once

#include "model/SidebarDestination.h"

#include <optional>
#include <utility>

// Which screen the window shows, and the screen the person asked for while a selection exists.
// Kept out of the window so the rules can be tested without widgets: a selection is never
// dropped by changing screens; the person is asked first.
class Navigation {
public:
    // What the window does with a choice.
    enum class Step {
        stay,  // the screen is already shown
        go,    // the choice is the destination now
        ask,   // the choice is pending until the person answers the switch question
    };

    explicit Navigation(SidebarDestination start = SidebarDestination::screen(SidebarDestination::Kind::overview))
        : m_destination(start) {}

    const SidebarDestination& destination() const { return m_destination; }
    const std::optional<SidebarDestination>& pendingDestination() const { return m_pending; }

    [[nodiscard]] Step choose(const SidebarDestination& wanted, bool hasSelection);
    // "Clear Selection" was answered (and the selection cleared): the pending screen, if any,
    // becomes the destination. Returns whether the destination changed.
    bool goToPending();
    // "Cancel" or "Clean…" was answered: the current screen stays.
    void dropPending() { m_pending.reset(); }

private:
    SidebarDestination m_destination;
    std::optional<SidebarDestination> m_pending;
};
