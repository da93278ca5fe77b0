#pragma once

#include "machinery/CancellationToken.h"
#include "platform/Platform.h"

#include <algorithm>
#include <atomic>
#include <optional>
#include <thread>
#include <vector>

namespace Concurrency {

namespace Detail {

template <typename Item, typename Transform>
auto run(const std::vector<Item>& items, int limit, const CancellationToken& cancellation, Transform& transform,
         bool ownTables) -> std::vector<decltype(transform(items.front()))>
{
    using Result = decltype(transform(items.front()));
    std::vector<std::optional<Result>> cells(items.size());
    std::atomic<size_t> next{0};

    auto worker = [&] {
        for (;;) {
            if (cancellation.isCancelled())
                return;
            const size_t index = next.fetch_add(1);
            if (index >= items.size())
                return;
            cells[index].emplace(transform(items[index]));
        }
    };

    const size_t threads = std::min<size_t>(items.size(), static_cast<size_t>(std::max(1, limit)));
    const size_t started = ownTables ? threads : (threads > 0 ? threads - 1 : 0);
    std::vector<std::thread> pool;
    pool.reserve(started);
    for (size_t i = 0; i < started; ++i) {
        pool.emplace_back([&] {
            if (ownTables)
                Platform::ownDescriptorTable();
            worker();
        });
    }
    if (!ownTables && threads > 0)
        worker();  // the calling thread takes a share instead of idling
    for (std::thread& thread : pool)
        thread.join();

    std::vector<Result> results;
    results.reserve(items.size());
    for (auto& cell : cells) {
        if (cell)
            results.push_back(std::move(*cell));
    }
    return results;
}

}  // namespace Detail

// Runs `transform` over `items` with at most `limit` running at once and returns the results
// in input order. Once `cancellation` fires no further element starts; elements never started
// are left out of the result (callers treat a cancelled scan's output as incomplete).
// Blocks the calling thread until every started transform has returned.
template <typename Item, typename Transform>
auto map(const std::vector<Item>& items, int limit, const CancellationToken& cancellation,
         Transform transform) -> std::vector<decltype(transform(items.front()))>
{
    return Detail::run(items, limit, cancellation, transform, false);
}

// As map, for transforms that walk trees by path and do nothing else (FileSizer's
// measuring): every element runs on a thread started for this call with a descriptor table of
// its own (Platform::ownDescriptorTable), which the kernel examines entries through more
// cheaply; the calling thread, whose table others share, only waits. The transform must not
// use a descriptor another thread opened, nor leave one open for another: what it leaves
// open ends with its thread.
template <typename Item, typename Transform>
auto mapOnOwnTables(const std::vector<Item>& items, int limit, const CancellationToken& cancellation,
                    Transform transform) -> std::vector<decltype(transform(items.front()))>
{
    return Detail::run(items, limit, cancellation, transform, true);
}

}  // namespace Concurrency
