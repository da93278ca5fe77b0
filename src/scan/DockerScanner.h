#pragma once

#include "machinery/ProcessRunner.h"
#include "platform/Platform.h"
#include "scan/Scanner.h"
#include "vocabulary/CleanupItem.h"

#include <QDateTime>
#include <QHash>
#include <QJsonObject>
#include <QList>
#include <QSet>
#include <QString>
#include <QStringList>

#include <chrono>
#include <functional>
#include <optional>

// Fills the Docker category from what the docker tool itself reports: stopped containers,
// images no running container uses, the build cache and unused volumes, with a summary of
// what Docker occupies. Never reads Docker's files; everything it offers is removed by Docker.
// A value type; scan() runs the tool's commands one after another on the calling worker
// thread; every row's operation carries the endpoint it used and the scan's start time.
class DockerScanner : public Scanner {
public:
    // What the scan reaches outside the process through; the defaults are the real system.
    struct Environment {
        std::optional<QStringList> candidates;  // where docker may be; absent: the standard places
        std::function<std::optional<QString>()> hostVariable;  // DOCKER_HOST; null: this process's
        std::chrono::milliseconds timeLimit{30'000};           // of every command but the context's
        std::optional<QString> configFolder;  // the tool's settings; absent: this process's
    };

    // One line of `docker ps --format {{json .}}`.
    struct Container {
        QString id, names, image, status;
        std::optional<QString> size;
        static std::optional<Container> decode(const QJsonObject& json);
    };
    // One line of `docker image ls --format {{json .}}`.
    struct Image {
        QString id, repository, tag;
        std::optional<QString> size, createdSince, createdAt;
        static std::optional<Image> decode(const QJsonObject& json);
    };
    // One line of `docker system df --format {{json .}}`; its type comes from the key "Type".
    struct DiskUsageRow {
        QString typeName;
        std::optional<QString> size, reclaimable;
        static std::optional<DiskUsageRow> decode(const QJsonObject& json);
    };
    // One entry of `docker system df -v --format {{json .Volumes}}`.
    struct Volume {
        QString name;
        std::optional<QString> links, size, labels;
        static std::optional<Volume> decode(const QJsonObject& json);
    };

    // What the containers run: images a running container uses, and per image ID the names
    // of the stopped containers made from it.
    struct ContainerUse {
        QSet<QString> runningImages;
        QHash<QString, QStringList> stoppedByImage;
    };

    DockerScanner() = default;
    explicit DockerScanner(Environment environment) : m_environment(std::move(environment)) {}

    QList<CategoryID> categories() const override { return {CategoryID::docker}; }
    ScanOutputs scan(const ScanContext& context) const override;

    // The whole Docker category; notes instead of rows when Docker is missing, remote or down.
    [[nodiscard]] ScanOutput scanDocker(const ScanContext& context) const;

    // The docker tool at the first of the standard places (Linux adds its distribution's).
    [[nodiscard]] static std::optional<QString> executable(const QString& home);

    // Runs docker with "--host" `host` before `arguments`; blocks until it ends or times out.
    [[nodiscard]] ProcessRunner::Result run(const QString& executable, const QString& host, const QStringList& arguments,
                                            const CancellationToken* cancellation = nullptr) const;

    // Each line of `text` decoded as one record; lines that don't decode are skipped.
    template <typename Record>
    [[nodiscard]] static QList<Record> decodeLines(const QString& text)
    {
        QList<Record> records;
        for (const QJsonObject& object : jsonObjectLines(text)) {
            if (auto record = Record::decode(object))
                records.append(*record);
        }
        return records;
    }
    // The JSON objects among the lines of `text` (also the elements of a line holding an array).
    [[nodiscard]] static QList<QJsonObject> jsonObjectLines(const QString& text);

    // Docker's size text ("1.5GB", "12kB (virtual 1.2GB)", "0B") in bytes; 0 without a number.
    [[nodiscard]] static qint64 parseSize(const QString& text);
    // Docker's time text ("2024-03-12 14:02:11 +0100 CET" or RFC 3339) as a date.
    [[nodiscard]] static std::optional<QDateTime> date(const QString& text);

    // The rows, one per kind of Docker object.
    [[nodiscard]] static CleanupItem containerRow(const Container& container);
    [[nodiscard]] static QList<CleanupItem> imageRows(const QList<Image>& images, const ContainerUse& use);
    [[nodiscard]] static std::optional<CleanupItem> buildCacheRow(const QList<DiskUsageRow>& usage);
    [[nodiscard]] static QStringList summaryParts(const QList<DiskUsageRow>& usage);
    // `created` maps the names the volume inspection reported to their creation time texts.
    [[nodiscard]] static QList<CleanupItem> volumeRows(const QList<Volume>& volumes, const QHash<QString, QString>& created);
    // Reads `docker inspect`'s "ID|image|running|name" lines.
    [[nodiscard]] static ContainerUse containerUse(const QString& inspectOutput);

    // The notes of the category.
    [[nodiscard]] static QString notInstalledNote();
    [[nodiscard]] static QString remoteNote(Platform::Desktop desktop = Platform::desktop());
    [[nodiscard]] static QString notRunningNote();

private:
    Environment m_environment;
};
