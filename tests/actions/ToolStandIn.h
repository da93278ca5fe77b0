#pragma once

#include <QString>
#include <QStringList>
#include <QTemporaryDir>

// A copy of one of the stand-in scripts in tests/fixtures/tools, installed under the real
// tool's name in a private folder, with the canned answers it gives and the calls it got.
class ToolStandIn {
public:
    // `script` is a file name in tests/fixtures/tools, `name` what the copy is called.
    ToolStandIn(const QString& script, const QString& name);

    QString path() const { return m_path; }
    // For the arguments (after docker's "--host H"), print `output` and exit with `status`.
    void answer(const QStringList& arguments, const QString& output, int status = 0, const QString& error = {}) const;
    // For the arguments, hang until the caller's time limit stops the tool.
    void hang(const QStringList& arguments) const;
    // For the osascript stand-in, which gives one answer to every call.
    void answerEveryCall(const QString& output, int status, const QString& error) const;
    // The same with a canned output file from tests/fixtures.
    void answerWithFixture(const QStringList& arguments, const QString& fixture) const;
    // Each call's full argument list, one line per call.
    QStringList calls() const;

private:
    QString fileFor(const QStringList& arguments, const char* suffix) const;

    QTemporaryDir m_dir;
    QString m_path;
};
