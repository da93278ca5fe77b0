#pragma once

#include "vocabulary/HashCombine.h"

#include <QDateTime>
#include <QString>
#include <QStringList>

#include <variant>

// What Docker is asked to remove for good, and where and when the scan saw it.
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
    // The endpoint the scan talked to (a "unix://" address): removal asks no other Docker.
    QString host = {};
    // When the scan started: a container that stopped after it is not the one offered.
    QDateTime scannedAt = {};

    template <typename T>
    const T* as() const { return std::get_if<T>(&value); }

    bool operator==(const DockerOperation&) const = default;
};

size_t qHash(const DockerOperation& operation, size_t seed = 0);
