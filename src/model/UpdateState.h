#pragma once

#include "update/UpdateChecker.h"

#include <QString>

#include <optional>

// Where the update check and the install stand. A value AppModel owns and changes on the GUI
// thread, saying so with updateStateChanged.
struct UpdateState {
    bool isChecking = false;
    std::optional<UpdateChecker::Result> result;  // the last check's answer; absent before the first
    bool isInstalling = false;
    QString installError;  // the last install's failure, as one sentence; empty when none
};
