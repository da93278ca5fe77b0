#pragma once

#include <QString>

// How the removal of one item ended. The cleanup session counts the first two kinds apart.
struct RemovalOutcome {
    enum class Kind { movedToTrash, removedByTool, failed };

    Kind kind = Kind::failed;
    QString reason;  // the one sentence shown for a failure; empty otherwise

    [[nodiscard]] static RemovalOutcome movedToTrash() { return {Kind::movedToTrash, {}}; }
    [[nodiscard]] static RemovalOutcome removedByTool() { return {Kind::removedByTool, {}}; }
    [[nodiscard]] static RemovalOutcome failed(const QString& reason) { return {Kind::failed, reason}; }

    [[nodiscard]] bool succeeded() const { return kind != Kind::failed; }
    bool operator==(const RemovalOutcome&) const = default;
};
