#pragma once

#include "storage/StorageAnalyzer.h"
#include "support/TempTree.h"

#include <QProcess>
#include <gtest/gtest.h>
#include <QStringList>

// A fixture home ("home") and applications folder ("Applications") in a temporary tree, and
// `du`, the standard the analysis is held to.
class StorageFixture {
public:
    StorageFixture() : home(tree.dir(QStringLiteral("home"))), applications(tree.dir(QStringLiteral("Applications"))) {}

    QString file(const QString& relative, qint64 size) const { return tree.file(QStringLiteral("home/") + relative, size); }

    StorageAnalyzer::Request request(bool fullDiskAccess = true) const
    {
        StorageAnalyzer::Request request;
        request.home = home;
        request.applications = applications;
        request.fullDiskAccess = fullDiskAccess;
        return request;
    }

    // The analysis of the fixture, its tree bounded to `treeNodes`; a failed one fails the test.
    StorageReport analyzed(bool fullDiskAccess = true, qsizetype treeNodes = HomeTree::nodesKept) const
    {
        StorageAnalyzer::Request asked = request(fullDiskAccess);
        asked.treeNodes = treeNodes;
        const auto report = StorageAnalyzer::analyze(asked);
        EXPECT_TRUE(report.has_value());
        return report.value_or(StorageReport{});
    }

    // Allocated bytes of the given paths by `du -s -x -B1`: a file with several links once, no
    // other volume entered; `options` adds du's own (-S: without sub-folders).
    static qint64 du(const QStringList& paths, const QStringList& options = {})
    {
        QProcess process;
        process.start(QStringLiteral("du"), QStringList{QStringLiteral("-s"), QStringLiteral("-x"), QStringLiteral("-B1")} + options + paths);
        process.waitForFinished(60'000);
        qint64 sum = 0;
        for (const QByteArray& line : process.readAllStandardOutput().split('\n'))
            sum += line.split('\t').first().toLongLong();
        return sum;
    }

    // Every root the analysis walks, for du.
    QStringList roots(bool fullDiskAccess = true) const
    {
        QStringList paths;
        for (const QByteArray& root : StorageAnalyzer::roots(request(fullDiskAccess)))
            paths.append(QString::fromUtf8(root));
        return paths;
    }

    TempTree tree;
    QString home;
    QString applications;
};
