#include "vocabulary/AppLanguage.h"

#include <QDir>
#include <QLibraryInfo>
#include <QLocale>
#include <QProcess>
#include <QTranslator>

#include <algorithm>

namespace AppLanguage {

namespace {

const QString languagesKey = QStringLiteral("AppleLanguages");
const QString filePrefix = QStringLiteral("dustlark_");

// The picker's name of a language, in that language ("English", "Deutsch").
QString nativeTitle(const QString& code)
{
    const QLocale locale(code);
    const bool hasTerritory = code.contains(QLatin1Char('_')) || code.contains(QLatin1Char('-'));
    QString title = hasTerritory
        ? QStringLiteral("%1 (%2)").arg(locale.nativeLanguageName(), locale.nativeTerritoryName())
        : QLocale(locale.language(), QLocale::World).nativeLanguageName();
    if (!title.isEmpty())
        title[0] = title.at(0).toUpper();
    return title.isEmpty() ? code : title;
}

// Installs the catalogue `name`_<language> from `folder` over the ones installed before.
bool install(const QLocale& locale, const QString& name, const QString& folder)
{
    auto* translator = new QTranslator(QCoreApplication::instance());
    if (translator->load(locale, name, QStringLiteral("_"), folder) && QCoreApplication::installTranslator(translator))
        return true;
    delete translator;
    return false;
}

}  // namespace

void choose(QSettings& settings, const QString& code)
{
    if (code.isEmpty())
        settings.remove(languagesKey);
    else
        settings.setValue(languagesKey, QStringList{code});
}

QString chosen(const QSettings& settings)
{
    const QVariant value = settings.value(languagesKey);
    // An INI file hands a one-element list back as a plain string.
    if (value.typeId() == QMetaType::QString)
        return value.toString();
    if (value.typeId() != QMetaType::QStringList && value.typeId() != QMetaType::QVariantList)
        return {};
    const QVariantList list = value.toList();
    if (list.isEmpty() || list.first().typeId() != QMetaType::QString)
        return {};
    return list.first().toString();
}

QLocale inForce(const QString& choice, const QStringList& preferred, const QStringList& catalogued)
{
    if (!choice.isEmpty())
        return QLocale(choice);
    if (preferred.isEmpty())
        return QLocale::c();
    const auto carried = [&catalogued](const QLocale::Language language) {
        return language == QLocale::English || std::any_of(catalogued.begin(), catalogued.end(), [language](const QString& code) {
                   return QLocale(code).language() == language;
               });
    };
    for (const QString& code : preferred) {
        const QLocale locale(code);
        if (carried(locale.language()))
            return locale;
    }
    return QLocale(preferred.first());
}

bool installEnglish(const QString& folder)
{
    return install(QLocale(QLocale::English), QStringLiteral("dustlark"), folder);
}

Launch loadAtLaunch(const QSettings& settings, const QString& folder)
{
    installEnglish(folder);
    Launch launch{chosen(settings), QLocale::c()};
    QStringList catalogued;
    for (const Option& option : offered(folder)) {
        if (!option.code.isEmpty())
            catalogued.append(option.code);
    }
    launch.locale = inForce(launch.choice, QLocale::system().uiLanguages(), catalogued);
    QLocale::setDefault(launch.locale);
    if (launch.locale.language() == QLocale::English || launch.locale.language() == QLocale::C)
        return launch;
    launch.translated = install(launch.locale, QStringLiteral("dustlark"), folder);
    // Qt's own texts (a file dialog's buttons, a text field's menu), where Qt's catalogue is installed.
    install(launch.locale, QStringLiteral("qtbase"), QLibraryInfo::path(QLibraryInfo::TranslationsPath));
    return launch;
}

QList<Option> offered(const QString& folder)
{
    //: Language picker: the entry that follows the language chosen in System Settings
    QList<Option> options = {{QString(), QCoreApplication::translate("AppLanguage", "System Language")}};
    const QStringList files = QDir(folder).entryList({filePrefix + QStringLiteral("*.qm")}, QDir::Files, QDir::Name);
    for (const QString& file : files) {
        const QString code = file.mid(filePrefix.size()).chopped(3);
        if (!code.isEmpty())
            options.append({code, nativeTitle(code)});
    }
    return options;
}

bool relaunch()
{
    QStringList arguments = QCoreApplication::arguments();
    if (!arguments.isEmpty())
        arguments.removeFirst();
    if (!QProcess::startDetached(QCoreApplication::applicationFilePath(), arguments))
        return false;
    QCoreApplication::quit();
    return true;
}

}  // namespace AppLanguage
