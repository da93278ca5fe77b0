// The rows of the Docker category, one builder per kind of Docker object.
#include "scan/DockerScanner.h"

#include "format/ByteCount.h"
#include "format/RelativeDate.h"

#include <QCoreApplication>

namespace {

const QString separator = QStringLiteral(" · ");

CleanupItem dockerRow(const QString& id, const QString& title, const QString& badge, DockerOperation operation)
{
    CleanupItem row;
    row.id = id;
    row.category = CategoryID::docker;
    row.title = title;
    row.badge = badge;
    row.removal = Removal::docker(std::move(operation));
    return row;
}

QStringList references(const DockerScanner::Image& image)
{
    if (image.repository == QLatin1String("<none>"))
        return {};
    return {image.repository + QLatin1Char(':') + image.tag};
}

QString imageDetail(const DockerScanner::Image& image, const QStringList& stopped)
{
    QStringList facts;
    if (const auto created = DockerScanner::date(image.createdAt.value_or(QString()))) {
        //: Docker image detail; %1 is the image's age like '3 months ago'
        facts << QCoreApplication::translate("DockerScanner", "Created %1").arg(RelativeDate::marker(*created));
    }
    const QString names = stopped.join(QStringLiteral(", "));
    if (stopped.size() == 1) {
        //: Docker image detail; %1 is the name of a stopped container made from the image
        facts << QCoreApplication::translate("DockerScanner", "also removes stopped container %1").arg(names);
    } else if (stopped.size() > 1) {
        //: Docker image detail; %1 lists the names of stopped containers made from the image
        facts << QCoreApplication::translate("DockerScanner", "also removes stopped containers %1").arg(names);
    }
    return facts.join(separator);
}

CleanupItem imageRow(const DockerScanner::Image& image, const QStringList& stopped)
{
    const QStringList names = references(image);
    //: Title of a Docker image without a name
    const QString title = names.isEmpty() ? QCoreApplication::translate("DockerScanner", "Untagged image") : names.first();
    //: Badge of a Docker image
    CleanupItem row = dockerRow(QStringLiteral("docker:image:") + image.id, title, QCoreApplication::translate("DockerScanner", "Image"),
                                {DockerOperation::Image{image.id, stopped, names}});
    row.detail = imageDetail(image, stopped);
    row.size = DockerScanner::parseSize(image.size.value_or(QString()));
    return row;
}

QStringList labels(const DockerScanner::Volume& volume)
{
    return volume.labels.value_or(QString()).split(QLatin1Char(','), Qt::SkipEmptyParts);
}

QString volumeTitle(const DockerScanner::Volume& volume)
{
    for (const QString& label : labels(volume)) {
        if (label.section(QLatin1Char('='), 0, 0) == QLatin1String("com.docker.volume.anonymous")) {
            //: Title of an unnamed Docker volume; %1 is the start of its identifier
            return QCoreApplication::translate("DockerScanner", "Anonymous volume %1").arg(volume.name.left(12));
        }
    }
    return volume.name;
}

QString volumeDetail(const DockerScanner::Volume& volume)
{
    //: Docker volume detail
    QStringList facts = {QCoreApplication::translate("DockerScanner", "no container uses it"),
                         //: Docker volume detail
                         QCoreApplication::translate("DockerScanner", "may hold a database or uploads")};
    const QLatin1String project("com.docker.compose.project=");
    for (const QString& label : labels(volume)) {
        if (label.startsWith(project)) {
            //: Docker volume detail; %1 is a Compose project name
            facts << QCoreApplication::translate("DockerScanner", "Compose project %1").arg(label.mid(project.size()));
        }
    }
    return facts.join(separator);
}

std::optional<QString> summaryPart(const QString& type, const QString& size)
{
    if (type == QLatin1String("Images"))
        //: Part of the Docker summary list; %1 is a size like '1.2 GB'
        return QCoreApplication::translate("DockerScanner", "images %1").arg(size);
    if (type == QLatin1String("Containers"))
        //: Part of the Docker summary list; %1 is a size like '1.2 GB'
        return QCoreApplication::translate("DockerScanner", "containers %1").arg(size);
    if (type == QLatin1String("Local Volumes"))
        //: Part of the Docker summary list; %1 is a size like '1.2 GB'
        return QCoreApplication::translate("DockerScanner", "local volumes %1").arg(size);
    if (type == QLatin1String("Build Cache"))
        //: Part of the Docker summary list; %1 is a size like '1.2 GB'
        return QCoreApplication::translate("DockerScanner", "build cache %1").arg(size);
    return std::nullopt;
}

}  // namespace

CleanupItem DockerScanner::containerRow(const Container& container)
{
    //: Badge of a stopped Docker container
    CleanupItem row = dockerRow(QStringLiteral("docker:container:") + container.id, container.names,
                                QCoreApplication::translate("DockerScanner", "Container"), {DockerOperation::Container{container.id}});
    row.detail = container.image + separator + container.status;
    row.size = parseSize(container.size.value_or(QStringLiteral("0B")));
    return row;
}

QList<CleanupItem> DockerScanner::imageRows(const QList<Image>& images, const ContainerUse& use)
{
    QList<CleanupItem> rows;
    QSet<QString> seen;
    for (const Image& image : images) {
        if (seen.contains(image.id))
            continue;  // one image listed under several tags
        seen.insert(image.id);
        if (!use.runningImages.contains(image.id))
            rows.append(imageRow(image, use.stoppedByImage.value(image.id)));
    }
    return rows;
}

std::optional<CleanupItem> DockerScanner::buildCacheRow(const QList<DiskUsageRow>& usage)
{
    for (const DiskUsageRow& row : usage) {
        const qint64 size = parseSize(row.size.value_or(QString()));
        if (row.typeName != QLatin1String("Build Cache") || size <= 0)
            continue;
        //: Title of Docker's build cache row
        CleanupItem item = dockerRow(QStringLiteral("docker:buildcache"), QCoreApplication::translate("DockerScanner", "Build cache"),
                                     //: Badge of Docker's build cache row
                                     QCoreApplication::translate("DockerScanner", "Cache"), {DockerOperation::BuildCache{}});
        //: Detail of Docker's build cache row
        item.detail = QCoreApplication::translate("DockerScanner", "Layers kept by docker build; the next build takes longer");
        item.size = size;
        return item;
    }
    return std::nullopt;
}

QStringList DockerScanner::summaryParts(const QList<DiskUsageRow>& usage)
{
    QStringList parts;
    for (const DiskUsageRow& row : usage) {
        if (auto part = summaryPart(row.typeName, ByteCount::format(parseSize(row.size.value_or(QString())))))
            parts << *part;
    }
    return parts;
}

QList<CleanupItem> DockerScanner::volumeRows(const QList<Volume>& volumes, const QHash<QString, QString>& created)
{
    QList<CleanupItem> rows;
    for (const Volume& volume : volumes) {
        if (volume.links.value_or(QString()) != QLatin1String("0") || !created.contains(volume.name))
            continue;  // in use, or gone before the inspection
        //: Badge of a Docker volume
        CleanupItem row = dockerRow(QStringLiteral("docker:volume:") + volume.name, volumeTitle(volume),
                                    QCoreApplication::translate("DockerScanner", "Volume"),
                                    {DockerOperation::Volume{volume.name, created.value(volume.name)}});
        row.detail = volumeDetail(volume);
        row.size = parseSize(volume.size.value_or(QString()));
        rows.append(row);
    }
    return rows;
}

DockerScanner::ContainerUse DockerScanner::containerUse(const QString& inspectOutput)
{
    ContainerUse use;
    for (const QString& line : inspectOutput.split(QLatin1Char('\n'), Qt::SkipEmptyParts)) {
        const QStringList fields = line.trimmed().split(QLatin1Char('|'));
        if (fields.size() < 4)
            continue;
        if (fields[2] == QLatin1String("true"))
            use.runningImages.insert(fields[1]);
        else
            use.stoppedByImage[fields[1]].append(fields[3].mid(fields[3].startsWith(QLatin1Char('/')) ? 1 : 0));
    }
    return use;
}
