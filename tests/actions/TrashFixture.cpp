#include "actions/TrashFixture.h"

#include "actions/FreedesktopTrash.h"
#include "actions/Remover.h"
#include "platform/Platform.h"

#include <QDir>
#include <QFileInfo>

#include <sys/stat.h>

void TrashFixture::SetUp()
{
    if (Platform::desktop() != Platform::Desktop::freedesktop)
        GTEST_SKIP() << "these tests watch the freedesktop trash; elsewhere they would fill the person's own";
    QDir(FreedesktopTrash::homeTrash()).removeRecursively();
    environment = RemovalEnvironment::system(home.root(), {});
}

FileTarget TrashFixture::target(const QString& path) const
{
    const std::optional<FileTarget> made = FileTarget::make(path);
    EXPECT_TRUE(made.has_value()) << qPrintable(path);
    return made.value_or(FileTarget{});
}

CleanupItem TrashFixture::trashItem(const QStringList& paths) const
{
    QList<FileTarget> targets;
    for (const QString& path : paths)
        targets.append(target(path));
    CleanupItem item;
    item.id = paths.value(0);
    item.category = CategoryID::largeFiles;
    item.title = QFileInfo(paths.value(0)).fileName();
    item.removal = Removal::trash(targets);
    return item;
}

QString TrashFixture::trashFolder() const
{
    return FreedesktopTrash::homeTrash();
}

QStringList TrashFixture::trashedNames() const
{
    return QDir(trashFolder() + QStringLiteral("/files")).entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
}

void TrashFixture::expectRefused(const CleanupItem& item, const QString& reason) const
{
    const RemovalOutcome outcome = Remover::remove(item, environment);
    EXPECT_EQ(outcome, RemovalOutcome::failed(reason));
    EXPECT_TRUE(trashedNames().isEmpty()) << qPrintable(trashedNames().join(QLatin1Char(',')));
    for (const QString& path : item.removal.paths()) {
        struct stat info {};
        EXPECT_EQ(::lstat(QFile::encodeName(path).constData(), &info), 0) << qPrintable(path) << " is gone";
    }
}
