#include "ui/SettingsPage.h"

#include "model/SettingsStore.h"
#include "ui/PageLabels.h"
#include "ui/UpdateBox.h"
#include "ui/WatchSection.h"
#include "ui/WindowRoom.h"

#include <QAction>
#include <QComboBox>
#include <QCoreApplication>
#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QSettings>
#include <QVBoxLayout>

#include <algorithm>

SettingsPage::SettingsPage(SettingsStore* settings, QSettings* preferences, QList<AppLanguage::Option> languages,
                           QWidget* parent)
    : QWidget(parent), m_settings(settings), m_preferences(preferences),
      m_launchChoice(AppLanguage::chosen(*preferences)), m_scanFolders(new FolderListEditor(this)),
      m_languagePicker(new QComboBox(this)), m_relaunchNote(PageLabels::note({}, this)),
      m_relaunchButton(new QPushButton(this))
{
    //: Title of the settings window
    setWindowTitle(tr("Dustlark Settings"));
    addClosingKeys();
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(24, 20, 24, 20);
    layout->setSpacing(10);
    //: Heading of the settings
    layout->addWidget(PageLabels::title(tr("Settings"), this));
    //: Heading of the scan folders in the settings
    layout->addWidget(PageLabels::heading(tr("Scan Folders"), this));
    //: Explanation of the scan folders in the settings
    layout->addWidget(PageLabels::note(tr("Dustlark looks for project builds, Git worktrees, large files and "
                                          "duplicates in these folders."), this));
    layout->addWidget(m_scanFolders);
    layout->addSpacing(12);
    layout->addWidget(makeLanguageSection());
    layout->addSpacing(12);
    m_watch = new WatchSection(settings, ScheduledScan::Place::current(QCoreApplication::applicationDirPath() + QStringLiteral("/dustlark-cli")), this);
    layout->addWidget(m_watch);
    layout->addStretch(1);

    fillLanguagePicker(std::move(languages));
    connect(m_settings, &SettingsStore::scanRootsChanged, this, &SettingsPage::refreshScanFolders);
    connect(m_scanFolders, &FolderListEditor::addRequested, m_settings, &SettingsStore::addRoot);
    connect(m_scanFolders, &FolderListEditor::removeRequested, m_settings, &SettingsStore::removeRoot);
    connect(m_languagePicker, &QComboBox::activated, this, [this](int index) {
        chooseLanguage(m_languagePicker->itemData(index).toString());
    });
    connect(m_relaunchButton, &QPushButton::clicked, this, &SettingsPage::relaunchNow);
    refreshScanFolders();
    refreshRelaunch();
}

// The window grows with what it shows (an update check's answer) instead of squeezing the
// folder list under its buttons.
bool SettingsPage::event(QEvent* event)
{
    const bool handled = QWidget::event(event);
    if (event->type() == QEvent::LayoutRequest && isWindow())
        WindowRoom::makeRoom(this);
    return handled;
}

// A settings window closes as other windows of its kind do, by Escape and by the Close key.
void SettingsPage::addClosingKeys()
{
    auto* close = new QAction(this);
    close->setShortcuts({QKeySequence(Qt::Key_Escape), QKeySequence(QKeySequence::Close)});
    close->setShortcutContext(Qt::WindowShortcut);
    connect(close, &QAction::triggered, this, &QWidget::close);
    addAction(close);
}

void SettingsPage::setFolderPicker(FolderListEditor::FolderPicker picker)
{
    m_scanFolders->setFolderPicker(std::move(picker));
}

void SettingsPage::chooseLanguage(const QString& code)
{
    AppLanguage::choose(*m_preferences, code);
    m_languagePicker->setCurrentIndex(std::max(0, m_languagePicker->findData(code)));
    refreshRelaunch();
}

void SettingsPage::showUpdates(AppModel* model)
{
    auto* layout = static_cast<QVBoxLayout*>(this->layout());
    const int beforeStretch = layout->count() - 1;
    layout->insertSpacing(beforeStretch, 12);
    //: Heading of the update check in the settings
    layout->insertWidget(beforeStretch + 1, PageLabels::heading(tr("Updates"), this));
    layout->insertWidget(beforeStretch + 2, new UpdateBox(model, this));
}

QWidget* SettingsPage::makeLanguageSection()
{
    auto* section = new QWidget(this);
    //: Label of the interface language picker in the settings
    auto* label = new QLabel(tr("Language:"), section);
    label->setBuddy(m_languagePicker);
    //: Button that restarts the app so a newly chosen language takes effect
    m_relaunchButton->setText(tr("Relaunch"));
    auto* pickerRow = new QHBoxLayout;
    pickerRow->addWidget(label);
    pickerRow->addWidget(m_languagePicker);
    pickerRow->addStretch(1);
    auto* relaunchRow = new QHBoxLayout;
    relaunchRow->addWidget(m_relaunchNote, 1);
    relaunchRow->addWidget(m_relaunchButton);

    auto* layout = new QVBoxLayout(section);
    layout->setContentsMargins(0, 0, 0, 0);
    //: Heading of the interface language in the settings
    layout->addWidget(PageLabels::heading(tr("Interface Language"), section));
    layout->addLayout(pickerRow);
    layout->addLayout(relaunchRow);
    return section;
}

// The stored choice stays selectable even without its translation, so the picker never
// shows a choice the person didn't make.
void SettingsPage::fillLanguagePicker(QList<AppLanguage::Option> languages)
{
    const QString chosen = AppLanguage::chosen(*m_preferences);
    const bool offered = std::any_of(languages.begin(), languages.end(),
                                     [&chosen](const AppLanguage::Option& option) { return option.code == chosen; });
    if (!offered)
        languages.append({chosen, chosen});
    for (const AppLanguage::Option& option : languages)
        m_languagePicker->addItem(option.title, option.code);
    m_languagePicker->setCurrentIndex(std::max(0, m_languagePicker->findData(chosen)));
}

void SettingsPage::refreshScanFolders()
{
    m_scanFolders->setFolders(m_settings->scanRoots());
}

void SettingsPage::refreshRelaunch()
{
    const bool pending = AppLanguage::chosen(*m_preferences) != m_launchChoice;
    //: Shown after choosing another interface language
    m_relaunchNote->setText(tr("The new language is used after Dustlark relaunches."));
    m_relaunchNote->setVisible(pending);
    m_relaunchButton->setVisible(pending);
}

void SettingsPage::relaunchNow()
{
    if (m_relaunch && m_relaunch())
        return;
    //: Shown when the app could not start itself again
    m_relaunchNote->setText(tr("Dustlark couldn't relaunch. Quit it and open it again."));
}
