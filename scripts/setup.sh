#!/usr/bin/env bash
# Installs what building and testing Dustlark needs, and nothing that is already there; with --fuzz,
# also what scripts/fuzz.sh needs. Further arguments name more Debian packages to install the same
# way (scripts/package.sh's tools).
set -euo pipefail

DEBIAN_PACKAGES=(qt6-base-dev qt6-svg-dev qt6-tools-dev qt6-tools-dev-tools qt6-l10n-tools libgl-dev
    libssl-dev libplist-dev libgtest-dev libgmock-dev cmake g++ git openssl pkg-config ccache xvfb xauth python3
    qt6-base-private-dev trash-cli exfatprogs exfat-fuse)  # trash-cli: the trash round trip; exFAT: a real exFAT disk for the mover tests
# flatpak: the leftovers tests install and uninstall real Flatpak apps that the scan then reads
DEBIAN_PACKAGES+=(flatpak)
# the scan history: Qt SQL's SQLite driver (Qt's Sql headers come with qt6-base-dev)
DEBIAN_PACKAGES+=(libqt6sql6-sqlite)
# dbus-daemon: a private session bus (dbus-run-session) for the notification tests; systemd:
# systemd-analyze, which verifies the scheduled scan's timer and service
DEBIAN_PACKAGES+=(dbus-daemon systemd)
# clang: the stub compile check of the macOS code (scripts/check-mac.sh)
DEBIAN_PACKAGES+=(clang)
BREW_PACKAGES=(qt openssl@3 libplist googletest cmake pkg-config)
if [ "${1:-}" = "--fuzz" ]; then  # scripts/fuzz.sh: clang with libFuzzer and the sanitizer runtimes
    DEBIAN_PACKAGES+=(clang libclang-rt-dev)
    BREW_PACKAGES+=(llvm)  # Apple's clang has no libFuzzer
    shift
fi

as_root() {
    if [ "$(id -u)" -eq 0 ]; then "$@"; else sudo "$@"; fi
}

if [ "$(uname -s)" = "Darwin" ]; then
    missing=()
    for p in "${BREW_PACKAGES[@]}"; do brew list --versions "$p" >/dev/null 2>&1 || missing+=("$p"); done
    [ ${#missing[@]} -eq 0 ] || brew install "${missing[@]}"
    exit 0
fi

missing=()
for p in "${DEBIAN_PACKAGES[@]}" "$@"; do
    dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q "install ok installed" || missing+=("$p")
done
if [ ${#missing[@]} -gt 0 ]; then
    echo "Installing: ${missing[*]}"
    as_root apt-get update -qq
    as_root env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq "${missing[@]}"
fi
