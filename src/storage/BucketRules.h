#pragma once

#include "platform/Platform.h"
#include "storage/StorageBucket.h"

#include <QByteArray>
#include <QByteArrayView>
#include <QList>

#include <optional>

// How the storage walk tells kinds of data apart: the bucket a folder forces on what lies
// below it, a file's bucket by its extension, and the group a file falls in under its folder.
// Works on the file system's own bytes, so names that are not valid UTF-8 are classified like
// any other. The places that differ by system are rows of data chosen by the desktop; macOS
// rows stay as they are and the Linux home's rows stand beside them. Immutable, thread-safe.
class BucketRules {
public:
    // `home` without a trailing "/".
    explicit BucketRules(const QByteArray& home, Platform::Desktop desktop = Platform::desktop());

    // The bucket a folder forces on everything below it, or absent to let each file decide.
    // `parent` is the folder that holds it. Name tests are on the lower-cased name, except the
    // developer folder names, which match exactly.
    [[nodiscard]] std::optional<StorageBucket> forcedBucket(QByteArrayView path, QByteArrayView name,
                                                            QByteArrayView parent) const;
    // The bucket of a folder named by its full path in the tables ("~/Library/Application
    // Support/MobileSync"). Such a row is more specific than the bucket of any folder above it,
    // so it holds even below one that forced another bucket.
    [[nodiscard]] std::optional<StorageBucket> pathBucket(QByteArrayView path) const;
    // A package is counted whole: an application bundle, a photo, music, TV or movie library, a
    // video project or a sparse bundle. Nothing inside one is listed on its own.
    [[nodiscard]] static bool isPackage(QByteArrayView name);
    // The bucket of a file outside any folder that forces one, by its lower-cased extension.
    [[nodiscard]] static StorageBucket bucket(QByteArrayView fileName);
    // The group a file falls in under the folder its bucket lists it with: the first component of
    // the file's folder below that folder (`relativeFolder`), so the drill-down goes one level at
    // a time; "" for files directly in it.
    [[nodiscard]] static QByteArray groupFolder(QByteArrayView relativeFolder);

private:
    struct Row {
        QByteArray key;  // a name, or a full path
        StorageBucket bucket;
    };

    static std::optional<StorageBucket> packageBucket(QByteArrayView lowerName);
    static std::optional<StorageBucket> find(const QList<Row>& rows, QByteArrayView key);

    QByteArray m_home;
    QByteArray m_library;
    QList<Row> m_homeNames;     // entries of the home folder
    QList<Row> m_libraryNames;  // entries of the home's Library
    QList<Row> m_paths;         // full paths
};
