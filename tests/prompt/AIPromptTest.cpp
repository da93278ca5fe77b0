#include "prompt/AIPrompt.h"
#include "support/TempTree.h"

#include <gtest/gtest.h>

namespace {

PromptContext fixedContext()
{
    PromptContext context;
    context.machine = QStringLiteral("macOS 14.5 on Apple M2");
    context.home = QStringLiteral("/Users/a");
    context.locale = QLocale(QLocale::English, QLocale::UnitedKingdom);
    context.desktop = Platform::Desktop::finder;
    return context;
}

FileTarget target(const QString& path)
{
    FileTarget result;
    result.path = path;
    return result;
}

CleanupItem folderRow(const QString& path, qint64 size = 1000)
{
    CleanupItem item;
    item.id = path;
    item.category = CategoryID::projects;
    item.title = path.section(QLatin1Char('/'), -1);
    item.detail = QStringLiteral("app · 3 weeks old");
    item.size = size;
    item.removal = Removal::trash({target(path)});
    return item;
}

CleanupItem toolRow(const QString& id, Removal removal)
{
    CleanupItem item;
    item.id = id;
    item.category = CategoryID::docker;
    item.title = id;
    item.detail = QStringLiteral("unused");
    item.removal = std::move(removal);
    return item;
}

QStringList lines(const QString& text)
{
    return text.split(QLatin1Char('\n'));
}

}  // namespace

TEST(AIPrompt, SingleItemReadsInFullInItsDocumentedOrder)
{
    CleanupItem item = folderRow(QStringLiteral("/Users/a/code/app/node_modules"), 1'234'000'000);
    item.badge = QStringLiteral("npm");
    item.date = QDateTime(QDate(2024, 3, 5), QTime(14, 3));
    const LargestContents contents{{{QStringLiteral(".cache"), 700'000'000}, {QStringLiteral("react"), 20'000'000}}, 3};

    const QString expected =
        "I'm cleaning up my Mac with Dustlark and want to know whether it's safe to remove this item.\n"
        "\n"
        "Item: node_modules (npm)\n"
        "Dustlark category: " + Categories::title(CategoryID::projects) + ". " + Categories::explanation(CategoryID::projects, Platform::Desktop::finder) + "\n"
        "Dustlark's note: app · 3 weeks old\n"
        "Dustlark's safety hint: Safe\n"
        "Size on disk: 1.23 GB\n"
        "Last changed or used: Tuesday, 5 March 2024, 14:03\n"
        "How Dustlark would remove it: moves it to the Trash (it can be put back until the Trash is emptied)\n"
        "Paths:\n"
        "- /Users/a/code/app/node_modules\n"
        "Largest contents:\n"
        "- .cache: 700 MB\n"
        "- react: 20 MB\n"
        "- 3 more entries\n"
        "Mac: macOS 14.5 on Apple M2\n"
        "\n"
        "Please tell me:\n"
        "1. What this is and which app or tool uses it.\n"
        "2. What breaks or is lost if I remove it, and whether it comes back on its own.\n"
        "3. How I could restore it if I need it later.\n"
        "4. Your recommendation: remove, keep, or check something first (say exactly what to check).\n"
        "\n"
        "Answer in English.";
    EXPECT_EQ(AIPrompt::make(item, fixedContext(), contents), expected);
}

TEST(AIPrompt, OptionalLinesAppearOnlyWithTheirFacts)
{
    const CleanupItem plain = toolRow(QStringLiteral("docker:volume:cache"), Removal::docker({DockerOperation::Volume{"cache", {}}}));
    const QStringList text = lines(AIPrompt::make(plain, fixedContext()));
    EXPECT_TRUE(text.contains("Item: docker:volume:cache"));  // no tag, no parentheses
    for (const QString& line : text) {
        EXPECT_FALSE(line.startsWith("Last changed or used:")) << line.toStdString();
        EXPECT_FALSE(line.startsWith("Paths:")) << "a tool row has no paths";
        EXPECT_FALSE(line.startsWith("Largest contents:")) << "no listing was gathered";
    }

    PromptContext polish = fixedContext();
    polish.answerLanguage = QStringLiteral("Polish");
    EXPECT_EQ(lines(AIPrompt::make(plain, polish)).last(), "Answer in Polish.");
}

TEST(AIPrompt, EveryRemovalKindHasItsPhrase)
{
    const QString container = QStringLiteral("4f2a9c1be7d03355aa");
    const QString image = QStringLiteral("sha256:0123456789abcdef0123456789abcdef");
    const std::vector<std::pair<Removal, QString>> cases = {
        {Removal::trash({}), "moves it to the Trash (it can be put back until the Trash is emptied)"},
        {Removal::docker({DockerOperation::Container{container}}), "runs `docker rm 4f2a9c1be7d0` (permanent)"},
        {Removal::docker({DockerOperation::Image{image, {}, {"web:latest"}}}), "runs `docker rmi 0123456789ab` (permanent)"},
        {Removal::docker({DockerOperation::Image{"0123456789abcdef", {"c1", "c2"}, {}}}),
         "runs `docker rmi 0123456789ab` after `docker rm` of 2 stopped containers (permanent)"},
        {Removal::docker({DockerOperation::Volume{"pgdata", "2024-01-01"}}), "runs `docker volume rm pgdata` (permanent)"},
        {Removal::docker({DockerOperation::BuildCache{}}), "runs `docker builder prune --all --force` (permanent)"},
        {{Removal::SimulatorDevice{"5A1B-77", std::nullopt}}, "runs `xcrun simctl delete 5A1B-77` (permanent)"},
        {{Removal::SimulatorRuntime{"com.apple.CoreSimulator.SimRuntime.iOS-17-2"}},
         "runs `xcrun simctl runtime delete com.apple.CoreSimulator.SimRuntime.iOS-17-2` (permanent)"},
        {{Removal::EmptyTrash{}}, "empties the Trash (permanent)"},
    };
    for (const auto& [removal, phrase] : cases)
        EXPECT_EQ(AIPrompt::removalDescription(removal), phrase);
}

TEST(AIPrompt, BatchListsAtMost150ItemsAndCountsTheRest)
{
    QList<CleanupItem> items;
    for (int index = 1; index <= 151; ++index)
        items.append(folderRow(QStringLiteral("/Users/a/p%1/build").arg(index), 2'000'000));
    items[1].removal.value = Removal::Trash{{target("/Users/a/p2/build"), target("/Users/a/p2/out")}};

    const QStringList text = lines(AIPrompt::makeBatch(items, CategoryID::projects, fixedContext()));
    EXPECT_EQ(text.first(), "I'm cleaning up my Mac with Dustlark. For each item below, tell me whether it's safe to remove.");
    EXPECT_EQ(text.at(2), "Mac: macOS 14.5 on Apple M2");
    EXPECT_EQ(text.at(3), "Removal: everything goes to the Trash (it can be put back until the Trash is emptied).");
    EXPECT_TRUE(text.contains("1. build — app · 3 weeks old — 2 MB — /Users/a/p1/build"));
    EXPECT_TRUE(text.contains("2. build — app · 3 weeks old — 2 MB — /Users/a/p2/build; /Users/a/p2/out"));
    EXPECT_TRUE(text.contains("150. build — app · 3 weeks old — 2 MB — /Users/a/p150/build"));
    EXPECT_FALSE(text.join('\n').contains("/Users/a/p151/"));
    EXPECT_TRUE(text.contains("(1 more not listed)"));
    EXPECT_TRUE(text.at(text.size() - 3).startsWith("Answer as a table: number, item, verdict (Remove / Keep / Check)"));
    EXPECT_EQ(text.last(), "Answer in English.");
}

TEST(AIPrompt, BatchWithAToolRemovalSaysSomeArePermanentAndListsAllOfAShortList)
{
    const QList<CleanupItem> items = {folderRow("/Users/a/x"), toolRow("docker:buildcache", Removal::docker({DockerOperation::BuildCache{}}))};
    const QString text = AIPrompt::makeBatch(items, CategoryID::docker, fixedContext());
    EXPECT_TRUE(lines(text).contains("Removal: some items are removed permanently by their tool."));
    EXPECT_TRUE(lines(text).contains("2. docker:buildcache — unused — Zero KB"));
    EXPECT_FALSE(text.contains("more not listed"));
}

TEST(LargestContents, ListsTheBiggestEntriesOfARealFolderAndCountsTheRest)
{
    TempTree tree;
    tree.file("node_modules/big.bin", 400'000);
    tree.file("node_modules/pkg/a.js", 200'000);
    tree.file("node_modules/pkg/b.js", 100'000);
    tree.file("node_modules/small.txt", 10);
    tree.dir("node_modules/empty");

    const CleanupItem item = folderRow(tree.path("node_modules"));
    const auto contents = LargestContents::of(item, 2);
    ASSERT_TRUE(contents);
    ASSERT_EQ(contents->entries.size(), 2);
    EXPECT_EQ(contents->entries[0].name, "big.bin");
    EXPECT_EQ(contents->entries[1].name, "pkg");  // a folder counts with everything inside
    EXPECT_GT(contents->entries[1].bytes, 300'000);
    EXPECT_EQ(contents->moreEntries, 2);
}

TEST(LargestContents, OnlyARowOfOneRealFolderIsListed)
{
    TempTree tree;
    const QString file = tree.file("notes.txt", 10);
    tree.dir("folder");
    const QString link = tree.symlink("link", tree.path("folder"));

    EXPECT_FALSE(LargestContents::of(folderRow(file)));
    EXPECT_FALSE(LargestContents::of(folderRow(link))) << "a link to a folder is not the folder";
    EXPECT_FALSE(LargestContents::of(toolRow("docker:buildcache", Removal::docker({DockerOperation::BuildCache{}}))));
    const auto empty = LargestContents::of(folderRow(tree.path("folder")));
    ASSERT_TRUE(empty);
    EXPECT_TRUE(empty->entries.isEmpty());
}

TEST(PromptContext, NamesThePreferredLanguageOnlyWhenTheInterfaceHasNoTranslationForIt)
{
    const QList<AppLanguage::Option> offered = {{"", "System Language"}, {"de", "Deutsch"}};
    EXPECT_EQ(PromptContext::uncarriedLanguage(QLocale("pl-PL"), "pl-PL", offered), "Polish");
    EXPECT_EQ(PromptContext::uncarriedLanguage(QLocale("de-AT"), "de-AT", offered), std::nullopt);
    EXPECT_EQ(PromptContext::uncarriedLanguage(QLocale("en-US"), "en-US", offered), std::nullopt);
    EXPECT_EQ(PromptContext::uncarriedLanguage(QLocale("de"), "pl-PL", offered), std::nullopt) << "a chosen language answers itself";
    EXPECT_EQ(PromptContext::uncarriedLanguage(QLocale("en"), "pl-PL", offered), std::nullopt) << "English chosen over Polish";
}
