#pragma once

#include "machinery/CancellationToken.h"

#include <algorithm>
#include <atomic>
#include <optional>
#include <thread>
#include <vector>

namespace Concurrency {

// Runs `transform` over `items` with at most `limit` running at once and returns the results
// in input order. Once `cancellation` fires no further element starts; elements never started
// are left out of the result (callers treat a cancelled scan's output as incomplete).
// Blocks the calling thread until every started transform has returned.
template <typename Item, typename Transform>
auto map(const std::vector<Item>& items, int limit, const CancellationToken& cancellation,
         Transform transform) -> std::vector<decltype(transform(items.front()))>
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
    std::vector<std::thread> pool;
    pool.reserve(threads > 0 ? threads - 1 : 0);
    for (size_t i = 1; i < threads; ++i)
        pool.emplace_back(worker);
    if (threads > 0)
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

}  // namespace Concurrency
