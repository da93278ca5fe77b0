#include "prompt/AIPrompt.h"

#include "format/ByteCount.h"
#include "vocabulary/Safety.h"
#include "format/RelativeDate.h"

#include <QCoreApplication>

#include <algorithm>

namespace AIPrompt {

namespace {

const QString bullet = QStringLiteral("- ");

QString joinLines(const QStringList& lines)
{
    return lines.join(QLatin1Char('\n'));
}

QString runs(const QString& command)
{
    //: AI prompt: how a tool removes a row, after "How Dustlark would remove it: ". Keep the backticks; %1 is the command line
    return QCoreApplication::translate("AIPrompt", "runs `%1` (permanent)").arg(command);
}

QString shortImageId(const QString& id)
{
    const QString prefix = QStringLiteral("sha256:");
    return (id.startsWith(prefix) ? id.mid(prefix.size()) : id).left(12);
}

QString imageRemoval(const DockerOperation::Image& image)
{
    const QString command = QStringLiteral("docker rmi ") + shortImageId(image.id);
    if (image.stoppedContainers.isEmpty())
        return runs(command);
    //: AI prompt: how Docker removes an image that stopped containers hold. Keep the backticks; %1 is the command line; %n is the number of containers
    return QCoreApplication::translate("AIPrompt", "runs `%1` after `docker rm` of %n stopped containers (permanent)",
                                       nullptr, int(image.stoppedContainers.size()))
        .arg(command);
}

QString dockerRemoval(const DockerOperation& operation)
{
    if (const auto* container = operation.as<DockerOperation::Container>())
        return runs(QStringLiteral("docker rm ") + container->id.left(12));
    if (const auto* image = operation.as<DockerOperation::Image>())
        return imageRemoval(*image);
    if (const auto* volume = operation.as<DockerOperation::Volume>())
        return runs(QStringLiteral("docker volume rm ") + volume->name);
    return runs(QStringLiteral("docker builder prune --all --force"));
}

QString dateText(const QDateTime& date, const QLocale& locale)
{
    const QDateTime local = date.toLocalTime();
    return locale.toString(local.date(), QLocale::LongFormat) + QStringLiteral(", ")
        + locale.toString(local.time(), QLocale::ShortFormat);
}

bool onMac(const PromptContext& context)
{
    return context.desktop == Platform::Desktop::finder;
}

QString categoryLine(CategoryID category, const PromptContext& context)
{
    //: AI prompt line. Placeholders: category title; its explanation
    return QCoreApplication::translate("AIPrompt", "Dustlark category: %1. %2")
        .arg(Categories::title(category), Categories::explanation(category, context.desktop));
}

QString machineLine(const PromptContext& context)
{
    if (onMac(context))
        //: AI prompt line. %1 names the system version and the processor
        return QCoreApplication::translate("AIPrompt", "Mac: %1").arg(context.machine);
    //: AI prompt line on Linux. %1 names the distribution and the processor, e.g. "Debian GNU/Linux 12 on Intel Core i5"
    return QCoreApplication::translate("AIPrompt", "Computer: %1").arg(context.machine);
}

QString singleOpening(const PromptContext& context)
{
    if (onMac(context))
        //: AI prompt's first line, about one row
        return QCoreApplication::translate("AIPrompt", "I'm cleaning up my Mac with Dustlark and want to know whether it's safe to remove this item.");
    //: AI prompt's first line, about one row, on Linux
    return QCoreApplication::translate("AIPrompt", "I'm cleaning up my Linux computer with Dustlark and want to know whether it's safe to remove this item.");
}

QString batchOpening(const PromptContext& context)
{
    if (onMac(context))
        //: AI prompt's first line, about a list of rows
        return QCoreApplication::translate("AIPrompt", "I'm cleaning up my Mac with Dustlark. For each item below, tell me whether it's safe to remove.");
    //: AI prompt's first line, about a list of rows, on Linux
    return QCoreApplication::translate("AIPrompt", "I'm cleaning up my Linux computer with Dustlark. For each item below, tell me whether it's safe to remove.");
}

QString answerLanguageLine(const PromptContext& context)
{
    if (context.answerLanguage)
        //: AI prompt line for a person whose language the app has no translation for. %1 is that language's name
        return QCoreApplication::translate("AIPrompt", "Answer in %1.").arg(*context.answerLanguage);
    //: AI prompt's last line. Translators: write this sentence naming your own language, e.g. "Réponds en français."
    return QCoreApplication::translate("AIPrompt", "Answer in English.");
}

QString itemLine(const CleanupItem& item)
{
    if (!item.badge || item.badge->isEmpty())
        //: AI prompt line for a row without a tag. Placeholder: item name
        return QCoreApplication::translate("AIPrompt", "Item: %1").arg(item.title);
    //: AI prompt line. Placeholders: item name; its tag
    return QCoreApplication::translate("AIPrompt", "Item: %1 (%2)").arg(item.title, *item.badge);
}

QStringList pathLines(const QStringList& paths)
{
    if (paths.isEmpty())
        return {};
    //: AI prompt: heading of the row's paths, listed one per line below it
    QStringList lines{QCoreApplication::translate("AIPrompt", "Paths:")};
    for (const QString& path : paths)
        lines.append(bullet + path);
    return lines;
}

QStringList contentLines(const std::optional<LargestContents>& contents)
{
    if (!contents || (contents->entries.isEmpty() && contents->moreEntries == 0))
        return {};
    //: AI prompt: heading of a folder's largest entries, listed one per line below it
    QStringList lines{QCoreApplication::translate("AIPrompt", "Largest contents:")};
    for (const LargestContents::Entry& entry : contents->entries)
        //: AI prompt: one entry of a folder. Placeholders: its name; its size on disk
        lines.append(bullet + QCoreApplication::translate("AIPrompt", "%1: %2").arg(entry.name, ByteCount::format(entry.bytes)));
    if (contents->moreEntries > 0)
        //: AI prompt: the entries of a folder left out of the list. %n is their number
        lines.append(bullet + QCoreApplication::translate("AIPrompt", "%n more entries", nullptr, int(contents->moreEntries)));
    return lines;
}

QStringList factLines(const CleanupItem& item, const PromptContext& context)
{
    QStringList lines{itemLine(item), categoryLine(item.category, context)};
    //: AI prompt line. Placeholder: the row's detail line
    lines.append(QCoreApplication::translate("AIPrompt", "Dustlark's note: %1").arg(RelativeDate::expand(item.detail)));
    //: AI prompt line. Placeholder: the safety label ("Safe", "Ask AI" or "Risky")
    lines.append(QCoreApplication::translate("AIPrompt", "Dustlark's safety hint: %1").arg(Safeties::title(item.safety(context.home))));
    //: AI prompt line. Placeholder: the size on disk
    lines.append(QCoreApplication::translate("AIPrompt", "Size on disk: %1").arg(ByteCount::format(item.size)));
    if (item.date)
        //: AI prompt line. Placeholder: the date and time the row was last changed or used
        lines.append(QCoreApplication::translate("AIPrompt", "Last changed or used: %1").arg(dateText(*item.date, context.locale)));
    //: AI prompt line. Placeholder: how the row goes, e.g. "moves it to the Trash (…)"
    lines.append(QCoreApplication::translate("AIPrompt", "How Dustlark would remove it: %1").arg(removalDescription(item.removal)));
    return lines;
}

QStringList questionLines()
{
    return {
        //: AI prompt: heading of the four questions
        QCoreApplication::translate("AIPrompt", "Please tell me:"),
        //: AI prompt question
        QCoreApplication::translate("AIPrompt", "1. What this is and which app or tool uses it."),
        //: AI prompt question
        QCoreApplication::translate("AIPrompt", "2. What breaks or is lost if I remove it, and whether it comes back on its own."),
        //: AI prompt question
        QCoreApplication::translate("AIPrompt", "3. How I could restore it if I need it later."),
        //: AI prompt question
        QCoreApplication::translate("AIPrompt", "4. Your recommendation: remove, keep, or check something first (say exactly what to check)."),
    };
}

QString batchRemovalLine(const QList<CleanupItem>& items)
{
    const bool allToTrash = std::all_of(items.begin(), items.end(), [](const CleanupItem& item) {
        return item.removal.kind() == Removal::Kind::trash;
    });
    if (allToTrash)
        //: AI prompt line about a list of rows that all go to the Trash
        return QCoreApplication::translate("AIPrompt", "Removal: everything goes to the Trash (it can be put back until the Trash is emptied).");
    //: AI prompt line about a list of rows some of which a tool removes for good
    return QCoreApplication::translate("AIPrompt", "Removal: some items are removed permanently by their tool.");
}

QString batchItemLine(int number, const CleanupItem& item)
{
    const QString name = item.badge && !item.badge->isEmpty() ? item.title + QStringLiteral(" (") + *item.badge + QLatin1Char(')')
                                                              : item.title;
    const QStringList paths = item.removal.paths();
    const QString size = ByteCount::format(item.size);
    if (paths.isEmpty())
        //: AI prompt: one numbered row of a list. Placeholders: number; name; detail line; size
        return QCoreApplication::translate("AIPrompt", "%1. %2 — %3 — %4").arg(QString::number(number), name, RelativeDate::expand(item.detail), size);
    //: AI prompt: one numbered row of a list. Placeholders: number; name; detail line; size; its paths joined by "; "
    return QCoreApplication::translate("AIPrompt", "%1. %2 — %3 — %4 — %5")
        .arg(QString::number(number), name, RelativeDate::expand(item.detail), size, paths.join(QStringLiteral("; ")));
}

QStringList batchItemLines(const QList<CleanupItem>& items)
{
    QStringList lines;
    const qsizetype listed = std::min<qsizetype>(items.size(), batchLimit);
    for (qsizetype index = 0; index < listed; ++index)
        lines.append(batchItemLine(int(index + 1), items.at(index)));
    if (items.size() > listed)
        //: AI prompt: the rows left out of a long list. %1 is their number
        lines.append(QCoreApplication::translate("AIPrompt", "(%1 more not listed)").arg(items.size() - listed));
    return lines;
}

}  // namespace

QString removalDescription(const Removal& removal)
{
    if (const auto* docker = removal.as<Removal::Docker>())
        return dockerRemoval(docker->operation);
    if (const auto* device = removal.as<Removal::SimulatorDevice>())
        return runs(QStringLiteral("xcrun simctl delete ") + device->udid);
    if (const auto* runtime = removal.as<Removal::SimulatorRuntime>())
        return runs(QStringLiteral("xcrun simctl runtime delete ") + runtime->id);
    if (removal.kind() == Removal::Kind::emptyTrash)
        //: AI prompt: how emptying the Trash works, after "How Dustlark would remove it: "
        return QCoreApplication::translate("AIPrompt", "empties the Trash (permanent)");
    //: AI prompt: how a row goes to the Trash, after "How Dustlark would remove it: "
    return QCoreApplication::translate("AIPrompt", "moves it to the Trash (it can be put back until the Trash is emptied)");
}

QString make(const CleanupItem& item, const PromptContext& context, const std::optional<LargestContents>& contents)
{
    QStringList lines{singleOpening(context), QString()};
    lines += factLines(item, context);
    lines += pathLines(item.removal.paths());
    lines += contentLines(contents);
    lines.append(machineLine(context));
    lines.append(QString());
    lines += questionLines();
    lines += {QString(), answerLanguageLine(context)};
    return joinLines(lines);
}

QString makeBatch(const QList<CleanupItem>& items, CategoryID category, const PromptContext& context)
{
    QStringList lines{batchOpening(context), categoryLine(category, context), machineLine(context),
                      batchRemovalLine(items), QString()};
    lines += batchItemLines(items);
    //: AI prompt: what the answer about a list of rows should look like
    lines += {QString(), QCoreApplication::translate("AIPrompt", "Answer as a table: number, item, verdict (Remove / Keep / Check), and one short reason. For Check, say exactly what to check (for example, whether saved passwords are synced elsewhere). Then list the numbers to remove."),
              QString(), answerLanguageLine(context)};
    return joinLines(lines);
}

QString compose(const CleanupItem& item, const CancellationToken* cancellation)
{
    const std::optional<LargestContents> contents = LargestContents::of(item, LargestContents::defaultLimit, cancellation);
    return make(item, PromptContext::current(), contents);
}

QString composeBatch(const QList<CleanupItem>& items, CategoryID category)
{
    return makeBatch(items, category, PromptContext::current());
}

}  // namespace AIPrompt
