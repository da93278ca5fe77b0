#pragma once

#include <QDir>
#include <QString>
#include <QStringList>

// The projects scanner: owns the one walk of the scan folders. For now it only decides which
// folders that walk visits.
class ProjectScanner {
public:
    // The scan folders to walk, each once: "~" expanded with `home`, paths cleaned, sorted by
    // plain string order, folders inside an earlier one dropped (so nothing is walked twice),
    // and only existing folders kept.
    [[nodiscard]] static QStringList distinctRoots(const QStringList& roots, const QString& home = QDir::homePath());
};
