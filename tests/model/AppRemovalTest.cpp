#include "actions/Remover.h"
#include "scan/AppFixture.h"
#include "scan/AppsScanner.h"
#include "support/ModelFixture.h"
#include "support/Wait.h"

#include <QDirIterator>
#include <QFileInfo>
#include <QStandardPaths>

#include <gtest/gtest.h>

namespace {

QString trashFiles()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) + "/Trash/files";
}

// Every file and folder below `root`, relative to it.
QStringList everythingBelow(const QString& root)
{
    QStringList paths;
    QDirIterator entries(root, QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
                         QDirIterator::Subdirectories);
    while (entries.hasNext())
        paths.append(entries.next().mid(root.size()));
    paths.sort();
    return paths;
}

}  // namespace

TEST(AppRemoval, RemovingAnAppRowMovesTheBundleAndEveryListedPathAndNothingElse)
{
    QDir(trashFiles()).removeRecursively();
    AppFixture f;
    f.app("home/Applications/Foo.app", "com.foo.Foo");
    f.app("home/Applications/Foo Pro.app", "com.foo.FooPro");
    f.libraryFolder("Caches/com.foo.Foo");
    f.libraryFile("Preferences/com.foo.Foo.plist");
    f.libraryFolder("Containers/com.foo.Foo");
    f.libraryFile("LaunchAgents/com.foo.Foo.helper.plist");
    f.libraryFolder("Logs/Foo");                     // Foo Pro's name claims it too
    f.libraryFolder("Caches/com.foo.FooPro");        // the other app's
    f.libraryFolder("Application Support/com.foo");  // the vendor's
    AppsScanner scanner;
    scanner.folders = f.folders;
    scanner.codesign = std::nullopt;
    scanner.runningExecutables = [] { return QStringList(); };
    ScanContext context;
    context.home = f.home();
    const ScanOutputs outputs = scanner.scan(context);
    const CleanupItem* foo = nullptr;
    for (const CleanupItem& item : outputs.at(CategoryID::apps).items)
        foo = item.title == "Foo" ? &item : foo;
    ASSERT_TRUE(foo);
    const QStringList listed = foo->removal.paths();
    ASSERT_EQ(listed.size(), 5);
    const QStringList before = everythingBelow(f.home());

    ModelFixture fixture({}, f.home());
    AppModel& model = fixture.model();
    model.apply(outputs, false);
    model.setSelected(*foo, true);
    model.prepareCleanup();
    model.startCleanup();
    ASSERT_TRUE(waitUntil([&] { return model.cleanup() && model.cleanup()->phase() == CleanupSession::Phase::finished; }));
    EXPECT_TRUE(model.cleanup()->failures().isEmpty());

    QStringList expected = before;
    for (const QString& path : listed) {
        EXPECT_FALSE(QFileInfo::exists(path)) << qPrintable(path);
        const QString relative = path.mid(f.home().size());
        expected.removeIf([&](const QString& entry) { return entry == relative || entry.startsWith(relative + "/"); });
    }
    EXPECT_EQ(everythingBelow(f.home()), expected);
    // Two of the paths share a name, so the Trash's own naming decides what the second is called.
    const QStringList trashed = QDir(trashFiles()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot);
    EXPECT_EQ(trashed.size(), listed.size()) << qPrintable(trashed.join(", "));
    EXPECT_TRUE(QFileInfo(trashFiles() + "/Foo.app/Contents/Info.plist").isFile());
}
