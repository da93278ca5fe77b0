#!/usr/bin/env bash
# Makes the Linux package: a release build in build-package/ (or $BUILD_DIR), the .deb by
# CPack, the checks Debian and the software centres apply (lintian, desktop-file-validate,
# appstreamcli), and the test of the package installed into a fresh root.
set -euo pipefail
cd "$(dirname "$0")/.."
if [ "$(uname -s)" != "Linux" ]; then
    echo "scripts/package.sh makes the Linux .deb; it does not run on $(uname -s)." >&2
    exit 2
fi
scripts/setup.sh dpkg-dev lintian desktop-file-utils appstream binutils util-linux
BUILD_DIR=${BUILD_DIR:-build-package}

# Debian's own hardening (stack protector, fortified calls, read-only relocations, immediate
# binding), without debug information: the package ships stripped programs.
export DEB_BUILD_MAINT_OPTIONS=hardening=+all DEB_CXXFLAGS_MAINT_STRIP=-g
cxxflags="$(dpkg-buildflags --get CPPFLAGS) $(dpkg-buildflags --get CXXFLAGS)"
ldflags=$(dpkg-buildflags --get LDFLAGS)
BUILD_DIR=$BUILD_DIR scripts/build.sh -DCMAKE_BUILD_TYPE=Release -DDUSTLARK_TESTS=OFF \
    -DDUSTLARK_PACKAGE_TEST=ON "-DCMAKE_CXX_FLAGS=$cxxflags" "-DCMAKE_EXE_LINKER_FLAGS=$ldflags"

(cd "$BUILD_DIR" && cpack -G DEB)
version=$(sed -n 's/^CMAKE_PROJECT_VERSION:STATIC=//p' "$BUILD_DIR/CMakeCache.txt")
deb="$BUILD_DIR/dustlark_${version}_$(dpkg --print-architecture).deb"
dpkg-deb --info "$deb"
dpkg-deb --contents "$deb"

# Informational tags are shown too, but only errors and warnings fail the package.
lintian --pedantic --display-info --fail-on error,warning "$deb"
desktop-file-validate resources/linux/app.dustlark.Dustlark.desktop
appstreamcli validate --no-net "$BUILD_DIR/linux/app.dustlark.Dustlark.metainfo.xml"
ctest --test-dir "$BUILD_DIR" -L package --output-on-failure
echo "Made $deb"
