#include "ui/CategoryPage.h"

#include "format/ByteCount.h"
#include "format/RelativeDate.h"
#include "model/AppModel.h"
#include "model/SettingsStore.h"
#include "ui/CategoryItemDelegate.h"
#include "ui/CategoryListModel.h"
#include "ui/SelectionBar.h"
#include "ui/TrashEmptier.h"

#include <QCheckBox>
#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QMenu>
#include <QPushButton>
#include <QScrollBar>
#include <QStackedWidget>
#include <QStyle>
#include <QToolButton>

namespace {

QWidget* makeBanner(const QString& text, QWidget* parent)
{
    auto* banner = new QFrame(parent);
    banner->setFrameShape(QFrame::StyledPanel);
    banner->setBackgroundRole(QPalette::AlternateBase);
    banner->setAutoFillBackground(true);
    auto* icon = new QLabel(banner);
    icon->setPixmap(banner->style()->standardIcon(QStyle::SP_MessageBoxInformation).pixmap(16, 16));
    icon->setAlignment(Qt::AlignTop);
    auto* label = new QLabel(text, banner);
    label->setWordWrap(true);
    label->setTextFormat(Qt::PlainText);
    auto* layout = new QHBoxLayout(banner);
    layout->setContentsMargins(10, 6, 10, 6);
    layout->setSpacing(8);
    layout->addWidget(icon);
    layout->addWidget(label, 1);
    return banner;
}

int sidePadding()
{
    return CategoryItemDelegate::sidePadding + 1;  // the list's frame
}

bool refreshesWithTheWalk(CategoryID category)
{
    return category == CategoryID::projects || category == CategoryID::worktrees
        || category == CategoryID::largeFiles || category == CategoryID::duplicates;
}

}  // namespace

CategoryPage::CategoryPage(AppModel* model, QWidget* parent)
    : QWidget(parent), m_model(model), m_title(new QLabel(this)), m_scanned(new QLabel(this)), m_total(new QLabel(this)),
      m_rescan(new QToolButton(this)), m_explanation(new QLabel(this)), m_notes(new QWidget(this)),
      m_notesLayout(new QVBoxLayout(m_notes)), m_summary(new QLabel(this)), m_selectAll(new QCheckBox(this)),
      m_sizeFilter(new QComboBox(this)), m_search(new QLineEdit(this)), m_askAboutShown(new QPushButton(this)),
      m_emptyTrash(new QPushButton(this)), m_content(new QStackedWidget(this)), m_list(new QListView(this)),
      m_emptyState(new QLabel(this)), m_listModel(new CategoryListModel(model, this)),
      m_delegate(new CategoryItemDelegate(m_listModel, model->settings()->home(), this)),
      m_selectionBar(new SelectionBar(model, this)), m_trash(new TrashEmptier(model, this))
{
    m_explanation->setWordWrap(true);
    m_explanation->setTextFormat(Qt::PlainText);
    m_explanation->setForegroundRole(QPalette::PlaceholderText);
    m_notesLayout->setContentsMargins(0, 0, 0, 0);
    m_notesLayout->setSpacing(6);
    m_summary->setWordWrap(true);
    m_summary->setTextFormat(Qt::PlainText);
    makeList();

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(24, 18, 24, 14);
    layout->setSpacing(10);
    layout->addLayout(makeHeader());
    layout->addWidget(m_explanation);
    layout->addWidget(m_notes);
    layout->addWidget(m_summary);
    layout->addLayout(makeControls());
    layout->addWidget(m_content, 1);
    layout->addWidget(m_selectionBar);
    connectModel();
    showCategory(m_category);
}

QLayout* CategoryPage::makeHeader()
{
    QFont titleFont = m_title->font();
    titleFont.setPointSizeF(titleFont.pointSizeF() * 1.6);
    titleFont.setBold(true);
    m_title->setFont(titleFont);
    QFont totalFont = m_total->font();
    totalFont.setPointSizeF(totalFont.pointSizeF() * 1.25);
    m_total->setFont(totalFont);
    m_total->setForegroundRole(QPalette::PlaceholderText);
    m_rescan->setIcon(style()->standardIcon(QStyle::SP_BrowserReload));
    //: Button that scans one category again
    m_rescan->setText(tr("Rescan"));
    m_rescan->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    m_rescan->setAutoRaise(true);
    connect(m_rescan, &QToolButton::clicked, this, [this] { m_model->rescan(m_category); });

    auto* header = new QHBoxLayout;
    m_scanned->setForegroundRole(QPalette::PlaceholderText);
    header->addWidget(m_title);
    header->addStretch(1);
    header->addWidget(m_scanned);
    header->addSpacing(8);
    header->addWidget(m_total);
    header->addSpacing(8);
    header->addWidget(m_rescan);
    return header;
}

QLayout* CategoryPage::makeControls()
{
    //: Checkbox that selects every row the list shows
    m_selectAll->setText(tr("Select All"));
    m_selectAll->setTristate(false);
    connect(m_selectAll, &QCheckBox::clicked, this, &CategoryPage::selectAllClicked);
    fillSizeFilter();
    //: Placeholder of the search field above a list
    m_search->setPlaceholderText(tr("Search"));
    m_search->setClearButtonEnabled(true);
    m_search->setMinimumWidth(200);
    connect(m_search, &QLineEdit::textChanged, this, &CategoryPage::reloadList);
    //: Button that copies one question about every shown row for an AI assistant
    m_askAboutShown->setText(tr("Ask AI About These"));
    //: Tooltip of the button that copies a question about every shown row
    m_askAboutShown->setToolTip(tr("Copies a description of the shown rows for an AI assistant (Claude, Codex, ChatGPT)."));
    connect(m_askAboutShown, &QPushButton::clicked, this, &CategoryPage::askAboutShown);
    //: Button of the Trash category; a confirmation follows
    m_emptyTrash->setText(tr("Empty Trash…"));
    connect(m_emptyTrash, &QPushButton::clicked, m_trash, &TrashEmptier::ask);

    auto* controls = new QHBoxLayout;
    controls->setSpacing(8);
    // Puts the select-all box over the rows' checkboxes.
    controls->setContentsMargins(sidePadding(), 0, 0, 0);
    controls->addWidget(m_selectAll);
    controls->addStretch(1);
    controls->addWidget(m_emptyTrash);
    controls->addWidget(m_askAboutShown);
    controls->addWidget(m_sizeFilter);
    controls->addWidget(m_search);
    return controls;
}

void CategoryPage::fillSizeFilter()
{
    for (SizeFilter filter : SizeFilters::allCases())
        m_sizeFilter->addItem(SizeFilters::title(filter), SizeFilters::rawValue(filter));
    //: Tooltip of the size filter above every list
    m_sizeFilter->setToolTip(tr("Shows only rows of at least this size, in every list."));
    m_sizeFilter->setCurrentIndex(m_sizeFilter->findData(SizeFilters::rawValue(m_model->sizeFilter())));
    connect(m_sizeFilter, &QComboBox::activated, this, &CategoryPage::sizeFilterChosen);
}

void CategoryPage::makeList()
{
    m_list->setModel(m_listModel);
    m_list->setItemDelegate(m_delegate);
    m_list->setSelectionMode(QAbstractItemView::SingleSelection);
    m_list->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    m_list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_list->setMouseTracking(true);
    m_list->viewport()->setAttribute(Qt::WA_Hover);  // the ••• button shows under the pointer
    m_list->setContextMenuPolicy(Qt::CustomContextMenu);
    m_list->setEditTriggers(QAbstractItemView::NoEditTriggers);
    connect(m_list, &QListView::customContextMenuRequested, this, &CategoryPage::showRowMenu);
    // Rows leave the list one by one during a cleanup; the list should stay where it was.
    connect(m_listModel, &QAbstractItemModel::modelAboutToBeReset, this,
            [this] { m_scrollBeforeReload = m_list->verticalScrollBar()->value(); });
    connect(m_listModel, &QAbstractItemModel::modelReset, this, [this] {
        m_list->doItemsLayout();
        m_list->verticalScrollBar()->setValue(m_scrollBeforeReload);
    });
    connect(m_delegate, &CategoryItemDelegate::askAIClicked, this, &CategoryPage::askAbout);
    connect(m_delegate, &CategoryItemDelegate::menuRequested, this, &CategoryPage::popUpRowMenu);
    m_list->installEventFilter(this);

    m_emptyState->setAlignment(Qt::AlignCenter);
    m_emptyState->setForegroundRole(QPalette::PlaceholderText);
    QFont font = m_emptyState->font();
    font.setPointSizeF(font.pointSizeF() * 1.15);
    m_emptyState->setFont(font);
    m_content->addWidget(m_list);
    m_content->addWidget(m_emptyState);
}

void CategoryPage::connectModel()
{
    connect(m_model, &AppModel::resultsChanged, this, [this](CategoryID changed) {
        if (changed == m_category)
            refresh();
    });
    connect(m_model, &AppModel::scanStateChanged, this, &CategoryPage::refreshControls);
    connect(m_model, &AppModel::clockTicked, this, &CategoryPage::refreshScanned);
    connect(m_model, &AppModel::trashChanged, this, &CategoryPage::refreshControls);
    connect(m_model, &AppModel::selectionChanged, this, &CategoryPage::refreshSelectAll);
    connect(m_model->settings(), &SettingsStore::sizeFilterChanged, this, [this] {
        m_sizeFilter->setCurrentIndex(m_sizeFilter->findData(SizeFilters::rawValue(m_model->sizeFilter())));
        reloadList();
    });
}

void CategoryPage::showCategory(CategoryID category)
{
    const bool changed = category != m_category;
    m_category = category;
    m_title->setText(Categories::title(category));
    m_explanation->setText(Categories::explanation(category));
    if (refreshesWithTheWalk(category))
        //: Tooltip of the rescan button of Project Builds, Git Worktrees, Large Files and Duplicates
        m_rescan->setToolTip(tr("Scans the scan folders again; Project Builds, Git Worktrees, Large Files and Duplicates refresh together"));
    else
        //: Tooltip of the rescan button of every other category
        m_rescan->setToolTip(tr("Scans this category again"));
    m_emptyTrash->setVisible(category == CategoryID::trash);
    if (changed) {
        const QSignalBlocker blocker(m_search);
        m_search->clear();
    }
    m_listModel->show(category, m_search->text());
    if (changed)
        m_list->scrollToTop();
    refresh();
}

void CategoryPage::setQuestions(AIQuestions questions)
{
    m_questions = std::move(questions);
    refreshControls();
}

void CategoryPage::refresh()
{
    const CategoryResult result = m_model->result(m_category);
    m_total->setText(result.state == CategoryResult::State::done ? ByteCount::format(result.totalSize()) : QString());
    m_summary->setText(result.summary.value_or(QString()));
    m_summary->setVisible(result.summary.has_value() && !result.summary->isEmpty());
    refreshScanned();
    refreshNotes();
    refreshControls();
}

// When the list was filled, growing older with the model's clock.
void CategoryPage::refreshScanned()
{
    const std::optional<QDateTime> scanned = m_model->scannedAt(m_category);
    const bool shown = scanned && m_model->result(m_category).state == CategoryResult::State::done;
    //: In a category's header: when its list was scanned; %1 is a relative date ("5 minutes ago")
    m_scanned->setText(shown ? tr("Scanned %1").arg(RelativeDate::format(*scanned, m_model->now())) : QString());
}

void CategoryPage::refreshNotes()
{
    while (QLayoutItem* item = m_notesLayout->takeAt(0)) {
        delete item->widget();
        delete item;
    }
    const QStringList notes = m_model->result(m_category).notes;
    for (const QString& note : notes)
        m_notesLayout->addWidget(makeBanner(note, m_notes));
    m_notes->setVisible(!notes.isEmpty());
}

void CategoryPage::reloadList()
{
    m_listModel->show(m_category, m_search->text());
    refreshControls();
}

void CategoryPage::refreshControls()
{
    const bool busy = m_model->isScanning() || m_model->isCategoryScanning(m_category);
    m_rescan->setEnabled(!busy);
    const bool hasRows = !m_listModel->shownItems().isEmpty();
    m_askAboutShown->setEnabled(hasRows && bool(m_questions.many));
    const CategoryResult result = m_model->result(m_category);
    m_emptyTrash->setEnabled(!result.items.isEmpty() && !m_model->trashState().isEmptying);
    m_selectAll->setEnabled(hasRows && m_category != CategoryID::trash);
    m_emptyState->setText(emptyStateText());
    m_content->setCurrentWidget(hasRows ? static_cast<QWidget*>(m_list) : m_emptyState);
    refreshSelectAll();
}

QString CategoryPage::emptyStateText() const
{
    const CategoryResult result = m_model->result(m_category);
    if (!m_listModel->shownItems().isEmpty())
        return {};
    if (!result.items.isEmpty())
        //: Empty state when the size filter or the search hides every row
        return tr("Nothing matches the filter.");
    if (result.state == CategoryResult::State::scanning)
        //: Empty state while the category is being scanned
        return tr("Scanning…");
    if (result.state == CategoryResult::State::idle)
        //: Empty state of a category that was never scanned
        return tr("Scan to see what's here.");
    //: Empty state when the scan found nothing in this category
    return tr("Nothing to clean here.");
}

bool CategoryPage::showsList() const
{
    return m_content->currentWidget() == m_list;
}

void CategoryPage::refreshSelectAll()
{
    // Rows that can't be ticked, and the one copy that must stay, don't keep it unchecked.
    bool anySelected = false;
    bool anyOpen = false;
    // One row left to tick settles it: after a scan that is the first row, not the last of thousands.
    for (const CleanupItem& item : m_listModel->shownItems()) {
        if (m_model->selection().contains(item.id))
            anySelected = true;
        else if (m_listModel->checkbox(item) == CategoryListModel::Checkbox::usable)
            anyOpen = true;
        if (anyOpen)
            break;
    }
    m_selectAll->setChecked(anySelected && !anyOpen);
}

void CategoryPage::selectAllClicked()
{
    m_model->setAll(m_listModel->shownItems(), m_selectAll->isChecked());
    refreshSelectAll();
}

void CategoryPage::sizeFilterChosen(int index)
{
    m_model->setSizeFilter(SizeFilters::fromRawValue(m_sizeFilter->itemData(index).toInt()));
}
