#include "machinery/FileSizer.h"
#include "scan/AppFixture.h"
#include "scan/KnownLocations.h"
#include "scan/LocationScanner.h"
#include "support/TempTree.h"

#include <QFile>
#include <QLocale>
#include <QRegularExpression>

#include <gtest/gtest.h>
#include <unistd.h>

namespace {

using Naming = Location::Naming;

// A fixture home folder in a temporary tree and a context that scans it.
class LocationScannerTest : public ::testing::Test {
protected:
    LocationScannerTest() { context.home = tree.dir(QStringLiteral("home")); }

    QString home(const QString& relative) const { return context.home + QLatin1Char('/') + relative; }
    QString file(const QString& relative, qint64 size) const { return tree.file(QStringLiteral("home/") + relative, size); }

    QList<CleanupItem> scanned(CategoryID category, const QList<Location>& locations) const
    {
        return LocationScanner(category, locations).scan(context).at(category).items;
    }

    QStringList candidatePaths(const QList<Location>& locations) const
    {
        QStringList paths;
        for (const auto& candidate : LocationScanner::candidates(locations, context).list)
            paths.append(candidate.paths.join(QLatin1Char('|')).remove(context.home + QLatin1Char('/')));
        return paths;
    }

    TempTree tree;
    ScanContext context;
};

Location fixedAt(QStringList paths, const char* title)
{
    return Location{std::move(paths), Naming::fixed(QString::fromUtf8(title)), false, std::nullopt, {}};
}

Location perChildAt(const QString& path, Naming naming, std::optional<QString> detail = std::nullopt)
{
    return Location{{path}, std::move(naming), true, std::move(detail), {}};
}

}  // namespace

TEST(LocationNaming, TitlesFoundPathsByTheirNaming)
{
    const struct {
        const char* path;
        Naming naming;
        const char* title;
    } cases[] = {
        {"/h/.npm/_cacache", Naming::fixed(QStringLiteral("npm cache")), "npm cache"},
        {"/h/Library/Android/sdk/ndk/26.1.10909125", Naming::name(QStringLiteral("NDK ")), "NDK 26.1.10909125"},
        {"/h/Library/iTunes/iPhone Software Updates/iPhone15,2_17.4_Restore.ipsw", Naming::name(),
         "iPhone15,2_17.4_Restore.ipsw"},
        {"/h/Library/Developer/Xcode/iOS DeviceSupport/17.4 (21E219)", Naming::parentAndName(),
         "iOS DeviceSupport · 17.4 (21E219)"},
        {"/h/Library/Logs/com.nowhere.NotInstalled", Naming::appName(), "NotInstalled"},
        {"/h/DerivedData/App-abcdefghijklmnopqrstuvwxyzab", Naming::derivedData(), "App"},
        {"/h/DerivedData/My-App-abcdefghijklmnopqrst", Naming::derivedData(), "My-App"},  // "-" and 20: 21
        {"/h/DerivedData/My-App-abcdefghijklmnopqrs", Naming::derivedData(), "My-App-abcdefghijklmnopqrs"},
        {"/h/Archives/2024-01-15/Shop 15.01.24, 10.30.xcarchive", Naming::archive(), "Shop 15.01.24, 10.30"},
        {"/h/Archives/2024-01-15/NoExtension", Naming::archive(), "NoExtension"},
        {"/h/Library/Android/sdk/system-images/android-34/google_apis/arm64-v8a", Naming::systemImage(),
         "Android 34 · google_apis · arm64-v8a"},
        {"/h/.cache/huggingface/hub/models--org--model-name", Naming::huggingFace(), "org/model-name"},
        {"/h/.cache/huggingface/hub/datasets--org--set--v2", Naming::huggingFace(), "org/set/v2"},
        {"/h/.cache/huggingface/hub/version.txt", Naming::huggingFace(), "version.txt"},
    };
    for (const auto& c : cases)
        EXPECT_EQ(LocationScanner::title(QString::fromUtf8(c.path), c.naming).toStdString(), c.title);
}

TEST_F(LocationScannerTest, WildcardsMatchWithinOneComponentAndNeverHiddenNames)
{
    for (const char* folder : {"iOS DeviceSupport", "watchOS DeviceSupport", "DeviceSupport", "DeviceSupportOld",
                               ".Hidden DeviceSupport", "Archives/2024-01-15/Shop.xcarchive",
                               "Archives/2024-02-01/Shop.xcarchive", "Archives/.DS_Store"})
        tree.dir(QStringLiteral("home/Xcode/") + QString::fromUtf8(folder));
    tree.symlink(QStringLiteral("home/Xcode/Linked DeviceSupport"), QStringLiteral("/nowhere"));
    const QString xcode = home(QStringLiteral("Xcode"));

    EXPECT_EQ(LocationScanner::expand(xcode + QStringLiteral("/*DeviceSupport")),
              (QStringList{xcode + "/DeviceSupport", xcode + "/Linked DeviceSupport", xcode + "/iOS DeviceSupport",
                           xcode + "/watchOS DeviceSupport"}));
    EXPECT_EQ(LocationScanner::expand(xcode + QStringLiteral("/Archives/*/*.xcarchive")),
              (QStringList{xcode + "/Archives/2024-01-15/Shop.xcarchive", xcode + "/Archives/2024-02-01/Shop.xcarchive"}));
    EXPECT_EQ(LocationScanner::expand(xcode + QStringLiteral("/*OS*Support")),
              (QStringList{xcode + "/iOS DeviceSupport", xcode + "/watchOS DeviceSupport"}));
    EXPECT_TRUE(LocationScanner::expand(xcode + QStringLiteral("/Missing/*/x")).isEmpty());
    // Characters other than "*" mean themselves.
    EXPECT_TRUE(LocationScanner::expand(xcode + QStringLiteral("/iOS?DeviceSupport")).isEmpty());
}

TEST_F(LocationScannerTest, PerChildListsVisibleEntriesAndJoinedRowsTakeEveryMatch)
{
    for (const char* path : {".cargo/git/db/serde-1/pack", ".cargo/git/checkouts/serde-2/lib.rs",
                             ".gradle/wrapper/dists/gradle-8.5-bin/x.zip", ".gradle/wrapper/dists/gradle-7.6-all/x.zip",
                             ".gradle/wrapper/dists/.DS_Store", "Library/Caches/JetBrains/IntelliJIdea2024.1/index",
                             "Library/Caches/JetBrains/PyCharm2024.1/index"})
        file(path, 10);
    const QList<Location> locations = {
        perChildAt(QStringLiteral(".gradle/wrapper/dists"), Naming::name(QStringLiteral("Gradle wrapper · "))),
        fixedAt({QStringLiteral(".cargo/git/db"), QStringLiteral(".cargo/absent"), QStringLiteral(".cargo/git/checkouts")},
                "Cargo git dependencies"),
        Location{{QStringLiteral("Library/Caches/JetBrains/*")}, Naming::name(QStringLiteral("JetBrains cache · ")),
                 false, std::nullopt, {}},
        fixedAt({QStringLiteral("Library/Caches/Nothing")}, "Nothing"),
    };
    const auto found = LocationScanner::candidates(locations, context);
    EXPECT_EQ(candidatePaths(locations),
              (QStringList{".gradle/wrapper/dists/gradle-7.6-all", ".gradle/wrapper/dists/gradle-8.5-bin",
                           ".cargo/git/db|.cargo/git/checkouts",
                           "Library/Caches/JetBrains/IntelliJIdea2024.1|Library/Caches/JetBrains/PyCharm2024.1"}));
    ASSERT_EQ(found.list.size(), 4);
    EXPECT_EQ(found.list[0].title, QStringLiteral("Gradle wrapper · gradle-7.6-all"));
    EXPECT_EQ(found.list[3].title, QStringLiteral("JetBrains cache · IntelliJIdea2024.1"));  // the first match names it
}

TEST_F(LocationScannerTest, SafeListFoldersAreNotOffered)
{
    for (const char* path : {"Library/Logs/Kept/a.log", "Library/Logs/Offered/a.log", ".cargo/git/db/x", ".cargo/git/checkouts/x"})
        file(path, 10);
    context.safeFolders = {home(QStringLiteral("Library/Logs/Kept")), home(QStringLiteral(".cargo/git/checkouts"))};
    EXPECT_EQ(candidatePaths({perChildAt(QStringLiteral("Library/Logs"), Naming::appName()),
                              fixedAt({QStringLiteral(".cargo/git/db"), QStringLiteral(".cargo/git/checkouts")}, "Cargo")}),
              QStringList{"Library/Logs/Offered"});
}

TEST_F(LocationScannerTest, TwoArcCachesGiveTwoRowsBothTitledArc)
{
    file(QStringLiteral("Library/Caches/Arc/Cache_Data/data_1"), 2'000'000);
    file(QStringLiteral("Library/Caches/company.thebrowser.Browser/Cache_Data/data_1"), 2'000'000);
    const QList<CleanupItem> rows = scanned(CategoryID::browserCaches, KnownLocations::browsers());
    ASSERT_EQ(rows.size(), 2);
    EXPECT_EQ(rows[0].title + rows[1].title, QStringLiteral("ArcArc"));
    EXPECT_EQ(rows[1].removal.paths(), QStringList{home(QStringLiteral("Library/Caches/company.thebrowser.Browser"))});
}

TEST_F(LocationScannerTest, RowsSumTheirPathsAndKeepOnlyThoseThatStillExist)
{
    const QString db = file(QStringLiteral(".cargo/git/db/pack"), 700'000);
    file(QStringLiteral(".cargo/git/checkouts/lib.rs"), 700'000);
    const auto found = LocationScanner::candidates(KnownLocations::packageCaches(), context);
    ASSERT_EQ(found.list.size(), 1);
    const QList<CleanupItem> rows = LocationScanner::measure(found.list, CategoryID::packageCaches, context);
    ASSERT_EQ(rows.size(), 1);
    const CleanupItem& row = rows.first();
    EXPECT_EQ(row.size, FileSizer::measure(home(QStringLiteral(".cargo/git/db"))).bytes
                            + FileSizer::measure(home(QStringLiteral(".cargo/git/checkouts"))).bytes);
    EXPECT_EQ(row.removal.paths(), (QStringList{home(QStringLiteral(".cargo/git/db")), home(QStringLiteral(".cargo/git/checkouts"))}));
    EXPECT_GT(context.progress->snapshot().entries, 0);

    // The first folder vanishes between listing and measuring: the row keeps what is left.
    QFile::remove(db);
    ::rmdir(QFile::encodeName(home(QStringLiteral(".cargo/git/db"))).constData());
    tree.file(QStringLiteral("home/.cargo/git/checkouts/more"), 700'000);
    const QList<CleanupItem> after = LocationScanner::measure(found.list, CategoryID::packageCaches, context);
    ASSERT_EQ(after.size(), 1);
    EXPECT_EQ(after.first().removal.paths(), QStringList{home(QStringLiteral(".cargo/git/checkouts"))});
}

// Sizes are allocated bytes, so the file grows a block at a time until the folder crosses
// the line: the last size below it gives no row, the first above it gives one.
TEST_F(LocationScannerTest, RowsStartAboveNineHundredNinetyNineThousandNineHundredNinetyNineBytes)
{
    const QString folder = tree.dir(QStringLiteral("home/.npm/_cacache"));
    const QList<Location> npm = {fixedAt({QStringLiteral(".npm/_cacache")}, "npm cache")};
    qint64 length = 900'000;
    qint64 below = 0;
    for (;; length += 4096) {
        tree.file(QStringLiteral("home/.npm/_cacache/blob"), length);
        const qint64 measured = FileSizer::measure(folder).bytes;
        if (measured > LocationScanner::largestIgnoredSize)
            break;
        below = measured;
        EXPECT_TRUE(scanned(CategoryID::packageCaches, npm).isEmpty()) << measured;
    }
    ASSERT_GT(below, 990'000);
    const QList<CleanupItem> rows = scanned(CategoryID::packageCaches, npm);
    ASSERT_EQ(rows.size(), 1);
    EXPECT_GE(rows.first().size, 1'000'000);
    EXPECT_LT(rows.first().size, 1'020'000);
}

TEST_F(LocationScannerTest, DerivedDataDetailNamesTheProjectAndWhetherItStillExists)
{
    const QString live = tree.dir(QStringLiteral("home/Projects/Shop/Shop.xcodeproj"));
    const QString data = QStringLiteral("home/Library/Developer/Xcode/DerivedData/");
    tree.file(data + QStringLiteral("Shop-abcdefghijklmnopqrstuvwxyzab/info.plist"), plistXml({"WorkspacePath", live}));
    tree.file(data + QStringLiteral("Gone-bcdefghijklmnopqrstuvwxyzabc/info.plist"),
              plistXml({"WorkspacePath", home(QStringLiteral("Projects/Gone/Gone.xcworkspace"))}));
    tree.file(data + QStringLiteral("Elsewhere-cdefghijklmnopqrstuvwxyzabcd/info.plist"), plistXml({"WorkspacePath", QStringLiteral("/Volumes/Work/X.xcodeproj")}));
    tree.file(data + QStringLiteral("NoInfo-defghijklmnopqrstuvwxyzabcde/Build/x"), 10);
    tree.file(data + QStringLiteral("Broken-efghijklmnopqrstuvwxyzabcdef/info.plist"), QByteArray("<plist"));

    const auto found = LocationScanner::candidates({perChildAt(QStringLiteral("Library/Developer/Xcode/DerivedData"),
                                                               Naming::derivedData(), QStringLiteral("fallback"))},
                                                   context);
    QStringList details;
    for (const auto& candidate : found.list)
        details.append(candidate.title + QStringLiteral(": ") + candidate.detail);
    EXPECT_EQ(details, (QStringList{
        "Broken: fallback",
        "Elsewhere: /Volumes/Work/X.xcodeproj · project no longer exists",
        "Gone: ~/Projects/Gone/Gone.xcworkspace · project no longer exists",
        "NoInfo: fallback",
        "Shop: ~/Projects/Shop/Shop.xcodeproj"}));
}

TEST_F(LocationScannerTest, ArchiveDetailIsTheDayItWasArchived)
{
    const QLocale previous;
    QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
    const QString archive = tree.dir(QStringLiteral("home/Library/Developer/Xcode/Archives/2024-01-15/Shop 1.xcarchive"));
    const QString detail = LocationScanner::detail(archive, Naming::archive(), QStringLiteral("fallback"), context.home);
    QLocale::setDefault(previous);

    const QRegularExpression shape(QStringLiteral("^Archived ([A-Z][a-z]{2}) (\\d{1,2}), (\\d{4})$"));
    const auto match = shape.match(detail);
    ASSERT_TRUE(match.hasMatch()) << qPrintable(detail);
    const QDate today = QDate::currentDate();
    EXPECT_EQ(match.captured(3).toInt(), today.year());
    EXPECT_EQ(match.captured(2).toInt(), today.day());
    EXPECT_EQ(LocationScanner::detail(home(QStringLiteral("gone.xcarchive")), Naming::archive(), QStringLiteral("fallback"),
                                      context.home), QStringLiteral("fallback"));
}

TEST_F(LocationScannerTest, AStoppedScanOffersNothingHalfMeasured)
{
    file(QStringLiteral(".npm/_cacache/blob"), 2'000'000);
    context.cancellation.cancel();
    const ScanOutputs outputs = LocationScanner(CategoryID::packageCaches, KnownLocations::packageCaches()).scan(context);
    ASSERT_EQ(outputs.size(), 1u);
    EXPECT_TRUE(outputs.at(CategoryID::packageCaches).items.isEmpty());
}
