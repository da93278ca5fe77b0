#include "machinery/Concurrency.h"

#include <gtest/gtest.h>
#include <fcntl.h>
#include <future>
#include <latch>
#include <poll.h>
#include <thread>
#include <unistd.h>

// The threads of mapOnOwnTables keep no copy of a descriptor opened elsewhere: a pipe whose
// writing end its owner closes while they run reads as ended at once (a held copy would keep
// it open until they end), and the process's own descriptors stay open.
TEST(Concurrency, ThreadsWithOwnTablesHoldNoDescriptorOfTheProcessAndCloseNone)
{
    int ends[2];
    ASSERT_EQ(::pipe2(ends, O_CLOEXEC), 0);
    std::latch running(2);
    std::promise<void> checked;
    const std::shared_future<void> release = checked.get_future().share();
    const CancellationToken never;
    std::vector<int> results;
    std::thread mapping([&] {
        results = Concurrency::mapOnOwnTables(std::vector<int>{1, 2}, 2, never, [&](int item) {
            running.count_down();
            release.wait();
            return item * 10;
        });
    });
    running.wait();
    ::close(ends[1]);
    pollfd reading{ends[0], POLLIN, 0};
    char byte = 0;
    const ssize_t read = ::poll(&reading, 1, 10'000) == 1 ? ::read(ends[0], &byte, 1) : -1;
    checked.set_value();
    mapping.join();

    EXPECT_EQ(read, 0) << "the pipe's end is seen while the threads run";
    EXPECT_NE(::fcntl(ends[0], F_GETFD), -1) << "the process's reading end is still open";
    EXPECT_EQ(results, (std::vector<int>{10, 20}));
    ::close(ends[0]);
}
