// The window under the computer's keyboard alone, by a real hand: the ring is seen where Tab goes, and a key
// that Return holds sounds until the hand lets go.

#include "SceneTable.h"
#include "StagePlaces.h"
#include "StageRun.h"
#include "on_x_server.h"

#include <QScreen>
#include <QtTest>

class EndToEndKeyboard : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanup();
    void ringGoesWithTabAndReturnPlays();
    void heldReturnSoundsOnce();

private:
    using Messages = StageRun::Messages;
    static QImage picture() { return QGuiApplication::primaryScreen()->grabWindow(0).toImage(); }
    /// The ring's bounds on the screen: its light where it was not before. Empty if there is none.
    [[nodiscard]] QRect ring() const;
    /// Waits until the ring encloses that place, and no more than a part of the window.
    [[nodiscard]] bool isAround(QPoint place) const;

    StageRun run{QStringLiteral(SORVANE_PROGRAM)};
    QImage before;
};

void EndToEndKeyboard::initTestCase()
{
    if (!run.startService())
        QSKIP(qPrintable(run.reason()));
}

void EndToEndKeyboard::cleanup()
{
    QVERIFY(XServer::letKeyUp(QStringLiteral("Return"))); // a test that failed may have left it down
    QCOMPARE(run.stop(), 0);
}

QRect EndToEndKeyboard::ring() const
{
    constexpr QRgb light = 0xffa6dbff;
    const QImage now = picture();
    QRect bounds;
    for (int y = 0; y < now.height(); ++y)
        for (int x = 0; x < now.width(); ++x)
            if (now.pixel(x, y) == light && before.pixel(x, y) != light)
                bounds |= QRect(x, y, 1, 1);
    return bounds;
}

bool EndToEndKeyboard::isAround(QPoint place) const
{
    return QTest::qWaitFor([&] {
        const QRect found = ring();
        return found.contains(place) && found.width() < 120 && found.height() < 120;
    });
}

void EndToEndKeyboard::ringGoesWithTabAndReturnPlays()
{
    constexpr int middleC = 60;
    const QPoint outKey = stage::keyPlace(stage::Keyboard::out, middleC);
    const QPoint inKey = stage::keyPlace(stage::Keyboard::in, middleC);
    QVERIFY(run.start({QStringLiteral("--power"), QStringLiteral("off")}));
    QVERIFY(XServer::giveKeyboard(QStringLiteral("^Sorvane$")));
    before = picture();
    QVERIFY(XServer::key(QStringLiteral("Tab")));
    QVERIFY(isAround(outKey));
    QVERIFY(XServer::key(QStringLiteral("Tab")));
    QVERIFY(isAround(scene_table::actionNamed(QLatin1String("ports button"))->place));
    for (int i = 0; i < 2; ++i)
        QVERIFY(XServer::key(QStringLiteral("shift+Tab")));
    QVERIFY(isAround(inKey));
    QVERIFY(XServer::holdKey(QStringLiteral("Return")));
    QCOMPARE(run.heard(1), (Messages{{0x90, middleC, 75}}));
    QVERIFY(isAround(inKey));
    QVERIFY(XServer::letKeyUp(QStringLiteral("Return")));
    QCOMPARE(run.heard(1), (Messages{{0x80, middleC, 0}}));
    QVERIFY(XServer::key(QStringLiteral("Right")));
    QVERIFY(XServer::key(QStringLiteral("Return")));
    QCOMPARE(run.heard(2), (Messages{{0x90, middleC + 1, 75}, {0x80, middleC + 1, 0}}));
    QVERIFY(XServer::click(QPoint(940, 150))); // the mouse is used
    QTRY_VERIFY(ring().isEmpty());
}

// The server repeats a held key as releases and presses, which once ended and began the note each time.
void EndToEndKeyboard::heldReturnSoundsOnce()
{
    constexpr int middleC = 60, severalRepeatsMs = 1200; // the first one comes after 660
    QVERIFY(run.start({QStringLiteral("--power"), QStringLiteral("off")}));
    QVERIFY(XServer::giveKeyboard(QStringLiteral("^Sorvane$")));
    QVERIFY(XServer::key(QStringLiteral("Left")));
    QVERIFY(XServer::holdKey(QStringLiteral("Return")));
    QCOMPARE(run.heard(1), (Messages{{0x90, middleC, 75}}));
    QTest::qWait(severalRepeatsMs);
    QVERIFY(XServer::letKeyUp(QStringLiteral("Return")));
    QVERIFY(XServer::key(QStringLiteral("Right")));
    QVERIFY(XServer::key(QStringLiteral("Return")));
    QCOMPARE(run.heard(3), (Messages{{0x80, middleC, 0}, {0x90, middleC + 1, 75}, {0x80, middleC + 1, 0}}));
}

int main(int argc, char** argv)
{
    return runOnXServer<EndToEndKeyboard>(argc, argv);
}

#include "e2e_keyboard.moc"
