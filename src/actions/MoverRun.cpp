#include "actions/MoverRun.h"

#include "machinery/Fingerprint.h"
#include "actions/MoverCopy.h"
#include "actions/MoverReadBack.h"
#include "actions/MoverReasons.h"
#include "actions/Remover.h"
#include "vocabulary/FileStatus.h"
#include "vocabulary/RemovalReasons.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QHash>

#include <cerrno>
#include <fcntl.h>
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
    // The originals are looked at again after their bytes were read, so the bytes compared are
    // the ones the stamps describe.
    const Step steps[] = {&Run::fingerprintOriginals, &Run::checkSpace, &Run::makeWorkFolder, &Run::copyAll,
                          &Run::checkOriginalsUnchanged, &Run::verifyCopies, &Run::checkOriginalsUnchanged,
                          &Run::placeCopies};
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
        // The Trash step goes by these stamps instead of the scan's, so they must agree.
        if (target.tree && *target.tree != *stamp)
            return RemovalReasons::changedSinceScan();
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
    // The chosen folder may be reached through a link (a volume's alias), so it is followed, once.
    m_destinationFolder.reset(::open(QFile::encodeName(m_destination).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (!m_destinationFolder.isValid())
        return Reasons::destinationUnavailable();
    const QByteArray name = QFile::encodeName(Files::workFolderName);
    if (::mkdirat(m_destinationFolder.get(), name.constData(), 0700) != 0) {
        // Another move's folder (or an interrupted one's) is never reused or removed.
        return errno == EEXIST ? Reasons::leftoverWorkFolder() : Reasons::destinationNotWritable();
    }
    struct stat made {};
    if (::fstatat(m_destinationFolder.get(), name.constData(), &made, AT_SYMLINK_NOFOLLOW) != 0)
        return Reasons::destinationNotWritable();
    m_madeWork = Files::Made{name, FileKey::of(made)};
    m_workFolder.reset(::openat(m_destinationFolder.get(), name.constData(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC));
    struct stat opened {};
    if (!m_workFolder.isValid() || ::fstat(m_workFolder.get(), &opened) != 0 || FileKey::of(opened) != m_madeWork->key)
        return Reasons::destinationNotWritable();
    m_exactTimes = Files::keepsExactTimes(m_workFolder.get());
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
        switch (ReadBack::compare(m_targets[i].path, copy, m_environment.removal.cancellation)) {
        case ReadBack::Verdict::same:
            break;
        case ReadBack::Verdict::copyDiffers:
            return Reasons::copyReadBackWrong();
        case ReadBack::Verdict::originalUnreadable:
            return Reasons::unreadable();
        case ReadBack::Verdict::stopped:
            return Reasons::stopped();
        }
    }
    return std::nullopt;
}

std::optional<QString> Run::placeCopies()
{
    for (const QString& name : m_names) {
        switch (Files::place(m_workFolder.get(), m_destinationFolder.get(), QFile::encodeName(name), m_placed)) {
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
    // Empty by now; should it stay, it is the person's to see, and the copies are in place.
    (void)Files::removeMade(m_destinationFolder.get(), *m_madeWork);
    m_madeWork.reset();
    // Once the original's turn has come a stop no longer applies: the copy is complete and in
    // place, and a half-finished Trash move would help no one.
    RemovalEnvironment removal = m_environment.removal;
    removal.cancellation = nullptr;
    QHash<QString, QString> placesInTrash;  // original path -> where it went
    removal.trash = [trash = removal.trash, &placesInTrash](const TrashRequest& request) {
        TrashResult result = trash(request);
        if (result.pathInTrash)
            placesInTrash.insert(request.path, *result.pathInTrash);
        return result;
    };
    const RemovalOutcome trashed = Remover::remove(verifiedItem(), removal);
    if (!trashed.succeeded())
        return Outcome::failed(Reasons::trashFailed(trashed.reason));
    const QStringList changed = changedInTrash(placesInTrash);
    if (!changed.isEmpty())
        return Outcome::changedLate(newLocation(), Reasons::changedAfterCheck(newLocation(), changed));
    return Outcome::moved(newLocation());
}

CleanupItem Run::verifiedItem() const
{
    // Every target, with or without a tree stamp of its scanner's, goes only as it was when its
    // copy was checked.
    CleanupItem verified = m_item;
    QList<FileTarget> targets = m_targets;
    for (qsizetype i = 0; i < targets.size(); ++i)
        targets[i].tree = m_stamps[i];
    verified.removal = Removal::trash(targets);
    return verified;
}

QStringList Run::changedInTrash(const QHash<QString, QString>& placesInTrash) const
{
    // Between the remover's last look and its rename, the original could still change; what went
    // to the Trash is compared once more. Its status-change times moved with the rename itself.
    QStringList changed;
    for (qsizetype i = 0; i < m_targets.size(); ++i) {
        const auto place = placesInTrash.constFind(m_targets[i].path);
        if (place == placesInTrash.cend())
            continue;  // handed to Finder, which names no place
        const std::optional<TreeStamp> now = Fingerprint::compute(*place);
        if (!now || !sameTree(*now, m_stamps[i], true))
            changed.append(*place);
    }
    return changed;
}

Outcome Run::rollBack(const QString& reason)
{
    const QString why = isStopped() ? Reasons::stopped() : reason;
    const QStringList left = removeWhatWasMade();
    return Outcome::failed(left.isEmpty() ? why : Reasons::partsLeft(why, left));
}

// The copies placed so far and the work folder, each only while its name still holds what this
// move made; the paths of those that stayed.
QStringList Run::removeWhatWasMade()
{
    QStringList left;
    for (const Files::Made& copy : m_placed) {
        if (!Files::removeMade(m_destinationFolder.get(), copy))
            left.append(QDir(m_destination).filePath(QFile::decodeName(copy.name)));
    }
    m_placed.clear();
    if (m_madeWork && !Files::removeMade(m_destinationFolder.get(), *m_madeWork))
        left.append(m_work);
    m_madeWork.reset();
    return left;
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
