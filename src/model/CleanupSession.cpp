#include "model/CleanupSession.h"

#include "vocabulary/ItemName.h"

CleanupSession::CleanupSession(QList<CleanupItem> items, RemovalEnvironment environment, QObject* parent)
    : QObject(parent), m_items(std::move(items)), m_environment(std::move(environment))
{
}

void CleanupSession::setPhase(Phase phase)
{
    m_phase = phase;
    emit changed();
}

void CleanupSession::setCurrent(const QString& title)
{
    m_current = title;
    emit changed();
}

void CleanupSession::setTrashEmptied()
{
    m_trashEmptied = true;
    emit changed();
}

void CleanupSession::setFreeAfter(std::optional<qint64> bytes)
{
    m_freeAfter = bytes;
    emit changed();
}

void CleanupSession::record(const CleanupItem& item, const Outcome& outcome)
{
    ++m_processed;
    switch (outcome.kind) {
    case Outcome::Kind::movedToTrash:
        m_movedToTrash += item.size;
        break;
    case Outcome::Kind::removedByTool: {
        m_removedByTools += item.size;
        const auto docker = item.removal.as<Removal::Docker>();
        const auto image = docker ? docker->operation.as<DockerOperation::Image>() : nullptr;
        if (docker && (docker->operation.as<DockerOperation::Container>() || (image && !image->stoppedContainers.isEmpty())))
            m_removedContainers = true;
        break;
    }
    case Outcome::Kind::failed:
        m_failures.append(Failure{QUuid::createUuid().toString(QUuid::WithoutBraces), ItemName::of(item, m_environment.home),
                                  outcome.reason});
        break;
    }
    emit changed();
}

QList<CleanupItem> CleanupSession::permanentItems() const
{
    QList<CleanupItem> permanent;
    for (const CleanupItem& item : m_items) {
        if (item.removal.isPermanent())
            permanent.append(item);
    }
    return permanent;
}

QList<CleanupItem> CleanupSession::trashItems() const
{
    QList<CleanupItem> trash;
    for (const CleanupItem& item : m_items) {
        if (!item.removal.isPermanent())
            trash.append(item);
    }
    return trash;
}

QList<CleanupItem> CleanupSession::riskyItems(const QString& home) const
{
    QList<CleanupItem> risky;
    for (const CleanupItem& item : m_items) {
        if (item.safety(home) == Safety::risky)
            risky.append(item);
    }
    return risky;
}

int CleanupSession::stoppedContainersOfSelectedImages() const
{
    int count = 0;
    for (const CleanupItem& item : m_items) {
        const auto docker = item.removal.as<Removal::Docker>();
        if (const auto image = docker ? docker->operation.as<DockerOperation::Image>() : nullptr)
            count += static_cast<int>(image->stoppedContainers.size());
    }
    return count;
}

QString CleanupSession::permanentTitle() const
{
    //: Title of the cleanup confirmation when some items are removed for good; %n is their number
    return tr("Remove %n items for good?", nullptr, int(permanentItems().size()));
}

QString CleanupSession::permanentWarning()
{
    //: Text of the cleanup confirmation when some items are removed for good
    return tr("Docker and Xcode remove these items without the Trash. This can't be undone.");
}

QString CleanupSession::riskyLine(const QString& home) const
{
    const QList<CleanupItem> risky = riskyItems(home);
    if (risky.isEmpty())
        return {};
    QStringList names;
    for (const CleanupItem& item : risky.mid(0, 3))
        names.append(ItemName::of(item, home));
    //: Cleanup confirmation line; %n is the number of Risky items, %1 the first three names, comma-separated
    return tr("%n selected items are marked Risky: %1. They may hold data that exists nowhere else.", nullptr,
              int(risky.size()))
        .arg(names.join(QStringLiteral(", ")));
}

QString CleanupSession::trashHeading()
{
    //: Heading of the part of the cleanup confirmation that lists what goes to the Trash
    return tr("Move to the Trash");
}

QString CleanupSession::trashText()
{
    //: Cleanup confirmation, under "Move to the Trash"
    return tr("You can put them back from the Trash until you empty it.");
}

QString CleanupSession::permanentText() const
{
    const int containers = stoppedContainersOfSelectedImages();
    if (containers == 0)
        //: Cleanup confirmation, the part about items Docker and Xcode remove for good
        return tr("Docker and Xcode remove these themselves. This can't be undone.");
    //: Cleanup confirmation when selected Docker images have stopped containers; %1 is their number
    return tr("Docker and Xcode remove these themselves. This can't be undone. Docker also removes %1 stopped containers of the selected images.")
        .arg(containers);
}

QString CleanupSession::resultTitle() const
{
    if (m_stopped)
        //: Heading of the results sheet after the person stopped the cleanup
        return tr("Cleaning stopped");
    //: Heading of the results sheet
    return tr("Cleaning finished");
}
