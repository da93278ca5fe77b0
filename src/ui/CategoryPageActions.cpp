// The actions of a category page on its rows: the row menu, the questions for an AI
// assistant, revealing a row in the file manager and the Safe List.
#include "model/AppModel.h"
#include "model/SettingsStore.h"
#include "ui/CategoryItemDelegate.h"
#include "ui/CategoryListModel.h"
#include "ui/CategoryPage.h"
#include "ui/MoveSheet.h"
#include "ui/Reveal.h"
#include "ui/RowMenuKeys.h"

#include <QDesktopServices>
#include <QKeyEvent>
#include <QListView>
#include <QMenu>
#include <QUrl>

void CategoryPage::showRowMenu(const QPoint& at)
{
    if (QMenu* menu = makeRowMenu(m_list->indexAt(at)))
        menu->popup(m_list->viewport()->mapToGlobal(at));
}

void CategoryPage::popUpRowMenu(const QModelIndex& index, const QPoint& at)
{
    if (QMenu* menu = makeRowMenu(index))
        menu->popup(m_list->viewport()->mapToGlobal(at));
}

bool CategoryPage::eventFilter(QObject* watched, QEvent* event)
{
    if (watched != m_list || event->type() != QEvent::KeyPress)
        return QWidget::eventFilter(watched, event);
    const auto* key = static_cast<QKeyEvent*>(event);
    const QModelIndex current = m_list->currentIndex();
    if (!RowMenuKeys::isMenuKey(key) || !m_listModel->itemAt(current))
        return QWidget::eventFilter(watched, event);
    QStyleOptionViewItem option;
    option.initFrom(m_list->viewport());
    option.rect = m_list->visualRect(current);
    popUpRowMenu(current, m_delegate->geometry(option, current).more.bottomLeft());
    return true;
}

QMenu* CategoryPage::makeRowMenu(const QModelIndex& index)
{
    const CleanupItem* item = m_listModel->itemAt(index);
    if (!item)
        return nullptr;
    auto* menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    addRowActions(menu, *item);
    return menu;
}

void CategoryPage::addRowActions(QMenu* menu, const CleanupItem& item)
{
    //: Row menu: never show this row in scans again
    menu->addAction(tr("Add to Safe List"), this, [this, item] { m_model->addToSafeList(item); });
    if (item.projectPath && !item.projectPath->isEmpty()) {
        const QString project = *item.projectPath;
        //: Row menu: never show anything inside this row's project or repository folder again
        menu->addAction(tr("Add Project to Safe List"), this, [this, project] { m_model->addFolderToSafeList(project); });
    }
    menu->addSeparator();
    QAction* reveal = menu->addAction(Reveal::title(), this, [this, item] { this->reveal(item); });
    reveal->setEnabled(!item.removal.paths().isEmpty());
    //: Row menu: copy a description of this row to paste into an AI assistant
    QAction* ask = menu->addAction(tr("Ask an AI Assistant"), this, [this, item] {
        AIQuestions::copy(this, m_model, [one = m_questions.one, item] { return one(item); });
    });
    ask->setEnabled(bool(m_questions.one));
    if (item.canMoveToAnotherDisk()) {
        //: Row menu: copy this row's files to another disk, check the copy, then trash the original
        menu->addAction(tr("Move to Another Disk…"), this, [this, item] { MoveSheet::open(m_model, item, window()); });
    }
}

void CategoryPage::askAbout(const QModelIndex& index)
{
    const CleanupItem* item = m_listModel->itemAt(index);
    if (!item || !m_questions.one)
        return;
    AIQuestions::copy(this, m_model, [one = m_questions.one, row = *item] { return one(row); });
}

void CategoryPage::askAboutShown()
{
    if (!m_questions.many || m_listModel->shownItems().isEmpty())
        return;
    AIQuestions::copy(this, m_model, [many = m_questions.many, rows = m_listModel->shownItems(), category = m_category] {
        return many(rows, category);
    });
}

void CategoryPage::reveal(const CleanupItem& item)
{
    const QStringList paths = item.removal.paths();
    if (paths.isEmpty())
        return;
    Reveal::show(m_model, paths.first());
}
