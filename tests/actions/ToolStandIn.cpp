#include "actions/ToolStandIn.h"

#include <QCryptographicHash>
#include <QFile>

#include <gtest/gtest.h>

namespace {

void write(const QString& path, const QByteArray& content)
{
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly | QIODevice::Truncate)) << qPrintable(path);
    file.write(content);
}

// The file name the scripts derive from their arguments.
QString keyOf(const QStringList& arguments)
{
    QString key;
    for (const QString& argument : arguments)
        key += argument + QLatin1Char('_');
    for (QChar& c : key) {
        const bool kept = (c >= QLatin1Char('a') && c <= QLatin1Char('z')) || (c >= QLatin1Char('A') && c <= QLatin1Char('Z'))
            || (c >= QLatin1Char('0') && c <= QLatin1Char('9')) || c == QLatin1Char('.') || c == QLatin1Char('-') || c == QLatin1Char('_');
        if (!kept)
            c = QLatin1Char('_');
    }
    if (key.size() > 200)  // too long for a file name: the scripts use its digest too
        return QString::fromLatin1(QCryptographicHash::hash(key.toLatin1(), QCryptographicHash::Md5).toHex());
    return key;
}

}  // namespace

ToolStandIn::ToolStandIn(const QString& script, const QString& name) : m_path(m_dir.filePath(name))
{
    const QString source = QStringLiteral(DUSTLARK_FIXTURES "/tools/") + script;
    if (!QFile::copy(source, m_path))
        qFatal("cannot install stand-in %s", qPrintable(source));
    QFile::setPermissions(m_path, QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner);
}

QString ToolStandIn::fileFor(const QStringList& arguments, const char* suffix) const
{
    return m_dir.filePath(keyOf(arguments) + QLatin1String(suffix));
}

void ToolStandIn::answer(const QStringList& arguments, const QString& output, int status, const QString& error) const
{
    write(fileFor(arguments, ".out"), output.toUtf8());
    write(fileFor(arguments, ".status"), QByteArray::number(status));
    if (!error.isEmpty())
        write(fileFor(arguments, ".err"), error.toUtf8());
}

void ToolStandIn::hang(const QStringList& arguments) const
{
    write(fileFor(arguments, ".hang"), {});
}

void ToolStandIn::answerEveryCall(const QString& output, int status, const QString& error) const
{
    write(m_dir.filePath(QStringLiteral("answer.out")), output.toUtf8());
    write(m_dir.filePath(QStringLiteral("answer.err")), error.toUtf8());
    write(m_dir.filePath(QStringLiteral("answer.status")), QByteArray::number(status));
}

void ToolStandIn::answerWithFixture(const QStringList& arguments, const QString& fixture) const
{
    QFile source(QStringLiteral(DUSTLARK_FIXTURES "/") + fixture);
    ASSERT_TRUE(source.open(QIODevice::ReadOnly)) << qPrintable(fixture);
    write(fileFor(arguments, ".out"), source.readAll());
}

QStringList ToolStandIn::calls() const
{
    QFile log(m_dir.filePath(QStringLiteral("calls.log")));
    if (!log.open(QIODevice::ReadOnly))
        return {};
    return QString::fromUtf8(log.readAll()).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
}
