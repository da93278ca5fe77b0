#include "ui/SafeListPage.h"

#include "format/ByteCount.h"
#include "format/RelativeDate.h"
#include "model/AppModel.h"
#include "model/SettingsStore.h"
#include "ui/PageLabels.h"

#include <QFrame>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QScrollArea>
#include <QVBoxLayout>

namespace {

QString categoryTitle(const SafeItemInfo& info)
{
    const std::optional<CategoryID> category = info.categoryID();
    return category ? Categories::title(*category) : info.category;
}

// "Project Builds · app · 3 weeks old": where the row came from and what it was.
QString describe(const SafeItemInfo& info)
{
    QStringList parts{categoryTitle(info)};
    if (!info.detail.isEmpty())
        parts.append(RelativeDate::expand(info.detail));
    return parts.join(QStringLiteral(" · "));
}

QWidget* figures(const SafeItemInfo& info, QWidget* parent)
{
    auto* column = new QWidget(parent);
    auto* layout = new QVBoxLayout(column);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(2);
    auto* size = new QLabel(ByteCount::format(info.size), column);
    size->setAlignment(Qt::AlignRight);
    //: When a row was put on the Safe List; %1 is a relative date ("3 days ago", "yesterday")
    QLabel* added = PageLabels::note(SafeListPage::tr("Added %1").arg(RelativeDate::format(info.added)), column);
    added->setAlignment(Qt::AlignRight);
    added->setWordWrap(false);
    layout->addWidget(size);
    layout->addWidget(added);
    return column;
}

QFrame* separator()
{
    auto* line = new QFrame;
    line->setFrameShape(QFrame::HLine);
    line->setFrameShadow(QFrame::Sunken);
    return line;
}

void dispose(QWidget* widget)
{
    // The row may hold the button whose click is being handled: unhook it now, free it later.
    widget->hide();
    widget->setParent(nullptr);
    widget->deleteLater();
}

}  // namespace

SafeListPage::SafeListPage(AppModel* model, QWidget* parent)
    : QWidget(parent), m_model(model), m_itemRows(new QVBoxLayout), m_folders(new FolderListEditor)
{
    auto* scroll = new QScrollArea(this);
    scroll->setWidget(makeContent());
    scroll->setWidgetResizable(true);
    scroll->setFrameShape(QFrame::NoFrame);
    auto* outer = new QVBoxLayout(this);
    outer->setContentsMargins(0, 0, 0, 0);
    outer->addWidget(scroll);

    SettingsStore* settings = m_model->settings();
    connect(settings, &SettingsStore::safeListChanged, this, &SafeListPage::refreshItems);
    connect(settings, &SettingsStore::safeListChanged, this, &SafeListPage::refreshFolders);
    connect(m_folders, &FolderListEditor::addRequested, m_model, &AppModel::addSafeFolder);
    connect(m_folders, &FolderListEditor::removeRequested, m_model, &AppModel::removeSafeFolder);
    refreshItems();
    refreshFolders();
}

QWidget* SafeListPage::makeContent()
{
    auto* content = new QWidget;
    auto* layout = new QVBoxLayout(content);
    layout->setContentsMargins(24, 20, 24, 20);
    layout->setSpacing(10);
    //: Heading of the Safe List screen
    layout->addWidget(PageLabels::title(tr("Safe List"), content));
    //: Explanation at the top of the Safe List screen
    layout->addWidget(PageLabels::body(tr("Items and folders here never appear in scans and can't be cleaned by mistake. "
                                          "Add an item or its whole project from the ••• menu of any row."), content));
    layout->addSpacing(8);
    addItemsSection(layout, content);
    layout->addSpacing(8);
    addFoldersSection(layout, content);
    layout->addStretch(1);
    return content;
}

void SafeListPage::addItemsSection(QVBoxLayout* layout, QWidget* content)
{
    //: Heading of the single items on the Safe List
    layout->addWidget(PageLabels::heading(tr("Items"), content));
    auto* itemsBox = new QFrame(content);
    itemsBox->setFrameShape(QFrame::StyledPanel);
    m_itemRows->setContentsMargins(0, 0, 0, 0);
    m_itemRows->setSpacing(0);
    itemsBox->setLayout(m_itemRows);
    layout->addWidget(itemsBox);
    //: Shown instead of the Safe List's items while there are none
    m_itemsEmpty = PageLabels::note(tr("No items are on the list."), content);
    layout->addWidget(m_itemsEmpty);
    //: Note under the Safe List's items
    layout->addWidget(PageLabels::note(tr("Taking an item off the list scans its category again, so it shows up right away."), content));
}

void SafeListPage::addFoldersSection(QVBoxLayout* layout, QWidget* content)
{
    //: Heading of the folders on the Safe List
    layout->addWidget(PageLabels::heading(tr("Folders — nothing inside is shown"), content));
    m_folders->setParent(content);
    //: Shown instead of the Safe List's folders while there are none
    m_folders->setEmptyText(tr("No folders are on the list."));
    layout->addWidget(m_folders);
    //: Note under the Safe List's folders
    layout->addWidget(PageLabels::note(tr("A folder taken off the list shows up again in the next scan."), content));
}

void SafeListPage::setFolderPicker(FolderListEditor::FolderPicker picker)
{
    m_folders->setFolderPicker(std::move(picker));
}

QWidget* SafeListPage::makeItemRow(const QString& id, const SafeItemInfo* info)
{
    auto* row = new QWidget;
    auto* words = new QVBoxLayout;
    words->setSpacing(2);
    QLabel* title = PageLabels::body(info ? info->title : id, row);
    words->addWidget(title);
    if (info)
        words->addWidget(PageLabels::note(describe(*info), row));
    //: Button that takes one row off the Safe List
    auto* remove = new QPushButton(tr("Remove from List"), row);
    connect(remove, &QPushButton::clicked, this, [this, id] { m_model->removeFromSafeList(id); });

    auto* layout = new QHBoxLayout(row);
    layout->setContentsMargins(12, 8, 12, 8);
    layout->setSpacing(16);
    layout->addLayout(words, 1);
    if (info)
        layout->addWidget(figures(*info, row));
    layout->addWidget(remove, 0, Qt::AlignVCenter);
    row->setToolTip(info && info->path ? *info->path : id);
    return row;
}

void SafeListPage::refreshItems()
{
    clearItemRows();
    const SettingsStore* settings = m_model->settings();
    const QStringList& ids = settings->safeItems();
    for (auto id = ids.crbegin(); id != ids.crend(); ++id) {
        const auto found = settings->safeItemInfo().constFind(*id);
        const SafeItemInfo* info = found == settings->safeItemInfo().constEnd() ? nullptr : &*found;
        if (!m_shownIds.isEmpty())
            m_itemRows->addWidget(separator());
        m_itemRows->addWidget(makeItemRow(*id, info));
        m_shownIds.append(*id);
    }
    m_itemRows->parentWidget()->setVisible(!m_shownIds.isEmpty());
    m_itemsEmpty->setVisible(m_shownIds.isEmpty());
}

void SafeListPage::clearItemRows()
{
    while (QLayoutItem* item = m_itemRows->takeAt(0)) {
        if (item->widget())
            dispose(item->widget());
        delete item;
    }
    m_shownIds.clear();
}

void SafeListPage::refreshFolders()
{
    m_folders->setFolders(m_model->settings()->safeFolders());
}
