#include "WalkFixture.h"

#include <QFile>

#include <sys/stat.h>
#include <unistd.h>

namespace {

struct ProofCase {
    const char* folder;  // the build folder, relative to "scan"
    const char* marker;  // created relative to "scan"; nullptr for none
    bool proven;
};

const ProofCase proofCases[] = {
    {"web/node_modules", "web/package.json", true},
    {"next/.next", "next/package.json", true},
    {"angular/.angular", "angular/package.json", true},
    {"swift/.build", "swift/Package.swift", true},
    {"gradle1/.gradle", "gradle1/build.gradle", true},
    {"gradle2/.gradle", "gradle2/settings.gradle.kts", true},
    {"android/build", "android/build.gradle.kts", true},
    {"android2/build", "android2/settings.gradle", true},
    {"flutter/build", "flutter/pubspec.yaml", true},
    {"rust/target", "rust/Cargo.toml", true},
    {"maven/target", "maven/pom.xml", true},
    {"ios/Pods", "ios/Podfile", true},
    {"dart/.dart_tool", "dart/pubspec.yaml", true},
    {"py/.venv", "py/.venv/pyvenv.cfg", true},
    {"py2/venv", "py2/venv/pyvenv.cfg", true},
    {"wrong/target", "wrong/package.json", false},
    {"cargo/build", "cargo/Cargo.toml", false},
    {"dist/dist", "dist/package.json", false},
    {"pods/Pods", "pods/Podfile.lock", false},
    {"plain/venv", "plain/pyvenv.cfg", false},
    {"lonely/target", nullptr, false},
};

}  // namespace

using WalkBuildFolders = WalkFixture;

TEST_F(WalkBuildFolders, EachNameNeedsItsOwnProof)
{
    QStringList expected;
    for (const ProofCase& row : proofCases) {
        tree.dir(QStringLiteral("scan/") + row.folder);
        if (row.marker)
            tree.file(QStringLiteral("scan/") + row.marker);
        if (row.proven)
            expected.append(QStringLiteral("scan/") + row.folder);
        const QString path = tree.path(QStringLiteral("scan/") + row.folder);
        EXPECT_EQ(Walk::isBuildFolder(path.section('/', -1), path, path.section('/', 0, -2)), row.proven)
            << row.folder;
    }
    expected.sort();
    EXPECT_EQ(artifacts(walked({"scan"})), expected);
}

TEST_F(WalkBuildFolders, ArtifactNamesItsProjectAndAMarkerMayBeADanglingLink)
{
    tree.symlink("scan/web/package.json", tree.path("nowhere"));
    tree.dir("scan/web/node_modules");
    const Walk walk = walked({"scan"});
    ASSERT_EQ(walk.artifacts().size(), 1);
    EXPECT_EQ(walk.artifacts().front(),
              (Artifact{tree.path("scan/web/node_modules"), "node_modules", tree.path("scan/web")}));
}

TEST_F(WalkBuildFolders, ProvenFoldersAndUnprovenNodeModulesAreNotEntered)
{
    tree.file("scan/rust/Cargo.toml");
    tree.sparseFile("scan/rust/target/big", 2'000'000);
    tree.sparseFile("scan/rust/target/nested/node_modules/x", 2'000'000);
    tree.sparseFile("scan/loose/node_modules/big", 2'000'000);
    tree.sparseFile("scan/loose/target/big", 2'000'000);
    tree.sparseFile("scan/loose/venv/big", 2'000'000);
    const Walk walk = walked({"scan"});
    EXPECT_EQ(candidates(walk), QStringList({"scan/loose/target/big", "scan/loose/venv/big"}));
    EXPECT_EQ(artifacts(walk), QStringList({"scan/rust/target"}));
}

TEST_F(WalkBuildFolders, XcodeBuildFolderNeedsAProjectAndXcodeOutput)
{
    tree.dir("scan/a/App.xcodeproj");
    tree.dir("scan/a/build/XCBuildData");
    tree.dir("scan/b/App.xcodeproj");
    tree.dir("scan/b/build/Release-iphoneos/App.app");
    tree.dir("scan/c/App.xcodeproj");
    tree.file("scan/c/build/notes.txt");
    tree.dir("scan/c/build/docs");
    tree.dir("scan/d/build/XCBuildData");
    const Walk walk = walked({"scan"});
    EXPECT_EQ(artifacts(walk), QStringList({"scan/a/build", "scan/b/build"}));
}

class XcodeOutput : public WalkFixture {
protected:
    bool proves(const QString& child) const { return Walk::provesXcodeOutput(child, tree.path("build")); }
    QString machO(const QString& relative, quint32 magic) const
    {
        const char bytes[] = {char(magic & 0xFF), char((magic >> 8) & 0xFF), char((magic >> 16) & 0xFF),
                              char((magic >> 24) & 0xFF), 0, 0};
        return tree.file(relative, QByteArray(bytes, sizeof bytes));
    }
};

TEST_F(XcodeOutput, FolderShapesThatOnlyXcodeMakes)
{
    tree.dir("build/App.build");
    tree.dir("build/Index.noindex");
    tree.dir("build/SharedPrecompiledHeaders");
    tree.dir("build/Intermediates/Build");
    tree.file("build/Intermediates/info.plist");
    tree.dir("build/Capital/Build");
    tree.file("build/Capital/Info.plist");
    tree.dir("build/Build/Products");
    tree.dir("build/DerivedData/ModuleCache.noindex");
    tree.dir("build/SourcePackages/checkouts");
    tree.dir("build/Lib.xcframework");
    tree.file("build/Lib.xcframework/Info.plist");
    tree.file("build/Other.xcframework/info.plist");
    tree.file("build/Debug/libcore.a");
    tree.dir("build/Symbols/App.app.dSYM");
    tree.dir("build/EmptyPackages/SourcePackages");
    tree.file("build/XCBuildData");
    tree.symlink("build/Linked.build", tree.path("build/App.build"));

    for (const char* yes : {"App.build", "Index.noindex", "SharedPrecompiledHeaders", "Intermediates", "Build",
                            "DerivedData", "SourcePackages", "Lib.xcframework", "Debug", "Symbols"})
        EXPECT_TRUE(proves(yes)) << yes;
    for (const char* no : {"Capital", "Other.xcframework", "EmptyPackages", "XCBuildData", "Linked.build", "missing"})
        EXPECT_FALSE(proves(no)) << no;
}

TEST_F(XcodeOutput, BareExecutablesMustBeMachO)
{
    machO("build/Release/tool", 0xFEEDFACF);
    machO("build/Script/tool.sh", 0xFEEDFACF);
    tree.file("build/Text/tool", QByteArray("#!/bin/sh\n"));
    EXPECT_TRUE(proves("Release"));
    EXPECT_FALSE(proves("Script")) << "a name with a \".\" is not taken for an executable";
    EXPECT_FALSE(proves("Text"));
}

TEST_F(XcodeOutput, MachOMagicNumbers)
{
    for (quint32 magic : {0xFEEDFACFu, 0xFEEDFACEu, 0xCFFAEDFEu, 0xCEFAEDFEu, 0xCAFEBABEu, 0xBEBAFECAu, 0xCAFEBABFu,
                          0xBFBAFECAu})
        EXPECT_TRUE(Walk::isMachO(machO(QStringLiteral("bin/%1").arg(magic, 0, 16), magic))) << std::hex << magic;
    EXPECT_FALSE(Walk::isMachO(machO("bin/elf", 0x464C457F)));
    EXPECT_FALSE(Walk::isMachO(tree.file("bin/short", QByteArray("\xCF\xFA\xED", 3))));
    EXPECT_FALSE(Walk::isMachO(tree.symlink("bin/link", tree.path("bin/feedfacf"))));
    EXPECT_FALSE(Walk::isMachO(tree.dir("bin/folder")));
    EXPECT_FALSE(Walk::isMachO(tree.path("bin/missing")));
    const QString fifo = tree.path("bin/fifo");
    ASSERT_EQ(::mkfifo(QFile::encodeName(fifo).constData(), 0600), 0);
    EXPECT_FALSE(Walk::isMachO(fifo)) << "a pipe is refused without blocking";
}
