#pragma once

#include "actions/MoverEnvironment.h"
#include "actions/MoverFiles.h"
#include "actions/MoverOutcome.h"
#include "actions/MoverProgress.h"
#include "machinery/Descriptor.h"
#include "vocabulary/CleanupItem.h"
#include "vocabulary/TreeStamp.h"

#include <QHash>
#include <QList>

#include <vector>

namespace Mover {

// One move after its destination passed the checks: the steps from the original's fingerprint
// to the Trash, and the roll-back that any failure or stop before the Trash step goes through.
// Internal to the mover; used once, on one worker thread.
class Run {
public:
    Run(const CleanupItem& item, const QString& destination, const Progress& progress, const Environment& environment);

    [[nodiscard]] Outcome perform();

private:
    using Step = std::optional<QString> (Run::*)();

    std::optional<QString> fingerprintOriginals();
    std::optional<QString> checkSpace();
    std::optional<QString> makeWorkFolder();
    std::optional<QString> copyAll();
    std::optional<QString> checkOriginalsUnchanged();
    std::optional<QString> verifyCopies();
    std::optional<QString> placeCopies();
    Outcome finish();
    CleanupItem verifiedItem() const;
    QStringList changedInTrash(const QHash<QString, QString>& placesInTrash) const;
    Outcome rollBack(const QString& reason);
    QStringList removeWhatWasMade();
    bool isStopped() const;
    QString inWork(const QString& name) const;
    QString newLocation() const;

    const CleanupItem& m_item;
    QList<FileTarget> m_targets;
    QStringList m_names;
    QString m_destination;
    const Progress& m_progress;
    const Environment& m_environment;
    QString m_work;
    // Held from the moment the move made or chose them; everything made is removed through these.
    Descriptor m_destinationFolder;
    Descriptor m_workFolder;
    std::optional<Files::Made> m_madeWork;
    bool m_exactTimes = true;
    QList<TreeStamp> m_stamps;
    qint64 m_total = 0;
    std::vector<Files::Made> m_placed;
};

}  // namespace Mover
