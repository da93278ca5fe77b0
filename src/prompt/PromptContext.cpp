#include "prompt/PromptContext.h"

#include "platform/Platform.h"

#include <algorithm>

PromptContext PromptContext::current()
{
    PromptContext context;
    context.machine = Platform::machineDescription();
    context.answerLanguage = uncarriedLanguage(QLocale(),
                                               QLocale::system().uiLanguages().value(0),
                                               AppLanguage::offered());
    return context;
}

std::optional<QString> PromptContext::uncarriedLanguage(const QLocale& interface, const QString& systemLanguage,
                                                        const QList<AppLanguage::Option>& offered)
{
    if (systemLanguage.isEmpty())
        return std::nullopt;
    const QLocale::Language language = QLocale(systemLanguage).language();
    if (interface.language() != language)
        return std::nullopt;
    if (language == QLocale::English || language == QLocale::C)
        return std::nullopt;
    const bool carried = std::any_of(offered.begin(), offered.end(), [language](const AppLanguage::Option& option) {
        return !option.code.isEmpty() && QLocale(option.code).language() == language;
    });
    if (carried)
        return std::nullopt;
    return QLocale::languageToString(language);
}
