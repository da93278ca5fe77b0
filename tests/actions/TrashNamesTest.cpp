#include "actions/FreedesktopTrash.h"
#include "actions/Remover.h"
#include "actions/TrashFixture.h"
#include "actions/TrashInfo.h"
#include "vocabulary/RemovalReasons.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QStandardPaths>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#include <utime.h>

namespace {

class TrashNames : public TrashFixture {};

std::optional<struct stat> statusOf(const QByteArray& path)
{
    struct stat info {};
    if (::lstat(path.constData(), &info) != 0)
        return std::nullopt;
    return info;
}

QByteArray runTool(const QString& tool, const QStringList& arguments, const QByteArray& input = {})
{
    QProcess process;
    process.start(tool, arguments);
    process.write(input);
    process.closeWriteChannel();
    process.waitForFinished(60'000);
    return process.readAllStandardOutput();
}

// Names file managers must get back byte for byte: each goes to the Trash through us and comes
// back through trash-cli (Debian's freedesktop trash client), in a folder of its own so that
// trash-restore offers exactly one item.
TEST_F(TrashNames, TrashCliListsAndRestoresEveryNameExactly)
{
    const QString list = QStandardPaths::findExecutable(QStringLiteral("trash-list"));
    const QString restore = QStandardPaths::findExecutable(QStringLiteral("trash-restore"));
    if (list.isEmpty() || restore.isEmpty())
        GTEST_SKIP() << "trash-cli is not installed (scripts/setup.sh installs it)";
    const QList<QByteArray> names{"with space.txt", "new\nline.txt", "100%.txt", "%41%2F.txt",
                                  "\xc3\x9cnic\xc3\xb6" "de \xe2\x98\x83.txt", "-leading-dash.txt",
                                  QByteArray(236, 'l') + ".txt", QByteArray(255, 'm')};
    QList<struct stat> before;
    for (qsizetype i = 0; i < names.size(); ++i) {
        const QString folder = home.dir(QStringLiteral("n%1").arg(i));
        const QString path = folder + QLatin1Char('/') + QFile::decodeName(names[i]);
        home.file(QStringLiteral("n%1/").arg(i) + QFile::decodeName(names[i]), QByteArray("content ") + names[i]);
        ASSERT_EQ(::chmod(QFile::encodeName(path).constData(), 0640), 0);
        const utimbuf times{1'600'000'000, 1'600'000'000 + i};
        ASSERT_EQ(::utime(QFile::encodeName(path).constData(), &times), 0);
        before.append(*statusOf(QFile::encodeName(path)));
        ASSERT_EQ(Remover::remove(trashItem({path}), environment), RemovalOutcome::movedToTrash()) << names[i].constData();
    }

    const QByteArray listed = runTool(list, {});
    for (qsizetype i = 0; i < names.size(); ++i) {
        const QByteArray folder = QFile::encodeName(home.path(QStringLiteral("n%1").arg(i)));
        EXPECT_TRUE(listed.contains(folder + '/' + names[i] + '\n')) << names[i].constData() << "\n" << listed.constData();
        runTool(restore, {QFile::decodeName(folder)}, "0\n");
        const auto after = statusOf(folder + '/' + names[i]);
        ASSERT_TRUE(after.has_value()) << names[i].constData() << " was not restored";
        EXPECT_EQ(after->st_ino, before[i].st_ino);
        EXPECT_EQ(after->st_mode, before[i].st_mode);
        EXPECT_EQ(after->st_mtim.tv_sec, before[i].st_mtim.tv_sec);
    }
    EXPECT_TRUE(trashedNames().isEmpty());
}

TEST_F(TrashNames, LongNamesAreShortenedToFitTheInfoFileAndNumberedWhenTaken)
{
    const QByteArray accented = "\xc3\xa9";  // two bytes: a cut must not split it
    const QByteArray longName = QByteArray(244, 'a') + accented + "tail";
    EXPECT_EQ(TrashInfo::candidateName(longName, 1), QByteArray(244, 'a'));
    EXPECT_EQ(TrashInfo::candidateName(longName, 2), QByteArray(243, 'a') + ".2");
    EXPECT_EQ(TrashInfo::candidateName("short", 1), "short");
    EXPECT_EQ(TrashInfo::candidateName("short", 12), "short.12");

    for (int round = 0; round < 3; ++round) {
        const QString path = home.file(QFile::decodeName(longName), QByteArray::number(round));
        ASSERT_EQ(Remover::remove(trashItem({path}), environment), RemovalOutcome::movedToTrash());
    }
    QStringList expected{QFile::decodeName(QByteArray(244, 'a')), QFile::decodeName(QByteArray(243, 'a') + ".2"),
                         QFile::decodeName(QByteArray(243, 'a') + ".3")};
    QStringList trashed = trashedNames();
    trashed.sort();
    expected.sort();
    EXPECT_EQ(trashed, expected);
}

TEST_F(TrashNames, InfoFilesArePercentEncoded)
{
    const QByteArray text = TrashInfo::contents("/home/ann/100% new\nline/%41.txt", QDateTime(QDate(2024, 5, 6), QTime(7, 8, 9)));
    EXPECT_EQ(text, "[Trash Info]\nPath=/home/ann/100%25%20new%0Aline/%2541.txt\nDeletionDate=2024-05-06T07:08:09\n");
}

// A name that is not valid UTF-8 is shown with U+FFFD, which is also a real name of its own: the
// remover must not take the one for the other.
TEST_F(TrashNames, ANameThatIsNotValidTextIsRefusedNotConfusedWithItsLookalike)
{
    const QByteArray folder = QFile::encodeName(home.dir(QStringLiteral("names")));
    const QByteArray invalid = folder + "/caf\xff.txt";
    const QByteArray lookalike = folder + "/caf\xef\xbf\xbd.txt";  // the replacement character itself
    const int fd = ::open(invalid.constData(), O_CREAT | O_WRONLY, 0644);
    ASSERT_GE(fd, 0);
    ::close(fd);
    home.file(QStringLiteral("names/caf\uFFFD.txt"), 3);

    const CleanupItem item = trashItem({QFile::decodeName(invalid)});
    expectRefused(item, RemovalReasons::ambiguousName());
    EXPECT_TRUE(statusOf(invalid).has_value());
    EXPECT_TRUE(statusOf(lookalike).has_value());

    ASSERT_EQ(::unlink(invalid.constData()), 0);  // alone, the real U+FFFD name is just a name
    EXPECT_EQ(Remover::remove(trashItem({QFile::decodeName(lookalike)}), environment), RemovalOutcome::movedToTrash());
}

}  // namespace
