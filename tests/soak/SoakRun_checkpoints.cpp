// All hands off: what is held against what between the phases.

#include "SoakRun.h"

#include "AnchorModel.h"
#include "tunes.h"

#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>

namespace {

constexpr int patienceMs = 15000;

/// What all white keys answer in the state that a file holds.
QList<QList<int>> walkOf(const QJsonObject& state)
{
    if (!state.value(QStringLiteral("PowerOnState")).toBool())
        return tapWhiteKeys(21, 108);
    static const QStringList names{"C", "C#", "D", "D#", "E", "F", "F#", "G", "G#", "A", "A#", "B"};
    QString tonic = state.value(QStringLiteral("TonicModifier")).toString();
    if (tonic.isEmpty())
        tonic = state.value(QStringLiteral("TonicKeyBehindSwitch")).toString();
    const QByteArray word = state.value(QStringLiteral("ScaleModifier")).toString().toLatin1();
    const int moved = qRound(state.value(QStringLiteral("SorvaneAnchorPosition")).toDouble());
    return AnchorModel(names.indexOf(tonic), word, 0).answer(moved);
}

} // namespace

template <typename Condition>
bool SoakRun::turnUntil(Condition isSo, int timeoutMs)
{
    QElapsedTimer timer;
    timer.start();
    while (!isSo()) {
        if (timer.elapsed() > timeoutMs || !program->isRunning())
            return false;
        turn();
    }
    return true;
}

void SoakRun::handsOff()
{
    hand.add(gestures::tidyUp());
    if (!turnUntil([this] { return hand.isIdle(); }, patienceMs)) {
        fault(QStringLiteral("the hand does not come to its end"));
        hand.giveUp();
    }
    churn.settle();
}

// The second marker goes when the first is back: by then what the hand did last has been taken. One that the
// service loses is sent again.
void SoakRun::settle()
{
    constexpr int tries = 5, tryMs = 3000;
    for (int round = 0; round < 2; ++round) {
        bool isBack = false;
        for (int i = 0; i < tries && !isBack; ++i) {
            const NoteLedger::Message message{0xBF, 119, marker = (marker + 1) % 128};
            ledger.expect(message, send(message)); // behind its tracer, if it has one
            isBack = turnUntil([this] { return ledger.outstanding() == 0; }, tryMs);
        }
        if (isBack)
            continue;
        spoil(QStringLiteral("%1 messages never came").arg(ledger.outstanding()));
        ledger.forget();
    }
}

void SoakRun::checkNothingSounds()
{
    for (const int pitch : ledger.sounding())
        spoil(QStringLiteral("note %1 hangs").arg(pitch));
}

void SoakRun::walkTheKeys()
{
    for (const NoteLedger::Message& message : tapWhiteKeys(21, 108))
        score.playByModel(message);
    settle();
}

void SoakRun::walkByFile()
{
    const QString name = QStringLiteral("state%1").arg(++fileNumber);
    if (!file("ctrl+s", name)) {
        fault(QStringLiteral("the state was not saved"));
        return;
    }
    QFile saved(folder.filePath(name + QStringLiteral(".svdb")));
    const QJsonObject state =
        saved.open(QIODevice::ReadOnly) ? QJsonDocument::fromJson(saved.readAll()).object() : QJsonObject();
    saved.remove();
    walkByAnswers(walkOf(state));
}

// In one go, answered as one.
void SoakRun::walkByAnswers(const QList<NoteLedger::Message>& answers)
{
    qint64 number = -1;
    for (const NoteLedger::Message& message : tapWhiteKeys(21, 108))
        number = send(message);
    for (const NoteLedger::Message& answer : answers)
        ledger.expect(answer, number);
    settle();
}

// The service has lost what the program and the model should both have heard: all is ended, and the known
// state is brought back.
void SoakRun::recover()
{
    constexpr int tries = 12;
    for (int i = 0; i < tries && program->isRunning(); ++i) {
        ledger.setDeaf(true);
        score.forget();
        for (int key = 21; key <= 108; ++key) {
            send({0x80, key, 0});
            turn();
        }
        QElapsedTimer rest;
        rest.start();
        static_cast<void>(turnUntil([&] { return rest.elapsed() > 500; }, patienceMs));
        ledger.setDeaf(false);
        ledger.forget();
        spoilt = false;
        goHome();
        if (!spoilt)
            return;
    }
    fault(QStringLiteral("no way back to the known state"));
    spoilt = false;
}

void SoakRun::goHome()
{
    if (!file("ctrl+o", QStringLiteral("home")))
        fault(QStringLiteral("the file was not opened"));
    model = home;
    atHome = true;
    settle();
    walkTheKeys();
}

// Music of the other channels goes on while the dialog is there.
bool SoakRun::file(const char* shortcut, const QString& name)
{
    const bool save = QLatin1String(shortcut) == QLatin1String("ctrl+s");
    const QString path = folder.filePath(name);
    hand.add(
        gestures::answerFileDialog(QLatin1String(shortcut), save ? path : path + QStringLiteral(".svdb")));
    score.begin(Score::Style::otherChannels);
    const auto playOn = [this] {
        score.playNext();
        return hand.isIdle();
    };
    bool done = turnUntil(playOn, patienceMs);
    const auto isGone = [this, &done] {
        score.playNext();
        if (!hand.isIdle())
            return false;
        if (!hand.succeeded())
            return true;
        hand.add(gestures::findFileDialog());
        return false;
    };
    hand.add(gestures::findFileDialog());
    done = turnUntil(isGone, patienceMs) && done;
    score.releaseAll();
    handsOff();
    settle();
    return done && QFile::exists(folder.filePath(name + QStringLiteral(".svdb")));
}

void SoakRun::measureLatency()
{
    const int before = loaded.size();
    for (const int key : {60, 62, 64, 65, 67, 69, 71}) {
        score.playByModel({0xBE, 20, key});
        settle();
    }
    for (int i = before; i < loaded.size(); ++i)
        quiet.append(loaded.at(i));
    loaded.resize(before);
}

void SoakRun::sampleWhenDue()
{
    if (seconds() - lastSample < options.sampleSeconds)
        return;
    churn.dismissGuests();
    settle(); // by then the program knows
    lastSample = seconds();
    resources->take(lastSample);
}
