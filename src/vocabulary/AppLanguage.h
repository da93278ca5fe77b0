#pragma once

#include <QCoreApplication>
#include <QList>
#include <QSettings>
#include <QString>

// The interface language. The choice is stored the way macOS keeps an app's own language,
// ["code"] under "AppleLanguages" in the app's preferences, and takes effect at the next launch.
// An empty code means "follow the system".
//
// Thread-safety: GUI thread only; launchChoice() is set once by loadAtLaunch() before any
// window exists.
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
// The choice in force since launch (what the interface shows until a relaunch).
[[nodiscard]] QString launchChoice();

// Installs the English catalogue from `folder`: the source texts are English already, but a
// counted text ("%n files") needs it for its singular and plural. Every program calls it first
// (a language chosen later is searched before it). Returns whether it was found.
bool installEnglish(const QString& folder = QString::fromLatin1(translationsFolder));

// Remembers the stored choice as the launch choice and installs the translator for it (or for
// the system's languages) from `folder`, file prefix "dustlark_", over the English catalogue.
// Returns whether a translation for the chosen language was installed.
bool loadAtLaunch(const QSettings& settings, const QString& folder = QString::fromLatin1(translationsFolder));

// "Follow the system" first, then every language with a translation in `folder`.
[[nodiscard]] QList<Option> offered(const QString& folder = QString::fromLatin1(translationsFolder));

// Starts a new instance of the app with the same arguments and quits this one. Returns false,
// and keeps running, when the new instance cannot be started.
[[nodiscard]] bool relaunch();

}  // namespace AppLanguage
