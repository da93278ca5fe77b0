#include "support/DeepChain.h"

#include <QFile>
#include <QProcess>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

void writeFile(int folder, const char* name, qint64 size)
{
    const int file = ::openat(folder, name, O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0644);
    if (file < 0)
        qFatal("cannot create %s", name);
    const QByteArray bytes(static_cast<qsizetype>(size), 'x');
    if (::write(file, bytes.constData(), size_t(bytes.size())) != bytes.size())
        qFatal("cannot write %s", name);
    ::close(file);
}

}  // namespace

DeepChain::DeepChain(const QString& top, const QByteArray& component, int depth,
                     const std::function<qint64(int)>& fileBytes)
    : m_first(top + QLatin1Char('/') + QFile::decodeName(component))
{
    int folder = ::open(QFile::encodeName(top).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    for (int level = 0; level < depth && folder >= 0; ++level) {
        writeFile(folder, "file", fileBytes(level));
        if (::mkdirat(folder, component.constData(), 0755) != 0)
            qFatal("cannot create level %d", level);
        const int next = ::openat(folder, component.constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
        ::close(folder);
        folder = next;
    }
    if (folder < 0)
        qFatal("cannot open a level of the chain");
    writeFile(folder, "bottom", 0);
    ::close(folder);
}

DeepChain::~DeepChain()
{
    QProcess::execute(QStringLiteral("rm"), {QStringLiteral("-rf"), m_first});
}
