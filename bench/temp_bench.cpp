// The temporary files' age check on a generated temp-like tree, for comparison with
// `du -s --time`, which reports the same newest modification time (bench/temp_bench.sh).
//   temp_bench generate DIR   builds 150 folders of 1,000 files each under DIR
//   temp_bench newest DIR     NewestChange::of for every entry of DIR, as the scan asks it
//   temp_bench scan DIR       one TemporaryScanner pass with DIR as the system root

#include "scan/NewestChange.h"
#include "scan/TemporaryScanner.h"

#include <QByteArray>
#include <QDir>
#include <QFile>

#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

constexpr int folders = 150;
constexpr int filesPerFolder = 1000;
constexpr qint64 tenDays = 10 * 86'400;

bool makeOldFile(const QByteArray& path, qint64 when)
{
    const int descriptor = ::open(path.constData(), O_WRONLY | O_CREAT | O_TRUNC, 0644);
    if (descriptor < 0)
        return false;
    const bool written = ::write(descriptor, "scratch\n", 8) == 8;
    const struct timespec times[2] = {{when, 0}, {when, 0}};
    ::futimens(descriptor, times);
    ::close(descriptor);
    return written;
}

// Every folder is ten days old except every tenth, which holds one file changed now, so the
// scan enters it and looks at its files one by one.
int generate(const QByteArray& root)
{
    const qint64 old = ::time(nullptr) - tenDays;
    if (::mkdir(root.constData(), 0755) != 0 && errno != EEXIST)
        return 1;
    for (int folder = 0; folder < folders; ++folder) {
        const QByteArray path = root + "/build-" + QByteArray::number(folder);
        ::mkdir(path.constData(), 0755);
        for (int file = 0; file < filesPerFolder; ++file) {
            const qint64 when = folder % 10 == 0 && file == 0 ? ::time(nullptr) : old;
            if (!makeOldFile(path + "/o" + QByteArray::number(file) + ".tmp", when))
                return 1;
        }
        const struct timespec times[2] = {{old, 0}, {old, 0}};
        ::utimensat(AT_FDCWD, path.constData(), times, 0);
    }
    return 0;
}

int newest(const QString& root)
{
    qint64 latest = 0;
    for (const QString& name : QDir(root).entryList(QDir::AllEntries | QDir::NoDotAndDotDot | QDir::Hidden))
        latest = std::max(latest, NewestChange::of(root + QLatin1Char('/') + name).value_or(0));
    std::printf("newest %lld\n", static_cast<long long>(latest));
    return 0;
}

int scan(const QString& root)
{
    ScanContext context;
    context.home = QStringLiteral("/nonexistent-home");
    const ScanOutputs outputs = TemporaryScanner(QStringList{root}).scan(context);
    std::printf("rows %lld\n", static_cast<long long>(outputs.at(CategoryID::temporary).items.size()));
    return 0;
}

}  // namespace

int main(int argc, char** argv)
{
    if (argc != 3) {
        std::fprintf(stderr, "usage: temp_bench generate|newest|scan DIR\n");
        return 2;
    }
    const QByteArray command = argv[1];
    if (command == "generate")
        return generate(argv[2]);
    if (command == "newest")
        return newest(QFile::decodeName(argv[2]));
    if (command == "scan")
        return scan(QFile::decodeName(argv[2]));
    return 2;
}
