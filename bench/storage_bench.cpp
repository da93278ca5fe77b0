// The storage analysis of a generated home, for comparison with `du -s` of the same roots
// (bench/storage_bench.sh runs them side by side).
//   storage_bench generate HOME ENTRIES   builds a home of about ENTRIES entries
//   storage_bench dominant HOME ENTRIES   the same entries, nearly all in one folder (~/Projects)
//   storage_bench roots HOME              prints the roots the analysis walks, one a line
//   storage_bench analyze HOME            one analysis of HOME (no applications folder)

#include "storage/StorageAnalyzer.h"

#include <QByteArray>
#include <QElapsedTimer>
#include <QFile>

#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

bool makeFolder(const QByteArray& path)
{
    return ::mkdir(path.constData(), 0755) == 0 || errno == EEXIST;
}

// Every fourth file holds a line of text, the rest are empty, as most small files are tiny.
bool makeFiles(const QByteArray& folder, int count, const char* extension)
{
    if (!makeFolder(folder))
        return false;
    for (int i = 0; i < count; ++i) {
        const QByteArray path = folder + "/f" + QByteArray::number(i) + extension;
        const int descriptor = ::open(path.constData(), O_WRONLY | O_CREAT | O_TRUNC, 0644);
        if (descriptor < 0)
            return false;
        const bool ok = i % 4 != 0 || ::write(descriptor, "a line of a small file\n", 23) == 23;
        ::close(descriptor);
        if (!ok)
            return false;
    }
    return true;
}

// About 1,000 entries: a project with 30 packages in node_modules, a photo album, documents and
// an app cache.
bool generateUnit(const QByteArray& home, int unit)
{
    const QByteArray n = QByteArray::number(unit);
    const QByteArray project = home + "/code/project" + n;
    bool ok = makeFolder(project) && makeFiles(project + "/src", 20, ".swift") && makeFolder(project + "/node_modules");
    for (int package = 0; ok && package < 30; ++package)
        ok = makeFiles(project + "/node_modules/pkg" + QByteArray::number(package), 20, ".js");
    return ok && makeFiles(home + "/Pictures/album" + n, 100, ".jpg") && makeFiles(home + "/Documents/folder" + n, 50, ".pdf")
        && makeFiles(home + "/Library/Caches/app" + n, 200, ".cache");
}

// About 1,000 entries in one project folder with a package.json, so that a scan measures its
// node_modules as a build folder: sources, packages, pictures and documents.
bool generateProject(const QByteArray& home, int unit)
{
    const QByteArray project = home + "/Projects/project" + QByteArray::number(unit);
    struct stat made {};
    if (::stat((project + "/docs").constData(), &made) == 0)
        return true;  // made by an earlier run, whose home this one grows
    bool ok = makeFolder(project) && makeFiles(project + "/src", 20, ".swift") && makeFolder(project + "/node_modules");
    for (int package = 0; ok && package < 30; ++package)
        ok = makeFiles(project + "/node_modules/pkg" + QByteArray::number(package), 20, ".js");
    const int manifest = ok ? ::open((project + "/package.json").constData(), O_WRONLY | O_CREAT | O_TRUNC, 0644) : -1;
    ok = manifest >= 0 && ::write(manifest, "{}\n", 3) == 3;
    if (manifest >= 0)
        ::close(manifest);
    return ok && makeFiles(project + "/assets", 250, ".jpg") && makeFiles(project + "/docs", 128, ".pdf");
}

// One folder holds 99% of the entries; a few small folders beside it and in Library.
int generateDominant(const QByteArray& home, long long entries)
{
    for (const char* folder : {"", "/Projects", "/Library", "/Library/Caches"}) {
        if (!makeFolder(home + folder))
            return 1;
    }
    if (!makeFiles(home + "/Documents", 100, ".pdf") || !makeFiles(home + "/Library/Caches/app", 200, ".cache"))
        return 1;
    for (int unit = 0; unit < entries / 1000; ++unit) {
        if (!generateProject(home, unit))
            return 1;
    }
    return 0;
}

int generate(const QByteArray& home, long long entries)
{
    for (const char* folder : {"", "/code", "/Pictures", "/Documents", "/Library", "/Library/Caches"}) {
        if (!makeFolder(home + folder))
            return 1;
    }
    for (int unit = 0; unit < entries / 1000; ++unit) {
        if (!generateUnit(home, unit))
            return 1;
    }
    return 0;
}

int roots(const QString& home)
{
    StorageAnalyzer::Request request;
    request.home = home;
    request.applications.clear();
    for (const QByteArray& root : StorageAnalyzer::roots(request))
        std::printf("%s\n", root.constData());
    return 0;
}

int analyze(const QString& home)
{
    StorageAnalyzer::Request request;
    request.home = home;
    request.applications.clear();
    QElapsedTimer timer;
    timer.start();
    const auto report = StorageAnalyzer::analyze(request);
    if (!report)
        return 1;
    std::printf("dustlark storage: %lld ms, %lld entries, %lld bytes measured, %lld large folders\n",
                static_cast<long long>(timer.elapsed()), static_cast<long long>(request.progress->snapshot().entries),
                static_cast<long long>(report->measured()), static_cast<long long>(report->largeFolders.size()));
    return 0;
}

}  // namespace

int main(int argc, char** argv)
{
    const QByteArray mode = argc > 1 ? argv[1] : "";
    if (mode == "generate" && argc == 4)
        return generate(argv[2], QByteArray(argv[3]).toLongLong());
    if (mode == "dominant" && argc == 4)
        return generateDominant(argv[2], QByteArray(argv[3]).toLongLong());
    if (mode == "roots" && argc == 3)
        return roots(QFile::decodeName(argv[2]));
    if (mode == "analyze" && argc == 3)
        return analyze(QFile::decodeName(argv[2]));
    std::fprintf(stderr, "usage: storage_bench generate|dominant HOME ENTRIES | roots HOME | analyze HOME\n");
    return 2;
}
