#pragma once

#include <QByteArray>
#include <QString>
#include <QNetworkRequest>
#include <QUrl>

#include <optional>

// The maker's web site as the update check sees it: one HTTPS origin, kept here so tests can
// point the check at a local server and trust its throw-away certificate.
struct UpdateSite {
    QUrl origin = QUrl(QStringLiteral("https://dustlark.app"));
    QByteArray extraCertificates;   // PEM; trusted beside the system's own roots (tests)
    int timeoutMs = 30'000;         // no byte for this long ends the check

    [[nodiscard]] QUrl versionFile() const { return at(QStringLiteral("/dustlark-mac/version.json")); }
    // The maker's release page, opened when a release names no usable page of its own.
    [[nodiscard]] QUrl releasePage() const { return at(QStringLiteral("/dustlark-mac/")); }
    // True for an "https" address on this site's host and port: the only addresses a release
    // may send the person or the installer to.
    [[nodiscard]] bool isOwnAddress(const QUrl& url) const;
    // The request for `url` on this site, like an ephemeral session: nothing read from or written
    // to a cookie store or a cache, redirects only within the site, the site's time limit, and
    // the extra certificates trusted.
    [[nodiscard]] QNetworkRequest request(const QUrl& url) const;

private:
    [[nodiscard]] QUrl at(const QString& path) const;
};

namespace UpdateChecker {

// One release as the version file describes it. Only `build` is compared; `version` is shown.
struct Release {
    QString version;
    qint64 build = 0;
    std::optional<QUrl> url;     // the release page
    std::optional<QUrl> dmg;     // the disk image
    std::optional<QString> sha256;  // the disk image's digest, hexadecimal

    // Decodes the version file; absent when it is not a JSON object with a string `version`,
    // a whole non-negative `build`, and strings (or nothing) for the optional fields.
    [[nodiscard]] static std::optional<Release> decode(const QByteArray& json);

    // The release page to open: `url` when it is on the maker's own site over https,
    // otherwise the maker's page itself.
    [[nodiscard]] QUrl downloadURL(const UpdateSite& site) const;
    // The disk image, under the same rule; absent when the release names none we accept.
    [[nodiscard]] std::optional<QUrl> dmgURL(const UpdateSite& site) const;

    bool operator==(const Release&) const = default;
};

}  // namespace UpdateChecker
