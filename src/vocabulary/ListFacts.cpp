#include "vocabulary/ListFacts.h"

#include "vocabulary/CategoryResult.h"

ListFacts::ListFacts(CategoryID category, QList<CleanupItem> rows)
    : m_rows(std::move(rows)), m_freeable(CategoryResult::freeableSize(m_rows))
{
    if (m_rows.isEmpty() || !sectionKey(category, m_rows.first()))
        return;
    m_rowOfId.reserve(m_rows.size());
    for (int i = 0; i < m_rows.size(); ++i) {
        const QString key = sectionKey(category, m_rows[i]).value_or(QString());
        const auto found = m_sectionOfKey.constFind(key);
        const int section = found == m_sectionOfKey.constEnd() ? int(m_sections.size()) : *found;
        if (section == m_sections.size()) {
            m_sectionOfKey.insert(key, section);
            m_sections.append(Section{key, {}, 0});
        }
        m_sections[section].rows.append(i);
        m_rowOfId.insert(m_rows[i].id, i);
    }
    // One copy of a duplicate always stays; summed by index, as the whole list is.
    const auto rowOf = [this](int i) -> const CleanupItem& { return m_rows[i]; };
    for (Section& section : m_sections)
        section.freeableSize = CategoryResult::freeableSize(section.rows, rowOf);
}

std::optional<QString> ListFacts::sectionKey(CategoryID category, const CleanupItem& item)
{
    if (category == CategoryID::worktrees)
        return item.projectPath.value_or(QString());
    if (category == CategoryID::duplicates)
        return item.duplicateGroup.value_or(QString());
    return std::nullopt;
}

const CleanupItem* ListFacts::rowWithId(const QString& id) const
{
    const auto found = m_rowOfId.constFind(id);
    return found == m_rowOfId.constEnd() ? nullptr : &m_rows[*found];
}

const ListFacts::Section* ListFacts::section(const QString& key) const
{
    const auto found = m_sectionOfKey.constFind(key);
    return found == m_sectionOfKey.constEnd() ? nullptr : &m_sections[*found];
}
