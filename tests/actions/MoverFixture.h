#pragma once

#include "actions/Mover.h"
#include "actions/TrashFixture.h"

#include <QMap>
#include <QTemporaryDir>

#include <memory>

// A home folder with the real freedesktop trash (TrashFixture) and a destination folder on
// another file system: /dev/shm, a tmpfs of its own, or a folder the test names.
class MoverFixture : public TrashFixture {
protected:
    void SetUp() override;

    // A project folder of nested files, an empty folder, a link and a hard link.
    QString makeProject(const QString& relative) const;
    // Every entry below `path` (itself included as ""): kind and content, or a link's target.
    static QMap<QString, QByteArray> snapshot(const QString& path);
    // The names in the destination folder.
    QStringList destinationNames() const;
    Mover::Outcome moveItem(const CleanupItem& item, const Mover::Progress& progress = {}) const;
    // Asserts the move failed with `reason` and left the original and the destination as before.
    void expectUntouched(const CleanupItem& item, const QString& reason, const Mover::Progress& progress = {}) const;
    // A copy tool played by a shell script; "$1" is the source, "$2" the target.
    static Mover::CopyTool scriptTool(const QString& script);

    QString destination;
    Mover::Environment moveEnvironment;

private:
    std::unique_ptr<QTemporaryDir> m_destinationDir;
};
