#include "support/InterfaceLanguage.h"

#include "vocabulary/AppLanguage.h"

#include <QCoreApplication>
#include <QTranslator>

InterfaceLanguage::InterfaceLanguage(const QString& code) : m_translator(new QTranslator)
{
    m_installed = m_translator->load(QStringLiteral("dustlark_") + code, QString::fromLatin1(AppLanguage::translationsFolder))
                  && QCoreApplication::installTranslator(m_translator);
    QLocale::setDefault(QLocale(code));
}

InterfaceLanguage::~InterfaceLanguage()
{
    QCoreApplication::removeTranslator(m_translator);
    delete m_translator;
    QLocale::setDefault(m_previous);
}
