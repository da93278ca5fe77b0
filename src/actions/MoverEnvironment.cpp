#include "actions/MoverEnvironment.h"

namespace Mover {

Environment Environment::system(const QString& home, const QStringList& scanFolders)
{
    return {RemovalEnvironment::system(home, scanFolders), CopyTool::standard()};
}

}  // namespace Mover
