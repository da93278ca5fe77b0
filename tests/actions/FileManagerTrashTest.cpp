#include "machinery/Descriptor.h"
#include "actions/FreedesktopTrash.h"
#include "actions/SystemTrash.h"
#include "platform/Platform.h"
#include "support/FileLook.h"
#include "support/TempTree.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>

#include <gtest/gtest.h>

// The macOS move to the Trash runs here on Qt's own trash call, with the Trash folder refusing
// to be opened as ~/.Trash does for an app without Full Disk Access.
namespace {

class FileManagerTrash : public ::testing::Test {
protected:
    void SetUp() override
    {
        if (Platform::desktop() != Platform::Desktop::freedesktop)
            GTEST_SKIP() << "Qt's trash call would fill the person's own Trash on macOS";
        QDir(FreedesktopTrash::homeTrash()).removeRecursively();
        calls.openFolder = [this](const QByteArray& path) {
            if (QFile::decodeName(path).startsWith(FreedesktopTrash::homeTrash())) {
                refusedOpens.append(QFile::decodeName(path));
                errno = EPERM;
                return -1;
            }
            return SystemTrash::FileManagerCalls::openFolderFollowingLinks(path);
        };
    }

    // The request the remover would make for `path`, its folder held open.
    TrashRequest request(const QString& path)
    {
        folder.reset(::open(QFile::encodeName(QFileInfo(path).path()).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
        const std::optional<FileTarget> object = FileTarget::make(path);
        EXPECT_TRUE(object.has_value());
        return {path, folder.get(), QFile::encodeName(QFileInfo(path).fileName()), object.value_or(FileTarget {})};
    }

    TempTree home;
    Descriptor folder;
    SystemTrash::FileManagerCalls calls;
    QStringList refusedOpens;
};

TEST_F(FileManagerTrash, ConfirmsTheArrivalWithoutOpeningTheTrash)
{
    const QString path = home.file(QStringLiteral("Library/Caches/tool/cache.db"), QByteArray("cached"));

    const TrashResult result = SystemTrash::moveThroughFileManager(request(path), calls);

    ASSERT_TRUE(result.moved()) << qPrintable(result.error);
    EXPECT_FALSE(result.wrongObject);
    EXPECT_TRUE(result.pathInTrash->startsWith(FreedesktopTrash::homeTrash())) << qPrintable(*result.pathInTrash);
    EXPECT_EQ(contentOf(*result.pathInTrash), QByteArray("cached"));
    EXPECT_FALSE(QFileInfo::exists(path));
    EXPECT_TRUE(refusedOpens.isEmpty()) << qPrintable(refusedOpens.join(QLatin1Char(' ')));
}

TEST_F(FileManagerTrash, MovesBackAnObjectSwappedInBeforeTheCallWithoutOpeningTheTrash)
{
    const QString path = home.file(QStringLiteral("Downloads/setup.dmg"), QByteArray("scanned"));
    const TrashRequest checked = request(path);
    calls.trash = [&](const QString& named) {
        QFile::rename(named, named + QStringLiteral(".scanned"));
        home.file(QStringLiteral("Downloads/setup.dmg"), QByteArray("someone else's"));
        return SystemTrash::FileManagerCalls::trashThroughQt(named);
    };

    const TrashResult result = SystemTrash::moveThroughFileManager(checked, calls);

    EXPECT_TRUE(result.wrongObject);
    EXPECT_FALSE(result.moved());
    EXPECT_EQ(contentOf(path), QByteArray("someone else's"));
    EXPECT_EQ(contentOf(path + QStringLiteral(".scanned")), QByteArray("scanned"));
    EXPECT_TRUE(QDir(FreedesktopTrash::homeTrash() + QStringLiteral("/files")).isEmpty());
}

TEST_F(FileManagerTrash, AsksForFinderOnlyWhenTheMoveItselfLackedPermission)
{
    const QString path = home.file(QStringLiteral("Applications/Tool.app/Contents/Info.plist"), 10);
    const QString bundle = QFileInfo(path).path().chopped(QStringLiteral("/Contents").size());
    QString error;
    calls.trash = [&](const QString&) { return SystemTrash::FileManagerAnswer{std::nullopt, error}; };

    // Qt hands on errno texts, and Cocoa's codes as if they were errnos.
    for (const int code : {EACCES, EPERM, 513}) {
        error = qt_error_string(code);
        const TrashResult result = SystemTrash::moveThroughFileManager(request(bundle), calls);
        EXPECT_TRUE(result.permissionDenied) << code;
        EXPECT_EQ(result.error, error);
        EXPECT_FALSE(result.moved() || result.wrongObject) << code;
    }
    for (const int code : {ENOSPC, EROFS, EBUSY, 640}) {
        error = qt_error_string(code);
        EXPECT_FALSE(SystemTrash::moveThroughFileManager(request(bundle), calls).permissionDenied) << code;
    }
    EXPECT_TRUE(QFileInfo::exists(path));
}

}  // namespace
