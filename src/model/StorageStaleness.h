#pragma once

#include <QStringList>

// What changed on disk since the storage report was measured, so the screens can say the report
// is out of date until those places are measured again, and grey the rows that went away. A
// folder measured again alone covers the changes inside it; a change the report can't place (a
// tool's removal) waits for a full measurement. A plain value, GUI thread only.
class StorageStaleness {
public:
    // Paths removed or moved away; none: somewhere the report can't say.
    void noteGone(const QStringList& paths);
    // A place that took what went away (the Trash): changed, though nothing left it.
    void noteGrown(const QString& path);
    // The folder was measured again: changes inside it are in the report now.
    void measuredAgain(const QString& folder);
    void clear() { *this = {}; }
    bool isOutdated() const { return m_elsewhere || !m_gone.isEmpty() || !m_grown.isEmpty(); }
    // What went away and was not measured again since.
    const QStringList& gone() const { return m_gone; }

private:
    QStringList m_gone;
    QStringList m_grown;
    bool m_elsewhere = false;
};
