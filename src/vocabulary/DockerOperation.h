#pragma once

#include "vocabulary/HashCombine.h"

#include <QString>
#include <QStringList>

#include <variant>

// What Docker is asked to remove for good.
struct DockerOperation {
    struct Container {
        QString id;
        bool operator==(const Container&) const = default;
    };
    struct Image {
        QString id;
        QStringList stoppedContainers;  // removed first, they hold the image
        QStringList references;         // repository:tag names
        bool operator==(const Image&) const = default;
    };
    struct Volume {
        QString name;
        QString created;  // as Docker reports it
        bool operator==(const Volume&) const = default;
    };
    struct BuildCache {
        bool operator==(const BuildCache&) const = default;
    };

    std::variant<Container, Image, Volume, BuildCache> value;

    template <typename T>
    const T* as() const { return std::get_if<T>(&value); }

    bool operator==(const DockerOperation&) const = default;
};

size_t qHash(const DockerOperation& operation, size_t seed = 0);
