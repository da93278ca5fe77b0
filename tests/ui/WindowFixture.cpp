#include "WindowFixture.h"

#include "support/Wait.h"
#include "ui/CategoryItemDelegate.h"
#include "ui/CategoryListModel.h"
#include "ui/CategoryPage.h"

#include <QAction>
#include <QApplication>
#include <QDir>
#include <QLabel>
#include <QListView>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>

#include <gtest/gtest.h>

WindowFixture::WindowFixture()
    : m_settings(std::make_unique<QSettings>(m_preferences.filePath("prefs.ini"), QSettings::IniFormat)),
      m_settingsStore(std::make_unique<SettingsStore>(m_settings.get(), m_home.root())),
      m_stats(std::make_unique<StatsStore>(m_settings.get()))
{
    emptyTrashFolder();
}

WindowFixture::~WindowFixture()
{
    m_window.reset();
    m_model.reset();
}

void WindowFixture::start(std::vector<std::shared_ptr<const Scanner>> scanners,
                          const std::function<void(AppModel::Services&)>& adjust)
{
    AppModel::Services services = AppModel::defaultServices();
    services.scanners = [scanners] { return scanners; };
    services.readSystemState = [](const QString&) { return AppModel::SystemState{120'500'000'000, 494'000'000'000, true}; };
    services.removeItem = &WindowFixture::moveToTrash;
    services.emptyTrash = [](const FreedesktopTrash::EmptyProgress&, const CancellationToken&) {
        emptyTrashFolder();
        return std::optional<QString>();
    };
    if (adjust)
        adjust(services);
    m_model = std::make_unique<AppModel>(m_settingsStore.get(), m_stats.get(), services);
    m_window = std::make_unique<MainWindow>(m_model.get());
    m_window->show();
    m_model->refreshSystemState();
}

CategoryPage* WindowFixture::open(CategoryID category, QList<CleanupItem> rows,
                                  const std::function<void(AppModel::Services&)>& adjust)
{
    start({scannerOf(category, std::move(rows))}, adjust);
    if (!scan())
        return nullptr;
    show(category);
    return m_window->categoryPage();
}

CleanupItem WindowFixture::addFile(CategoryID category, const QString& relative, qint64 size)
{
    m_home.file(relative, size);
    return fileRow(m_home, category, relative);
}

bool WindowFixture::scan()
{
    m_window->scanAction()->trigger();
    return waitUntil([this] { return m_model->hasScanned() && !m_model->isBusyScanning(); });
}

void WindowFixture::show(CategoryID category)
{
    m_window->choose(SidebarDestination::of(category));
}

QMessageBox* WindowFixture::question() const
{
    for (QWidget* widget : QApplication::topLevelWidgets()) {
        if (auto* box = qobject_cast<QMessageBox*>(widget); box && box->isVisible())
            return box;
    }
    return nullptr;
}

void WindowFixture::answer(QMessageBox* box, const QString& buttonText)
{
    for (QAbstractButton* button : box->buttons()) {
        if (button->text() == buttonText) {
            button->click();
            return;
        }
    }
    ADD_FAILURE() << "no button " << buttonText.toStdString();
}

QModelIndex WindowFixture::rowOf(const QString& id) const
{
    return m_window->categoryPage()->listModel()->indexOfItem(id);
}

CategoryItemDelegate::Geometry WindowFixture::geometryOf(const QModelIndex& index) const
{
    QListView* list = m_window->categoryPage()->list();
    list->scrollTo(index);
    QStyleOptionViewItem option;
    option.initFrom(list);
    option.rect = list->visualRect(index);
    option.widget = list;
    return m_window->categoryPage()->delegate()->geometry(option, index);
}

void WindowFixture::clickCheckbox(const QString& id)
{
    const QModelIndex index = rowOf(id);
    ASSERT_TRUE(index.isValid()) << id.toStdString();
    QTest::mouseClick(m_window->categoryPage()->list()->viewport(), Qt::LeftButton, {}, geometryOf(index).checkbox.center());
}

QString WindowFixture::trashFiles()
{
    return QFile::decodeName(qgetenv("XDG_DATA_HOME")) + QStringLiteral("/Trash/files");
}

void WindowFixture::emptyTrashFolder()
{
    const QString trash = QFile::decodeName(qgetenv("XDG_DATA_HOME")) + QStringLiteral("/Trash");
    QDir(trash).removeRecursively();
    QDir().mkpath(trash + QStringLiteral("/files"));
    QDir().mkpath(trash + QStringLiteral("/info"));
}

CleanupSession::Outcome WindowFixture::moveToTrash(const CleanupItem& item, const RemovalEnvironment&)
{
    for (const QString& path : item.removal.paths()) {
        QString inTrash;
        // Qt 6.4 reports success even when it fell back to the working folder: check where it went.
        if (!QFile::moveToTrash(path, &inTrash) || !inTrash.startsWith(trashFiles() + QLatin1Char('/')))
            return CleanupSession::Outcome::failed(QStringLiteral("It couldn't be moved to the Trash."));
    }
    return CleanupSession::Outcome::movedToTrash();
}

CleanupItem fileRow(const TempTree& tree, CategoryID category, const QString& relative)
{
    const QString path = tree.path(relative);
    CleanupItem item;
    item.id = path;
    item.category = category;
    item.title = relative.section(QLatin1Char('/'), -1);
    item.detail = QStringLiteral("~/") + relative;
    item.size = QFileInfo(path).size();
    item.removal = Removal::trash({*FileTarget::make(path)});
    return item;
}

std::shared_ptr<FakeScanner> scannerOf(CategoryID category, QList<CleanupItem> items, QStringList notes)
{
    ScanOutputs outputs;
    outputs[category] = ScanOutput{std::move(items), std::move(notes), std::nullopt};
    return std::make_shared<FakeScanner>(QList<CategoryID>{category}, outputs);
}

QList<QPushButton*> buttonsTitled(const QWidget& page, const QString& text)
{
    QList<QPushButton*> buttons;
    for (QPushButton* button : page.findChildren<QPushButton*>()) {
        if (button->text() == text)
            buttons.append(button);
    }
    return buttons;
}

bool showsLabel(const QWidget& page, const QString& text)
{
    for (const QLabel* label : page.findChildren<QLabel*>()) {
        if (label->text() == text && label->isVisibleTo(&page))
            return true;
    }
    return false;
}

ScanOutput found(QList<CleanupItem> items)
{
    ScanOutput output;
    output.items = std::move(items);
    return output;
}
