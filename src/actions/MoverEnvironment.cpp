#include "actions/MoverEnvironment.h"

namespace Mover {

Environment Environment::current()
{
    return {RemovalEnvironment::current(), CopyTool::standard()};
}

}  // namespace Mover
