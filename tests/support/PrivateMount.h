#pragma once

#include <QProcessEnvironment>
#include <QString>
#include <QStringList>

#include <optional>

// A test that needs a file system mounted inside its tree runs part of itself again in a private
// mount namespace: `script` (sh; $1 is `argument`, $2 this test program) mounts what it needs,
// prints "MOUNTED", and then runs the inner tests, whose gtest output or "REPORT ..." line tells.
struct PrivateMountRun {
    bool mounted = false;  // false: the system refused the mount (the test skips)
    QString output;
    QString error;

    // The text after "REPORT " of the inner test's report line; empty when there is none.
    [[nodiscard]] QString report() const;
};

// Absent when this is not root or unshare(1) is missing.
std::optional<PrivateMountRun> runInPrivateMount(const QString& script, const QString& argument,
                                                 const QProcessEnvironment& environment, int timeoutMs = 60'000);

// Why a test that needed the mount must skip; empty when it was mounted.
QString whyNotMounted(const std::optional<PrivateMountRun>& run);
