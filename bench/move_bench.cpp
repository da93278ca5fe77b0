// Benchmark helper for moving to another disk (see move_bench.sh and docs/benchmarks.md).
//   move_bench generate DIR        a folder of about 2 GB of mixed files
//   move_bench move SOURCE DEST    Mover::move of SOURCE into DEST, the original to the Trash
#include "actions/Mover.h"
#include "vocabulary/FileTarget.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRandomGenerator>

#include <cstdio>

namespace {

void writeFile(const QString& path, qint64 size, QRandomGenerator& random)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        return;
    QByteArray block(1 << 20, Qt::Uninitialized);
    for (qint64 written = 0; written < size; written += block.size()) {
        random.fillRange(reinterpret_cast<quint32*>(block.data()), block.size() / 4);
        file.write(block.constData(), std::min<qint64>(block.size(), size - written));
    }
}

// 4 videos of 256 MB, 300 photos of 1.5 MB, 20,000 source files of 24 KB in 400 folders,
// and a link per folder: about 2.0 GB in 20,700 entries.
int generate(const QString& root)
{
    QRandomGenerator random(17);
    QDir().mkpath(root + "/videos");
    for (int i = 0; i < 4; ++i)
        writeFile(QString("%1/videos/clip-%2.mov").arg(root).arg(i), 256'000'000, random);
    QDir().mkpath(root + "/photos");
    for (int i = 0; i < 300; ++i)
        writeFile(QString("%1/photos/IMG_%2.heic").arg(root).arg(i), 1'500'000, random);
    for (int folder = 0; folder < 400; ++folder) {
        const QString dir = QString("%1/src/module-%2/lib").arg(root).arg(folder);
        QDir().mkpath(dir);
        for (int i = 0; i < 50; ++i)
            writeFile(QString("%1/file-%2.c").arg(dir).arg(i), 24'000, random);
        QFile::link("lib/file-0.c", QString("%1/src/module-%2/main.c").arg(root).arg(folder));
    }
    return 0;
}

int move(const QString& source, const QString& destination)
{
    const std::optional<FileTarget> target = FileTarget::make(source);
    if (!target)
        return 2;
    CleanupItem item;
    item.id = source;
    item.category = CategoryID::largeFiles;
    item.title = QFileInfo(source).fileName();
    item.removal = Removal::trash({*target});
    const Mover::Environment environment = Mover::Environment::system(QFileInfo(source).path(), {});
    const Mover::Outcome outcome = Mover::move(item, destination, {}, environment);
    std::printf("%s\n", qPrintable(outcome.succeeded() ? "moved to " + outcome.destination : outcome.reason));
    return outcome.succeeded() ? 0 : 1;
}

}  // namespace

int main(int argc, char** argv)
{
    QCoreApplication app(argc, argv);
    const QStringList arguments = app.arguments();
    if (arguments.size() == 3 && arguments[1] == "generate")
        return generate(arguments[2]);
    if (arguments.size() == 4 && arguments[1] == "move")
        return move(arguments[2], arguments[3]);
    std::fprintf(stderr, "usage: move_bench generate DIR | move SOURCE DEST\n");
    return 2;
}
