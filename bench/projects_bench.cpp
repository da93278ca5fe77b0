// The projects scanner over a generated developer home, for comparison with du -s over the
// same tree (bench/projects_bench.sh runs them side by side).
//   projects_bench generate HOME   builds about 480,000 entries under HOME/code
//   projects_bench scan HOME       one ProjectScanner run with HOME as home and scan folder

#include "scan/ProjectScanner.h"

#include <QByteArray>
#include <QElapsedTimer>
#include <QFile>

#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

constexpr int projects = 300;
constexpr int packagesPerProject = 24;
constexpr int filesPerPackage = 50;
constexpr int sourceFolders = 6;
constexpr int filesPerSourceFolder = 10;

bool makeFolder(const QByteArray& path)
{
    return ::mkdir(path.constData(), 0755) == 0 || errno == EEXIST;
}

// Source-sized text, or a sparse file of `size` bytes (large files and duplicate candidates).
bool makeFile(const QByteArray& path, qint64 size = 0)
{
    const int descriptor = ::open(path.constData(), O_WRONLY | O_CREAT | O_TRUNC, 0644);
    if (descriptor < 0)
        return false;
    static const char line[] = "export const answer = 42; // stands for a small source file\n";
    const bool ok = size > 0 ? ::ftruncate(descriptor, size) == 0
                             : ::write(descriptor, line, sizeof line - 1) == qint64(sizeof line - 1);
    ::close(descriptor);
    return ok;
}

bool makeFiles(const QByteArray& folder, int count, const char* extension)
{
    if (!makeFolder(folder))
        return false;
    for (int i = 0; i < count; ++i) {
        if (!makeFile(folder + "/f" + QByteArray::number(i) + extension))
            return false;
    }
    return true;
}

bool makeNodeModules(const QByteArray& project, int packages)
{
    if (!makeFolder(project) || !makeFile(project + "/package.json") || !makeFolder(project + "/node_modules"))
        return false;
    for (int p = 0; p < packages; ++p) {
        const QByteArray package = project + "/node_modules/pkg" + QByteArray::number(p);
        if (!makeFolder(package) || !makeFiles(package + "/lib", filesPerPackage, ".js"))
            return false;
    }
    return true;
}

bool makeSources(const QByteArray& project)
{
    if (!makeFolder(project + "/src"))
        return false;
    for (int s = 0; s < sourceFolders; ++s) {
        if (!makeFiles(project + "/src/m" + QByteArray::number(s), filesPerSourceFolder, ".ts"))
            return false;
    }
    return true;
}

// Every project has node_modules and sources; every third a Rust target, every fourth a
// virtual environment, every tenth a nested package with its own node_modules.
bool makeProject(const QByteArray& project, int index)
{
    if (!makeFolder(project) || !makeSources(project) || !makeNodeModules(project, packagesPerProject))
        return false;
    if (index % 3 == 0 && !(makeFile(project + "/Cargo.toml") && makeFolder(project + "/target")
                            && makeFiles(project + "/target/debug", 400, ".rlib")))
        return false;
    if (index % 4 == 0 && !(makeFolder(project + "/.venv") && makeFile(project + "/.venv/pyvenv.cfg")
                            && makeFiles(project + "/.venv/lib", 600, ".py")))
        return false;
    if (index % 10 == 0 && !(makeFolder(project + "/packages") && makeNodeModules(project + "/packages/web", 4)))
        return false;
    return true;
}

// A few large files and pairs of same-sized files for the duplicates pass.
bool makeMedia(const QByteArray& home)
{
    if (!makeFolder(home + "/Movies") || !makeFolder(home + "/Documents"))
        return false;
    for (int i = 0; i < 5; ++i) {
        if (!makeFile(home + "/Movies/take" + QByteArray::number(i) + ".mov", 300'000'000 + i))
            return false;
    }
    for (int i = 0; i < 100; ++i) {
        if (!makeFile(home + "/Documents/scan" + QByteArray::number(i) + ".pdf", 2'000'000 + i / 2))
            return false;
    }
    return true;
}

int generate(const QByteArray& home)
{
    if (!makeFolder(home) || !makeFolder(home + "/code") || !makeMedia(home))
        return 1;
    for (int i = 0; i < projects; ++i) {
        if (!makeProject(home + "/code/p" + QByteArray::number(i), i))
            return 1;
    }
    return 0;
}

int scan(const QString& home)
{
    ScanContext context;
    context.home = home;
    context.roots = {home};
    QElapsedTimer timer;
    timer.start();
    const ScanOutputs outputs = ProjectScanner().scan(context);
    qint64 bytes = 0;
    for (const CleanupItem& item : outputs.at(CategoryID::projects).items)
        bytes += item.size;
    std::printf("dustlark projects: %lld ms, %lld entries, %lld build folders (%lld bytes), %lld worktrees, "
                "%lld large files, %lld duplicate rows\n",
                qint64(timer.elapsed()), context.progress->snapshot().entries,
                qint64(outputs.at(CategoryID::projects).items.size()), bytes,
                qint64(outputs.at(CategoryID::worktrees).items.size()),
                qint64(outputs.at(CategoryID::largeFiles).items.size()),
                qint64(outputs.at(CategoryID::duplicates).items.size()));
    return 0;
}

}  // namespace

int main(int argc, char** argv)
{
    if (argc != 3) {
        std::fprintf(stderr, "usage: projects_bench generate|scan HOME\n");
        return 2;
    }
    const QByteArray mode = argv[1];
    if (mode == "generate")
        return generate(argv[2]);
    if (mode == "scan")
        return scan(QFile::decodeName(argv[2]));
    std::fprintf(stderr, "unknown mode %s\n", argv[1]);
    return 2;
}
