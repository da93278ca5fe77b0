#pragma once

#include <QLocale>
#include <QString>

class QTranslator;

// One test's interface language: installs the app's own catalogue for `code` from :/i18n over
// the English one and makes it the default locale, as a launch in that language does; the
// destructor puts both back, so the tests that follow see English again.
class InterfaceLanguage {
public:
    explicit InterfaceLanguage(const QString& code);
    ~InterfaceLanguage();
    InterfaceLanguage(const InterfaceLanguage&) = delete;
    InterfaceLanguage& operator=(const InterfaceLanguage&) = delete;

    // Whether the catalogue was found and installed.
    [[nodiscard]] bool installed() const { return m_installed; }

private:
    QLocale m_previous;
    QTranslator* m_translator;
    bool m_installed = false;
};
