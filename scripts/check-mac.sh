#!/usr/bin/env bash
# The stub compile check of the macOS code, run where no Mac is. It is not a macOS build and
# proves nothing about behaviour: it compiles src/platform/mac.cpp (and, with "core", every core
# source) with clang against the small stub headers in scripts/darwin-stubs, written from
# Apple's documented declarations, so a call Darwin lacks (statx, renameat2, pipe2, O_PATH), a
# misspelt field (st_mtim for st_mtimespec) or a header drifting from Platform.h fails here.
# Then it compares the Platform functions mac.cpp and linux.cpp define, signatures included.
#   scripts/check-mac.sh          the platform files (part of scripts/test.sh)
#   scripts/check-mac.sh core     also every core source, each with -fsyntax-only (slower)
#   scripts/check-mac.sh selftest breaks copies of mac.cpp on purpose (a Linux-only call, a
#                                 misspelt field, a missing function) and fails unless each is caught
#   CHECK_MAC_SOURCE=FILE         check FILE in place of src/platform/mac.cpp
set -euo pipefail
cd "$(dirname "$0")/.."
scope=${1:-platform}
if [ "$scope" = selftest ]; then
    broken=$(mktemp -d)
    trap 'rm -rf "$broken"' EXIT
    failures=0
    export CHECK_MAC_LINUX_OBJECT="$broken/linux.o"
    "$0" > "$broken/log" 2>&1 || { cat "$broken/log" >&2; echo "check-mac selftest: the tree itself fails" >&2; exit 1; }
    # Each line: what is broken, then the sed expression that breaks it.
    while IFS='|' read -r what edit; do
        sed "$edit" src/platform/mac.cpp > "$broken/mac.cpp"
        if cmp -s src/platform/mac.cpp "$broken/mac.cpp"; then
            echo "check-mac selftest: the edit for \"$what\" changed nothing; update it" >&2
            failures=1
        elif CHECK_MAC_SOURCE="$broken/mac.cpp" "$0" > "$broken/log" 2>&1; then
            echo "check-mac selftest: not caught: $what" >&2
            failures=1
        else
            echo "check-mac selftest: caught: $what: $(grep -m1 -E 'error|^[-+]Platform' "$broken/log")"
        fi
    done <<'CASES'
a Linux-only call (pipe2)|s/::pipe(ends)/::pipe2(ends, 0)/
a Linux-only call (renameat2)|s/::renameatx_np(fromFolder, from, toFolder, to, RENAME_EXCL)/::renameat2(fromFolder, from, toFolder, to, 0)/
a Linux field name (st_mtim)|s/info.st_mtimespec.tv_sec/info.st_mtim.tv_sec/
a misspelt field (d_namelen)|s/entry->d_namlen/entry->d_namelen/
a Linux-only flag (O_PATH)|s/F_DUPFD_CLOEXEC, 0)/F_DUPFD_CLOEXEC, O_PATH)/
a Platform function left out|s/^Desktop desktop()$/Desktop desktopOfFinder()/
CASES
    exit "$failures"
fi
stubs=scripts/darwin-stubs
mac=${CHECK_MAC_SOURCE:-src/platform/mac.cpp}
qt=$(qmake6 -query QT_INSTALL_HEADERS)
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

common=(-std=c++20 -fPIC -Wall -Wextra -Wno-unused-command-line-argument -I src -isystem "$qt" -isystem "$qt/QtCore")
darwin=("${common[@]}" -I "$stubs" -include "$stubs/darwin-prelude.h")

# Each Platform function defined outside an anonymous namespace, with its parameter types.
platform_symbols() {
    nm -C --defined-only "$1" | sed -n 's/^[0-9a-f]* T \(Platform::[^(]*(.*)\)$/\1/p' | grep -v 'anonymous namespace' | sort -u
}

status=0
clang++ "${darwin[@]}" -c "$mac" -o "$work/mac.o" || status=1
linux=${CHECK_MAC_LINUX_OBJECT:-$work/linux.o}
if [ ! -s "$linux" ]; then
    # linux.cpp holds a QObject of its own (the notification listener): its moc output first.
    "$(qmake6 -query QT_INSTALL_LIBEXECS)/moc" src/platform/linux.cpp -o "$work/linux.moc" || status=1
    clang++ "${common[@]}" -DDUSTLARK_VERSION='""' -DDUSTLARK_BUILD='""' -DDUSTLARK_BUNDLE_ID='""' \
        -I "$work" -isystem "$qt/QtDBus" -c src/platform/linux.cpp -o "$linux" || status=1
fi
if [ "$status" = 0 ]; then
    platform_symbols "$work/mac.o" > "$work/mac.txt"
    platform_symbols "$linux" > "$work/linux.txt"
    if ! diff -u --label linux.cpp --label mac.cpp "$work/linux.txt" "$work/mac.txt"; then
        echo "check-mac: mac.cpp and linux.cpp define different Platform functions (above)" >&2
        status=1
    fi
fi

if [ "$scope" = core ]; then
    plist=$(pkg-config --cflags libplist-2.0)
    for source in src/{vocabulary,machinery,model,scan,actions,storage,prompt,update,format,report}/*.cpp; do
        # shellcheck disable=SC2086
        clang++ "${darwin[@]}" -isystem "$qt/QtNetwork" $plist -fsyntax-only "$source" || { echo "check-mac: $source" >&2; status=1; }
    done
fi

[ "$status" = 0 ] && echo "check-mac: stub compile check passed ($scope)"
exit "$status"
