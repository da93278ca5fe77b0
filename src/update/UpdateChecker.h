#pragma once

#include "update/Release.h"

#include <QObject>

#include <functional>
#include <variant>

// Asks the maker's web site whether a newer build exists. Runs on the thread that calls it
// (the GUI thread) without blocking it: the answer arrives later through the callback.
namespace UpdateChecker {

// What a check found.
struct Result {
    struct UpToDate {
        bool operator==(const UpToDate&) const = default;
    };
    struct Available {
        Release release;
        bool operator==(const Available&) const = default;
    };
    struct Failed {
        QString message;  // the sentence to show
        bool operator==(const Failed&) const = default;
    };
    enum class Kind { upToDate, available, failed };

    std::variant<UpToDate, Available, Failed> value;

    Kind kind() const { return static_cast<Kind>(value.index()); }
    template <typename T>
    const T* as() const { return std::get_if<T>(&value); }
    bool operator==(const Result&) const = default;
};

// The running app's version as people read it ("CFBundleShortVersionString").
QString currentVersion();
// The running app's bundle identifier ("CFBundleIdentifier"), which an update must carry too.
QString bundleIdentifier();
// The running app's build number ("CFBundleVersion"); 0 when missing or not a number.
qint64 currentBuild();
// A build number as Info.plist holds it: decimal digits only, else 0.
qint64 parseBuild(const QString& text);

// What an answer of the web site means for a copy of build `currentBuild`: anything but status
// 200 with a decodable body fails, otherwise only the build numbers are compared.
Result resultFor(int httpStatus, const QByteArray& body, qint64 currentBuild);

// The sentence for a check that never got an answer; `description` is the system's own.
QString transportFailure(const QString& description);

// Fetches the version file without keeping cookies or a cache and calls `done` once, on the
// calling thread, unless `context` was destroyed first. Redirects are followed only within the
// site's own origin; bodies over 64 KB and silences over `site.timeoutMs` fail the check.
void check(const UpdateSite& site, qint64 currentBuild, QObject* context, std::function<void(Result)> done);

}  // namespace UpdateChecker
