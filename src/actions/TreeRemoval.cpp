#include "actions/TreeRemoval.h"

#include "actions/OwnerWrite.h"
#include "machinery/TreeWalker.h"
#include "vocabulary/FileStatus.h"

#include <QFile>

#include <fcntl.h>
#include <string>
#include <unistd.h>

namespace TreeRemoval {

namespace {

// Files and links as they are met, folders once emptied. The root alone is named by its path,
// as the caller gave it.
class Removing : public TreeVisitor {
public:
    Verdict visitItem(const TreeEntry& entry) override
    {
        unlink(entry, 0);
        return Verdict::Enter;
    }
    void leaveFolder(const TreeEntry& entry) override { unlink(entry, AT_REMOVEDIR); }

private:
    static void unlink(const TreeEntry& entry, int flags)
    {
        if (entry.depth() == 0) {
            ::unlinkat(AT_FDCWD, entry.pathBytes().constData(), flags);
            return;
        }
        if (entry.folderDescriptor() >= 0)
            ::unlinkat(entry.folderDescriptor(), std::string(entry.name()).c_str(), flags);
    }
};

}  // namespace

bool removeTree(const QString& path)
{
    if (!FileStatus::exists(path))
        return true;
    OwnerWrite::addThroughTree(path);
    Removing removing;
    TreeWalker({}).walk(QFile::encodeName(path), removing);
    return !FileStatus::exists(path);
}

}  // namespace TreeRemoval
