#include "support/ModelFixture.h"

ModelFixture::ModelFixture(std::vector<std::shared_ptr<const Scanner>> scanners, const QString& home,
                           const std::function<void(AppModel::Services&)>& adjust)
    : m_settings(std::make_unique<QSettings>(m_dir.filePath("prefs.ini"), QSettings::IniFormat)),
      m_settingsStore(std::make_unique<SettingsStore>(m_settings.get(), home)),
      m_statsStore(std::make_unique<StatsStore>(m_settings.get()))
{
    AppModel::Services services = AppModel::defaultServices();
    services.scanners = [scanners] { return scanners; };
    services.readSystemState = [](const QString&) { return AppModel::SystemState{1'000'000'000, 2'000'000'000, true}; };
    services.historyFile = m_dir.filePath("history.sqlite");  // each model starts with no past scans
    if (adjust)
        adjust(services);
    m_model = std::make_unique<AppModel>(m_settingsStore.get(), m_statsStore.get(), services);
}

CleanupItem rowAt(CategoryID category, const QString& path, qint64 size)
{
    FileTarget target;
    target.path = path;
    CleanupItem item;
    item.id = path;
    item.category = category;
    item.title = path.section('/', -1);
    item.size = size;
    item.removal = Removal::trash({target});
    return item;
}

CleanupItem copyAt(const QString& path, const QString& group, qint64 size)
{
    CleanupItem item = rowAt(CategoryID::duplicates, path, size);
    item.duplicateGroup = group;
    return item;
}
