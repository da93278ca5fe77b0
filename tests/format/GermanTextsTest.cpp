// The German catalogue at work: counted texts at one and at three, sentences with their
// placeholders filled, and sizes and dates in German style. Each test installs German for
// itself and puts English back (InterfaceLanguage).
#include "format/ByteCount.h"
#include "format/RelativeDate.h"
#include "support/InterfaceLanguage.h"

#include <QCoreApplication>

#include <gtest/gtest.h>

namespace {

QString counted(const char* context, const char* source, int n)
{
    return QCoreApplication::translate(context, source, nullptr, n);
}

}  // namespace

TEST(GermanTexts, CountedTextsTakeTheirSingularAndPlural)
{
    InterfaceLanguage german(QStringLiteral("de"));
    ASSERT_TRUE(german.installed());
    EXPECT_EQ(counted("CleanupConfirmation", "Move %n items to the Trash?", 1), "1 Objekt in den Papierkorb legen?");
    EXPECT_EQ(counted("CleanupConfirmation", "Move %n items to the Trash?", 3), "3 Objekte in den Papierkorb legen?");
    EXPECT_EQ(counted("WorktreeFinder", "%n files not committed", 1), "1 Datei nicht committet");
    EXPECT_EQ(counted("WorktreeFinder", "%n files not committed", 3), "3 Dateien nicht committet");
    EXPECT_EQ(counted("CleanupResults", "%n items couldn't be removed", 1), "1 Objekt konnte nicht entfernt werden");
    EXPECT_EQ(counted("CleanupResults", "%n items couldn't be removed", 3), "3 Objekte konnten nicht entfernt werden");
    EXPECT_EQ(counted("SelectionBar", "%1 in %n items", 3).arg(ByteCount::format(1'200'000'000)), "1,2 GB in 3 Objekten");
    EXPECT_EQ(counted("MainWindow", "Scanning… %Ln items", 1234), "Scannen … 1.234 Objekte") << "%Ln groups digits the German way";
}

TEST(GermanTexts, SentencesKeepTheirPlaceholders)
{
    InterfaceLanguage german(QStringLiteral("de"));
    ASSERT_TRUE(german.installed());
    EXPECT_EQ(QCoreApplication::translate("Mover", "Not enough space on that disk: %1 needed, %2 free.")
                  .arg(ByteCount::format(12'000'000'000), ByteCount::format(1'500'000'000)),
              "Nicht genug Platz auf diesem Laufwerk: 12 GB nötig, 1,5 GB frei.");
    EXPECT_EQ(QCoreApplication::translate("CleanupConfirmation", "Move “%1” to the Trash?").arg("Bericht.pdf"),
              "„Bericht.pdf“ in den Papierkorb legen?");
    EXPECT_EQ(QCoreApplication::translate("MoveProgressPage", "%1 of %2")
                  .arg(ByteCount::format(1'250'000), ByteCount::format(4'500'000'000)),
              "1,3 MB von 4,5 GB");
    EXPECT_EQ(QCoreApplication::translate("CategoryID", "Trash"), "Papierkorb");
}

TEST(GermanTexts, SizesAndDatesFollowTheLanguageAndEnglishComesBack)
{
    const QDateTime now(QDate(2026, 5, 20), QTime(12, 0));
    {
        InterfaceLanguage german(QStringLiteral("de"));
        ASSERT_TRUE(german.installed());
        EXPECT_EQ(ByteCount::format(0), "Null KB");
        EXPECT_EQ(ByteCount::format(1), "1 Byte");
        EXPECT_EQ(ByteCount::format(1'234'000'000), "1,23 GB");
        EXPECT_EQ(RelativeDate::format(now.addMonths(-3), now), "vor 3 Monaten");
        EXPECT_EQ(RelativeDate::format(now.addDays(-1), now), "gestern");
        EXPECT_EQ(RelativeDate::format(now.addSecs(-60), now), "vor 1 Minute");
        EXPECT_EQ(RelativeDate::expand("geändert " + RelativeDate::marker(now.addYears(-2)), now), "geändert vor 2 Jahren");
    }
    EXPECT_EQ(ByteCount::format(1'234'000'000), "1.23 GB");
    EXPECT_EQ(RelativeDate::format(now.addMonths(-3), now), "3 months ago");
}
