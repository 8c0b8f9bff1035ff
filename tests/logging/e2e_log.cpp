// The program with a log, played on a real JACK interface: which notes are in it, and what is when the
// service dies.

#include "JackPlayer.h"
#include "PipeWireDaemon.h"
#include "ProgramUnderTest.h"

#include <QDir>
#include <QTemporaryDir>
#include <QtTest>

#include <memory>

namespace {

using Messages = QList<JackPlayer::Message>;

constexpr int key = 60;
const Messages strokes = {{0x90, key, 64}, {0x80, key, 0}, {0x90, key, 65}, {0x80, key, 0}};

} // namespace

class EndToEndLog : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();
    void notesAreInALogOfLevelDebug();
    void notesAreInNoLogOfAHigherLevel_data();
    void notesAreInNoLogOfAHigherLevel();
    void serviceThatDiesIsInTheLog(); // the last one

private:
    /// Starts it with that option and plays; false if it is not heard.
    [[nodiscard]] bool play(const QString& option);
    /// What is in the log so far.
    [[nodiscard]] QStringList lines() const;

    PipeWireDaemon daemon{1024};
    std::unique_ptr<QTemporaryDir> data;
    std::unique_ptr<ProgramUnderTest> program;
    std::unique_ptr<JackPlayer> player;
};

void EndToEndLog::initTestCase()
{
    if (!daemon.startForJack())
        QSKIP(qPrintable(daemon.reason()));
    for (const char* name : {"QT_LOGGING_RULES", "QT_MESSAGE_PATTERN"}) // these have the last word
        qunsetenv(name);
}

void EndToEndLog::init()
{
    data = std::make_unique<QTemporaryDir>();
    QVERIFY(data->isValid() && qputenv("XDG_DATA_HOME", QFile::encodeName(data->path())));
}

void EndToEndLog::cleanup()
{
    player.reset();
    program.reset();
}

QStringList EndToEndLog::lines() const
{
    const QDir folder(data->filePath(QStringLiteral("Sorvane/Sorvane")));
    const QStringList names = folder.entryList(QDir::Files);
    QFile file(folder.filePath(names.value(0)));
    return names.size() == 1 && file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()).split('\n')
                                                               : QStringList();
}

bool EndToEndLog::play(const QString& option)
{
    program = std::make_unique<ProgramUnderTest>(QStringLiteral(SORVANE_PROGRAM));
    if (!program->start({"--headless", "--midi-api", "jack", option}))
        return false;
    player = std::make_unique<JackPlayer>("player");
    return player->connectOutputTo(QStringLiteral(":Sorvane MIDI In")) &&
           player->connectInputTo(QStringLiteral(":Sorvane MIDI Out")) && player->waitForEcho() &&
           player->answerTo(strokes) == strokes; // the power is off: at its own pitch
}

void EndToEndLog::notesAreInALogOfLevelDebug()
{
    QVERIFY(play(QStringLiteral("--log=debug")));
    // The answer came behind the lines of the keys, and these are on the disk already.
    QCOMPARE(lines().filter(QRegularExpression("^Debug\t.*\tsorvane\\.keys: Push key: 60\\b")).size(), 2);
    QCOMPARE(lines().filter(QRegularExpression("^Debug\t.*\tsorvane\\.keys: Release key: 60\\b")).size(), 2);
    QCOMPARE(program->stop(), 0);
}

void EndToEndLog::notesAreInNoLogOfAHigherLevel_data()
{
    QTest::addColumn<QString>("option");
    for (const char* option : {"--log", "--log=diag"})
        QTest::addRow("%s", option) << QString::fromLatin1(option);
}

void EndToEndLog::notesAreInNoLogOfAHigherLevel()
{
    QFETCH(QString, option);
    QVERIFY(play(option));
    QCOMPARE(program->stop(), 0);
    QVERIFY(!lines().isEmpty());
    QCOMPARE(lines().filter("sorvane."), QStringList());
    QCOMPARE(program->ownErrorLines(), QStringList());
}

void EndToEndLog::serviceThatDiesIsInTheLog()
{
    QVERIFY(play(QStringLiteral("--log")));
    daemon.kill();
    QVERIFY(program->waitForError(QStringLiteral("service has stopped"), 20000));
    QVERIFY(QTest::qWaitFor(
        [&] {
            return !lines().filter(QRegularExpression("^Error\t.*\tthe MIDI service has stopped")).isEmpty();
        },
        20000));
    QCOMPARE(program->stop(), 0);
}

QTEST_GUILESS_MAIN(EndToEndLog)
#include "e2e_log.moc"
