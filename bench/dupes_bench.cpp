// Duplicate finder benchmark.
//   dupes_bench generate DIR   writes the data set (see bench/dupes_bench.sh)
//   dupes_bench scan DIR       lists DIR like the walk does and runs DuplicateFinder over it
// The scan prints one line of key=value pairs that the script collects.

#include "scan/DuplicateFinder.h"
#include "vocabulary/Thresholds.h"

#include <QCoreApplication>
#include <QDir>
#include <QDirIterator>
#include <QElapsedTimer>
#include <QFile>

#include <cstdio>
#include <sys/stat.h>

namespace {

// Deterministic fast content: the same seed writes the same bytes.
class Content {
public:
    explicit Content(quint64 seed) : m_state(seed * 0x9E3779B97F4A7C15ull + 1) {}

    QByteArray bytes(qint64 size)
    {
        QByteArray out(size, Qt::Uninitialized);
        for (qint64 i = 0; i + 8 <= size; i += 8) {
            const quint64 value = next();
            memcpy(out.data() + i, &value, 8);
        }
        for (qint64 i = size / 8 * 8; i < size; ++i)
            out[i] = char(next());
        return out;
    }

private:
    quint64 next()  // splitmix64
    {
        quint64 z = (m_state += 0x9E3779B97F4A7C15ull);
        z = (z ^ (z >> 30)) * 0xBF58476D1CE4E5B9ull;
        z = (z ^ (z >> 27)) * 0x94D049BB133111EBull;
        return z ^ (z >> 31);
    }
    quint64 m_state;
};

class Generator {
public:
    explicit Generator(const QString& root) : m_root(root) {}

    void write(const QByteArray& content)
    {
        const QString folder = QStringLiteral("%1/d%2").arg(m_root).arg(m_count % 24, 2, 10, QLatin1Char('0'));
        QDir().mkpath(folder);
        QFile out(QStringLiteral("%1/f%2.bin").arg(folder).arg(m_count++));
        if (!out.open(QIODevice::WriteOnly) || out.write(content) != content.size())
            qFatal("cannot write %s", qPrintable(out.fileName()));
        m_bytes += content.size();
    }

    void report() const { std::printf("generated files=%lld bytes=%lld\n", m_count, m_bytes); }

private:
    QString m_root;
    qint64 m_count = 0;
    qint64 m_bytes = 0;
};

void generate(const QString& root)
{
    Generator out(root);
    quint64 seed = 1;
    // Same size, different from the first bytes: only heads need reading.
    for (int size = 0; size < 270; ++size) {
        for (int copy = 0; copy < 4; ++copy)
            out.write(Content(seed++).bytes(1'000'000 + size * 2053));
    }
    // Exact copies: read whole by every tool.
    for (int group = 0; group < 250; ++group) {
        const QByteArray content = Content(seed++).bytes(1'000'000 + group * 4001);
        for (int copy = 0; copy < 3; ++copy)
            out.write(content);
    }
    // Same size, same first 64 KiB and same last bytes, one byte apart in the middle.
    for (int pair = 0; pair < 100; ++pair) {
        QByteArray content = Content(seed++).bytes(1'500'000 + pair * 3989);
        out.write(content);
        content[content.size() / 2] = char(content[content.size() / 2] ^ 1);
        out.write(content);
    }
    // A few large copies, where chunked reading and the hashing speed dominate.
    for (int group = 0; group < 4; ++group) {
        const QByteArray content = Content(seed++).bytes(64'000'000 + group * 4096);
        out.write(content);
        out.write(content);
    }
    out.report();
}

// The candidates as the walk would hand them over: regular files of at least the threshold.
QList<DuplicateFinder::File> candidates(const QString& root)
{
    QList<DuplicateFinder::File> files;
    QDirIterator it(root, QDir::Files | QDir::Hidden | QDir::NoSymLinks, QDirIterator::Subdirectories);
    while (it.hasNext()) {
        const QString path = it.next();
        struct stat info {};
        if (::lstat(QFile::encodeName(path).constData(), &info) != 0 || !S_ISREG(info.st_mode))
            continue;
        if (info.st_size < Thresholds::duplicateMinimumSize)
            continue;
        const qint64 modified = qint64(info.st_mtim.tv_sec) * 1'000'000'000 + info.st_mtim.tv_nsec;
        files.append({path, info.st_size, qint64(info.st_blocks) * 512, qint32(info.st_dev),
                      quint64(info.st_ino), {info.st_size, modified}});
    }
    return files;
}

int scan(const QString& root)
{
    QElapsedTimer timer;
    timer.start();
    const auto files = candidates(root);
    const double walk = timer.nsecsElapsed() / 1e9;
    ScanContext context;
    context.home = root;
    timer.restart();
    const auto outcome = DuplicateFinder::find(files, context);
    const double find = timer.nsecsElapsed() / 1e9;
    QSet<QString> groups;
    for (const CleanupItem& item : outcome.items)
        groups.insert(item.duplicateGroup.value_or(QString()));
    std::printf("dustlark candidates=%lld groups=%lld rows=%lld bytesRead=%lld tailFiles=%lld "
                "wholeFiles=%lld walk=%.3f find=%.3f\n",
                qint64(files.size()), qint64(groups.size()), qint64(outcome.items.size()),
                outcome.stats.bytesRead, outcome.stats.filesReadTail, outcome.stats.filesReadWhole, walk, find);
    return 0;
}

}  // namespace

int main(int argc, char** argv)
{
    QCoreApplication app(argc, argv);
    const QStringList args = app.arguments();
    if (args.size() == 3 && args[1] == QLatin1String("generate")) {
        generate(args[2]);
        return 0;
    }
    if (args.size() == 3 && args[1] == QLatin1String("scan"))
        return scan(args[2]);
    std::fprintf(stderr, "usage: dupes_bench generate|scan DIR\n");
    return 2;
}
