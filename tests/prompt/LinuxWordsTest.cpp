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

// The macOS edition keeps its own words: its texts name the Mac where the Linux ones name none.
TEST(LinuxWords, TheMacEditionKeepsItsOwnWords)
{
    for (CategoryID category : {CategoryID::temporary, CategoryID::appCaches, CategoryID::aiAgents, CategoryID::apps})
        EXPECT_TRUE(speaksOfAMac(Categories::explanation(category, macDesktop))) << Categories::rawValue(category).toStdString();
    const QStringList mac = scannerNotes(macDesktop);
    const QStringList onLinux = scannerNotes(linuxDesktop);
    for (qsizetype i = 0; i < mac.size(); ++i)
        EXPECT_NE(mac[i], onLinux[i]) << mac[i].toStdString();
}
