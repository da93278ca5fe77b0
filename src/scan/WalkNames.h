#pragma once

#include "platform/Platform.h"

#include <algorithm>
#include <array>
#include <string_view>

// The fixed name tables of the scan-folder walk, compared as the bytes the traversal gives.
namespace WalkNames {

using namespace std::string_view_literals;

// Never entered wherever they are: git's own data and the system's volume bookkeeping.
inline constexpr std::array neverEntered = {".git"sv, ".Trash"sv, ".Spotlight-V100"sv, ".fseventsd"sv};

// Folders with these extensions (compared lowercased) are documents, not folders to search.
inline constexpr std::array packageExtensions = {
    "app"sv, "photoslibrary"sv, "musiclibrary"sv, "tvlibrary"sv, "imovielibrary"sv,
    "fcpbundle"sv, "logicx"sv, "band"sv, "framework"sv, "bundle"sv, "plugin"sv, "kext"sv,
    "xcarchive"sv, "pvm"sv, "vmwarevm"sv, "utm"sv, "sparsebundle"sv, "photolibrary"sv,
    "aplibrary"sv, "migratedphotolibrary"sv,
};

// Tool and system folders directly in the home folder; other scanners own what is in them.
inline constexpr std::array skippedHomeFolders = {
    "Library"sv, ".Trash"sv, ".npm"sv, ".cache"sv, ".gradle"sv, ".cargo"sv, ".rustup"sv,
    ".m2"sv, ".bun"sv, ".nvm"sv, ".pyenv"sv, ".rbenv"sv, ".local"sv, ".vscode"sv, ".cursor"sv,
    ".windsurf"sv, ".docker"sv, ".android"sv, ".cocoapods"sv, ".swiftpm"sv, ".yarn"sv,
    ".pnpm-store"sv, ".deno"sv, ".volta"sv, ".fnm"sv, ".asdf"sv, ".sdkman"sv, ".gem"sv,
    ".conda"sv, ".oh-my-zsh"sv, ".colima"sv, ".lima"sv, ".orbstack"sv, ".expo"sv,
    ".node-gyp"sv, ".dartServer"sv, ".pub-cache"sv, ".gk"sv, ".kube"sv, ".ssh"sv, ".gnupg"sv,
    ".aws"sv, ".config"sv, "Applications"sv,
};

// Names a project's tools give their output folders; each still needs its proof.
inline constexpr std::array buildFolders = {
    "node_modules"sv, ".next"sv, ".nuxt"sv, ".svelte-kit"sv, ".turbo"sv, ".parcel-cache"sv,
    ".angular"sv, ".build"sv, "build"sv, ".gradle"sv, "target"sv, "Pods"sv, ".dart_tool"sv,
    ".venv"sv, "venv"sv,
};

// Listed by the Installers category instead of Large Files (compared lowercased); on Linux the
// distributions' packages and the self-contained app formats too.
inline constexpr std::array installerExtensions = {"dmg"sv, "pkg"sv, "mpkg"sv, "xip"sv};
inline constexpr std::array linuxInstallerExtensions = {"deb"sv, "rpm"sv, "appimage"sv, "flatpakref"sv};

template <size_t N>
constexpr bool contains(const std::array<std::string_view, N>& table, std::string_view name)
{
    return std::find(table.begin(), table.end(), name) != table.end();
}

// `extension` lowercased, without its dot.
inline bool isInstallerExtension(std::string_view extension, Platform::Desktop desktop = Platform::desktop())
{
    return contains(installerExtensions, extension)
        || (desktop == Platform::Desktop::freedesktop && contains(linuxInstallerExtensions, extension));
}

}  // namespace WalkNames
