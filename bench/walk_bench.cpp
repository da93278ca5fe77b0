// The scan-folder walk and FileSizer on a generated tree, for comparison with du and find
// (bench/walk_bench.sh runs them side by side).
//   walk_bench generate DIR   builds about 1,012,000 entries under DIR
//   walk_bench walk DIR       one Walk over DIR
//   walk_bench size DIR       one FileSizer::measure of DIR

#include "machinery/FileSizer.h"
#include "machinery/ScanProgress.h"
#include "scan/Walk.h"

#include <QByteArray>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>

#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

constexpr int topFolders = 100;
constexpr int subFolders = 20;
constexpr int leafFolders = 5;
constexpr int filesPerLeaf = 100;

bool makeFolder(const QByteArray& path)
{
    return ::mkdir(path.constData(), 0755) == 0 || errno == EEXIST;
}

// Most files are empty, every fourth holds a line, the first of a folder is a sparse 2 MB
// file (a duplicate candidate) and one in a thousand a sparse 300 MB one (a large file).
bool makeFile(const QByteArray& path, int index, int folder)
{
    const int descriptor = ::open(path.constData(), O_WRONLY | O_CREAT | O_TRUNC, 0644);
    if (descriptor < 0)
        return false;
    bool ok = true;
    if (index == 0)
        ok = ::ftruncate(descriptor, folder % 1000 == 0 ? 300'000'000 : 2'000'000) == 0;
    else if (index % 4 == 0)
        ok = ::write(descriptor, "some text that stands for a small source file\n", 47) == 47;
    ::close(descriptor);
    return ok;
}

bool generateLeaf(const QByteArray& leaf, int folder)
{
    if (!makeFolder(leaf))
        return false;
    for (int file = 0; file < filesPerLeaf; ++file) {
        if (!makeFile(leaf + "/f" + QByteArray::number(file) + ".txt", file, folder))
            return false;
    }
    return true;
}

int generate(const QByteArray& root)
{
    int folder = 0;
    for (int top = 0; top < topFolders; ++top) {
        const QByteArray project = root + "/project" + QByteArray::number(top);
        if (!makeFolder(root) || !makeFolder(project))
            return 1;
        if (top % 10 == 0 && !makeFolder(project + "/.git"))  // a working copy now and then
            return 1;
        for (int sub = 0; sub < subFolders; ++sub) {
            const QByteArray module = project + "/module" + QByteArray::number(sub);
            if (!makeFolder(module))
                return 1;
            for (int leaf = 0; leaf < leafFolders; ++leaf) {
                if (!generateLeaf(module + "/src" + QByteArray::number(leaf), folder++))
                    return 1;
            }
        }
    }
    return 0;
}

int walk(const QString& root)
{
    ScanContext context;
    context.home = QDir::homePath();
    QElapsedTimer timer;
    timer.start();
    Walk walk(context);
    walk.run(root);
    std::printf("dustlark walk: %lld ms, %lld entries, %lld candidates, %lld large, %lld artifacts, "
                "%lld repositories, %lld unreadable\n",
                static_cast<long long>(timer.elapsed()), static_cast<long long>(context.progress->snapshot().entries),
                static_cast<long long>(walk.duplicateCandidates().size()),
                static_cast<long long>(walk.largeFiles().size()), static_cast<long long>(walk.artifacts().size()),
                static_cast<long long>(walk.mainRepositories().size()), static_cast<long long>(walk.unreadable()));
    return 0;
}

int size(const QString& root)
{
    ScanProgress progress;
    QElapsedTimer timer;
    timer.start();
    const FileSizer::Measurement m = FileSizer::measure(root, &progress);
    std::printf("dustlark size: %lld ms, %lld entries, %lld bytes (%lld KiB), %lld files, complete %d\n",
                static_cast<long long>(timer.elapsed()), static_cast<long long>(progress.snapshot().entries),
                static_cast<long long>(m.bytes), static_cast<long long>(m.bytes / 1024),
                static_cast<long long>(m.files), m.complete ? 1 : 0);
    return 0;
}

}  // namespace

int main(int argc, char** argv)
{
    if (argc != 3) {
        std::fprintf(stderr, "usage: walk_bench generate|walk|size DIR\n");
        return 2;
    }
    const QByteArray mode = argv[1];
    if (mode == "generate")
        return generate(argv[2]);
    const QString root = QFile::decodeName(argv[2]);
    if (mode == "walk")
        return walk(root);
    if (mode == "size")
        return size(root);
    std::fprintf(stderr, "unknown mode %s\n", argv[1]);
    return 2;
}
