#include "ui/AIQuestions.h"

#include "machinery/Background.h"
#include "model/AppModel.h"
#include "prompt/AIPrompt.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QPointer>

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
    Background::run(context, write, [target = QPointer<AppModel>(model)](const QString& text) {
        if (!target)
            return;
        QGuiApplication::clipboard()->setText(text);
        //: Toast after the question for an AI assistant was copied to the clipboard
        target->showToast(QCoreApplication::translate("AIQuestions", "Question copied. Paste it into your AI assistant."));
    });
}
