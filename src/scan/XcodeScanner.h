#pragma once

#include "machinery/ToolLocations.h"
#include "scan/Scanner.h"
#include "vocabulary/CleanupItem.h"

#include <QDateTime>
#include <QList>
#include <QString>
#include <QStringList>

#include <chrono>
#include <functional>
#include <optional>

// Fills the Xcode category: the Xcode locations of the known-locations table, with the
// archives labelled by which one holds an app's only build, and the copies of Xcode that are
// not the one selected for builds. A value type; scan() runs on the calling worker thread.
class XcodeScanner : public Scanner {
public:
    // Where Xcode copies are looked for and how running programs and the selected Xcode are
    // learned; the defaults are the real system.
    struct Environment {
        QString xcodeSelect = ToolLocations::standard({}).xcodeSelect;
        QString applications = QStringLiteral("/Applications");
        std::function<QStringList()> runningExecutables;  // null: the system's
        std::chrono::milliseconds selectTimeLimit{10'000};
    };

    // One archive as its Info.plist describes it.
    struct Archive {
        qsizetype index = 0;  // the row's position in the list
        QString app;
        std::optional<QString> version;
        std::optional<QString> build;
        QDateTime created;
        bool uploaded = false;
    };

    XcodeScanner() = default;
    explicit XcodeScanner(Environment environment) : m_environment(std::move(environment)) {}

    QList<CategoryID> categories() const override { return {CategoryID::xcode}; }
    ScanOutputs scan(const ScanContext& context) const override;

    // The Xcode application selected for builds ("/Applications/Xcode.app"); absent when
    // xcode-select fails or names no application (only the command line tools).
    [[nodiscard]] std::optional<QString> selectedXcode(const CancellationToken* cancellation = nullptr) const;
    // The application part of a developer folder path ("/A/Xcode.app/Contents/Developer"
    // gives "/A/Xcode.app").
    [[nodiscard]] static std::optional<QString> applicationOf(const QString& developerFolder);

    // Rewrites the rows of ".xcarchive" folders: the newest archive of each app is marked and
    // stays Risky; older ones say their build comes back from its tag. Archives whose
    // Info.plist can't be read are left as they are.
    static void labelArchives(QList<CleanupItem>& rows);
    // The archive at `path`, read from its Info.plist; absent without a name and a date.
    [[nodiscard]] static std::optional<Archive> readArchive(const QString& path, qsizetype index);

    // The rows of the Xcode copies in the applications folder other than `selected`.
    [[nodiscard]] QList<CleanupItem> otherCopies(const std::optional<QString>& selected, const ScanContext& context) const;

private:
    Environment m_environment;
};
