#include "storage/FolderScope.h"

namespace {

QByteArrayView nameOf(QByteArrayView path)
{
    return path.sliced(path.lastIndexOf('/') + 1);
}

QByteArrayView parentOf(QByteArrayView path)
{
    const qsizetype slash = path.lastIndexOf('/');
    return slash <= 0 ? path.first(slash < 0 ? 0 : 1) : path.first(slash);
}

}  // namespace

// A folder inherits its parent's bucket, package and usage; a forced bucket of its own (by name
// outside any forced folder, by a full-path row anywhere outside a package) starts a new usage.
FolderScope FolderScope::enter(const FolderScope* parent, QByteArrayView path, const BucketRules& rules)
{
    const QByteArrayView name = nameOf(path);
    FolderScope scope;
    scope.package = BucketRules::isPackage(name);
    scope.usage = path.toByteArray();
    if (parent) {
        scope.kind = parent->kind;
        scope.insidePackage = parent->package || parent->insidePackage;
        scope.usage = parent->usage;
        scope.group = parent->group.isEmpty() ? BucketRules::groupFolder(name) : parent->group;
    }
    if (scope.insidePackage)
        return scope;
    const auto forced = scope.kind ? rules.pathBucket(path) : rules.forcedBucket(path, name, parentOf(path));
    if (forced && forced != scope.kind) {
        scope.kind = forced;
        scope.startsUsage = true;
        scope.usage = path.toByteArray();
        scope.group.clear();
    }
    return scope;
}

std::optional<FolderScope> FolderScope::above(const QByteArray& root, const QByteArray& folder, const BucketRules& rules)
{
    if (folder == root || !folder.startsWith(root + '/'))
        return std::nullopt;
    FolderScope scope = enter(nullptr, root, rules);
    for (qsizetype slash = folder.indexOf('/', root.size() + 1); slash > 0; slash = folder.indexOf('/', slash + 1))
        scope = enter(&scope, QByteArrayView(folder).first(slash), rules);
    return scope;
}
