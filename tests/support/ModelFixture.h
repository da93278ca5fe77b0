#pragma once

#include "model/AppModel.h"
#include "model/SettingsStore.h"
#include "model/StatsStore.h"
#include "support/FakeScanner.h"

#include <QSettings>
#include <QTemporaryDir>

#include <memory>

// An AppModel over real stores on a temporary preferences file, with the scanners a test
// hands it and a fixed home folder.
class ModelFixture {
public:
    explicit ModelFixture(std::vector<std::shared_ptr<const Scanner>> scanners = {},
                          const QString& home = QStringLiteral("/Users/a"),
                          const std::function<void(AppModel::Services&)>& adjust = {});

    AppModel& model() { return *m_model; }
    SettingsStore& settings() { return *m_settingsStore; }
    StatsStore& stats() { return *m_statsStore; }

private:
    QTemporaryDir m_dir;
    std::unique_ptr<QSettings> m_settings;
    std::unique_ptr<SettingsStore> m_settingsStore;
    std::unique_ptr<StatsStore> m_statsStore;
    std::unique_ptr<AppModel> m_model;
};

// A trash-removal row of one path (the id is the path).
CleanupItem rowAt(CategoryID category, const QString& path, qint64 size = 1000);
// A duplicates row in `group`.
CleanupItem copyAt(const QString& path, const QString& group, qint64 size = 2'000'000);
