// Every catalogue in translations/ is finished and faithful to its source texts: each message
// translated and not empty, the same placeholders as the source in every form, every plural form
// the language has, and a translator comment on every source text. The catalogue of the source
// language (English) needs only the forms of its counted texts; its other texts are the sources.
// Those forms read right for one and for many, and no counted text of the sources is missing.
#include <QCoreApplication>
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QRegularExpression>
#include <QSet>
#include <QXmlStreamReader>

#include <gtest/gtest.h>

namespace {

struct Message {
    QString context;
    QString source;
    QString comment;
    bool counted = false;
    bool unfinished = false;
    QString translation;
    QStringList forms;
};

struct Catalogue {
    QString language;  // "de_DE"
    QList<Message> messages;
};

void readMessage(QXmlStreamReader& xml, Message& message)
{
    message.counted = xml.attributes().value("numerus") == QLatin1String("yes");
    while (xml.readNextStartElement()) {
        if (xml.name() == QLatin1String("source")) {
            message.source = xml.readElementText();
        } else if (xml.name() == QLatin1String("extracomment")) {
            message.comment = xml.readElementText();
        } else if (xml.name() == QLatin1String("translation")) {
            message.unfinished = xml.attributes().value("type") == QLatin1String("unfinished");
            if (!message.counted) {
                message.translation = xml.readElementText();
                continue;
            }
            while (xml.readNextStartElement())
                message.forms.append(xml.readElementText());
        } else {
            xml.skipCurrentElement();
        }
    }
}

Catalogue read(const QString& path)
{
    Catalogue catalogue;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return catalogue;
    QXmlStreamReader xml(&file);
    QString context;
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement)
            continue;
        if (xml.name() == QLatin1String("TS")) {
            catalogue.language = xml.attributes().value("language").toString();
        } else if (xml.name() == QLatin1String("name")) {
            context = xml.readElementText();
        } else if (xml.name() == QLatin1String("message")) {
            Message message;
            message.context = context;
            readMessage(xml, message);
            catalogue.messages.append(message);
        }
    }
    EXPECT_FALSE(xml.hasError()) << path.toStdString() << ": " << xml.errorString().toStdString();
    return catalogue;
}

// "%1", "%L2", "%n", "%Ln": what QString::arg and a count fill in, sorted.
QStringList placeholders(const QString& text)
{
    static const QRegularExpression placeholder(QStringLiteral("%L?(?:\\d+|n)"));
    QStringList found;
    for (const auto& match : placeholder.globalMatch(text))
        found.append(match.captured(0));
    found.sort();
    found.removeDuplicates();
    return found;
}

// Plural forms per language, as lupdate lays them out; a new language adds its row.
int pluralForms(const QString& language)
{
    const QString code = language.section(QLatin1Char('_'), 0, 0);
    if (code == QLatin1String("en") || code == QLatin1String("de"))
        return 2;
    return -1;
}

// What is wrong with one message, one line each; empty when nothing is.
QStringList problems(const Message& message, bool sourceLanguage, int forms)
{
    QStringList found;
    if (message.comment.trimmed().isEmpty())
        found += QStringLiteral("the source has no translator comment (//: above the tr() call)");
    if (!message.counted) {
        if (sourceLanguage)
            return found;
        if (message.unfinished || message.translation.trimmed().isEmpty())
            found += QStringLiteral("unfinished or empty");
        else if (placeholders(message.translation) != placeholders(message.source))
            found += QStringLiteral("placeholders differ: ") + message.translation;
        return found;
    }
    if (message.unfinished)
        found += QStringLiteral("unfinished");
    if (message.forms.size() != forms)
        found += QStringLiteral("has %1 plural forms, the language has %2").arg(message.forms.size()).arg(forms);
    for (const QString& form : message.forms) {
        if (form.trimmed().isEmpty())
            found += QStringLiteral("a plural form is empty");
        else if (placeholders(form) != placeholders(message.source))
            found += QStringLiteral("placeholders differ: ") + form;
    }
    return found;
}

QStringList catalogueFiles()
{
    const QDir folder(QStringLiteral(DUSTLARK_SOURCE_DIR "/translations"));
    QStringList files;
    for (const QString& name : folder.entryList({QStringLiteral("*.ts")}, QDir::Files, QDir::Name))
        files.append(folder.filePath(name));
    return files;
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

TEST(TranslationCatalogues, EveryMessageIsFinishedWithTheSourcesPlaceholdersAndEveryPluralForm)
{
    const QStringList files = catalogueFiles();
    ASSERT_GE(files.size(), 2) << "English and German at least";
    for (const QString& path : files) {
        const Catalogue catalogue = read(path);
        ASSERT_GT(catalogue.messages.size(), 100) << path.toStdString();
        const int forms = pluralForms(catalogue.language);
        ASSERT_GT(forms, 0) << path.toStdString() << ": add the plural forms of " << catalogue.language.toStdString();
        const bool sourceLanguage = catalogue.language.startsWith(QLatin1String("en"));
        for (const Message& message : catalogue.messages) {
            const QStringList found = problems(message, sourceLanguage, forms);
            EXPECT_TRUE(found.isEmpty()) << QFileInfo(path).fileName().toStdString() << " [" << message.context.toStdString()
                                         << "] \"" << message.source.toStdString() << "\": " << found.join("; ").toStdString()
                                         << "\n  (scripts/translations-missing.py lists every unfinished message)";
        }
    }
}

TEST(TranslationCatalogues, TheCheckSeesEachKindOfFault)
{
    const Message good{"C", "%1 of %2", "a comment", false, false, "%1 von %2", {}};
    EXPECT_TRUE(problems(good, false, 2).isEmpty());
    Message unfinished = good;
    unfinished.unfinished = true;
    EXPECT_FALSE(problems(unfinished, false, 2).isEmpty());
    EXPECT_TRUE(problems(unfinished, true, 2).isEmpty()) << "English texts are their own source";
    Message dropped = good;
    dropped.translation = "%1 von";
    EXPECT_FALSE(problems(dropped, false, 2).isEmpty());
    Message uncommented = good;
    uncommented.comment.clear();
    EXPECT_FALSE(problems(uncommented, true, 2).isEmpty());

    const Message counted{"C", "%n files in %1", "a comment", true, false, {}, {"%n Datei in %1", "%n Dateien in %1"}};
    EXPECT_TRUE(problems(counted, false, 2).isEmpty());
    Message oneForm = counted;
    oneForm.forms.removeLast();
    EXPECT_FALSE(problems(oneForm, true, 2).isEmpty()) << "English too needs both forms of a count";
    Message lostCount = counted;
    lostCount.forms[0] = "eine Datei in %1";
    EXPECT_FALSE(problems(lostCount, false, 2).isEmpty());
}

TEST(PluralTexts, EveryCountedEnglishTextReadsRightForOneAndForMany)
{
    // "1 files", "1 items are": a count of one followed by a plural word.
    static const QRegularExpression pluralAfterOne(QStringLiteral(R"(\b1 (?:\S+ )?(\w+s|are|They)\b)"));
    QSet<QString> catalogued;
    for (const Message& text : read(QStringLiteral(DUSTLARK_SOURCE_DIR "/translations/dustlark_en.ts")).messages) {
        if (!text.counted)
            continue;
        catalogued.insert(text.source);
        const QByteArray context = text.context.toUtf8();
        const QByteArray source = text.source.toUtf8();
        const QString one = QCoreApplication::translate(context.constData(), source.constData(), nullptr, 1);
        const QString two = QCoreApplication::translate(context.constData(), source.constData(), nullptr, 2);
        EXPECT_FALSE(pluralAfterOne.match(one).hasMatch()) << one.toStdString();
        EXPECT_TRUE(two.contains(QLatin1Char('2'))) << two.toStdString();
    }
    ASSERT_FALSE(catalogued.isEmpty());
    for (const QString& literal : countedLiterals())
        EXPECT_TRUE(catalogued.contains(literal)) << "run the dustlark_core_lupdate target and write both English forms: "
                                                  << literal.toStdString();
}
