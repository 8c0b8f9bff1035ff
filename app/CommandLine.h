#pragma once

#include "app/MidiService.h"
#include "logging/LoggerModel.h"

#include <QCoreApplication>
#include <QStringList>

class QCommandLineParser;

/// What the user asked for on the command line. Checked as it is read: a bad value gives an error text.
class CommandLine
{
    Q_DECLARE_TR_FUNCTIONS(CommandLine)

public:
    /// Reads the arguments, the program's name first. Needs no application object and does nothing else.
    /// Returns one line that says what is wrong, or "".
    [[nodiscard]] QString parse(const QStringList& arguments);

    /// Replaces each port name by the full name of the row that it means: the row of exactly that name, else
    /// the only one that contains it. Returns one line that says which name fails, or "".
    [[nodiscard]] QString resolvePorts(const QStringList& inputs, const QStringList& outputs);

    /// Prints the help text and ends the program. Needs an application object.
    [[noreturn]] static void showHelp();

    std::optional<bool> power;
    QString tonic;
    QString scale;
    QStringList inPorts, outPorts;
    QString importFile, exportFile, sessionFile;
    bool noVirtual = false;
    bool listPorts = false;
    bool headless = false;
    bool debug = false;
    bool help = false;
    bool version = false;
    MidiService::Wanted midiApi = MidiService::Wanted::any;
    std::optional<LoggerModel::LoggerModelLogLevel> logLevel; ///< nothing without --log

private:
    [[nodiscard]] QString checkWords(const QStringList& words) const;
    [[nodiscard]] QString checkFiles(const QCommandLineParser& parser);
    [[nodiscard]] QString checkLog(const QCommandLineParser& parser);
    [[nodiscard]] QString checkValues(const QCommandLineParser& parser, const QString& api);
};
