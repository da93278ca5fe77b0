#include "report/StorageReportOutput.h"

#include "format/ByteCount.h"
#include "format/WholeNumber.h"

#include <QJsonArray>
#include <QTextStream>

namespace StorageReportOutput {

namespace {

constexpr qsizetype foldersInText = 5;

double number(qint64 value)
{
    return static_cast<double>(value);
}

QJsonObject folderToJson(const StorageReport::FolderUsage& folder)
{
    QJsonArray files;
    for (const StorageReport::FileUsage& file : folder.files)
        files.append(QJsonObject{{QStringLiteral("path"), file.path}, {QStringLiteral("bytes"), number(file.bytes)}});
    QJsonObject subfolders;
    for (auto group = folder.subfolders.cbegin(); group != folder.subfolders.cend(); ++group) {
        subfolders.insert(group.key(), QJsonObject{{QStringLiteral("bytes"), number(group->bytes)},
                                                   {QStringLiteral("fileCount"), number(group->fileCount)}});
    }
    return {{QStringLiteral("path"), folder.path},
            {QStringLiteral("bytes"), number(folder.bytes)},
            {QStringLiteral("fileCount"), number(folder.fileCount)},
            {QStringLiteral("files"), files},
            {QStringLiteral("subfolders"), subfolders}};
}

QJsonObject largeFolderToJson(const StorageReport::LargeFolder& folder)
{
    return {{QStringLiteral("path"), folder.path},
            {QStringLiteral("bytes"), number(folder.bytes)},
            {QStringLiteral("fileCount"), number(folder.fileCount)},
            {QStringLiteral("smallBytes"), number(folder.smallBytes)},
            {QStringLiteral("kind"), StorageBuckets::rawValue(folder.kind)}};
}

QJsonObject nodeToJson(const FolderNode& node)
{
    QJsonArray children;
    for (const FolderNode& child : node.children)
        children.append(nodeToJson(child));
    return {{QStringLiteral("name"), node.name},
            {QStringLiteral("bytes"), number(node.bytes)},
            {QStringLiteral("fileCount"), number(node.fileCount)},
            {QStringLiteral("ownBytes"), number(node.ownBytes)},
            {QStringLiteral("foldedBytes"), number(node.foldedBytes)},
            {QStringLiteral("kind"), StorageBuckets::rawValue(node.kind)},
            {QStringLiteral("children"), children}};
}

}  // namespace

QJsonObject toJson(const StorageReport& report)
{
    QJsonArray buckets;
    for (const auto& [bucket, bytes] : report.sortedBuckets()) {
        QJsonArray folders;
        for (const StorageReport::FolderUsage& folder : report.foldersOf(bucket))
            folders.append(folderToJson(folder));
        buckets.append(QJsonObject{{QStringLiteral("id"), StorageBuckets::rawValue(bucket)},
                                   {QStringLiteral("title"), StorageBuckets::title(bucket)},
                                   {QStringLiteral("bytes"), number(bytes)},
                                   {QStringLiteral("folders"), folders}});
    }
    QJsonArray large;
    for (const StorageReport::LargeFolder& folder : report.largeFolders)
        large.append(largeFolderToJson(folder));
    return {{QStringLiteral("version"), 1},
            {QStringLiteral("date"), report.date.toUTC().toString(Qt::ISODate)},
            {QStringLiteral("diskUsed"), number(report.diskUsed)},
            {QStringLiteral("measured"), number(report.measured())},
            {QStringLiteral("notMeasured"), number(report.notMeasured())},
            {QStringLiteral("measuredWithFullDiskAccess"), report.measuredWithFullDiskAccess},
            {QStringLiteral("notes"), QJsonArray::fromStringList(report.notes)},
            {QStringLiteral("buckets"), buckets},
            {QStringLiteral("largeFolders"), large},
            {QStringLiteral("tree"), nodeToJson(report.tree)}};
}

QByteArray toText(const StorageReport& report)
{
    QByteArray out;
    QTextStream stream(&out);
    stream << "Used " << ByteCount::format(report.diskUsed) << ", measured " << ByteCount::format(report.measured())
           << ", " << StorageBuckets::remainderTitle() << ' ' << ByteCount::format(report.notMeasured()) << '\n';
    for (const QString& note : report.notes)
        stream << "  ! " << note << '\n';
    for (const auto& [bucket, bytes] : report.sortedBuckets()) {
        stream << ByteCount::format(bytes).rightJustified(10) << "  " << StorageBuckets::title(bucket) << '\n';
        for (const StorageReport::FolderUsage& folder : report.foldersOf(bucket).first(
                 std::min(foldersInText, report.foldersOf(bucket).size())))
            stream << ByteCount::format(folder.bytes).rightJustified(20) << "  " << folder.path << '\n';
    }
    stream << "\nLarge folders of small files\n";
    for (const StorageReport::LargeFolder& folder : report.largeFolders) {
        stream << ByteCount::format(folder.bytes).rightJustified(10) << "  " << WholeNumber::format(folder.fileCount).rightJustified(10)
               << " files  " << StorageBuckets::title(folder.kind) << "  " << folder.path << '\n';
    }
    stream.flush();
    return out;
}

}  // namespace StorageReportOutput
