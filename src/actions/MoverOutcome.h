#pragma once

#include <QString>

namespace Mover {

// How one move ended: the copy's new location, or the one sentence to show. Plain value.
struct Outcome {
    enum class Kind { moved, failed };

    Kind kind = Kind::failed;
    QString destination;  // where the item now is (moved)
    QString reason;       // the sentence (failed)

    [[nodiscard]] static Outcome moved(const QString& destination) { return {Kind::moved, destination, {}}; }
    [[nodiscard]] static Outcome failed(const QString& reason) { return {Kind::failed, {}, reason}; }

    [[nodiscard]] bool succeeded() const { return kind == Kind::moved; }
    bool operator==(const Outcome&) const = default;
};

}  // namespace Mover
