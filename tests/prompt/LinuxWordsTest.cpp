// The Linux edition speaks of its own computer: no text it shows names a Mac, macOS, Finder or
// the Mac's Library, while the macOS edition keeps its words.
#include "prompt/AIPrompt.h"
#include "scan/DockerScanner.h"
#include "scan/InstallersScanner.h"
#include "scan/LocationScanner.h"
#include "scan/OldDownloadsScanner.h"
#include "scan/ProjectScanner.h"
#include "scan/TemporaryScanner.h"

#include <QRegularExpression>

#include <gtest/gtest.h>

namespace {

constexpr auto linuxDesktop = Platform::Desktop::freedesktop;
constexpr auto macDesktop = Platform::Desktop::finder;

bool speaksOfAMac(const QString& text)
{
    static const QRegularExpression words(QStringLiteral(R"(\bMac\b|macOS|Finder|\bLibrary\b|Apple system)"));
    return text.contains(words);
}

CleanupItem rowOf(CategoryID category)
{
    CleanupItem item;
    item.id = QStringLiteral("/home/a/thing");
    item.category = category;
    item.title = QStringLiteral("thing");
    item.detail = QStringLiteral("last changed 3 months ago");
    item.size = 5'000'000;
    FileTarget target;
    target.path = item.id;
    item.removal = Removal::trash({target});
    return item;
}

// The sentences scanners add above a list, for the given system.
QStringList scannerNotes(Platform::Desktop desktop)
{
    return {OldDownloadsScanner::unreadableNote(desktop), InstallersScanner::unreadableNote(desktop),
            LocationScanner::unreadableNote(desktop),     ProjectScanner::unreadableNote(3, desktop),
            DockerScanner::remoteNote(desktop),           TemporaryScanner::summary(desktop)};
}

}  // namespace

TEST(LinuxWords, NoExplanationNoteOrQuestionOnLinuxSpeaksOfAMac)
{
    PromptContext context;
    context.machine = Platform::machineDescription();
    context.desktop = linuxDesktop;
    for (CategoryID category : Categories::allCases()) {
        const QString explanation = Categories::explanation(category, linuxDesktop);
        EXPECT_FALSE(speaksOfAMac(explanation)) << explanation.toStdString();
        const QString single = AIPrompt::make(rowOf(category), context);
        EXPECT_FALSE(speaksOfAMac(single)) << single.toStdString();
        const QString batch = AIPrompt::makeBatch({rowOf(category), rowOf(category)}, category, context);
        EXPECT_FALSE(speaksOfAMac(batch)) << batch.toStdString();
    }
    for (const QString& note : scannerNotes(linuxDesktop))
        EXPECT_FALSE(speaksOfAMac(note)) << note.toStdString();

    const QStringList opening = AIPrompt::make(rowOf(CategoryID::projects), context).split(QLatin1Char('\n'));
    EXPECT_EQ(opening.first(), "I'm cleaning up my Linux computer with Dustlark and want to know whether it's safe to remove this item.");
    EXPECT_TRUE(opening.contains(QStringLiteral("Computer: ") + context.machine));
}

TEST(LinuxWords, TheMacEditionKeepsItsOwnWords)
{
    EXPECT_EQ(Categories::explanation(CategoryID::temporary, macDesktop),
              "Temporary files apps and tools left in /tmp and your macOS temp folder, plus your own temp folders "
              "(~/tmp, ~/temp). Only items where nothing changed for days are shown, so running builds and agent "
              "sessions stay out.");
    EXPECT_EQ(Categories::explanation(CategoryID::appCaches, macDesktop),
              "Temporary data apps keep to work faster. Apps recreate it; quit them before cleaning. Leave Apple "
              "system caches (com.apple.…) unless you know what they hold.");
    EXPECT_TRUE(Categories::explanation(CategoryID::aiAgents, macDesktop).startsWith("What AI coding agents keep on this Mac: "));
    EXPECT_TRUE(Categories::explanation(CategoryID::apps, macDesktop).endsWith("apps installed for all users may need Finder to remove."));
    EXPECT_EQ(scannerNotes(macDesktop),
              QStringList({"Downloads couldn't be read. Allow access when macOS asks.",
                           "Some folders couldn't be read. Allow access when macOS asks.",
                           "Some folders couldn't be read. Give Dustlark Full Disk Access in Settings to include them.",
                           "3 folders couldn't be read. Allow access when macOS asks, or give Dustlark Full Disk Access.",
                           "Docker is set to use another computer. Dustlark cleans only Docker on this Mac.",
                           "Shown: system temp items untouched for 3+ days (macOS also clears /tmp when it restarts) "
                           "and items in your own temp folders untouched for 30+ days."}));
}
