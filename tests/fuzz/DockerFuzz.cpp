// What the docker tool prints: JSON lines of containers, images, disk usage and volumes, the
// inspection lines, and the size and time texts inside them, through to the rows they become.
#include "FuzzInput.h"

#include "scan/DockerScanner.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    const QString text = QString::fromUtf8(fuzzBytes(data, size));
    for (const QString& line : text.split(QLatin1Char('\n'))) {
        (void)DockerScanner::parseSize(line);
        (void)DockerScanner::date(line);
    }
    for (const DockerScanner::Container& container : DockerScanner::decodeLines<DockerScanner::Container>(text))
        (void)DockerScanner::containerRow(container);
    const DockerScanner::ContainerUse use = DockerScanner::containerUse(text);
    (void)DockerScanner::imageRows(DockerScanner::decodeLines<DockerScanner::Image>(text), use);
    const QList<DockerScanner::DiskUsageRow> usage = DockerScanner::decodeLines<DockerScanner::DiskUsageRow>(text);
    (void)DockerScanner::buildCacheRow(usage);
    (void)DockerScanner::summaryParts(usage);
    const QList<DockerScanner::Volume> volumes = DockerScanner::decodeLines<DockerScanner::Volume>(text);
    QHash<QString, QString> created;  // a fuzzed text stands in for each creation time the inspection reports
    for (const DockerScanner::Volume& volume : volumes)
        created.insert(volume.name, volume.labels.value_or(QString()));
    (void)DockerScanner::volumeRows(volumes, created);
    return 0;
}
