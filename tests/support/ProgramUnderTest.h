#pragma once

#include "ChildProcess.h"

#include <QStringList>

/// The program as a user starts it. It ends with the test.
class ProgramUnderTest
{
public:
    explicit ProgramUnderTest(const QString& path);
    ~ProgramUnderTest();

    bool start(const QStringList& arguments);
    /// Runs to its end; the exit status, or -1 if it crashed or did not end.
    int run(const QStringList& arguments);
    /// Asks it to end as a user's Ctrl+C would; the exit status, or -1.
    int stop();

    [[nodiscard]] bool isRunning() const { return process.state() == QProcess::Running; }
    [[nodiscard]] qint64 pid() const { return process.processId(); }
    [[nodiscard]] QString errors();
    [[nodiscard]] QString output();
    /// The lines of standard error that the program itself wrote.
    [[nodiscard]] QStringList ownErrorLines();
    [[nodiscard]] bool waitForError(const QString& part, int timeoutMs = 10000);

private:
    [[nodiscard]] int finish();

    QString program;
    ChildProcess process;
    QString errorText, outputText;
};
