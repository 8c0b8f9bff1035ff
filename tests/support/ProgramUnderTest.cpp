#include "ProgramUnderTest.h"

#include <QtTest>

namespace {

constexpr int endMs = 20000;

} // namespace

ProgramUnderTest::ProgramUnderTest(const QString& path) : program(path) {}

ProgramUnderTest::~ProgramUnderTest()
{
    process.kill();
    process.waitForFinished();
}

bool ProgramUnderTest::start(const QStringList& arguments)
{
    process.start(program, arguments);
    return process.waitForStarted();
}

int ProgramUnderTest::finish()
{
    if (!process.waitForFinished(endMs))
        return -1;
    return process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1;
}

int ProgramUnderTest::run(const QStringList& arguments)
{
    return start(arguments) ? finish() : -1;
}

int ProgramUnderTest::stop()
{
    process.terminate();
    return finish();
}

QString ProgramUnderTest::errors()
{
    return errorText += QString::fromLocal8Bit(process.readAllStandardError());
}

QString ProgramUnderTest::output()
{
    return outputText += QString::fromLocal8Bit(process.readAllStandardOutput());
}

QStringList ProgramUnderTest::ownErrorLines()
{
    return errors().split(QLatin1Char('\n'), Qt::SkipEmptyParts).filter(QStringLiteral("sorvane"));
}

bool ProgramUnderTest::waitForError(const QString& part, int timeoutMs)
{
    return QTest::qWaitFor([&] { return errors().contains(part); }, timeoutMs);
}
