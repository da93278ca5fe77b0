// Every counted text reads right in English for one and for many: the English catalogue carries
// both forms of each, and no counted text in the sources is missing from it.
#include <QCoreApplication>
#include <QDirIterator>
#include <QFile>
#include <QRegularExpression>
#include <QSet>
#include <QXmlStreamReader>

#include <gtest/gtest.h>

namespace {

struct CountedText {
    QString context;
    QString source;
    QStringList forms;
};

QList<CountedText> catalogue()
{
    QFile file(QStringLiteral(DUSTLARK_SOURCE_DIR "/translations/dustlark_en.ts"));
    if (!file.open(QIODevice::ReadOnly))
        return {};
    QXmlStreamReader xml(&file);
    QList<CountedText> texts;
    QString context;
    while (xml.readNextStartElement() || !xml.atEnd()) {
        if (!xml.isStartElement())
            continue;
        if (xml.name() == QLatin1String("name"))
            context = xml.readElementText();
        else if (xml.name() == QLatin1String("message") && xml.attributes().value("numerus") == QLatin1String("yes"))
            texts.append({context, {}, {}});
        else if (xml.name() == QLatin1String("source") && !texts.isEmpty() && texts.last().source.isEmpty())
            texts.last().source = xml.readElementText();
        else if (xml.name() == QLatin1String("numerusform") && !texts.isEmpty())
            texts.last().forms.append(xml.readElementText());
    }
    return texts;
}

// The string literals of the sources that hold a count placeholder, read line by line: a token is
// a string literal or the comment that ends the line (translator comments quote texts too).
QSet<QString> countedLiterals()
{
    static const QRegularExpression charLiteral(QStringLiteral(R"re('(?:[^'\\]|\\.)')re"));
    static const QRegularExpression token(QStringLiteral(R"re("((?:[^"\\]|\\.)*)"|//.*)re"));
    static const QRegularExpression count(QStringLiteral("%L?n"));
    QSet<QString> found;
    QDirIterator files(QStringLiteral(DUSTLARK_SOURCE_DIR "/src"), {QStringLiteral("*.cpp")}, QDir::Files,
                       QDirIterator::Subdirectories);
    while (files.hasNext()) {
        QFile file(files.next());
        if (!file.open(QIODevice::ReadOnly))
            continue;
        for (QString line : QString::fromUtf8(file.readAll()).split(QLatin1Char('\n'))) {
            line.remove(charLiteral);
            for (const auto& match : token.globalMatch(line)) {
                if (match.captured(0).startsWith(QLatin1String("//")))
                    break;
                if (match.captured(1).contains(count))
                    found.insert(match.captured(1).replace(QStringLiteral("\\\""), QStringLiteral("\"")));
            }
        }
    }
    return found;
}

}  // namespace

TEST(PluralTexts, EveryCountedTextHasItsEnglishSingularAndPlural)
{
    const QList<CountedText> texts = catalogue();
    ASSERT_FALSE(texts.isEmpty());
    // "1 files", "1 items are": a count of one followed by a plural word.
    static const QRegularExpression pluralAfterOne(QStringLiteral(R"(\b1 (?:\S+ )?(\w+s|are|They)\b)"));
    for (const CountedText& text : texts) {
        ASSERT_EQ(text.forms.size(), 2) << text.source.toStdString();
        EXPECT_FALSE(text.forms[0].isEmpty() || text.forms[1].isEmpty()) << "no English forms: " << text.source.toStdString();
        const QByteArray context = text.context.toUtf8();
        const QByteArray source = text.source.toUtf8();
        const QString one = QCoreApplication::translate(context.constData(), source.constData(), nullptr, 1);
        const QString two = QCoreApplication::translate(context.constData(), source.constData(), nullptr, 2);
        EXPECT_FALSE(pluralAfterOne.match(one).hasMatch()) << one.toStdString();
        EXPECT_TRUE(two.contains(QLatin1Char('2'))) << two.toStdString();
    }
}

TEST(PluralTexts, NoCountedTextOfTheSourcesIsMissingFromTheCatalogue)
{
    QSet<QString> catalogued;
    for (const CountedText& text : catalogue())
        catalogued.insert(text.source);
    for (const QString& literal : countedLiterals())
        EXPECT_TRUE(catalogued.contains(literal)) << "run the dustlark_core_lupdate target and write both English forms: "
                                                  << literal.toStdString();
}
