#pragma once

#include "NoteLedger.h"
#include "PipeWireDaemon.h"
#include "PortChurn.h"
#include "ProgramUnderTest.h"
#include "ResourceLog.h"
#include "RoamingHand.h"
#include "Score.h"
#include "SysexPlayer.h"
#include "XServer.h"
#include "gestures.h"

#include <QTemporaryDir>
#include <QVector>

#include <memory>
#include <random>

/// The program in its window on a private daemon and a private screen, with players, a hand and other
/// programs around it, in phases of made-up music and gestures, each with a checkpoint behind it.
class SoakRun
{
public:
    struct Options
    {
        QString program;
        unsigned seed = 1;
        double seconds = 600, phaseSeconds = 5, sampleSeconds = 10;
        int rate = 600; ///< messages a second
        int period = 1024;
        bool judgeMemory = true, hand = true, ports = true;
        QString csv, only;
    };
    struct Phase
    {
        const char* name;
        Score::Style style;
        gestures::Repertoire repertoire;
        bool power;       ///< to begin with
        bool fromHome;    ///< begins with the state that was saved at the start
        bool leavesModel; ///< what the hand does changes what sounds
    };

    explicit SoakRun(const Options& options);

    /// False where it cannot run, with reason().
    [[nodiscard]] bool start();
    [[nodiscard]] QString reason() const { return why; }
    void play();
    /// Ends the program, tells the figures; true if all was well.
    [[nodiscard]] bool finish();

private:
    [[nodiscard]] double seconds() const { return double(clock.elapsed()) / 1000; }
    qint64 send(const NoteLedger::Message& message);
    void turn();
    void listen();
    template <typename Condition>
    bool turnUntil(Condition isSo, int timeoutMs);

    void playPhase(const Phase& phase);
    void music(const Phase& phase);
    [[nodiscard]] double warmUp() const;
    [[nodiscard]] int rowsForHand() const;
    void checkPhase(const Phase& phase);
    void fault(const QString& what);
    void spoil(const QString& what);
    void judge(const NoteLedger::Loss& loss);

    // Checkpoints
    void handsOff();
    void settle();
    void checkNothingSounds();
    void walkTheKeys();
    void walkByFile();
    void walkByAnswers(const QList<NoteLedger::Message>& answers);
    void measureLatency();
    void sampleWhenDue();
    [[nodiscard]] bool file(const char* shortcut, const QString& name);
    void goHome();
    void recover();
    [[nodiscard]] bool waitForRows();

    const Options options;
    std::mt19937 numbers, handNumbers, portNumbers;
    QString why;
    QElapsedTimer clock, sinceTracer;
    PipeWireDaemon daemon;
    XServer screen;
    PortChurn churn{portNumbers};
    std::unique_ptr<ProgramUnderTest> program;
    std::unique_ptr<JackPlayer> player;
    std::unique_ptr<SysexPlayer> sysex;
    std::unique_ptr<ResourceLog> resources;
    QTemporaryDir folder;
    RoamingHand hand;
    NoteLedger ledger;
    RoadModel model, home;
    Score score;
    QString where = QStringLiteral("start");
    bool atHome = true;
    bool spoilt = false; ///< program and model may no longer agree
    int serviceLosses = 0, missedSeen = 0, phasesBegun = 0, phasesSpoilt = 0;
    int fileNumber = 0, marker = 0, faultCount = 0;
    qint64 sentCount = 0;
    double lastSample = -1e9;
    QVector<quint32> sentFrames;
    QVector<double> loaded, quiet; ///< frames from sending to hearing, under fire and alone
    QMap<QString, int> phasesPlayed;
};
