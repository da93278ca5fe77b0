#pragma once

#include "platform/Platform.h"
#include "vocabulary/AppLanguage.h"

#include <QDir>
#include <QLocale>
#include <QString>

#include <optional>

// What the AI question says about the computer and the person, gathered once so the question
// itself is pure formatting. Plain value.
struct PromptContext {
    QString machine;                        // the system and processor, one line
    Platform::Desktop desktop = Platform::desktop();  // whose words name the computer and its places
    QString home = QDir::homePath();        // decides a row's safety label
    QLocale locale;                         // writes dates
    // The name, in English, of the person's preferred language when the interface has no
    // translation for it; absent when the interface's own language is the one to answer in.
    std::optional<QString> answerLanguage;

    // This computer and person. Reads system files, so call it on a worker thread.
    [[nodiscard]] static PromptContext current();

    // The language to name in the answer-language line: the system's preferred language
    // (`systemLanguage`, a code such as "pl-PL") when the interface follows it (`interface`, the
    // language in force, is that language) and no offered translation and not English, the
    // source, covers it. An interface in another language was chosen and answers itself.
    [[nodiscard]] static std::optional<QString> uncarriedLanguage(const QLocale& interface,
                                                                  const QString& systemLanguage,
                                                                  const QList<AppLanguage::Option>& offered);
};
