// A performer's evenings with one session file: the real program is played, its presets, selectors, power
// button, library and ports are changed by hand, and it is started again. Guards that what sounds and what is
// seen goes on where it was left, through a row of restarts, and that the command line has the last word.

#include "AnchorModel.h"
#include "SessionRun.h"
#include "StageModel.h"
#include "StagePlaces.h"
#include "answer.h"
#include "on_x_server.h"

#include <QDir>
#include <QJsonDocument>
#include <QJsonObject>
#include <QtTest>

#include <csignal>

namespace {

using Messages = SessionRun::Messages;

constexpr QPoint portsButton(289, 196), creditsButton(289, 224), middle(473, 250), libraryButton(774, 265),
    besideTheLists(473, 291);
constexpr QPoint newCategory(317, 179), scaleDegree(841, 238);
constexpr QPoint inList(351, 196), outList(548, 196); // their upper left corners
constexpr int rowHeight = 15;
const QString evening = QStringLiteral("Evening & more 1/2");

/// Three octaves tell the tonic and the scale.
Messages tune()
{
    return tapWhiteKeys(48, 84);
}

Messages recalls(const StageModel& model)
{
    Messages played;
    for (const int key : StageModel::flags())
        if (key != model.powerKey())
            played += tap(key) + tapWhiteKeys(55, 67);
    return played;
}

constexpr QRect display(200, 160, 546, 128);

/// A partly covered pixel that is painted anew comes out a shade off.
bool isAlike(QRgb a, QRgb b)
{
    constexpr int shade = 12;
    return qAbs(qRed(a) - qRed(b)) <= shade && qAbs(qGreen(a) - qGreen(b)) <= shade &&
           qAbs(qBlue(a) - qBlue(b)) <= shade;
}

/// The part of the screen in which two pictures differ, but for a part in which things move.
QRect difference(const QImage& a, const QImage& b, const QRect& moving)
{
    QRect part;
    for (int y = 0; y < a.height(); ++y)
        for (int x = 0; x < a.width(); ++x)
            if (!isAlike(a.pixel(x, y), b.pixel(x, y)) && !moving.contains(x, y))
                part |= QRect(x, y, 1, 1);
    return part;
}

/// What is played at one client is heard at the other, sooner or later.
bool isOpen(JackPlayer& from, JackPlayer& to)
{
    static_cast<void>(to.collect(1 << 20, 0));
    const auto passes = [&] {
        from.send({0xBE, 118, 1});
        return !to.collect(1, 250).isEmpty();
    };
    return QTest::qWaitFor(passes, 10000);
}

bool isShut(JackPlayer& from, JackPlayer& to)
{
    static_cast<void>(to.collect(1 << 20, 100));
    from.send({0xBE, 118, 2});
    return to.collect(1, 300).isEmpty();
}

} // namespace

class EndToEndSession : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup() { run.kill(); }

    void stageGoesOnThroughThreeRestarts();
    void anchorsStandWhereTheyWereLeft();
    void displayComesBack_data();
    void displayComesBack();
    void portsOpenByThemselves();
    void absentPortsAreNotForgotten();
    void commandLineWins();
    void namedPortsWinInTheirDirection();
    void importWinsAndExportIsTheSession();

private:
    [[nodiscard]] bool playsAsTold(const Messages& played);
    [[nodiscard]] bool recallsAsTold();
    [[nodiscard]] bool drag(QPoint from, QPoint to);
    [[nodiscard]] bool chooseTonic(int semitones);
    [[nodiscard]] bool clickDegree(int degree, QPoint place);
    void playTheFirstEvening();
    [[nodiscard]] bool looksAs(const QImage& before, const char* name, const QRect& moving = {});
    /// The selection of a client's row in the session's file.
    [[nodiscard]] QVariant remembered(const char* direction, const QString& client) const;
    [[nodiscard]] bool readRows(int clients);
    [[nodiscard]] static bool clickRow(QPoint list, const QStringList& rows, const QString& client);

    SessionRun run{QStringLiteral(SORVANE_PROGRAM)};
    std::unique_ptr<StageModel> model;
    QStringList inRows, outRows;
};

void EndToEndSession::initTestCase()
{
    if (!run.startService())
        QSKIP(qPrintable(run.reason()));
    QVERIFY(QDir().mkpath(QStringLiteral(FILE_PICTURES)));
}

void EndToEndSession::init()
{
    QVERIFY(run.forget());
    model = std::make_unique<StageModel>();
}

bool EndToEndSession::playsAsTold(const Messages& played)
{
    return isAsTold(played, run.answerTo(played), model->answerTo(played));
}

bool EndToEndSession::recallsAsTold()
{
    const Messages all = recalls(*model);
    constexpr int carried = 160; // by one period
    for (int i = 0; i < all.size(); i += carried)
        if (!playsAsTold(all.mid(i, carried)))
            return false;
    return true;
}

bool EndToEndSession::drag(QPoint from, QPoint to)
{
    return XServer::drag({from, (from + to) / 2, to}) && XServer::click(middle) && XServer::click(middle) &&
           run.heard(0).isEmpty();
}

bool EndToEndSession::chooseTonic(int semitones)
{
    model->setTonic(semitones);
    return XServer::click(stage::tonicPlace(semitones)) && run.heard(0).isEmpty();
}

bool EndToEndSession::clickDegree(int degree, QPoint place)
{
    model->presets.clickDegree(degree);
    model->setPower(model->presets.power);
    return XServer::click(place) && run.heard(0).isEmpty();
}

bool EndToEndSession::looksAs(const QImage& before, const char* name, const QRect& moving)
{
    QImage now;
    const auto differs = [&] { return difference(before, now = SessionRun::picture(), moving); };
    const bool isEqual = QTest::qWaitFor([&] { return differs().isEmpty(); }, 5000);
    if (!isEqual)
        qWarning() << name << "differs in" << difference(before, now, moving);
    before.save(QStringLiteral(FILE_PICTURES "/%1-before.png").arg(QLatin1String(name)));
    now.save(QStringLiteral(FILE_PICTURES "/%1-after-a-restart.png").arg(QLatin1String(name)));
    return isEqual;
}

QVariant EndToEndSession::remembered(const char* direction, const QString& client) const
{
    const QJsonObject root = QJsonDocument::fromJson(run.text()).object();
    for (const QString& key : root.keys())
        if (key.startsWith(QLatin1String(direction)) && key.contains(client))
            return root.value(key).toVariant();
    return {};
}

// The program's own list, in the order of the rows, once the clients are in it. Before it starts: later
// clients change the order.
bool EndToEndSession::readRows(int clients)
{
    const auto isComplete = [&] {
        QProcess lister;
        lister.start(QStringLiteral(SORVANE_PROGRAM), {"--list-ports", "--midi-api", "jack"});
        if (!lister.waitForFinished())
            return false;
        const QStringList parts =
            QString::fromLocal8Bit(lister.readAllStandardOutput()).split(QStringLiteral("Outputs:\n"));
        const QRegularExpression row(QStringLiteral("^  "));
        inRows = parts.value(0).split(QLatin1Char('\n')).filter(row);
        outRows = parts.value(1).split(QLatin1Char('\n')).filter(row);
        return inRows.size() == clients + 1 && outRows.size() == clients + 1;
    };
    return QTest::qWaitFor(isComplete, 10000);
}

bool EndToEndSession::clickRow(QPoint list, const QStringList& rows, const QString& client)
{
    int row = 0;
    while (row < rows.size() && !rows.at(row).contains(client))
        ++row;
    return XServer::click(list + QPoint(60, row * rowHeight + 8)) && XServer::click(besideTheLists);
}

void EndToEndSession::playTheFirstEvening()
{
    const int home = model->powerKey();
    QVERIFY(XServer::key(QStringLiteral("space")));
    model->setPower(true);
    QVERIFY(run.heard(0).isEmpty());
    QVERIFY(chooseTonic(2)); // the preset that every start begins with gets another one than at every start
    QVERIFY(playsAsTold(tune() + tap(58) + tune()));
    QVERIFY(chooseTonic(7));
    QVERIFY(clickDegree(4, scaleDegree));
    QVERIFY(playsAsTold(tune()));
    QVERIFY(drag(stage::powerSleeve(home), stage::flagPlace(75)));
    model->dropPowerOn(75);
    model->pressFlag(94);
    QVERIFY(drag(stage::flagPlace(94), stage::flagPlace(66)));
    model->dropFlagOnFlag(94, 66);
    QVERIFY(playsAsTold(tune() + tap(home) + tune()));
    QVERIFY(XServer::key(QStringLiteral("ctrl+l")));
    QVERIFY(XServer::click(newCategory));
    QVERIFY(SessionRun::type(evening));
    QVERIFY(XServer::key(QStringLiteral("Return")));
    QVERIFY(run.heard(0).isEmpty());
    QVERIFY(recallsAsTold()); // twice: what a preset lets alone it learns when it is left
    QVERIFY(recallsAsTold());
}

void EndToEndSession::stageGoesOnThroughThreeRestarts()
{
    QVERIFY(run.start());
    playTheFirstEvening();
    if (QTest::currentTestFailed())
        return;
    const QImage before = SessionRun::picture();
    QCOMPARE(run.end(SIGTERM), 0);
    const QByteArray left = run.text();
    QVERIFY(left.contains(evening.toUtf8()));
    for (const int signal : {SIGINT, SIGHUP, SIGTERM}) {
        QVERIFY(run.start());
        QVERIFY(looksAs(before, "library"));
        QVERIFY(playsAsTold(tune()));
        QVERIFY(recallsAsTold());
        QVERIFY(looksAs(before, "library"));
        QCOMPARE(run.end(signal), 0);
        QCOMPARE(run.text(), left);
    }
}

void EndToEndSession::anchorsStandWhereTheyWereLeft()
{
    constexpr int tonic = 3, way = 5 * 17;
    const AnchorModel anchors(tonic, "xoxxoxoxxoxo", 0);
    QVERIFY(run.start({"--power", "on", "--tonic", "D#", "--scale", "xoxxoxoxxoxo"}));
    QVERIFY(drag(stage::anchorPlace(0), stage::anchorPlace(way)));
    const auto plays = [this](const Messages& answer) {
        return QTest::qWaitFor([&] { return run.answerTo(tapWhiteKeys(21, 108)) == answer; });
    };
    QVERIFY(plays(anchors.answer(way)));
    QCOMPARE(run.end(SIGTERM), 0);
    const QByteArray left = run.text();
    for (int restart = 0; restart < 3; ++restart) {
        QVERIFY(run.start());
        QCOMPARE(run.answerTo(tapWhiteKeys(21, 108)), anchors.answer(way));
        QCOMPARE(run.end(SIGTERM), 0);
        QCOMPARE(run.text(), left);
    }
    QVERIFY(run.start());
    QVERIFY(drag(stage::anchorPlace(way), stage::anchorPlace(0))); // taken where it stands
    QVERIFY(plays(anchors.answer(0)));
}

void EndToEndSession::displayComesBack_data()
{
    QTest::addColumn<bool>("power");
    QTest::addColumn<QPoint>("place");
    QTest::addColumn<bool>("library");
    QTest::addColumn<int>("scene");

    QTest::newRow("default, power off") << false << QPoint() << false << 1;
    QTest::newRow("clean") << true << middle << false << 2;
    QTest::newRow("ports") << true << portsButton << false << 3;
    QTest::newRow("ports, power off") << false << portsButton << false << 3;
    QTest::newRow("credits") << true << creditsButton << false << 4;
    QTest::newRow("library") << true << QPoint() << true << 1;
    QTest::newRow("library over the ports") << true << portsButton << true << 3;
    QTest::newRow("library over the credits") << true << creditsButton << true << 4;
}

void EndToEndSession::displayComesBack()
{
    QFETCH(const bool, power);
    QFETCH(const QPoint, place);
    QFETCH(const bool, library);
    QFETCH(const int, scene);
    QVERIFY(run.start({"--power", power ? "on" : "off"}));
    QVERIFY(place.isNull() || XServer::click(place));
    QVERIFY(!library || XServer::click(libraryButton));
    QVERIFY(run.heard(0).isEmpty());
    const QImage before = SessionRun::picture();
    QCOMPARE(run.end(SIGTERM), 0);
    const QByteArray left = run.text();
    QCOMPARE(run.value(QStringLiteral("CurrentScene")).toInt(), scene);
    QCOMPARE(run.value(QStringLiteral("PowerOnState")).toBool(), power);
    QCOMPARE(run.value(QStringLiteral("LibViewOpened")).toBool(), library);
    QVERIFY(run.start());
    const QByteArray name = QByteArray(QTest::currentDataTag()).replace(", ", "-").replace(' ', '-');
    QVERIFY(looksAs(before, name.constData(), scene == 4 ? display : QRect()));
    QCOMPARE(run.end(SIGTERM), 0);
    QCOMPARE(run.text(), left);
}

void EndToEndSession::portsOpenByThemselves()
{
    JackPlayer piano("piano"), pads("pads");
    QVERIFY(readRows(2));
    QVERIFY(run.start());
    QVERIFY(XServer::click(portsButton));
    QVERIFY(clickRow(inList, inRows, QStringLiteral("piano")));
    QVERIFY(clickRow(outList, outRows, QStringLiteral("pads")));
    QVERIFY(isOpen(piano, pads));
    QVERIFY(isOpen(piano, run.player()) && isOpen(run.player(), pads));
    const QImage before = SessionRun::picture();
    QCOMPARE(run.end(SIGTERM), 0);
    const QByteArray left = run.text();
    for (int restart = 0; restart < 3; ++restart) {
        QVERIFY(run.start());
        QVERIFY(isOpen(piano, pads) && isOpen(piano, run.player()));
        QVERIFY(isShut(pads, piano));
        QVERIFY(looksAs(before, "chosen-ports"));
        QCOMPARE(run.end(SIGTERM), 0);
        QCOMPARE(run.text(), left);
    }
}

void EndToEndSession::absentPortsAreNotForgotten()
{
    JackPlayer piano("piano");
    auto pads = std::make_unique<JackPlayer>("pads");
    QVERIFY(run.start({"--in", "piano", "--out", "pads"}));
    QVERIFY(isOpen(piano, *pads));
    QCOMPARE(run.end(SIGTERM), 0);
    pads.reset();
    QVERIFY(run.start());
    QVERIFY(isOpen(piano, run.player()));
    QVERIFY2(!run.errors().contains(QStringLiteral("error")), qPrintable(run.errors()));
    QCOMPARE(run.end(SIGTERM), 0);
    QCOMPARE(remembered("MidiOutPort-", "pads"), QVariant(true));
    pads = std::make_unique<JackPlayer>("pads");
    QVERIFY(run.start());
    QVERIFY(isOpen(piano, *pads));
}

void EndToEndSession::commandLineWins()
{
    QVERIFY(run.start({"--power", "on", "--tonic", "D#", "--scale", "xoxxoxoxxoxo"}));
    model->setPower(true);
    model->setTonic(3);
    model->setScale("xoxxoxoxxoxo");
    QVERIFY(playsAsTold(tune()));
    QCOMPARE(run.end(SIGTERM), 0);
    QVERIFY(run.start());
    QVERIFY(playsAsTold(tune()));
    QCOMPARE(run.end(SIGTERM), 0);
    QVERIFY(run.start({"--tonic", "G"}));
    model->setTonic(7);
    QVERIFY(playsAsTold(tune()));
    QCOMPARE(run.end(SIGTERM), 0);
    QVERIFY(run.start({"--scale", "xxoooxxoooxo", "--power", "off"}));
    model->setScale("xxoooxxoooxo");
    model->setPower(false);
    QVERIFY(playsAsTold(tune() + tap(model->powerKey()) + tune()));
    QCOMPARE(run.end(SIGTERM), 0);
    QVERIFY(run.start()); // what won is the session now
    QVERIFY(playsAsTold(tune()));
    QCOMPARE(run.end(SIGTERM), 0);
    QCOMPARE(run.value(QStringLiteral("PowerOnState")), QVariant(true));
}

void EndToEndSession::namedPortsWinInTheirDirection()
{
    JackPlayer piano("piano"), pads("pads");
    QVERIFY(run.start({"--in", "piano", "--out", "pads"}));
    QVERIFY(isOpen(piano, pads));
    QCOMPARE(run.end(SIGTERM), 0);
    QCOMPARE(remembered("MidiInPort-", "piano"), QVariant(true));
    QCOMPARE(remembered("MidiOutPort-", "pads"), QVariant(true));
    QVERIFY(run.start({"--in", "pads"})); // the outputs are the session's
    QVERIFY(isOpen(pads, run.player()));
    QVERIFY(isOpen(pads, pads));
    QVERIFY(isShut(piano, run.player()));
    QCOMPARE(run.end(SIGTERM), 0);
    QCOMPARE(remembered("MidiInPort-", "piano"), QVariant(false));
    QCOMPARE(remembered("MidiInPort-", "pads"), QVariant(true));
    QVERIFY(run.start({"--out", "piano"}));
    QVERIFY(isOpen(pads, piano));
    QVERIFY(isShut(pads, pads));
    QCOMPARE(run.end(SIGTERM), 0);
    QVERIFY(run.start());
    QVERIFY(isOpen(pads, piano));
    QVERIFY(isShut(pads, pads) && isShut(piano, piano));
}

void EndToEndSession::importWinsAndExportIsTheSession()
{
    QVERIFY(run.start({"--power", "on", "--tonic", "G"}));
    QCOMPARE(run.end(SIGTERM), 0);
    const QString imported = run.folder() + QStringLiteral("/of a friend.svdb"),
                  exported = run.folder() + QStringLiteral("/for a friend.svdb");
    QVERIFY(QFile::rename(run.file(), imported));
    QVERIFY(run.start({"--power", "off", "--tonic", "D#"}));
    QCOMPARE(run.end(SIGTERM), 0);
    QVERIFY(run.start({"--import", imported, "--export", exported}));
    model->setPower(true);
    model->setTonic(7);
    QVERIFY(playsAsTold(tune()));
    QCOMPARE(run.end(SIGTERM), 0);
    QFile copy(exported);
    QVERIFY(copy.open(QIODevice::ReadOnly));
    QCOMPARE(copy.readAll(), run.text());
    QVERIFY(run.start());
    QVERIFY(playsAsTold(tune()));
}

int main(int argc, char** argv)
{
    return runOnXServer<EndToEndSession>(argc, argv);
}

#include "e2e_session.moc"
