#include "WindowFixture.h"
#include "model/SettingsStore.h"
#include "support/ModelFixture.h"
#include "support/Wait.h"
#include "ui/FolderChooser.h"
#include "ui/SettingsPage.h"
#include "ui/UpdateBox.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QCompleter>
#include <QFileDialog>
#include <QLayout>
#include <QLabel>
#include <QListWidget>
#include <QLineEdit>
#include <QPushButton>
#include <QStorageInfo>
#include <QTemporaryDir>
#include <QTest>

#include <gtest/gtest.h>
#include <memory>

namespace {

struct SettingsFixture {
    QTemporaryDir dir;
    QSettings preferences{dir.filePath("prefs.ini"), QSettings::IniFormat};
    SettingsStore settings{&preferences, "/Users/a"};
    QList<AppLanguage::Option> languages{{"", "System Language"}, {"de", "Deutsch"}, {"en", "English"}};
};

}  // namespace

TEST(SettingsPage, ScanFoldersAreAddedThroughThePickerAndTheLastOneRemovedLeavesHome)
{
    SettingsFixture fixture;
    SettingsPage page(&fixture.settings, &fixture.preferences, fixture.languages);
    page.setFolderPicker([](QWidget*) { return QStringLiteral("/Volumes/Work/code"); });
    EXPECT_EQ(page.scanFolders()->folders(), QStringList({"/Users/a"}));

    page.scanFolders()->addFolder();
    EXPECT_EQ(fixture.settings.scanRoots(), QStringList({"/Users/a", "/Volumes/Work/code"}));
    EXPECT_EQ(page.scanFolders()->folders(), fixture.settings.scanRoots());

    QPushButton* remove = buttonsTitled(page, "Remove").value(0);
    ASSERT_TRUE(remove);
    EXPECT_FALSE(remove->isEnabled()) << "nothing is selected";
    for (const QString& folder : QStringList{"/Users/a", "/Volumes/Work/code"}) {
        page.scanFolders()->list()->setCurrentRow(int(page.scanFolders()->folders().indexOf(folder)));
        remove->click();
    }
    EXPECT_EQ(fixture.settings.scanRoots(), QStringList({"/Users/a"}));
}

TEST(SettingsPage, ChoosingALanguageStoresItAndOffersARelaunch)
{
    SettingsFixture fixture;
    SettingsPage page(&fixture.settings, &fixture.preferences, fixture.languages);
    page.setRelaunch([] { return false; });
    EXPECT_EQ(page.languagePicker()->currentText(), "System Language");
    EXPECT_FALSE(page.relaunchButton()->isVisibleTo(&page)) << "the language in force is the chosen one";

    page.languagePicker()->setCurrentIndex(1);
    emit page.languagePicker()->activated(1);
    EXPECT_EQ(AppLanguage::chosen(fixture.preferences), "de");
    ASSERT_TRUE(page.relaunchButton()->isVisibleTo(&page));

    page.relaunchButton()->click();
    EXPECT_TRUE(showsLabel(page, "Dustlark couldn't relaunch. Quit it and open it again."));

    page.chooseLanguage("");
    EXPECT_FALSE(fixture.preferences.contains("AppleLanguages"));
    EXPECT_FALSE(page.relaunchButton()->isVisibleTo(&page));
}

TEST(SettingsPage, AStoredLanguageWithoutTranslationStaysSelected)
{
    SettingsFixture fixture;
    AppLanguage::choose(fixture.preferences, "fr");
    SettingsPage page(&fixture.settings, &fixture.preferences, fixture.languages);
    EXPECT_EQ(page.languagePicker()->currentData().toString(), "fr");
    EXPECT_EQ(page.languagePicker()->count(), 4);
}

TEST(SettingsPage, IsAWindowThatSaysWhatItIsAndClosesByEscapeOrTheCloseKey)
{
    SettingsFixture fixture;
    WindowFixture window;
    window.start({});
    auto* page = new SettingsPage(&fixture.settings, &fixture.preferences, fixture.languages);
    window.window().setSettingsPage(page);
    EXPECT_EQ(page->windowTitle(), "Dustlark Settings");

    for (const QKeySequence& closing : {QKeySequence(Qt::Key_Escape), QKeySequence(QKeySequence::Close)}) {
        window.window().activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&window.window()));
        QTest::keySequence(&window.window(), QKeySequence(Qt::CTRL | Qt::Key_Comma));
        ASSERT_TRUE(page->isVisible()) << "Ctrl+, opens the settings";
        page->activateWindow();  // as the window manager does with a window that asks for it
        ASSERT_TRUE(waitUntil([&] { return QApplication::activeWindow() == page; }));
        QTest::keySequence(page->scanFolders()->list(), closing);
        EXPECT_FALSE(page->isVisible()) << closing.toString().toStdString() << " closes them";
    }
}

TEST(SettingsPage, AnUpdateAnswerGrowsTheWindowInsteadOfSqueezingTheFolderList)
{
    SettingsFixture fixture;
    ModelFixture model;
    SettingsPage page(&fixture.settings, &fixture.preferences, fixture.languages);
    page.showUpdates(&model.model());
    page.show();
    QApplication::processEvents();
    const QList<UpdateBox*> boxes = page.findChildren<UpdateBox*>();
    ASSERT_EQ(boxes.size(), 1);
    UpdateBox* box = boxes.first();
    EXPECT_EQ(box->checkButton()->text(), QStringLiteral("Check for Updates"));
    EXPECT_TRUE(page.layout()->itemAt(page.layout()->count() - 1)->spacerItem()) << "the stretch stays last";
    box->status()->setText(QStringLiteral("The update check failed: the server answered with something that is not "
                                          "a version file.\nCheck your connection and try again.\nA third line."));
    box->status()->show();
    QApplication::processEvents();
    QApplication::processEvents();

    QListWidget* list = page.scanFolders()->list();
    QPushButton* add = buttonsTitled(page, "Add Folder…").value(0);
    ASSERT_TRUE(add);
    const QRect listArea(list->mapTo(&page, QPoint(0, 0)), list->size());
    const QRect addArea(add->mapTo(&page, QPoint(0, 0)), add->size());
    EXPECT_FALSE(listArea.intersects(addArea)) << "list " << listArea.bottom() << ", button from " << addArea.top();
    EXPECT_GE(page.height(), page.minimumSizeHint().height());
}

TEST(FolderChooser, OpensInTheHomeFolderBesideEveryMountedDisk)
{
    const std::unique_ptr<QFileDialog> chooser(FolderChooser::make(nullptr, QStringLiteral("Choose a Folder")));
    EXPECT_EQ(chooser->directory().absolutePath(), QDir::homePath());
    const QList<QUrl> places = chooser->sidebarUrls();
    ASSERT_FALSE(places.isEmpty());
    EXPECT_EQ(places.first(), QUrl::fromLocalFile(QDir::homePath()));
    for (const QStorageInfo& volume : QStorageInfo::mountedVolumes()) {
        const QUrl root = QUrl::fromLocalFile(volume.rootPath());
        const QString path = volume.rootPath();
        if (path == QLatin1String("/") && volume.device().startsWith("/dev/")) {
            EXPECT_TRUE(places.contains(root)) << "the system disk";
        }
        if (path.startsWith(QLatin1String("/proc")) || path.startsWith(QLatin1String("/sys"))
            || path == QLatin1String("/dev/shm") || path == QLatin1String("/run")) {
            EXPECT_FALSE(places.contains(root)) << path.toStdString() << " holds no person's files";
        }
    }
}

TEST(FolderChooser, LeavesNoCompletionListBehindWhenItCloses)
{
    QTemporaryDir home;
    for (const char* folder : {"Documents", "Downloads"})
        QDir(home.path()).mkpath(QString::fromLatin1(folder));
    const std::unique_ptr<QFileDialog> chooser(FolderChooser::make(nullptr, QStringLiteral("Choose a Folder")));
    chooser->setDirectory(home.path());
    chooser->show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(chooser.get()));
    auto* name = chooser->findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
    ASSERT_TRUE(name && name->completer());
    name->setFocus();
    QTest::keyClicks(name, QStringLiteral("Do"));
    QAbstractItemView* popup = name->completer()->popup();
    if (!waitUntil([&] { return popup->isVisible(); }, 3000))
        GTEST_SKIP() << "the completion list did not open on this platform";

    chooser->reject();
    QApplication::processEvents();
    EXPECT_FALSE(popup->isVisible()) << "a completion list floats after its chooser closed";
}
