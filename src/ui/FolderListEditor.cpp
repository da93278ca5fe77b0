#include "ui/FolderListEditor.h"

#include "ui/FolderChooser.h"

#include <QDir>
#include <QFileDialog>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

#include <algorithm>
#include <memory>

namespace {

constexpr int fewestRows = 3;
constexpr int mostRows = 8;

QString pickFolder(QWidget* parent)
{
    //: Title of the folder picker
    const std::unique_ptr<QFileDialog> chooser(FolderChooser::make(parent, FolderListEditor::tr("Choose a Folder")));
    if (chooser->exec() != QDialog::Accepted)
        return {};
    return chooser->selectedFiles().value(0);
}

}  // namespace

FolderListEditor::FolderListEditor(QWidget* parent)
    : QWidget(parent), m_list(new QListWidget(this)), m_emptyText(new QLabel(this)),
      m_removeButton(new QPushButton(this)), m_picker(pickFolder)
{
    m_list->setSelectionMode(QAbstractItemView::SingleSelection);
    m_list->setUniformItemSizes(true);
    m_emptyText->setForegroundRole(QPalette::PlaceholderText);
    //: Button that adds a folder to a list of folders
    auto* addButton = new QPushButton(tr("Add Folder…"), this);
    //: Button that removes the selected folder from a list of folders
    m_removeButton->setText(tr("Remove"));

    auto* buttons = new QHBoxLayout;
    buttons->addWidget(addButton);
    buttons->addWidget(m_removeButton);
    buttons->addStretch(1);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_list);
    layout->addWidget(m_emptyText);
    layout->addLayout(buttons);

    connect(addButton, &QPushButton::clicked, this, &FolderListEditor::addFolder);
    connect(m_removeButton, &QPushButton::clicked, this, &FolderListEditor::removeSelected);
    connect(m_list, &QListWidget::itemSelectionChanged, this, &FolderListEditor::updateState);
    updateState();
}

void FolderListEditor::setFolders(const QStringList& folders)
{
    m_list->clear();
    const QIcon icon = style()->standardIcon(QStyle::SP_DirIcon);
    for (const QString& folder : folders) {
        auto* row = new QListWidgetItem(icon, QDir::toNativeSeparators(folder), m_list);
        row->setData(Qt::UserRole, folder);
        row->setToolTip(QDir::toNativeSeparators(folder));
    }
    fitHeight();
    updateState();
}

QStringList FolderListEditor::folders() const
{
    QStringList result;
    for (int index = 0; index < m_list->count(); ++index)
        result.append(m_list->item(index)->data(Qt::UserRole).toString());
    return result;
}

void FolderListEditor::setEmptyText(const QString& text)
{
    m_emptyText->setText(text);
    updateState();
}

void FolderListEditor::addFolder()
{
    const QString chosen = m_picker ? m_picker(this) : QString();
    if (!chosen.isEmpty())
        emit addRequested(QDir::cleanPath(chosen));
}

void FolderListEditor::removeSelected()
{
    const QList<QListWidgetItem*> selected = m_list->selectedItems();
    if (!selected.isEmpty())
        emit removeRequested(selected.first()->data(Qt::UserRole).toString());
}

void FolderListEditor::updateState()
{
    const bool empty = m_list->count() == 0;
    m_list->setVisible(!empty);
    m_emptyText->setVisible(empty && !m_emptyText->text().isEmpty());
    m_removeButton->setEnabled(!m_list->selectedItems().isEmpty());
}

// A short list shows whole, without a scroll bar; a long one scrolls within a few rows.
void FolderListEditor::fitHeight()
{
    const int rows = std::clamp(m_list->count(), fewestRows, mostRows);
    const int rowHeight = m_list->sizeHintForRow(0) > 0 ? m_list->sizeHintForRow(0) : fontMetrics().height() + 6;
    m_list->setFixedHeight(rows * rowHeight + 2 * m_list->frameWidth() + 4);
}
