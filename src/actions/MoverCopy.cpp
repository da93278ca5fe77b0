#include "actions/MoverCopy.h"

#include "machinery/FileSizer.h"
#include "machinery/ProcessRunner.h"
#include "platform/Platform.h"

#include <algorithm>
#include <chrono>
#include <condition_variable>
#include <mutex>
#include <thread>

namespace Mover::Copy {

namespace {

constexpr std::chrono::milliseconds measuringInterval{250};

// Measures a folder while a copy fills it, until destroyed.
class ProgressWatch {
public:
    ProgressWatch(const QString& folder, qint64 total, const Progress& progress, const CancellationToken* stop)
    {
        if (progress)
            m_thread = std::thread([=, this] { watch(folder, total, progress, stop); });
    }

    ~ProgressWatch()
    {
        {
            std::lock_guard lock(m_mutex);
            m_done = true;
        }
        m_wake.notify_all();
        if (m_thread.joinable())
            m_thread.join();
    }

private:
    // A measurement of a big tree takes a while itself; waiting four times as long after it
    // keeps the watch below a fifth of a core however many files arrive.
    void watch(const QString& folder, qint64 total, const Progress& progress, const CancellationToken* stop)
    {
        std::unique_lock lock(m_mutex);
        std::chrono::milliseconds pause = measuringInterval;
        while (!m_wake.wait_for(lock, pause, [this] { return m_done; })) {
            lock.unlock();
            const auto started = std::chrono::steady_clock::now();
            const qint64 copied = FileSizer::measure(folder, nullptr, stop).logicalBytes;
            progress(std::min(copied, total), total);
            const auto took = std::chrono::duration_cast<std::chrono::milliseconds>(std::chrono::steady_clock::now() - started);
            pause = std::max(measuringInterval, 4 * took);
            lock.lock();
        }
    }

    std::mutex m_mutex;
    std::condition_variable m_wake;
    bool m_done = false;  // guarded by m_mutex
    std::thread m_thread;
};

}  // namespace

std::optional<QString> run(const QString& source, const QString& target, const QString& measured, qint64 total,
                           const Progress& progress, const Environment& environment)
{
    const CopyTool& tool = environment.copyTool;
    const ProcessRunner::Result result = [&] {
        ProgressWatch watch(measured, total, progress, environment.removal.cancellation);
        const bool keepsAttributes = Platform::keepsExtendedAttributes(measured);
        return ProcessRunner::run(tool.executable, tool.arguments(source, target, keepsAttributes), tool.timeLimit, {},
                                  environment.removal.cancellation);
    }();
    if (!result.launched())
        return result.launchError;
    if (result.output->status != 0 || result.output->timedOut)
        return result.output->errorMessage();
    return std::nullopt;
}

}  // namespace Mover::Copy
