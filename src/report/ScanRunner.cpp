#include "report/ScanRunner.h"

#include <thread>

namespace ScanRunner {

void runAll(const std::vector<std::shared_ptr<const Scanner>>& scanners, const ScanContext& context,
            const OutputHandler& onOutput)
{
    std::vector<std::thread> threads;
    threads.reserve(scanners.size());
    for (const auto& scanner : scanners)
        threads.emplace_back([&, scanner] { onOutput(scanner->scan(context)); });
    for (std::thread& thread : threads)
        thread.join();
}

}  // namespace ScanRunner
