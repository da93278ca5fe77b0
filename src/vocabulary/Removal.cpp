#include "vocabulary/Removal.h"

QStringList Removal::paths() const
{
    QStringList result;
    if (auto trash = as<Trash>()) {
        for (const FileTarget& target : trash->targets)
            result.append(target.path);
    }
    return result;
}

QString Removal::rawKind() const
{
    switch (kind()) {
    case Kind::trash: return QStringLiteral("trash");
    case Kind::docker: return QStringLiteral("docker");
    case Kind::simulatorDevice: return QStringLiteral("simulatorDevice");
    case Kind::simulatorRuntime: return QStringLiteral("simulatorRuntime");
    case Kind::emptyTrash: return QStringLiteral("emptyTrash");
    }
    return {};
}

size_t qHash(const Removal& removal, size_t seed)
{
    HashCombine hash(seed);
    hash.add(removal.value.index());
    if (auto t = removal.as<Removal::Trash>())
        hash.add(t->targets);
    else if (auto d = removal.as<Removal::Docker>())
        hash.add(d->operation);
    else if (auto s = removal.as<Removal::SimulatorDevice>())
        hash.add(s->udid).add(s->lastUsed);
    else if (auto r = removal.as<Removal::SimulatorRuntime>())
        hash.add(r->id);
    return hash.result();
}
