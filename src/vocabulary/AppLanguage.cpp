#include "vocabulary/AppLanguage.h"

#include <QDir>
#include <QLocale>
#include <QProcess>
#include <QTranslator>

namespace AppLanguage {

namespace {

const QString languagesKey = QStringLiteral("AppleLanguages");
const QString filePrefix = QStringLiteral("dustlark_");

QString& launchCode()
{
    static QString code;
    return code;
}

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

QString launchChoice()
{
    return launchCode();
}

bool installEnglish(const QString& folder)
{
    auto* translator = new QTranslator(QCoreApplication::instance());
    if (translator->load(QStringLiteral("dustlark_en"), folder) && QCoreApplication::installTranslator(translator))
        return true;
    delete translator;
    return false;
}

bool loadAtLaunch(const QSettings& settings, const QString& folder)
{
    installEnglish(folder);
    launchCode() = chosen(settings);
    const QLocale locale = launchCode().isEmpty() ? QLocale() : QLocale(launchCode());
    auto* translator = new QTranslator(QCoreApplication::instance());
    if (translator->load(locale, QStringLiteral("dustlark"), QStringLiteral("_"), folder)
        && QCoreApplication::installTranslator(translator))
        return true;
    delete translator;
    return false;
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
