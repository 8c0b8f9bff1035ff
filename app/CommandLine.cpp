#include "app/CommandLine.h"

#include "library/scale_word.h"

#include "keys/tonic_names.h"

#include <QCommandLineParser>

#include <algorithm>

namespace {

QList<QCommandLineOption> options()
{
    return {
        // Not addHelpOption(): it would list a --help-all for options that the program does not have.
        {{"h", "help"}, CommandLine::tr("Print this help and end.")},
        {{"v", "version"}, CommandLine::tr("Print the version and end.")},
        {"headless", CommandLine::tr("Run without a window.")},
        {"power", CommandLine::tr("Set the power at start: on or off."), "on|off"},
        {"tonic", CommandLine::tr("Set the tonic at start: C, C#, D, ... B."), "NAME"},
        {"scale",
         CommandLine::tr(
             "Set the scale at start: twelve letters, x for a note of the scale and o for none, the "
             "tonic first."),
         "WORD"},
        {"in", CommandLine::tr("Open this input port; repeatable. A unique part of the name will do."),
         "NAME"},
        {"out", CommandLine::tr("Open this output port; repeatable. A unique part of the name will do."),
         "NAME"},
        {"no-virtual", CommandLine::tr("Do not open Sorvane's own virtual ports.")},
        {"list-ports", CommandLine::tr("Print the MIDI ports of both directions and end.")},
        {"midi-api", CommandLine::tr("Use this MIDI back end: alsa or jack (also: SORVANE_MIDI_API)."),
         "alsa|jack"},
        {"import", CommandLine::tr("Take up the state in this database file at start."), "FILE"},
        {"export", CommandLine::tr("Write the state into this database file at the end."), "FILE"},
        {"session", CommandLine::tr("Go on where this file left off, if it exists, and write it at the end."),
         "FILE"},
        {"log",
         CommandLine::tr("Write a log file, of entries of this level and graver ones, as in --log=warn: all, "
                         "debug, diag, info, warn, error or fatal. --log alone means --log=error."),
         "LEVEL"},
        {"debug", CommandLine::tr("Let the program's debug lines through.")},
    };
}

void addOptions(QCommandLineParser& parser)
{
    parser.setApplicationDescription(
        CommandLine::tr("Plays any tonic and scale on the white keys of a MIDI keyboard."));
    parser.addOptions(options());
    parser.addPositionalArgument("qv_simple_logging",
                                 CommandLine::tr("Write log lines without time and number."),
                                 "[qv_simple_logging]");
}

/// Whether the argument behind this one is its value, whatever that looks like.
bool takesTheNext(const QString& argument)
{
    const QList<QCommandLineOption> known = options();
    return std::any_of(known.begin(), known.end(), [&](const QCommandLineOption& option) {
        const QString name = option.names().constFirst();
        return name != QLatin1String("log") && !option.valueName().isEmpty() &&
               argument == QLatin1String("--") + name;
    });
}

/// Writes the level behind an option that stands alone: the parser knows no value that may be left out.
QStringList withLogLevel(QStringList arguments)
{
    for (int i = 1; i < arguments.size() && arguments[i] != QLatin1String("--"); ++i) {
        if (takesTheNext(arguments[i]))
            ++i;
        else if (arguments[i] == QLatin1String("--log"))
            arguments[i] = QStringLiteral("--log=error");
    }
    return arguments;
}

bool isTonic(const QString& name)
{
    return std::find(tonicModifierName.begin(), tonicModifierName.end(), name) != tonicModifierName.end();
}

QString tonicNames()
{
    QStringList names;
    for (const QString& name : tonicModifierName)
        names.append(name);
    return names.join(QLatin1Char(' '));
}

/// Fills the full names in; the text says what is wrong with the first name that fits none or several.
QString resolve(QStringList& wanted, const QStringList& rows, const QString& option)
{
    for (QString& name : wanted) {
        if (rows.contains(name))
            continue;
        QStringList matches = name.isEmpty() ? QStringList() : rows.filter(name);
        matches.removeDuplicates();
        if (matches.isEmpty())
            return CommandLine::tr("%1: there is no port \"%2\" (see --list-ports)").arg(option, name);
        if (matches.size() > 1)
            return CommandLine::tr("%1: \"%2\" is a part of several port names: %3")
                .arg(option, name, matches.join(QStringLiteral(", ")));
        name = matches.first();
    }
    return {};
}

} // namespace

QString CommandLine::parse(const QStringList& arguments)
{
    QCommandLineParser parser;
    addOptions(parser);
    if (!parser.parse(withLogLevel(arguments)))
        return parser.errorText();
    help = parser.isSet("help");
    version = parser.isSet("version");
    headless = parser.isSet("headless");
    noVirtual = parser.isSet("no-virtual");
    listPorts = parser.isSet("list-ports");
    debug = parser.isSet("debug");
    inPorts = parser.values("in");
    outPorts = parser.values("out");
    tonic = parser.value("tonic");
    scale = parser.value("scale");
    const QString api =
        parser.isSet("midi-api") ? parser.value("midi-api") : qEnvironmentVariable("SORVANE_MIDI_API");
    const QString words = checkWords(parser.positionalArguments());
    QString error = words.isEmpty() ? checkValues(parser, api) : words;
    if (error.isEmpty())
        error = checkFiles(parser);
    if (error.isEmpty())
        error = checkLog(parser);
    return error.simplified(); // one line, whatever the value holds
}

QString CommandLine::checkWords(const QStringList& words) const
{
    for (const QString& word : words)
        if (LoggerModel::logLevelFromString(word) != LoggerModel::noLevel)
            return tr("Unknown word \"%1\". The level of the log stands behind an equals sign: --log=%1.")
                .arg(word);
        else if (word != QLatin1String("qv_simple_logging"))
            return tr("Unknown word \"%1\".").arg(word);
    return {};
}

QString CommandLine::checkFiles(const QCommandLineParser& parser)
{
    const std::pair<const char*, QString*> options[] = {
        {"import", &importFile}, {"export", &exportFile}, {"session", &sessionFile}};
    for (const auto& [option, file] : options) {
        *file = parser.value(QLatin1String(option));
        if (parser.values(QLatin1String(option)).size() > 1)
            return tr("--%1 can be given once.").arg(QLatin1String(option));
        if (parser.isSet(QLatin1String(option)) && file->isEmpty())
            return tr("--%1 takes the name of a file.").arg(QLatin1String(option));
    }
    return {};
}

QString CommandLine::checkLog(const QCommandLineParser& parser)
{
    const QStringList levels = parser.values("log");
    if (levels.isEmpty())
        return {};
    if (levels.size() > 1)
        return tr("--log can be given once.");
    logLevel = LoggerModel::logLevelFromString(levels.first());
    if (logLevel == LoggerModel::noLevel)
        return tr("--log takes one of all, debug, diag, info, warn, error, fatal, not \"%1\".")
            .arg(levels.first());
    return {};
}

QString CommandLine::checkValues(const QCommandLineParser& parser, const QString& api)
{
    const QString state = parser.value("power");
    if (parser.isSet("power")) {
        if (state != QLatin1String("on") && state != QLatin1String("off"))
            return tr("--power takes on or off, not \"%1\".").arg(state);
        power = state == QLatin1String("on");
    }
    if (parser.isSet("tonic") && !isTonic(tonic))
        return tr("--tonic takes one of %1, not \"%2\".").arg(tonicNames(), tonic);
    if (parser.isSet("scale") && !isScaleWord(scale))
        return tr("--scale takes twelve letters, x or o, the first one x, not \"%1\".").arg(scale);
    const auto wanted = MidiService::wantedFromName(api);
    if (!wanted || (parser.isSet("midi-api") && api.isEmpty()))
        return tr("--midi-api takes alsa or jack, not \"%1\".").arg(api);
    midiApi = *wanted;
    return {};
}

QString CommandLine::resolvePorts(const QStringList& inputs, const QStringList& outputs)
{
    const QString error = resolve(inPorts, inputs, QStringLiteral("--in"));
    return error.isEmpty() ? resolve(outPorts, outputs, QStringLiteral("--out")) : error;
}

void CommandLine::showHelp()
{
    QCommandLineParser parser;
    addOptions(parser);
    parser.showHelp();
}
