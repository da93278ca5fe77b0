#include "actions/MoverFixture.h"

#include <QCryptographicHash>
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <sys/stat.h>
#include <unistd.h>

namespace {

const char* const destinationVariable = "DUSTLARK_MOVE_DESTINATION";

dev_t deviceOf(const QString& path)
{
    struct stat info {};
    ::stat(QFile::encodeName(path).constData(), &info);
    return info.st_dev;
}

}  // namespace

void MoverFixture::SetUp()
{
    TrashFixture::SetUp();
    if (IsSkipped())
        return;
    const QString disk = qEnvironmentVariable(destinationVariable, QStringLiteral("/dev/shm"));
    m_destinationDir = std::make_unique<QTemporaryDir>(disk + QStringLiteral("/dustlark-move-XXXXXX"));
    // A read-only disk takes no folder of its own for the test; it is the destination itself.
    destination = m_destinationDir->isValid() ? m_destinationDir->path() : disk;
    if (!QFileInfo(destination).isDir())
        GTEST_SKIP() << qPrintable(disk) << ", the second file system these tests move to, is missing";
    if (deviceOf(destination) == deviceOf(home.root()))
        GTEST_SKIP() << "/dev/shm is on the same file system as the temporary folder here";
    moveEnvironment = Mover::Environment::system(home.root(), {});
    moveEnvironment.removal = environment;
}

QString MoverFixture::makeProject(const QString& relative) const
{
    home.file(relative + QStringLiteral("/readme.md"), QByteArray("# notes\n"));
    home.file(relative + QStringLiteral("/src/main.cpp"), 70'000, 'm');
    home.file(relative + QStringLiteral("/src/Ünïcode näme.txt"), QByteArray("accents"));
    home.dir(relative + QStringLiteral("/empty"));
    home.symlink(relative + QStringLiteral("/link"), QStringLiteral("src/main.cpp"));
    home.hardlink(relative + QStringLiteral("/src/again.cpp"), relative + QStringLiteral("/src/main.cpp"));
    home.setTimes(relative + QStringLiteral("/readme.md"), 1'500'000'000);
    return home.path(relative);
}

QMap<QString, QByteArray> MoverFixture::snapshot(const QString& path)
{
    QMap<QString, QByteArray> entries;
    auto describe = [&](const QFileInfo& info) {
        const QString relative = info.absoluteFilePath().mid(path.size());
        if (info.isSymLink()) {
            char target[4096];
            const ssize_t length = ::readlink(QFile::encodeName(info.absoluteFilePath()).constData(), target, sizeof target);
            entries[relative] = "link " + QByteArray(target, int(std::max<ssize_t>(length, 0)));
        }
        else if (info.isDir())
            entries[relative] = "folder";
        else {
            QFile file(info.absoluteFilePath());
            // A digest keeps a failure's message short; any changed byte still shows.
            entries[relative] = file.open(QIODevice::ReadOnly)
                ? QCryptographicHash::hash(file.readAll(), QCryptographicHash::Sha256).toHex().left(16)
                : QByteArray("unreadable");
        }
    };
    if (!QFileInfo::exists(path) && !QFileInfo(path).isSymLink())
        return entries;
    describe(QFileInfo(path));
    QDirIterator it(path, QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
                    QDirIterator::Subdirectories);
    while (it.hasNext()) {
        it.next();
        describe(it.fileInfo());
    }
    return entries;
}

QStringList MoverFixture::destinationNames() const
{
    return QDir(destination).entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
}

Mover::Outcome MoverFixture::moveItem(const CleanupItem& item, const Mover::Progress& progress) const
{
    return Mover::move(item, destination, progress, moveEnvironment);
}

void MoverFixture::expectUntouched(const CleanupItem& item, const QString& reason, const Mover::Progress& progress) const
{
    QList<QMap<QString, QByteArray>> before;
    for (const QString& path : item.removal.paths())
        before.append(snapshot(path));
    const QStringList namesBefore = destinationNames();

    EXPECT_EQ(moveItem(item, progress), Mover::Outcome::failed(reason));

    for (qsizetype i = 0; i < before.size(); ++i)
        EXPECT_EQ(snapshot(item.removal.paths()[i]), before[i]) << "the original changed";
    EXPECT_EQ(destinationNames(), namesBefore) << "the destination changed";
    EXPECT_TRUE(trashedNames().isEmpty());
}

Mover::CopyTool MoverFixture::scriptTool(const QString& script)
{
    return {QStringLiteral("/bin/sh"), {QStringLiteral("-c"), script, QStringLiteral("copy")}, std::chrono::minutes(1), {}};
}
