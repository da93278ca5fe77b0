#pragma once

#include <QByteArrayView>
#include <QString>

namespace Platform {

// The command line of one process from the kernel's record of its arguments as macOS hands it
// out (sysctl KERN_PROCARGS2): the argument count as a native int, the executable path, NUL
// padding, then the arguments, each ending in NUL, then the environment. The arguments are joined
// by spaces as `ps -o command=` prints them, as far as a record cut short holds them.
// Portable so it is tested where no Mac is.
QString commandLineOfProcessArguments(QByteArrayView record);

}  // namespace Platform
