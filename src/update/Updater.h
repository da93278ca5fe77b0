#pragma once

#include "update/Release.h"

#include <QObject>
#include <QString>
#include <QTemporaryFile>

#include <functional>
#include <memory>
#include <optional>

// Replacing the running copy with a downloaded release (macOS). Built so far: the rule for
// where a copy may replace itself, the code-signing requirement a new copy must meet, and the
// disk image's digest check. Everything here is thread-safe and may block: call it on a worker.
namespace Updater {

// Whether the app at `appPath` (its ".app" folder) may replace itself: not run by macOS from a
// random read-only place ("/AppTranslocation/"), not from a disk image ("/Volumes/..."), and
// its folder writable by us.
[[nodiscard]] bool canInstallHere(const QString& appPath);

// The requirement a downloaded copy's signature must satisfy: Apple-anchored, our own bundle
// identifier, a Developer ID certificate (the leaf's 1.2.840.113635.100.6.1.13 field) of our
// own signing team.
[[nodiscard]] QString requirement(const QString& bundleIdentifier, const QString& team);

// Checks the downloaded image against the release's SHA-256 (hexadecimal, any case). Absent when
// it matches; otherwise the sentence to show. A release that names no digest is refused: the
// signature proves who built an app, only the digest proves this is the image the version
// file describes.
[[nodiscard]] std::optional<QString> checkImage(const QString& imagePath, const std::optional<QString>& sha256);

// A downloaded disk image in a temporary file named "Dustlark-update-…update.dmg", removed when
// the last holder lets go; or the system's message when the download failed.
struct Download {
    std::shared_ptr<QTemporaryFile> image;
    QString error;
};

// Where a download's temporary file goes and how large it may grow. An update image is tens of
// megabytes; a server that sends more is broken or hostile, and must not fill the disk.
struct DownloadLimits {
    QString folder;                         // empty: the system's temporary folder
    qint64 maxBytes = 1'000'000'000;
};

// Downloads `url` over the site's TLS settings into a new temporary file and calls `done` once
// on the calling thread, unless `context` was destroyed first. Cookies and caches are not used;
// a cut or failed transfer is an error, never a short file. A body beyond `limits.maxBytes`
// ends the download with that said; a write that fails (a full disk) ends
// it with the system's reason, not the transfer's "canceled".
void download(const UpdateSite& site, const QUrl& url, QObject* context, std::function<void(Download)> done,
              const DownloadLimits& limits = {});

// "the download is larger than SIZE, more than any update": the reason inside couldNotInstall().
[[nodiscard]] QString tooLarge(qint64 maxBytes);

// "The downloaded update didn't pass the check. This copy wasn't changed."
[[nodiscard]] QString didNotPassCheck();
// "Couldn't install the update (MESSAGE). This copy wasn't changed."
[[nodiscard]] QString couldNotInstall(const QString& message);

}  // namespace Updater
