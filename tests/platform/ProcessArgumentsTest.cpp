#include "platform/ProcessArguments.h"

#include <gtest/gtest.h>

namespace {

QByteArray record(int count, QByteArrayView rest)
{
    QByteArray bytes(reinterpret_cast<const char*>(&count), sizeof count);
    return bytes + rest.toByteArray();
}

TEST(ProcessArguments, ReadsTheArgumentsPastThePathAndItsPaddingAndStopsBeforeTheEnvironment)
{
    using namespace Qt::StringLiterals;
    const QByteArray emulator = record(3, "/opt/sdk/emulator/qemu-system-aarch64\0\0\0\0qemu-system-aarch64\0-avd\0Pixel 8\0HOME=/Users/a\0"_ba);
    EXPECT_EQ(Platform::commandLineOfProcessArguments(emulator), u"qemu-system-aarch64 -avd Pixel 8"_s);
    // Cut short: the arguments it holds whole, never bytes of a cut one or of the environment.
    EXPECT_EQ(Platform::commandLineOfProcessArguments(emulator.first(emulator.indexOf("-avd") + 2)), u"qemu-system-aarch64"_s);
    EXPECT_EQ(Platform::commandLineOfProcessArguments(record(0, "/bin/launchd\0\0HOME=/\0"_ba)), QString());
    EXPECT_EQ(Platform::commandLineOfProcessArguments(record(2, "/no/end/of/path"_ba)), QString());
    EXPECT_EQ(Platform::commandLineOfProcessArguments(QByteArrayView("\1\0", 2)), QString());
}

}  // namespace
