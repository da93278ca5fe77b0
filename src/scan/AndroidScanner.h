#pragma once

#include "scan/Scanner.h"
#include "vocabulary/CleanupItem.h"

#include <QSet>
#include <QString>

#include <chrono>
#include <optional>

// Fills the Android category: the known Gradle, SDK and Android Studio locations, and the
// emulators (virtual devices) in "~/.android/avd". A running emulator is shown but locked;
// when the process list can't be read, every emulator is locked, since none can be shown to
// be idle. A value type; scan() lists the processes while it measures the emulators.
class AndroidScanner : public Scanner {
public:
    // The process lister and its time limit; the defaults are the real ones.
    struct Environment {
        // A ps to run; absent: the system's own list, read in this process where it can be.
        std::optional<QString> ps;
        std::chrono::milliseconds psTimeLimit{10'000};
    };

    AndroidScanner() = default;
    explicit AndroidScanner(Environment environment) : m_environment(std::move(environment)) {}

    QList<CategoryID> categories() const override { return {CategoryID::android}; }
    ScanOutputs scan(const ScanContext& context) const override;

    // The names of the running emulators; absent when the process list could not be read.
    [[nodiscard]] std::optional<QSet<QString>> runningAVDs(const CancellationToken* cancellation = nullptr) const;
    // The emulator names (the argument after "-avd") in the command lines of emulator processes.
    [[nodiscard]] static QSet<QString> avdNames(const QString& processList);

    // The row of the emulator folder `avd` (ending in ".avd"); absent when it vanished.
    [[nodiscard]] static std::optional<CleanupItem> emulatorRow(const QString& avd, bool running, const ScanContext& context);

private:
    Environment m_environment;
};
