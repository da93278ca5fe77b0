#pragma once

#include "platform/Platform.h"
#include "scan/Location.h"
#include "scan/Scanner.h"

#include <QList>
#include <QString>
#include <QStringList>

#include <optional>

// Turns a group of known locations into measured rows of one category: expands the path
// patterns below the home folder, titles what it finds by each location's naming, measures
// it and keeps what takes more than 999,999 bytes. A value type; scan() and the static steps
// hold no state and may run on any thread.
class LocationScanner : public Scanner {
public:
    // A row before measuring.
    struct Candidate {
        QStringList paths;  // absolute
        QString title;
        QString detail;
        bool unreadable = false;  // some matched folder of its location could not be listed
        bool operator==(const Candidate&) const = default;
    };

    struct Candidates {
        QList<Candidate> list;
        int unreadableFolders = 0;  // matches of per-child locations that could not be listed
    };

    LocationScanner(CategoryID category, QList<Location> locations)
        : category(category), locations(std::move(locations)) {}

    CategoryID category;
    QList<Location> locations;

    QList<CategoryID> categories() const override { return {category}; }
    ScanOutputs scan(const ScanContext& context) const override;

    // Candidates per location in table order, per pattern in order. Paths on the Safe List
    // are left out; cancellation stops at the next location.
    [[nodiscard]] static Candidates candidates(const QList<Location>& locations, const ScanContext& context);

    // The existing paths (tested without following a final link) matching an absolute
    // pattern; "*" matches any run of characters within one component, but not a leading
    // "." (hidden entries are never matched by a wildcard).
    [[nodiscard]] static QStringList expand(const QString& absolutePattern);

    [[nodiscard]] static QString title(const QString& path, const Location::Naming& naming);
    // The naming's own detail (a derived-data project, an archive's date), else the fallback.
    [[nodiscard]] static QString detail(const QString& path, const Location::Naming& naming,
                                        const std::optional<QString>& fallback, const QString& home);

    // Measures the candidates in parallel into rows of `category`; candidates of 999,999 bytes
    // or less, and those stopped by cancellation, give none. Adds to `unreadableFolders` (when
    // given) every path whose folder could not be read completely.
    [[nodiscard]] static QList<CleanupItem> measure(const QList<Candidate>& candidates, CategoryID category,
                                                    const ScanContext& context, int* unreadableFolders = nullptr);

    // The note a category carries when some folder could not be read.
    [[nodiscard]] static QString unreadableNote(Platform::Desktop desktop = Platform::desktop());

    // Rows of at most this many bytes are not worth offering.
    static constexpr qint64 largestIgnoredSize = 999'999;
};
