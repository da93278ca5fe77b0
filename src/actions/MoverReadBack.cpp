#include "actions/MoverReadBack.h"

#include "machinery/Descriptor.h"
#include "machinery/FileDigest.h"
#include "machinery/TreeWalker.h"
#include "platform/Platform.h"

#include <QFile>

#include <fcntl.h>
#include <string>
#include <sys/stat.h>

namespace Mover::ReadBack {

namespace {

// Walks the copy by descriptors and holds each of its files against the original's twin.
class Comparison : public TreeVisitor {
public:
    Comparison(QByteArray original, qsizetype copyRootLength, const CancellationToken* stop)
        : m_original(std::move(original)), m_copyRootLength(copyRootLength), m_stop(stop) {}

    Verdict enterFolder(const TreeEntry&) override
    {
        return m_verdict == ReadBack::Verdict::same ? Verdict::Enter : Verdict::Stop;
    }

    Verdict visitItem(const TreeEntry& entry) override
    {
        if (m_verdict != ReadBack::Verdict::same)
            return Verdict::Stop;
        if (!S_ISREG(entry.status().st_mode))
            return Verdict::Enter;
        m_verdict = compareFile(entry);
        return m_verdict == ReadBack::Verdict::same ? Verdict::Enter : Verdict::Stop;
    }

    // Whatever of the copy can't be examined or listed can't be vouched for.
    void problem(const TreeEntry&, TreeProblem, int) override { m_verdict = ReadBack::Verdict::copyDiffers; }

    ReadBack::Verdict verdict() const { return m_verdict; }

private:
    ReadBack::Verdict compareFile(const TreeEntry& entry) const
    {
        // The root is named by its path, everything below by its name in its open folder.
        // The original first: a file nobody may read can't be vouched for, and its copy (which
        // keeps its mode) is then not to blame.
        const QByteArray twin = m_original + entry.pathBytes().mid(m_copyRootLength);
        const Descriptor original(::open(twin.constData(), O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC));
        if (!original.isValid())
            return ReadBack::Verdict::originalUnreadable;
        const std::string name = entry.depth() == 0 ? entry.pathBytes().toStdString() : std::string(entry.name());
        const Descriptor copy(Platform::openReadingFromDisk(entry.folderDescriptor(), name.c_str()));
        if (!copy.isValid())
            return ReadBack::Verdict::copyDiffers;
        const std::optional<QByteArray> originalDigest = FileDigest::sha256(original.get(), m_stop);
        if (!originalDigest)
            return isStopped() ? ReadBack::Verdict::stopped : ReadBack::Verdict::originalUnreadable;
        const std::optional<QByteArray> copyDigest = FileDigest::sha256(copy.get(), m_stop);
        if (!copyDigest)
            return isStopped() ? ReadBack::Verdict::stopped : ReadBack::Verdict::copyDiffers;
        return *copyDigest == *originalDigest ? ReadBack::Verdict::same : ReadBack::Verdict::copyDiffers;
    }

    bool isStopped() const { return m_stop && m_stop->isCancelled(); }

    QByteArray m_original;
    qsizetype m_copyRootLength;
    const CancellationToken* m_stop;
    ReadBack::Verdict m_verdict = ReadBack::Verdict::same;
};

}  // namespace

Verdict compare(const QString& original, const QString& copy, const CancellationToken* stop)
{
    const QByteArray copyRoot = QFile::encodeName(copy);
    Comparison comparison(QFile::encodeName(original), copyRoot.size(), stop);
    TreeWalker::Options options;
    options.cancellation = stop;
    const TreeWalker::End end = TreeWalker(options).walk(copyRoot, comparison).end;
    if (end == TreeWalker::End::Cancelled || (stop && stop->isCancelled()))
        return Verdict::stopped;
    return comparison.verdict();
}

}  // namespace Mover::ReadBack
