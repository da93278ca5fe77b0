#pragma once

#include "vocabulary/DockerOperation.h"
#include "vocabulary/FileTarget.h"

#include <QDateTime>
#include <QList>

#include <optional>
#include <variant>

// How an item goes. Only Trash removals can be undone; the others are permanent.
struct Removal {
    struct Trash {
        QList<FileTarget> targets;
        bool operator==(const Trash&) const = default;
    };
    struct Docker {
        DockerOperation operation;
        bool operator==(const Docker&) const = default;
    };
    struct SimulatorDevice {
        QString udid;
        std::optional<QDateTime> lastUsed;
        bool operator==(const SimulatorDevice&) const = default;
    };
    struct SimulatorRuntime {
        QString id;
        bool operator==(const SimulatorRuntime&) const = default;
    };
    struct EmptyTrash {
        bool operator==(const EmptyTrash&) const = default;
    };

    enum class Kind { trash, docker, simulatorDevice, simulatorRuntime, emptyTrash };

    std::variant<Trash, Docker, SimulatorDevice, SimulatorRuntime, EmptyTrash> value;

    static Removal trash(QList<FileTarget> targets) { return {Trash{std::move(targets)}}; }
    static Removal docker(DockerOperation operation) { return {Docker{std::move(operation)}}; }

    Kind kind() const { return static_cast<Kind>(value.index()); }
    template <typename T>
    const T* as() const { return std::get_if<T>(&value); }

    // The targets' paths in order for a Trash removal; empty for every other kind.
    QStringList paths() const;
    bool isPermanent() const { return kind() != Kind::trash; }
    // "trash", "docker", ... as the report tool writes it.
    QString rawKind() const;

    bool operator==(const Removal&) const = default;
};

size_t qHash(const Removal& removal, size_t seed = 0);
