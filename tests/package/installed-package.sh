#!/usr/bin/env bash
# The .deb as a person gets it: installed into a fresh root with dpkg --root (never this
# machine's own system), both programs run from the installed paths while the source and build
# folders are hidden, then removed again without a trace.
#   installed-package.sh PACKAGE.deb SOURCE_DIR BUILD_DIR
set -euo pipefail
deb=$(realpath "$1") source_dir=$(realpath "$2") build_dir=$(realpath "$3")
work=$(mktemp -d /tmp/dustlark-package-XXXXXX)
trap 'rm -rf "$work"' EXIT
root=$work/root
failures=0
fail() { echo "FAIL: $*" >&2; failures=$((failures + 1)); }

version=$(dpkg-deb -f "$deb" Version)
id=app.dustlark.Dustlark
mkdir -p "$root/var/lib/dpkg/info" "$root/var/lib/dpkg/updates" "$root/var/lib/dpkg/triggers"
touch "$root/var/lib/dpkg/status" "$root/var/lib/dpkg/available"
# The fresh root has none of the libraries, so their check is below, against this system.
dpkg --root="$root" --force-depends --install "$deb" >"$work/dpkg-install.log" 2>&1 \
    || { cat "$work/dpkg-install.log" >&2; echo "FAIL: dpkg could not install $deb" >&2; exit 1; }

# --- What the package puts where: the layout desktops, software centres and man look in.
expected=(usr/bin/dustlark usr/bin/dustlark-cli "usr/share/applications/$id.desktop"
    "usr/share/metainfo/$id.metainfo.xml" "usr/share/icons/hicolor/scalable/apps/$id.svg"
    usr/share/man/man1/dustlark.1.gz usr/share/man/man1/dustlark-cli.1.gz
    usr/share/doc/dustlark/copyright usr/share/doc/dustlark/changelog.gz)
for size in 16 32 48 64 128 256 512; do expected+=("usr/share/icons/hicolor/${size}x${size}/apps/$id.png"); done
for file in "${expected[@]}"; do [ -s "$root/$file" ] || fail "the package does not install /$file"; done
for png in "$root"/usr/share/icons/hicolor/*x*/apps/$id.png; do
    folder=$(basename "$(dirname "$(dirname "$png")")")
    drawn=$(python3 -c 'import struct,sys; d=open(sys.argv[1],"rb").read(24); print("%dx%d" % struct.unpack(">II", d[16:24]))' "$png")
    [ "$drawn" = "$folder" ] || fail "the icon in $folder is $drawn pixels"
done
[[ "$(zcat "$root/usr/share/doc/dustlark/changelog.gz" | sed -n 1p)" == "dustlark ($version) "* ]] \
    || fail "the changelog's latest entry is not version $version"

# --- Every library a program links comes from a package the .deb depends on.
depends=$(dpkg-deb -f "$deb" Depends | tr ',' '\n' | sed 's/^ *//; s/[ (:].*//')
multiarch=$(dpkg-architecture -qDEB_HOST_MULTIARCH)
for program in dustlark dustlark-cli; do
    for library in $(objdump -p "$root/usr/bin/$program" | awk '$1 == "NEEDED" { print $2 }'); do
        owner=$( (dpkg -S "*/$multiarch/$library" 2>/dev/null || true) | awk -F': ' -v tail="/$multiarch/$library" \
            'substr($2, length($2) - length(tail) + 1) == tail && !found { sub(/:.*/, "", $1); print $1; found = 1 }')
        if [ -z "$owner" ]; then fail "$program needs $library, which no installed package provides"
        elif ! grep -qx "$owner" <<<"$depends"; then fail "$program needs $library from $owner, missing in Depends: $(dpkg-deb -f "$deb" Depends)"; fi
    done
done

# --- The programs run from the installed paths with the source and build folders out of sight.
home=$work/home
mkdir -p "$home/.npm/_cacache/content-v2/sha512/aa"
head -c 2000000 /dev/urandom >"$home/.npm/_cacache/content-v2/sha512/aa/blob"
exec_line=$(sed -n 's/^Exec=//p' "$root/usr/share/applications/$id.desktop" | sed 's/ *%[fFuUick]//g')
cat >"$work/hidden.sh" <<'HIDDEN'
set -u
root=$1 work=$2 version=$3 home=$4 exec_line=$5
status=0
fail() { echo "FAIL: $*" >&2; status=1; }
line=$("$root/usr/bin/dustlark-cli" --version) || fail "dustlark-cli --version exited with $?"
[[ $line =~ ^dustlark-cli\ ${version//./\\.}\ \([0-9]+\)$ ]] || fail "dustlark-cli --version printed \"$line\""
"$root/usr/bin/dustlark-cli" scan --home "$home" --json >"$work/scan.json" || fail "dustlark-cli scan exited with $?"
python3 - "$work/scan.json" "$home" <<'CHECK' || fail "the installed scan did not report the fixture's npm cache"
import json, sys
categories = {c["id"]: c for c in json.load(open(sys.argv[1]))["categories"]}
assert len(categories) == 22, sorted(categories)
paths = [p for item in categories["packageCaches"]["items"] for p in item["paths"]]
assert paths == [sys.argv[2] + "/.npm/_cacache"], paths
CHECK
# The desktop entry's command, found through PATH as a launcher finds it.
export PATH="$root/usr/bin:$PATH" HOME="$work/app-home" XDG_CONFIG_HOME="$work/app-home/.config"
export XDG_DATA_HOME="$work/app-home/.local/share" QT_QPA_PLATFORM=offscreen
[ "$(command -v "${exec_line%% *}")" = "$root/usr/bin/dustlark" ] || fail "Exec=$exec_line does not start the installed app"
mkdir -p "$HOME"
sh -c "exec $exec_line" >"$work/app.log" 2>&1 &
app=$!
sleep 4
if kill -0 "$app" 2>/dev/null; then
    kill -TERM "$app"; wait "$app" 2>/dev/null
else
    wait "$app"; fail "the app started from its desktop entry ended by itself with status $?: $(cat "$work/app.log")"
fi
exit $status
HIDDEN
# A private mount namespace: the hiding ends with it and touches nothing outside.
unshare --mount --propagation private bash -c '
    mount -t tmpfs -o ro tmpfs "$1" && mount -t tmpfs -o ro tmpfs "$2" || exit 3
    cd / && shift 2 && exec bash "$@"' hide "$build_dir" "$source_dir" \
    "$work/hidden.sh" "$root" "$work" "$version" "$home" "$exec_line" || fail "the installed programs failed (above)"

# --- Removal leaves nothing of the package in the root.
dpkg --root="$root" --purge dustlark >"$work/dpkg-purge.log" 2>&1 || { cat "$work/dpkg-purge.log" >&2; fail "dpkg could not remove the package"; }
left=$(cd "$root" && find . -path ./var/lib/dpkg -prune -o \( -type f -o -type l \) -print)
[ -z "$left" ] || fail "removing the package left: $left"
dpkg --root="$root" -s dustlark >/dev/null 2>&1 && fail "dpkg still lists the package as installed"

if [ "$failures" -gt 0 ]; then echo "$failures check(s) of the installed package failed" >&2; exit 1; fi
echo "installed package: ${#expected[@]} files in place, both programs ran from /usr/bin, removed cleanly"
