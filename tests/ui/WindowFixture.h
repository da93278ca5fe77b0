#pragma once

#include "model/AppModel.h"
#include "model/SettingsStore.h"
#include "model/StatsStore.h"
#include "support/FakeScanner.h"
#include "support/TempTree.h"
#include "ui/CategoryItemDelegate.h"
#include "ui/MainWindow.h"

#include <QSettings>
#include <QTemporaryDir>

#include <memory>

class CategoryPage;
class QAbstractButton;
class QLabel;
class QPushButton;
class QMessageBox;
class QModelIndex;

// The real window over a real model whose home folder is a TempTree: scanners are FakeScanners
// that return rows for files of the tree, and removal moves those files to the real
// freedesktop trash of the test environment.
class WindowFixture {
public:
    WindowFixture();
    ~WindowFixture();

    TempTree& home() { return m_home; }
    // Builds the model and a shown window over `scanners`; `adjust` may replace services.
    void start(std::vector<std::shared_ptr<const Scanner>> scanners,
               const std::function<void(AppModel::Services&)>& adjust = {});
    // Starts over one scanner of `rows`, scans and shows `category`; null if the scan never ended.
    CategoryPage* open(CategoryID category, QList<CleanupItem> rows,
                       const std::function<void(AppModel::Services&)>& adjust = {});
    // Makes a file of `size` bytes in the home folder and returns its row.
    CleanupItem addFile(CategoryID category, const QString& relative, qint64 size = 1'000);
    AppModel& model() { return *m_model; }
    MainWindow& window() { return *m_window; }

    // Scans everything through the toolbar and waits until every scanner has finished.
    bool scan();
    void show(CategoryID category);

    // The question box open over the window (or over its sheet), if any.
    QMessageBox* question() const;
    static void answer(QMessageBox* box, const QString& buttonText);
    // Clicks the checkbox of the row of item `id` on the shown category list.
    void clickCheckbox(const QString& id);
    QModelIndex rowOf(const QString& id) const;
    // Where the delegate paints the parts of the row at `index` of the shown list.
    CategoryItemDelegate::Geometry geometryOf(const QModelIndex& index) const;

    // The freedesktop trash of the test environment.
    static QString trashFiles();
    static void emptyTrashFolder();
    // Moves every path of the item to the trash, as the remover does for Trash rows.
    static CleanupSession::Outcome moveToTrash(const CleanupItem& item, const RemovalEnvironment& = {});

private:
    TempTree m_home;
    QTemporaryDir m_preferences;
    std::unique_ptr<QSettings> m_settings;
    std::unique_ptr<SettingsStore> m_settingsStore;
    std::unique_ptr<StatsStore> m_stats;
    std::unique_ptr<AppModel> m_model;
    std::unique_ptr<MainWindow> m_window;
};

// A Trash row for an existing file or folder of the tree, with its real size.
CleanupItem fileRow(const TempTree& tree, CategoryID category, const QString& relative);
std::shared_ptr<FakeScanner> scannerOf(CategoryID category, QList<CleanupItem> items, QStringList notes = {});

// Widgets of a page, found by their text: buttons, and whether a label is visible to the page.
QList<QPushButton*> buttonsTitled(const QWidget& page, const QString& text);
bool showsLabel(const QWidget& page, const QString& text);
ScanOutput found(QList<CleanupItem> items);
