#include "machinery/RunningPrograms.h"
#include "machinery/ScanContext.h"

#include <QCoreApplication>

#include <atomic>
#include <thread>
#include <vector>

#include <gtest/gtest.h>

TEST(RunningPrograms, EveryScannerOfOneScanSharesOneReading)
{
    std::atomic<int> reads{0};
    ScanContext context;
    context.runningPrograms = std::make_shared<RunningPrograms>([&] {
        ++reads;
        return QStringList{QStringLiteral("/usr/bin/one")};
    });
    const ScanContext copy = context;  // what each scanner is handed
    std::vector<std::thread> scanners;
    for (int i = 0; i < 4; ++i)
        scanners.emplace_back([&, i] { EXPECT_EQ((i % 2 ? context : copy).runningPrograms->list().size(), 1); });
    for (std::thread& scanner : scanners)
        scanner.join();
    EXPECT_EQ(reads.load(), 1);
    EXPECT_NE(ScanContext().runningPrograms, ScanContext().runningPrograms);  // a new scan reads again
}

TEST(RunningPrograms, TheSystemsListHoldsThisProcess)
{
    const QString self = QCoreApplication::applicationFilePath();
    EXPECT_TRUE(RunningPrograms().list().contains(self)) << qPrintable(self);
}
