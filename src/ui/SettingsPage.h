#pragma once

#include "ui/FolderListEditor.h"
#include "vocabulary/AppLanguage.h"

#include <QWidget>

#include <functional>

class AppModel;
class QComboBox;
class QLabel;
class QPushButton;
class QSettings;
class SettingsStore;
class WatchSection;

// The settings: the scan folders (never empty: the store falls back to the home folder) and
// the interface language, which takes effect after a relaunch; the free-space warning and the
// scheduled scan. GUI thread only.
class SettingsPage : public QWidget {
    Q_OBJECT

public:
    // `preferences` is where the language choice is kept; `languages` what the picker offers.
    // Made at launch: the choice stored then is the one in force until the app relaunches.
    SettingsPage(SettingsStore* settings, QSettings* preferences,
                 QList<AppLanguage::Option> languages = AppLanguage::offered(), QWidget* parent = nullptr);

    void setFolderPicker(FolderListEditor::FolderPicker picker);
    // What the Relaunch button runs; false when the app could not start again.
    void setRelaunch(std::function<bool()> relaunch) { m_relaunch = std::move(relaunch); }

    FolderListEditor* scanFolders() const { return m_scanFolders; }
    QComboBox* languagePicker() const { return m_languagePicker; }
    QPushButton* relaunchButton() const { return m_relaunchButton; }
    WatchSection* watch() const { return m_watch; }

    // Adds the update check, which needs the model the page itself does not otherwise use.
    void showUpdates(AppModel* model);

    // Stores the language with this code ("" follows the system).
    void chooseLanguage(const QString& code);

protected:
    bool event(QEvent* event) override;

private:
    void addClosingKeys();
    QWidget* makeLanguageSection();
    void fillLanguagePicker(QList<AppLanguage::Option> languages);
    void refreshScanFolders();
    void refreshRelaunch();
    void relaunchNow();

    SettingsStore* m_settings;
    QSettings* m_preferences;
    const QString m_launchChoice;
    FolderListEditor* m_scanFolders;
    QComboBox* m_languagePicker;
    QLabel* m_relaunchNote;
    QPushButton* m_relaunchButton;
    WatchSection* m_watch = nullptr;
    std::function<bool()> m_relaunch = AppLanguage::relaunch;
};
