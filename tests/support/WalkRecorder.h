#pragma once

#include "machinery/SplitWalk.h"

#include <QByteArrayList>

#include <cstring>
#include <functional>
#include <memory>

// Writes every callback of a walk down as one line, paths relative to the root, so a test
// compares the walk's whole story at once. Splittable: the pieces of a split walk write their
// own lines and joining puts them back in walk order.
class WalkRecorder : public SplittableVisitor {
public:
    explicit WalkRecorder(QByteArray root) : m_root(std::move(root)) {}

    std::function<Verdict(const TreeEntry&)> onEnter;
    QByteArrayList lines;

    std::unique_ptr<SplittableVisitor> fork() const override
    {
        auto piece = std::make_unique<WalkRecorder>(m_root);
        piece->onEnter = onEnter;
        return piece;
    }
    void join(SplittableVisitor& later) override { lines.append(static_cast<WalkRecorder&>(later).lines); }

    Verdict enterFolder(const TreeEntry& entry) override
    {
        record("enter", entry);
        return onEnter ? onEnter(entry) : Verdict::Enter;
    }
    void leaveFolder(const TreeEntry& entry) override { record("leave", entry); }
    Verdict visitItem(const TreeEntry& entry) override
    {
        record(S_ISLNK(entry.status().st_mode) ? "link" : "item", entry);
        return Verdict::Enter;
    }
    void problem(const TreeEntry& entry, TreeProblem kind, int error) override
    {
        const char* names[] = {"cannot-examine", "cannot-open", "cannot-list"};
        record(QByteArray(names[static_cast<int>(kind)]) + '(' + QByteArray(std::strerror(error)) + ')', entry);
    }

private:
    void record(const QByteArray& what, const TreeEntry& entry)
    {
        const QByteArray path = entry.pathBytes();
        lines.append(what + ' ' + (path == m_root ? QByteArray(".") : path.mid(m_root.size() + 1)));
    }

    QByteArray m_root;
};
