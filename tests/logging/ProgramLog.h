#pragma once

#include "ProgramUnderTest.h"

#include <QTemporaryDir>

/// A data folder of its own for the program's logs, and a place for its files. Whatever filters or shapes
/// messages is taken out of the environment.
class ProgramLog
{
public:
    ProgramLog();

    [[nodiscard]] QString path(const QString& name) const { return folder.filePath(name); }
    [[nodiscard]] QString data() const { return path(QStringLiteral("data")); }
    [[nodiscard]] bool put(const QString& name, const QByteArray& text) const;
    /// "" for none.
    [[nodiscard]] QByteArray contentOf(const QString& name) const;

    /// All files of the data folder.
    [[nodiscard]] QStringList files() const;
    /// The content of the only file there is, which must be the log; null if it is not so.
    [[nodiscard]] QByteArray log() const;
    /// The log's lines, those that begin no entry included; none unless each line is whole.
    [[nodiscard]] QStringList lines() const;

    /// Without a window, with a file that makes the program write debugLine.
    [[nodiscard]] QStringList headless(const QStringList& more) const;
    /// Starts it with a session file, waits for the log, and ends it; the exit status, or -1.
    [[nodiscard]] int runSession(ProgramUnderTest& program, const QStringList& options) const;

    static constexpr char debugLine[] = "sorvane.headers: findPowerItemPosition";
    static constexpr char folderLine[] = "sorvane.logging: Log file path"; ///< before there is a log

    /// Without what the program says of the MIDI service of this machine.
    [[nodiscard]] static QStringList ofTheRun(const QStringList& lines);

private:
    QTemporaryDir folder;
};
