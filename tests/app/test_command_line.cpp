// What the command line accepts, and the one line that it answers to what it does not.

#include "app/CommandLine.h"

#include <QtTest>

class TestCommandLine : public QObject
{
    Q_OBJECT

private slots:
    void cleanup() { qunsetenv("SORVANE_MIDI_API"); }

    void nothingAskedForIsNothingSet();
    void valuesAreRead();
    void badValueIsOneLine_data();
    void badValueIsOneLine();
    void everyTonicNameIsKnown();
    void environmentNamesTheBackEndUnlessTheOptionDoes();
    void simpleLoggingWordIsAccepted();
    void logAloneIsOfErrors_data();
    void logAloneIsOfErrors();
    void logTakesEachLevel_data();
    void logTakesEachLevel();
    void logBehindAnOptionIsThatOnesValue();
    void badLogIsOneLineThatNamesIt_data();
    void badLogIsOneLineThatNamesIt();
    void portIsNamedExactlyOrByAUniquePart();
    void exactNameWinsOverLongerOnes();
    void unknownOrAmbiguousPortIsOneLine();
};

namespace {

QString parse(CommandLine& line, const QStringList& arguments)
{
    return line.parse(QStringList(QStringLiteral("sorvane")) + arguments);
}

} // namespace

void TestCommandLine::nothingAskedForIsNothingSet()
{
    CommandLine line;
    QCOMPARE(parse(line, {}), QString());
    QVERIFY(!line.power.has_value());
    QVERIFY(line.tonic.isEmpty() && line.scale.isEmpty() && line.inPorts.isEmpty() &&
            line.outPorts.isEmpty());
    QVERIFY(!line.logLevel.has_value());
    QVERIFY(!line.headless && !line.debug && !line.noVirtual && !line.listPorts && !line.help &&
            !line.version);
    QVERIFY(line.midiApi == MidiService::Wanted::any);
}

void TestCommandLine::valuesAreRead()
{
    CommandLine line;
    QCOMPARE(parse(line, {"--headless", "--power", "on", "--tonic", "F#", "--scale=xoxooxoxoxoo", "--in", "a",
                          "--in", "b", "--out", "c", "--no-virtual", "--midi-api", "jack", "--debug"}),
             QString());
    QCOMPARE(line.power, std::optional<bool>(true));
    QCOMPARE(line.tonic, QStringLiteral("F#"));
    QCOMPARE(line.scale, QStringLiteral("xoxooxoxoxoo"));
    QCOMPARE(line.inPorts, QStringList({"a", "b"}));
    QCOMPARE(line.outPorts, QStringList("c"));
    QVERIFY(line.headless && line.debug && line.noVirtual);
    QVERIFY(line.midiApi == MidiService::Wanted::jack);
}

void TestCommandLine::badValueIsOneLine_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::newRow("unknown option") << QStringList{"--loud"};
    QTest::newRow("power") << QStringList{"--power", "yes"};
    QTest::newRow("empty power") << QStringList{"--power", ""};
    QTest::newRow("power without value") << QStringList{"--power"};
    QTest::newRow("tonic H") << QStringList{"--tonic", "H"};
    QTest::newRow("tonic in small letters") << QStringList{"--tonic", "c"};
    QTest::newRow("flat") << QStringList{"--tonic", "Db"};
    QTest::newRow("eleven letters") << QStringList{"--scale", "xoxoxxoxoxo"};
    QTest::newRow("thirteen letters") << QStringList{"--scale", "xoxoxxoxoxoxo"};
    QTest::newRow("wrong letter") << QStringList{"--scale", "xoxoxxoxoxoy"};
    QTest::newRow("line break behind the word") << QStringList{"--scale", "xoxoxxoxoxox\n"};
    QTest::newRow("scale without tonic") << QStringList{"--scale", "ooxoxxoxoxox"};
    QTest::newRow("back end") << QStringList{"--midi-api", "oss"};
    QTest::newRow("empty back end") << QStringList{"--midi-api", ""};
    QTest::newRow("stray word") << QStringList{"loud"};
    QTest::newRow("two faults") << QStringList{"--power", "yes", "stray"};
}

void TestCommandLine::badValueIsOneLine()
{
    QFETCH(QStringList, arguments);
    CommandLine line;
    const QString error = parse(line, arguments);
    QVERIFY(!error.isEmpty());
    QVERIFY(!error.trimmed().contains(QLatin1Char('\n')));
}

void TestCommandLine::everyTonicNameIsKnown()
{
    for (const char* name : {"C", "C#", "D", "D#", "E", "F", "F#", "G", "G#", "A", "A#", "B"}) {
        CommandLine line;
        QCOMPARE(parse(line, {"--tonic", name}), QString());
    }
}

void TestCommandLine::environmentNamesTheBackEndUnlessTheOptionDoes()
{
    qputenv("SORVANE_MIDI_API", "alsa");
    CommandLine line;
    QCOMPARE(parse(line, {}), QString());
    QVERIFY(line.midiApi == MidiService::Wanted::alsa);
    QCOMPARE(parse(line, {"--midi-api", "jack"}), QString());
    QVERIFY(line.midiApi == MidiService::Wanted::jack);
    qputenv("SORVANE_MIDI_API", "oss");
    QVERIFY(!parse(line, {}).isEmpty());
}

void TestCommandLine::simpleLoggingWordIsAccepted()
{
    CommandLine line;
    QCOMPARE(parse(line, {"qv_simple_logging"}), QString());
}

void TestCommandLine::logAloneIsOfErrors_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::newRow("alone") << QStringList{"--log"};
    QTest::newRow("before an option") << QStringList{"--log", "--debug"};
    QTest::newRow("before an option with a value") << QStringList{"--log", "--power", "on"};
    QTest::newRow("behind a value") << QStringList{"--power", "on", "--log"};
    QTest::newRow("behind a value of its own argument") << QStringList{"--power=on", "--log"};
    QTest::newRow("behind an option without a value") << QStringList{"--no-virtual", "--log", "--headless"};
    QTest::newRow("before the word") << QStringList{"--log", "qv_simple_logging"};
    QTest::newRow("behind the word") << QStringList{"qv_simple_logging", "--log"};
    QTest::newRow("behind a port named --") << QStringList{"--in", "--", "--log"};
    QTest::newRow("behind a port named --log") << QStringList{"--in", "--log", "--log"};
    QTest::newRow("before the end of the options") << QStringList{"--log", "--", "qv_simple_logging"};
}

void TestCommandLine::logAloneIsOfErrors()
{
    QFETCH(QStringList, arguments);
    CommandLine line;
    QCOMPARE(parse(line, arguments), QString());
    QVERIFY(line.logLevel.has_value());
    QCOMPARE(int(*line.logLevel), 5);
    QCOMPARE(line.debug, arguments.contains("--debug"));
    QCOMPARE(line.power.has_value(), arguments.contains("on") || arguments.contains("--power=on"));
}

void TestCommandLine::logTakesEachLevel_data()
{
    QTest::addColumn<QString>("word");
    QTest::addColumn<int>("level");
    int level = 0;
    for (const char* word : {"all", "debug", "diag", "info", "warn", "error", "fatal"})
        QTest::addRow("%s", word) << QString::fromLatin1(word) << level++;
}

void TestCommandLine::logTakesEachLevel()
{
    QFETCH(QString, word);
    QFETCH(int, level);
    for (const QStringList& more : {QStringList(), QStringList{"--debug"}, QStringList{"--in", "--log"}}) {
        CommandLine line;
        QCOMPARE(parse(line, more + QStringList("--log=" + word)), QString());
        QVERIFY(line.logLevel.has_value());
        QCOMPARE(int(*line.logLevel), level);
        QCOMPARE(line.debug, more.contains("--debug")); // whose lines the level lets through is not said here
    }
}

void TestCommandLine::logBehindAnOptionIsThatOnesValue()
{
    CommandLine line;
    QCOMPARE(parse(line, {"--in", "--log", "--out", "--log", "--import", "--log", "--export", "--log",
                          "--session", "--log"}),
             QString());
    QCOMPARE(line.inPorts, QStringList("--log"));
    QCOMPARE(line.outPorts, QStringList("--log"));
    QCOMPARE(QStringList({line.importFile, line.exportFile, line.sessionFile}),
             QStringList({"--log", "--log", "--log"}));
    QVERIFY(!line.logLevel.has_value());
    for (const char* option : {"--power", "--tonic", "--scale", "--midi-api"}) {
        const QString error = parse(line, {option, "--log"});
        QVERIFY2(error.startsWith(option) && error.contains("\"--log\""), qPrintable(error));
    }
    CommandLine named; // the program's own name is no option
    QCOMPARE(named.parse({"--log"}), QString());
    QVERIFY(!named.logLevel.has_value());
    QCOMPARE(named.parse({"--in", "--log"}), QString());
    QVERIFY(named.logLevel.has_value());
}

void TestCommandLine::badLogIsOneLineThatNamesIt_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("named");
    for (const char* word : {"loud", "Error", "ERROR", "errors", "err", " error", "error ", "5", "-1",
                             "unknown", "info,warn", "--log"})
        QTest::addRow("%s", word) << QStringList("--log=" + QString(word))
                                  << QString('"' + QString(word) + '"');
    QTest::newRow("line break") << QStringList{"--log=error\nsorvane: well"} << "\"error sorvane: well\"";
    QTest::newRow("empty") << QStringList{"--log="} << "\"\"";
    QTest::newRow("twice") << QStringList{"--log", "--log"} << "--log can be given once";
    QTest::newRow("twice the same") << QStringList{"--log=info", "--log=info"} << "--log can be given once";
    QTest::newRow("two levels") << QStringList{"--log", "--log=info"} << "--log can be given once";
    QTest::newRow("level apart") << QStringList{"--log", "debug"} << "\"debug\"";
    QTest::newRow("behind the end of the options") << QStringList{"--", "--log"} << "\"--log\"";
    QTest::newRow("longer word") << QStringList{"--logs"} << "logs";
}

void TestCommandLine::badLogIsOneLineThatNamesIt()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, named);
    CommandLine line;
    const QString error = parse(line, arguments);
    QVERIFY2(error.contains(named), qPrintable(error));
    QCOMPARE(error, error.simplified());
}

void TestCommandLine::portIsNamedExactlyOrByAUniquePart()
{
    CommandLine line;
    line.inPorts = QStringList{"Pads", "Sorvane"};
    line.outPorts = QStringList{"Synth"};
    QCOMPARE(line.resolvePorts({"Grand 20:0", "Pads 24:0", "Sorvane MIDI In"}, {"Soft Synth 128:0"}),
             QString());
    QCOMPARE(line.inPorts, QStringList({"Pads 24:0", "Sorvane MIDI In"}));
    QCOMPARE(line.outPorts, QStringList("Soft Synth 128:0"));
}

void TestCommandLine::exactNameWinsOverLongerOnes()
{
    CommandLine line;
    line.inPorts = QStringList("Keys");
    QCOMPARE(line.resolvePorts({"Keys 2", "Keys"}, {}), QString());
    QCOMPARE(line.inPorts, QStringList("Keys"));
}

void TestCommandLine::unknownOrAmbiguousPortIsOneLine()
{
    CommandLine line;
    line.inPorts = QStringList("Organ");
    QVERIFY(line.resolvePorts({"Keys"}, {}).contains(QStringLiteral("Organ")));
    line.inPorts = QStringList("Keys");
    const QString error = line.resolvePorts({"Keys 1", "Keys 2"}, {});
    QVERIFY(error.contains(QStringLiteral("Keys 1, Keys 2")));
    line.inPorts = QStringList("");
    QVERIFY(!line.resolvePorts({"Keys"}, {}).isEmpty()); // a part of everything is no name
    line.inPorts.clear();
    line.outPorts = QStringList("Organ");
    QVERIFY(line.resolvePorts({"Organ"}, {"Keys"}).startsWith(QStringLiteral("--out")));
}

QTEST_GUILESS_MAIN(TestCommandLine)
#include "test_command_line.moc"
