// The report tool speaks the system's language unless the person chose one for the app: German
// titles, notes and counted details over a fixture home, and the English output unchanged.
#include "support/CliScan.h"
#include "support/TempTree.h"

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
        const CliScan found = CliScan::run(m_home, {"trash", "simulators"}, environment);
        EXPECT_EQ(found.program.exitCode, 0) << found.program.standardError.constData();
        Report report{found.category("trash")["title"].toString(), found.items("trash").at(0)["detail"].toString(), {}};
        for (const QJsonValue& note : found.category("simulators")["notes"].toArray())
            report.simulatorNotes.append(note.toString());
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

// Which of the system's variables and preferred languages decides is Qt's and AppLanguage's
// rule; here the tool follows it, and the app's choice read from its settings wins.
TEST_F(LanguageCli, FollowsTheSystemsLanguageUnlessTheAppsChoiceSaysOtherwise)
{
    const Report english = scan({});
    EXPECT_EQ(english.trashTitle, "Trash");
    EXPECT_EQ(english.trashDetail, "1 file");
    EXPECT_EQ(english.simulatorNotes, QStringList{englishNote});

    const Report german = scan({{"LANGUAGE", "de"}});
    EXPECT_EQ(german.trashTitle, "Papierkorb");
    EXPECT_EQ(german.trashDetail, "1 Datei");
    EXPECT_EQ(german.simulatorNotes, QStringList{germanNote});

    choose(QStringLiteral("en"));
    EXPECT_EQ(scan({{"LANGUAGE", "de"}}).trashTitle, "Trash");
}
