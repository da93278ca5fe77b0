#include "scan/DockerScanner.h"

#include "format/ByteCount.h"
#include "machinery/DockerEndpoint.h"
#include "machinery/FileSizer.h"
#include "machinery/ToolLocations.h"
#include "vocabulary/FileStatus.h"

#include <QCoreApplication>

#include <algorithm>

namespace {

// The docker tool bound to one endpoint for the length of a scan.
class Docker {
public:
    Docker(const DockerScanner& scanner, QString executable, QString host, const ScanContext& context)
        : m_scanner(scanner), m_executable(std::move(executable)), m_host(std::move(host)), m_context(context) {}

    // Standard output of a run that succeeded; absent after a failure or time-out.
    std::optional<QString> output(const QStringList& arguments) const
    {
        const ProcessRunner::Result result = m_scanner.run(m_executable, m_host, arguments, &m_context.cancellation);
        if (!result.launched() || result.output->status != 0 || result.output->timedOut)
            return std::nullopt;
        return result.output->standardOutput;
    }

private:
    const DockerScanner& m_scanner;
    QString m_executable;
    QString m_host;
    const ScanContext& m_context;
};

// The words of a docker command, then "--format" and the Go template (which holds spaces).
QStringList command(const char* words, const char* format = nullptr)
{
    QStringList list = QString::fromLatin1(words).split(QLatin1Char(' '));
    if (format)
        list << QStringLiteral("--format") << QString::fromLatin1(format);
    return list;
}

// Images need to know which containers run; without that list none is offered.
std::optional<DockerScanner::ContainerUse> readContainerUse(const Docker& docker)
{
    const std::optional<QString> ids = docker.output(command("ps -a -q --no-trunc"));
    if (!ids)
        return std::nullopt;
    const QStringList idList = ids->split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    if (idList.isEmpty())
        return DockerScanner::ContainerUse{};
    const std::optional<QString> inspected = docker.output(
        QStringList{QStringLiteral("inspect"), QStringLiteral("--format"),
                    QStringLiteral("{{.Id}}|{{.Image}}|{{.State.Running}}|{{.Name}}")} + idList);
    if (!inspected)
        return std::nullopt;
    return DockerScanner::containerUse(*inspected);
}

// Volume name to its creation time text, for the volumes no container uses.
QHash<QString, QString> creationTimes(const Docker& docker, const QList<DockerScanner::Volume>& volumes)
{
    QStringList names;
    for (const DockerScanner::Volume& volume : volumes) {
        if (volume.links.value_or(QString()) == QLatin1String("0"))
            names.append(volume.name);
    }
    QHash<QString, QString> created;
    if (names.isEmpty())
        return created;
    const std::optional<QString> inspected = docker.output(
        QStringList{QStringLiteral("volume"), QStringLiteral("inspect"), QStringLiteral("--format"),
                    QStringLiteral("{{.Name}}\t{{.CreatedAt}}")} + names);
    for (const QString& line : inspected.value_or(QString()).split(QLatin1Char('\n'), Qt::SkipEmptyParts)) {
        const qsizetype tab = line.indexOf(QLatin1Char('\t'));
        if (tab > 0)
            created.insert(line.left(tab), line.mid(tab + 1).trimmed());
    }
    return created;
}

std::optional<QString> diskImageNote(const QString& home)
{
    const QString raw = home + QStringLiteral("/Library/Containers/com.docker.docker/Data/vms/0/data/Docker.raw");
    if (!FileStatus::of(raw))
        return std::nullopt;
    const qint64 bytes = FileSizer::measure(raw).bytes;
    //: Part of the Docker summary list; %1 is a size like '60 GB'
    const QString takes = QCoreApplication::translate("DockerScanner", "Docker Desktop's disk image takes %1 on this Mac").arg(ByteCount::format(bytes));
    //: Note in the Docker category
    return takes + QStringLiteral(". ") + QCoreApplication::translate("DockerScanner", "Docker Desktop may return freed space to macOS gradually.");
}

// The listings after the server check; each adds its rows or, when it fails, leaves them out.
void addListings(const Docker& docker, const ScanContext& context, ScanOutput& output, QStringList& summary)
{
    if (const auto use = readContainerUse(docker); use && !context.isCancelled()) {
        if (const auto images = docker.output(command("image ls --no-trunc", "{{json .}}")))
            output.items += DockerScanner::imageRows(DockerScanner::decodeLines<DockerScanner::Image>(*images), *use);
    }
    if (context.isCancelled())
        return;
    if (const auto df = docker.output(command("system df", "{{json .}}"))) {
        const auto usage = DockerScanner::decodeLines<DockerScanner::DiskUsageRow>(*df);
        summary = DockerScanner::summaryParts(usage);
        if (auto row = DockerScanner::buildCacheRow(usage))
            output.items.append(*row);
    }
    if (context.isCancelled())
        return;
    if (const auto volumes = docker.output(command("system df -v", "{{json .Volumes}}"))) {
        const auto list = DockerScanner::decodeLines<DockerScanner::Volume>(*volumes);
        output.items += DockerScanner::volumeRows(list, creationTimes(docker, list));
    }
}

// Every row's operation carries where and when it was read, for the remover's checks.
void stampOperations(QList<CleanupItem>& items, const QString& host, const QDateTime& scannedAt)
{
    for (CleanupItem& item : items) {
        if (auto* docker = std::get_if<Removal::Docker>(&item.removal.value)) {
            docker->operation.host = host;
            docker->operation.scannedAt = scannedAt;
        }
    }
}

}  // namespace

ScanOutputs DockerScanner::scan(const ScanContext& context) const
{
    return {{CategoryID::docker, scanDocker(context)}};
}

ScanOutput DockerScanner::scanDocker(const ScanContext& context) const
{
    ScanOutput output;
    const std::optional<QString> tool = m_environment.candidates ? ProcessRunner::firstExecutable(*m_environment.candidates)
                                                                 : executable(context.home);
    if (!tool)
        return {{}, {notInstalledNote()}, {}};
    const auto variable = m_environment.hostVariable ? m_environment.hostVariable() : DockerEndpoint::hostVariable();
    const std::optional<QString> host = DockerEndpoint::localHost(
        *tool, variable, &context.cancellation, m_environment.configFolder.value_or(DockerEndpoint::configFolder()));
    if (!host)
        return {{}, {remoteNote()}, {}};
    const Docker docker(*this, *tool, *host, context);
    if (!DockerEndpoint::mayAnswer(*host) || !docker.output(command("info", "{{.ServerVersion}}")))
        return {{}, {notRunningNote()}, {}};
    const auto stopped = docker.output(command(
        "ps -a --no-trunc --size --filter status=exited --filter status=created --filter status=dead", "{{json .}}"));
    if (!stopped)
        return {{}, {notRunningNote()}, {}};
    for (const Container& container : decodeLines<Container>(*stopped))
        output.items.append(containerRow(container));
    QStringList summary;
    addListings(docker, context, output, summary);
    if (auto note = diskImageNote(context.home))
        output.notes.append(*note);
    if (!summary.isEmpty()) {
        //: Summary above the Docker list; %1 is a comma-separated list like 'images 3 GB, build cache 5 GB'
        output.summary = QCoreApplication::translate("DockerScanner", "Docker uses: %1").arg(summary.join(QStringLiteral(", ")));
    }
    // The scan's start is before the listings, so a container that stops after them counts as changed.
    stampOperations(output.items, *host, context.now);
    std::stable_sort(output.items.begin(), output.items.end(),
                     [](const CleanupItem& a, const CleanupItem& b) { return a.size > b.size; });
    return output;
}

std::optional<QString> DockerScanner::executable(const QString& home)
{
    return ProcessRunner::firstExecutable(ToolLocations::standard(home).dockerCandidates);
}

ProcessRunner::Result DockerScanner::run(const QString& executable, const QString& host, const QStringList& arguments,
                                         const CancellationToken* cancellation) const
{
    return ProcessRunner::run(executable, QStringList{QStringLiteral("--host"), host} + arguments, m_environment.timeLimit,
                              {}, cancellation);
}

QString DockerScanner::notInstalledNote()
{
    //: Note in the Docker category
    return QCoreApplication::translate("DockerScanner", "Docker isn't installed.");
}

QString DockerScanner::remoteNote(Platform::Desktop desktop)
{
    if (desktop == Platform::Desktop::freedesktop)
        //: Note in the Docker category on Linux
        return QCoreApplication::translate("DockerScanner", "Docker is set to use another computer. Dustlark cleans only Docker on this computer.");
    //: Note in the Docker category
    return QCoreApplication::translate("DockerScanner", "Docker is set to use another computer. Dustlark cleans only Docker on this Mac.");
}

QString DockerScanner::notRunningNote()
{
    //: Note in the Docker category
    return QCoreApplication::translate("DockerScanner", "Docker isn't running. Start Docker and scan again to see its containers and images.");
}
