#pragma once

#include <QCoreApplication>
#include <QList>
#include <QLocale>
#include <QSettings>
#include <QString>
#include <QStringList>

// The interface language. The choice is stored the way macOS keeps an app's own language,
// ["code"] under "AppleLanguages" in the app's preferences, and takes effect at the next launch.
// An empty code means "follow the system".
//
// The language in force is Qt's default locale and the installed catalogue, both set once by
// loadAtLaunch() before any window or worker thread exists; code that needs the language reads
// QLocale() where it uses it, and nothing here keeps it.
namespace AppLanguage {

struct Option {
    QString code;   // empty: follow the system
    QString title;  // what the picker shows
    bool operator==(const Option&) const = default;
};

inline constexpr const char* translationsFolder = ":/i18n";

// Stores the choice, or removes the key for the system language.
void choose(QSettings& settings, const QString& code);
// The stored choice; empty when absent or unreadable.
[[nodiscard]] QString chosen(const QSettings& settings);

// What one launch settled.
struct Launch {
    QString choice;           // the stored choice; empty follows the system
    QLocale locale;           // the language in force: texts, sizes and dates follow it
    bool translated = false;  // a catalogue besides English was installed
};

// The language in force: the choice when there is one; else the first of the system's preferred
// languages (`preferred`, best first: "fr-FR", "de-CH") that is English or has a catalogue among
// `catalogued` ("de"); else the first preferred one, whose texts then stay English but whose
// number style is kept. The C locale when nothing is preferred.
[[nodiscard]] QLocale inForce(const QString& choice, const QStringList& preferred, const QStringList& catalogued);

// Installs the English catalogue from `folder`: the source texts are English already, but a
// counted text ("%n files") needs it for its singular and plural. Every program calls it first
// (a language chosen later is searched before it). Returns whether it was found.
bool installEnglish(const QString& folder = QString::fromLatin1(translationsFolder));

// Settles the language in force from the stored choice and the system's preferred languages
// (on Linux LANGUAGE, then LC_ALL, LC_MESSAGES, LANG), makes it Qt's default locale and installs
// its catalogue from `folder`, file prefix "dustlark_", over the English one. Call it once, first
// thing, before any thread starts.
Launch loadAtLaunch(const QSettings& settings, const QString& folder = QString::fromLatin1(translationsFolder));

// "Follow the system" first, then every language with a translation in `folder`.
[[nodiscard]] QList<Option> offered(const QString& folder = QString::fromLatin1(translationsFolder));

// Starts a new instance of the app with the same arguments and quits this one. Returns false,
// and keeps running, when the new instance cannot be started.
[[nodiscard]] bool relaunch();

}  // namespace AppLanguage
