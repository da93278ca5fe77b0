#!/usr/bin/env bash
# Packages the built app (build/bin/Dustlark.app, or $BUILD_DIR) into a disk image on a Mac:
# macdeployqt copies Qt in, codesign signs the bundle, hdiutil makes Dustlark-VERSION.dmg with
# the app and a link to /Applications, and notarytool plus stapler notarize it when credentials
# are given. Environment:
#   DUSTLARK_SIGN_IDENTITY   a "Developer ID Application: ..." identity; "-" (ad hoc) by default.
#                            A real identity signs with the hardened runtime and a timestamp.
#   DUSTLARK_NOTARY_PROFILE  a notarytool keychain profile (xcrun notarytool store-credentials), or
#   APPLE_ID, APPLE_TEAM_ID, APPLE_APP_PASSWORD  the same as an Apple ID and app-specific password.
#   MACDEPLOYQT              macdeployqt to use; found on PATH or in Homebrew's qt otherwise.
# --dry-run prints each command line instead of running it, so it can be checked anywhere.
set -euo pipefail
cd "$(dirname "$0")/.."

dry_run=no
[ "${1:-}" = "--dry-run" ] && dry_run=yes
build_dir=${BUILD_DIR:-build}
app="$build_dir/bin/Dustlark.app"
version=$(sed -n 's/^project(Dustlark VERSION \([0-9.]*\).*/\1/p' CMakeLists.txt)
dmg="$build_dir/Dustlark-$version.dmg"
stage="$build_dir/dmg-stage"
identity=${DUSTLARK_SIGN_IDENTITY:--}
entitlements=resources/macos/Dustlark.entitlements

run() {
    if [ "$dry_run" = yes ]; then
        local shown=()
        for argument in "$@"; do
            if [ -n "${APPLE_APP_PASSWORD:-}" ] && [ "$argument" = "$APPLE_APP_PASSWORD" ]; then
                shown+=("<password>")
            else
                shown+=("$argument")
            fi
        done
        printf '%q ' "${shown[@]}" | sed 's/ $//'
        echo
    else
        "$@"
    fi
}

macdeployqt_tool() {
    if [ -n "${MACDEPLOYQT:-}" ]; then echo "$MACDEPLOYQT"
    elif command -v macdeployqt >/dev/null; then command -v macdeployqt
    elif [ "$dry_run" = no ]; then echo "$(brew --prefix qt)/bin/macdeployqt"
    else echo macdeployqt
    fi
}

sign_options=(--force --sign "$identity" --entitlements "$entitlements")
# Ad hoc signatures carry no team, so the hardened runtime's library validation would refuse
# the copied Qt frameworks; only a real identity gets it.
[ "$identity" = "-" ] || sign_options+=(--options runtime --timestamp)

[ "$dry_run" = yes ] || [ -d "$app" ] || { echo "package-mac: no $app; run scripts/build.sh first" >&2; exit 1; }
run "$(macdeployqt_tool)" "$app" -always-overwrite
# --deep signs the frameworks and plug-ins macdeployqt copied in with the same identity.
run codesign "${sign_options[@]}" --deep "$app"
run codesign --verify --deep --strict --verbose=2 "$app"

run rm -rf "$stage" "$dmg"
run mkdir -p "$stage"
run cp -R "$app" "$stage/"
run ln -s /Applications "$stage/Applications"
run hdiutil create -volname Dustlark -srcfolder "$stage" -format UDZO -ov "$dmg"
run rm -rf "$stage"
[ "$identity" = "-" ] || run codesign --force --sign "$identity" --timestamp "$dmg"

notary=()
if [ -n "${DUSTLARK_NOTARY_PROFILE:-}" ]; then
    notary=(--keychain-profile "$DUSTLARK_NOTARY_PROFILE")
elif [ -n "${APPLE_ID:-}" ] && [ -n "${APPLE_TEAM_ID:-}" ] && [ -n "${APPLE_APP_PASSWORD:-}" ]; then
    notary=(--apple-id "$APPLE_ID" --team-id "$APPLE_TEAM_ID" --password "$APPLE_APP_PASSWORD")
fi
if [ ${#notary[@]} -gt 0 ]; then
    [ "$identity" != "-" ] || { echo "package-mac: notarization needs DUSTLARK_SIGN_IDENTITY (a Developer ID)" >&2; exit 1; }
    run xcrun notarytool submit "$dmg" "${notary[@]}" --wait
    run xcrun stapler staple "$dmg"
fi
[ "$dry_run" = yes ] || echo "package-mac: $dmg"
