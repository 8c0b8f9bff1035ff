// The power button, presets and anchors in a real hand. What a drop has changed is judged by what the keys
// play afterwards, against a bookkeeping of the presets that knows nothing of the program.

#include "AnchorModel.h"
#include "OtherWindow.h"
#include "StageModel.h"
#include "StagePlaces.h"
#include "StageRun.h"
#include "answer.h"
#include "on_x_server.h"

#include <QScreen>
#include <QtTest>

#include <random>

namespace {

using Messages = StageRun::Messages;

constexpr QSize screenSize(1200, 600); // beside the window there is room for another one
constexpr QPoint overTheKeys(480, 433), besideTheKeys(930, 380), onTheDisplay(473, 225);

/// Three octaves tell the tonic and the scale.
Messages tune()
{
    return tapWhiteKeys(48, 84);
}

/// Beyond the left end of the bar, beyond its right end, and back high above the bar.
QList<QPoint> handPath(int leftEnd, int rightEnd, int step)
{
    const int left = leftEnd - 20, right = rightEnd + 20;
    QList<QPoint> path;
    for (int x = 0; x > left; x -= step)
        path.append(QPoint(x, 0));
    for (int x = left; x < right; x += step)
        path.append(QPoint(x, 0));
    for (int x = right; x > left; x -= 3 * step)
        path.append(QPoint(x, -200));
    path.append(QPoint(left, -200));
    return path;
}

QImage pictureAround(QPoint pos)
{
    const QRect part(pos - QPoint(5, 5), QSize(10, 10));
    return QGuiApplication::primaryScreen()
        ->grabWindow(0, part.x(), part.y(), part.width(), part.height())
        .toImage();
}

QList<int> shuffled(QList<int> list, unsigned seed)
{
    std::mt19937 numbers(seed);
    for (int i = list.size() - 1; i > 0; --i)
        list.swapItemsAt(i, static_cast<int>(numbers() % static_cast<unsigned>(i + 1)));
    return list;
}

} // namespace

class EndToEndStageDrags : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanup();

    void powerButtonMovesToEverySlot();
    void powerButtonDroppedOnNothingGoesHome();
    void activePresetStaysActiveWhereThePowerButtonSendsIt();
    void clickOnTheSquareSwitchesWhereverTheButtonStands();
    void presetsChangePlacesWhereTheyAreDropped();
    void dragThatLosesTheFocusDropsNothing();
    void anchorDragMovesTheMappingWithTheHand_data();
    void anchorDragMovesTheMappingWithTheHand();

private:
    bool start(bool power, const QStringList& more = {});
    /// Plays on the MIDI input; false if the answer is not the bookkeeping's.
    bool playsAsTold(const Messages& played);
    /// Waits until the white keys answer so.
    bool playsSoon(const Messages& expected);
    /// Recalls each preset and plays.
    bool recallsAsTold();
    /// Brings the pointer away afterwards, so that the next press is no second one of a double click.
    bool drag(QPoint from, QPoint to);

    StageRun run{QStringLiteral(SORVANE_PROGRAM)};
    std::unique_ptr<StageModel> model;
};

void EndToEndStageDrags::initTestCase()
{
    if (!run.startService())
        QSKIP(qPrintable(run.reason()));
}

void EndToEndStageDrags::cleanup()
{
    QVERIFY(XServer::release()); // a test that failed may have left it down
    QCOMPARE(run.stop(), 0);
}

bool EndToEndStageDrags::start(bool power, const QStringList& more)
{
    model = std::make_unique<StageModel>();
    model->setPower(power);
    return run.start(
        QStringList{QStringLiteral("--power"), power ? QStringLiteral("on") : QStringLiteral("off")} + more);
}

bool EndToEndStageDrags::playsAsTold(const Messages& played)
{
    return isAsTold(played, run.answerTo(played), model->answerTo(played));
}

bool EndToEndStageDrags::playsSoon(const Messages& expected)
{
    return QTest::qWaitFor([&] { return run.answerTo(tapWhiteKeys(21, 108)) == expected; });
}

bool EndToEndStageDrags::recallsAsTold()
{
    constexpr int longEnough = 150; // for one period to carry
    Messages played;
    const QList<int> keys = StageModel::flags();
    for (const int key : keys) {
        if (key != model->powerKey())
            played += tap(key) + tune();
        if (played.size() > longEnough && !playsAsTold(std::exchange(played, {})))
            return false;
    }
    return playsAsTold(played);
}

bool EndToEndStageDrags::drag(QPoint from, QPoint to)
{
    return XServer::drag({from, (from + to) / 2, to}) && XServer::click(onTheDisplay) &&
           run.answerTo({}).isEmpty();
}

void EndToEndStageDrags::powerButtonMovesToEverySlot()
{
    QVERIFY(start(true));
    const QList<int> keys = shuffled(StageModel::flags(), 1);
    for (const int key : keys) {
        const int left = model->powerKey();
        if (key == left)
            continue;
        QVERIFY(drag(stage::powerSleeve(left), stage::flagPlace(key)));
        model->dropPowerOn(key);
        // The new key switches and is silent; the one that is left recalls with the power on, else it plays.
        QVERIFY(playsAsTold(tune() + tap(left) + tune() + tap(key) + tune() + tap(left) + tune()));
        if (left % 2 == 0) // every other drop with the power off, which hides the flags
            QVERIFY(playsAsTold(tap(key)));
    }
    QCOMPARE(model->powerKey(), keys.last());
    if (!model->presets.power)
        QVERIFY(playsAsTold(tap(keys.last())));
    QVERIFY(recallsAsTold());
}

void EndToEndStageDrags::powerButtonDroppedOnNothingGoesHome()
{
    QVERIFY(start(true));
    const int home = model->powerKey();
    for (const QPoint nowhere : {overTheKeys, besideTheKeys, onTheDisplay, stage::powerSleeve(home)}) {
        QVERIFY(drag(stage::powerSleeve(home), nowhere));
        QVERIFY(playsAsTold(tap(home) + tune() + tap(51) + tap(home) + tap(51) + tune()));
        QVERIFY(XServer::click(stage::powerSquare(home))); // which is where it was
        QVERIFY(run.heard(0).isEmpty());
        model->setPower(false);
        QVERIFY(playsAsTold(tune() + tap(51) + tap(home)));
    }
    QVERIFY(recallsAsTold());
}

// What the selectors are told belongs to it, in its new place.
void EndToEndStageDrags::activePresetStaysActiveWhereThePowerButtonSendsIt()
{
    QVERIFY(start(true));
    const int home = model->powerKey();
    QVERIFY(playsAsTold(tap(58) + tune()));
    QVERIFY(drag(stage::powerSleeve(home), stage::flagPlace(58)));
    model->dropPowerOn(58);
    QVERIFY(XServer::click(stage::tonicPlace(7)));
    QVERIFY(run.heard(0).isEmpty());
    model->setTonic(7);
    QVERIFY(playsAsTold(tune() + tap(75) + tune() + tap(home) + tune() + tap(58) + tap(58) + tune()));
}

void EndToEndStageDrags::clickOnTheSquareSwitchesWhereverTheButtonStands()
{
    QVERIFY(start(true));
    for (const int key : {102, 22, 66}) {
        const int left = model->powerKey();
        QVERIFY(drag(stage::powerSleeve(left), stage::flagPlace(key)));
        model->dropPowerOn(key);
        QVERIFY(XServer::click(stage::powerSquare(left)));
        QVERIFY(run.heard(0).isEmpty());
        model->pressFlag(left); // its stem is there now
        QVERIFY(playsAsTold(tune()));
        QVERIFY(XServer::click(stage::powerSquare(key)));
        QVERIFY(run.heard(0).isEmpty());
        model->setPower(false);
        QVERIFY(playsAsTold(tune() + tap(left)));
        QVERIFY(XServer::click(stage::powerSleeve(key))); // the sleeve is no button
        QVERIFY(run.heard(0).isEmpty());
        QVERIFY(playsAsTold(tune() + tap(left)));
        QVERIFY(XServer::click(stage::powerSquare(key)));
        QVERIFY(run.heard(0).isEmpty());
        model->setPower(true);
        QVERIFY(playsAsTold(tune()));
    }
}

void EndToEndStageDrags::presetsChangePlacesWhereTheyAreDropped()
{
    QVERIFY(start(true));
    const QList<int> flags = shuffled(StageModel::flags(), 2).mid(0, 20),
                     targets = shuffled(StageModel::flags(), 3);
    for (int i = 0; i < flags.size(); ++i) {
        const int power = model->powerKey();
        const int flag = flags.at(i), target = targets.at(i);
        if (flag == power || target == power || target == flag)
            continue;
        model->pressFlag(flag);
        if (i % 4 == 0) {
            QVERIFY(drag(stage::flagPlace(flag), stage::powerSleeve(power)));
            model->dropFlagOnPower(flag);
        } else if (i % 4 == 1) {
            QVERIFY(drag(stage::flagPlace(flag), overTheKeys)); // nothing there
        } else {
            QVERIFY(drag(stage::flagPlace(flag), stage::flagPlace(target)));
            model->dropFlagOnFlag(flag, target);
        }
        if (i % 5 == 0) { // and the power button moves between
            QVERIFY(drag(stage::powerSleeve(model->powerKey()), stage::flagPlace(target)));
            model->dropPowerOn(target);
        }
        const int now = model->powerKey();
        Messages others;
        for (const int key : {power, flag, target})
            others += key == now ? Messages() : tap(key);
        QVERIFY(playsAsTold(tune() + tap(now) + others + tap(now) + others + tune()));
    }
    QVERIFY(recallsAsTold());
}

// The program takes its time to believe that the focus is gone. That it does is seen, not heard: what was in
// the hand is back at its place.
void EndToEndStageDrags::dragThatLosesTheFocusDropsNothing()
{
    QVERIFY(start(false));
    const int home = model->powerKey(), flag = 75, target = 58;
    for (const int key : {home, flag}) {
        const QPoint from = key == home ? stage::powerSleeve(home) : stage::flagPlace(flag);
        const QImage before = pictureAround(from);
        QVERIFY(playsAsTold(tap(key))); // lights it
        QVERIFY(QTest::qWaitFor([&] { return pictureAround(from) != before; }));
        const QImage atRest = pictureAround(from);
        QVERIFY(XServer::move(from));
        QVERIFY(XServer::press());
        QVERIFY(XServer::move(from + QPoint(12, 0)));
        QVERIFY(XServer::move(stage::flagPlace(target)));
        QVERIFY(QTest::qWaitFor([&] { return pictureAround(from) != atRest; }));
        OtherWindow other;
        QVERIFY(other.takeFocus());
        QVERIFY(QTest::qWaitFor([&] { return pictureAround(from) == atRest; }));
        QVERIFY(XServer::release());
        QVERIFY(run.heard(0).isEmpty());
        QVERIFY(playsAsTold(tune() + tap(home) + tap(target) + tap(home)));
    }
    QVERIFY(recallsAsTold());
}

void EndToEndStageDrags::anchorDragMovesTheMappingWithTheHand_data()
{
    QTest::addColumn<int>("tonic");
    QTest::addColumn<QByteArray>("word");
    QTest::addColumn<int>("anchor"); // the number of the one in the hand
    QTest::addColumn<int>("step");

    QTest::newRow("main anchor, seven notes") << 3 << QByteArray("xoxxoxoxxoxo") << 0 << 17;
    QTest::newRow("anchor above, five notes") << 0 << QByteArray("xoxoxooxoxoo") << 1 << 39;
    QTest::newRow("anchor below, six notes") << 8 << QByteArray("xooxoxxxooxo") << -1 << 42;
}

void EndToEndStageDrags::anchorDragMovesTheMappingWithTheHand()
{
    QFETCH(const int, tonic);
    QFETCH(const QByteArray, word);
    QFETCH(const int, anchor);
    QFETCH(const int, step);
    const char* const names[] = {"C", "C#", "D", "D#", "E", "F", "F#", "G", "G#"};
    QVERIFY(start(true, {QStringLiteral("--tonic"), QLatin1String(names[tonic]), QStringLiteral("--scale"),
                         QLatin1String(word)}));
    const AnchorModel anchors(tonic, word, anchor);
    const QPoint grip = stage::anchorPlace(anchors.start());
    QVERIFY(XServer::move(grip));
    QVERIFY(XServer::press());
    for (const QPoint& by : handPath(anchors.leftEnd(), anchors.rightEnd(), step)) {
        QVERIFY(XServer::move(grip + by));
        QVERIFY(playsSoon(anchors.answer(by.x())));
    }
    QVERIFY(XServer::release());
    QVERIFY(XServer::move(grip)); // which drags nothing any more
    QVERIFY(run.heard(0).isEmpty());
    QVERIFY(playsSoon(anchors.answer(anchors.leftEnd())));
}

int main(int argc, char** argv)
{
    return runOnXServer<EndToEndStageDrags>(argc, argv, screenSize);
}

#include "e2e_stage_drags.moc"
