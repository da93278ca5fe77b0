#pragma once

#include "vocabulary/CategoryID.h"
#include "vocabulary/CleanupItem.h"

#include <QList>
#include <QString>

#include <functional>

class AppModel;
class QObject;

// Writes the questions a person pastes into an AI assistant. Both functions may read the disk
// (a folder's largest contents), so they run on a worker thread; an unset function disables
// the actions that need it.
struct AIQuestions {
    std::function<QString(const CleanupItem&)> one;
    std::function<QString(const QList<CleanupItem>&, CategoryID)> many;

    // The app's own writer, AIPrompt.
    static AIQuestions standard();

    // Writes the question on a worker thread, puts it on the clipboard and says so in a toast.
    // Nothing happens once `context` is gone.
    static void copy(QObject* context, AppModel* model, std::function<QString()> write);
};
