#pragma once

#include "vocabulary/CategoryID.h"
#include "vocabulary/CleanupItem.h"

#include <QHash>
#include <QList>

#include <optional>

// What the screens derive from a whole list of rows: what cleaning them all frees and, for a list
// shown in sections, the sections in order with a way to find rows and sections by key. Worked out
// once where the list is made (a scanner's thread for a scan's list) and kept with it, so tens of
// thousands of rows are not summed and grouped again on the GUI thread by every screen that shows
// them. The facts hold the list they were made from (shared, not copied) and describe only that
// very list: a list changed since is a different list.
class ListFacts {
public:
    struct Section {
        QString key;  // the repository folder or the duplicate group; empty for rows without one
        QList<int> rows;  // indices into the list, in list order
        qint64 freeableSize = 0;
    };

    ListFacts() = default;
    ListFacts(CategoryID category, QList<CleanupItem> rows);

    // The key that puts a row of `category` under a section heading; absent for lists without sections.
    static std::optional<QString> sectionKey(CategoryID category, const CleanupItem& item);

    // Whether these are the facts of `rows` itself: the list they were made from, unchanged.
    [[nodiscard]] bool describe(const QList<CleanupItem>& rows) const
    {
        return rows.constData() == m_rows.constData() && rows.size() == m_rows.size();
    }
    [[nodiscard]] const QList<CleanupItem>& rows() const { return m_rows; }
    [[nodiscard]] qint64 freeableSize() const { return m_freeable; }
    // Empty for a list without sections; in the order their first rows appear.
    [[nodiscard]] const QList<Section>& sections() const { return m_sections; }
    // These two find only what a list shown in sections holds: the row with that id (the last one
    // listed, should two share it) and the section with that key.
    [[nodiscard]] const CleanupItem* rowWithId(const QString& id) const;
    [[nodiscard]] const Section* section(const QString& key) const;

    // Facts follow from the rows, so they never tell two lists apart.
    bool operator==(const ListFacts&) const { return true; }

private:
    QList<CleanupItem> m_rows;
    qint64 m_freeable = 0;
    QList<Section> m_sections;
    QHash<QString, int> m_sectionOfKey;
    QHash<QString, int> m_rowOfId;
};
