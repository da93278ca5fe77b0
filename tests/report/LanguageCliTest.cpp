// The report tool speaks the system's language (LANGUAGE, LC_ALL, LC_MESSAGES, LANG) unless the
// person chose one for the app: German titles, notes and counted details over a fixture home,
// and the English output unchanged.
#include "support/TempTree.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QSettings>

#include <gtest/gtest.h>

namespace {

struct Report {
    QString trashTitle;     // the category's title
    QString trashDetail;    // its one row's detail
    QStringList simulatorNotes;
};

class LanguageCli : public ::testing::Test {
protected:
    void SetUp() override
    {
        m_home = m_tree.dir("home");
        m_tree.file("home/.local/share/Trash/files/junk.txt", 5'000);
        m_tree.dir("config");
    }

    // A scan of the Trash and Simulators categories with these variables set over a plain C locale.
    Report scan(const QMap<QString, QString>& variables) const
    {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        for (const char* name : {"LANGUAGE", "LC_ALL", "LC_MESSAGES", "LANG"})
            environment.remove(QString::fromLatin1(name));
        environment.insert(QStringLiteral("LANG"), QStringLiteral("C.UTF-8"));
        environment.insert(QStringLiteral("XDG_DATA_HOME"), m_home + QStringLiteral("/.local/share"));
        environment.insert(QStringLiteral("XDG_CONFIG_HOME"), m_tree.path("config"));
        for (auto variable = variables.begin(); variable != variables.end(); ++variable)
            environment.insert(variable.key(), variable.value());
        QProcess cli;
        cli.setProcessEnvironment(environment);
        cli.start(QStringLiteral(DUSTLARK_CLI),
                  {"scan", "--home", m_home, "--category", "trash", "--category", "simulators", "--json"});
        EXPECT_TRUE(cli.waitForFinished(120'000));
        EXPECT_EQ(cli.exitCode(), 0) << cli.readAllStandardError().constData();
        Report report;
        for (const QJsonValue& category : QJsonDocument::fromJson(cli.readAllStandardOutput())["categories"].toArray()) {
            if (category["id"] == QLatin1String("trash")) {
                report.trashTitle = category["title"].toString();
                report.trashDetail = category["items"][0]["detail"].toString();
            } else if (category["id"] == QLatin1String("simulators")) {
                for (const QJsonValue& note : category["notes"].toArray())
                    report.simulatorNotes.append(note.toString());
            }
        }
        return report;
    }

    void choose(const QString& code) const
    {
        QSettings preferences(m_tree.path("config/Dustlark/Dustlark.conf"), QSettings::IniFormat);
        preferences.setValue(QStringLiteral("AppleLanguages"), QStringList{code});
    }

    TempTree m_tree;
    QString m_home;
};

const QString englishNote = QStringLiteral("Xcode isn't installed, so there are no simulators to manage.");
const QString germanNote = QStringLiteral("Xcode ist nicht installiert, es gibt also keine Simulatoren zu verwalten.");

}  // namespace

TEST_F(LanguageCli, FollowsTheSystemsLanguageInGermanAndKeepsEnglishAsItWas)
{
    const Report english = scan({});
    EXPECT_EQ(english.trashTitle, "Trash");
    EXPECT_EQ(english.trashDetail, "1 file");
    EXPECT_EQ(english.simulatorNotes, QStringList{englishNote});

    for (const auto& [name, value] : {std::pair{"LANGUAGE", "de"}, std::pair{"LC_ALL", "de_DE.UTF-8"},
                                      std::pair{"LC_MESSAGES", "de_AT.UTF-8"}, std::pair{"LANG", "de_CH.UTF-8"}}) {
        const Report german = scan({{name, value}});
        EXPECT_EQ(german.trashTitle, "Papierkorb") << name;
        EXPECT_EQ(german.trashDetail, "1 Datei") << name;
        EXPECT_EQ(german.simulatorNotes, QStringList{germanNote}) << name;
    }
    EXPECT_EQ(scan({{"LANGUAGE", "fr:de"}}).trashTitle, "Papierkorb") << "the first preferred language with a catalogue";
    EXPECT_EQ(scan({{"LANGUAGE", "en:de"}}).trashTitle, "Trash") << "English, the source, needs no catalogue";
}

TEST_F(LanguageCli, TheLanguageChosenForTheAppWinsOverTheSystems)
{
    choose(QStringLiteral("en"));
    EXPECT_EQ(scan({{"LANGUAGE", "de"}}).trashTitle, "Trash");
    choose(QStringLiteral("de"));
    const Report german = scan({});
    EXPECT_EQ(german.trashTitle, "Papierkorb");
    EXPECT_EQ(german.simulatorNotes, QStringList{germanNote});
}
