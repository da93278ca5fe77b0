#include "ui/AIQuestions.h"

#include "model/AppModel.h"
#include "prompt/AIPrompt.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QPointer>
#include <QThreadPool>

AIQuestions AIQuestions::standard()
{
    AIQuestions questions;
    questions.one = [](const CleanupItem& item) { return AIPrompt::compose(item); };
    questions.many = [](const QList<CleanupItem>& items, CategoryID category) {
        return AIPrompt::composeBatch(items, category);
    };
    return questions;
}

void AIQuestions::copy(QObject* context, AppModel* model, std::function<QString()> write)
{
    if (!write)
        return;
    QPointer<QObject> guard(context);
    QPointer<AppModel> target(model);
    // The global pool is waited for when the application ends.
    QThreadPool::globalInstance()->start([guard, target, write] {
        const QString text = write();
        QMetaObject::invokeMethod(qApp, [guard, target, text] {
            if (!guard || !target)
                return;
            QGuiApplication::clipboard()->setText(text);
            //: Toast after the question for an AI assistant was copied to the clipboard
            target->showToast(QCoreApplication::translate("AIQuestions", "Question copied. Paste it into your AI assistant."));
        }, Qt::QueuedConnection);
    });
}
