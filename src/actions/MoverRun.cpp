#include "actions/MoverRun.h"

#include "machinery/Fingerprint.h"
#include "actions/MoverCopy.h"
#include "actions/MoverReasons.h"
#include "actions/Remover.h"
#include "actions/TreeRemoval.h"
#include "vocabulary/FileStatus.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <cerrno>
#include <sys/stat.h>

namespace Mover {

namespace {

// Whether the copy is the original: everything but status-change times (which a copy can't
// keep) and folder times; file times to the nanosecond where the disk keeps them so.
bool sameTree(const TreeStamp& copy, const TreeStamp& original, bool compareStamps)
{
    return copy.files == original.files && copy.bytes == original.bytes && copy.unreadable == 0
        && copy.layout == original.layout && (!compareStamps || copy.stamps == original.stamps);
}

}  // namespace

Run::Run(const CleanupItem& item, const QString& destination, const Progress& progress, const Environment& environment)
    : m_item(item), m_destination(QDir::cleanPath(destination)), m_progress(progress), m_environment(environment)
{
    m_targets = item.removal.as<Removal::Trash>()->targets;
    for (const FileTarget& target : m_targets)
        m_names.append(QFileInfo(target.path).fileName());
    m_work = QDir(m_destination).filePath(Files::workFolderName);
}

Outcome Run::perform()
{
    const Step steps[] = {&Run::fingerprintOriginals, &Run::checkSpace, &Run::makeWorkFolder, &Run::copyAll,
                          &Run::checkOriginalsUnchanged, &Run::verifyCopies, &Run::placeCopies};
    for (const Step step : steps) {
        if (const std::optional<QString> failure = (this->*step)())
            return rollBack(*failure);
        if (isStopped())
            return rollBack(Reasons::stopped());
    }
    return finish();
}

std::optional<QString> Run::fingerprintOriginals()
{
    for (const FileTarget& target : m_targets) {
        const std::optional<TreeStamp> stamp = Fingerprint::compute(target.path, m_environment.removal.cancellation);
        if (!stamp)
            return Reasons::stopped();
        if (stamp->unreadable > 0)
            return Reasons::unreadable();
        m_stamps.append(*stamp);
        m_total += stamp->bytes;
    }
    return std::nullopt;
}

std::optional<QString> Run::checkSpace()
{
    // When the free space can't be read the copy goes ahead: a disk that fills up fails the copy,
    // and the roll-back leaves the destination as it was.
    const std::optional<qint64> free = Files::freeBytes(m_destination);
    if (free && m_total > *free)
        return Reasons::notEnoughSpace(m_total, *free);
    return std::nullopt;
}

std::optional<QString> Run::makeWorkFolder()
{
    if (::mkdir(QFile::encodeName(m_work).constData(), 0700) != 0) {
        // Another move's folder (or an interrupted one's) is never reused or removed.
        return errno == EEXIST ? Reasons::leftoverWorkFolder() : Reasons::destinationNotWritable();
    }
    m_madeWork = true;
    m_exactTimes = Files::keepsExactTimes(m_work);
    return std::nullopt;
}

std::optional<QString> Run::copyAll()
{
    for (qsizetype i = 0; i < m_targets.size(); ++i) {
        const std::optional<QString> failure = Copy::run(m_targets[i].path, inWork(m_names[i]), m_work, m_total,
                                                         m_progress, m_environment);
        if (failure)
            return Reasons::copyFailed(*failure);
    }
    if (m_progress)
        m_progress(m_total, m_total);
    return std::nullopt;
}

std::optional<QString> Run::checkOriginalsUnchanged()
{
    for (qsizetype i = 0; i < m_targets.size(); ++i) {
        const std::optional<TreeStamp> now = Fingerprint::compute(m_targets[i].path, m_environment.removal.cancellation);
        if (!now)
            return Reasons::stopped();
        if (*now != m_stamps[i])
            return Reasons::originalChanged();
    }
    return std::nullopt;
}

std::optional<QString> Run::verifyCopies()
{
    for (qsizetype i = 0; i < m_targets.size(); ++i) {
        const QString copy = inWork(m_names[i]);
        const std::optional<TreeStamp> stamp = Fingerprint::compute(copy, m_environment.removal.cancellation);
        if (!stamp)
            return Reasons::stopped();
        const bool same = sameTree(*stamp, m_stamps[i], m_exactTimes)
            && (m_exactTimes || Files::timesMatchCoarsely(m_targets[i].path, copy));
        if (!same)
            return Reasons::copyMismatch(stamp->files, m_stamps[i].files);
    }
    return std::nullopt;
}

std::optional<QString> Run::placeCopies()
{
    for (const QString& name : m_names) {
        switch (Files::place(inWork(name), QDir(m_destination).filePath(name), m_placed)) {
        case Files::Placement::placed:
            break;
        case Files::Placement::nameTaken:
            return Reasons::nameTaken(name);
        case Files::Placement::failed:
            return Reasons::destinationNotWritable();
        }
    }
    return std::nullopt;
}

Outcome Run::finish()
{
    TreeRemoval::removeTree(m_work);
    m_madeWork = false;
    // Once the original's turn has come a stop no longer applies: the copy is complete and in
    // place, and a half-finished Trash move would help no one.
    RemovalEnvironment removal = m_environment.removal;
    removal.cancellation = nullptr;
    const RemovalOutcome trashed = Remover::remove(m_item, removal);
    if (!trashed.succeeded())
        return Outcome::failed(Reasons::trashFailed(trashed.reason));
    return Outcome::moved(newLocation());
}

Outcome Run::rollBack(const QString& reason)
{
    Files::removePlaced(m_placed);
    if (m_madeWork)
        TreeRemoval::removeTree(m_work);
    return Outcome::failed(isStopped() ? Reasons::stopped() : reason);
}

bool Run::isStopped() const
{
    const CancellationToken* stop = m_environment.removal.cancellation;
    return stop && stop->isCancelled();
}

QString Run::inWork(const QString& name) const
{
    return QDir(m_work).filePath(name);
}

QString Run::newLocation() const
{
    return m_names.size() == 1 ? QDir(m_destination).filePath(m_names.first()) : m_destination;
}

}  // namespace Mover
