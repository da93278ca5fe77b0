#pragma once

#include <QString>

namespace Mover {

// How one move ended: the copy's new location, or the one sentence to show. Plain value.
struct Outcome {
    enum class Kind {
        moved,
        // The verified copy is in place and the original went to the Trash, but the original
        // changed after the copy was checked: its newer content is only in the Trash.
        changedLate,
        failed,
    };

    Kind kind = Kind::failed;
    QString destination;  // where the item now is (moved, changedLate)
    QString reason;       // the sentence (failed, changedLate)

    [[nodiscard]] static Outcome moved(const QString& destination) { return {Kind::moved, destination, {}}; }
    [[nodiscard]] static Outcome changedLate(const QString& destination, const QString& reason)
    {
        return {Kind::changedLate, destination, reason};
    }
    [[nodiscard]] static Outcome failed(const QString& reason) { return {Kind::failed, {}, reason}; }

    // Done as asked, with nothing to tell.
    [[nodiscard]] bool succeeded() const { return kind == Kind::moved; }
    // The original left its place for the Trash.
    [[nodiscard]] bool originalTrashed() const { return kind != Kind::failed; }
    bool operator==(const Outcome&) const = default;
};

}  // namespace Mover
