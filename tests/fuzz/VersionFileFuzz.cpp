// The update check's version file and what it decides from it, and the build number text the
// running app's Info.plist holds.
#include "FuzzInput.h"

#include "update/UpdateChecker.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    const QByteArray body = fuzzBytes(data, size);
    (void)UpdateChecker::parseBuild(QString::fromUtf8(body));
    const std::optional<UpdateChecker::Release> release = UpdateChecker::Release::decode(body);
    (void)UpdateChecker::resultFor(200, body, 1);
    if (!release)
        return 0;
    fuzzRequire(release->build >= 0, "a release's build is never negative");
    const UpdateSite site;
    fuzzRequire(site.isOwnAddress(release->downloadURL(site)), "the release page is on the maker's site");
    if (const std::optional<QUrl> image = release->dmgURL(site))
        fuzzRequire(site.isOwnAddress(*image), "the disk image is on the maker's site");
    return 0;
}
