// Long sweeps over the whole keyboard, straight and at random: every message is compared with an account of
// the rules that knows nothing of items and scenes.

#include "StageFixture.h"
#include "key_places.h"

#include "SweepModel.h"

#include <QtTest>

#include <random>

class TestGlissandoSweeps : public StageFixture
{
    Q_OBJECT

private slots:
    void init();

    void wholeKeyboard_data();
    void wholeKeyboard();
    void sweepsAtRandom_data();
    void sweepsAtRandom();
};

// Recalls must not change the map under a sweep.
void TestGlissandoSweeps::init()
{
    openStage();
    emptyHeaders();
}

void TestGlissandoSweeps::wholeKeyboard_data()
{
    QTest::addColumn<bool>("switchedOn");
    QTest::addColumn<QString>("word");
    QTest::addColumn<int>("row");
    QTest::addColumn<int>("step");
    for (const int step : {1, 5, 17, 34, 60})
        for (const int row : {15, 40, 84}) { // two rows cross the black keys
            QTest::addRow("off, row %d, %d px", row, step) << false << ionian << row << step;
            QTest::addRow("on, row %d, %d px", row, step) << true << ionian << row << step;
            QTest::addRow("grey keys, row %d, %d px", row, step) << true << octaves << row << step;
        }
}

void TestGlissandoSweeps::wholeKeyboard()
{
    QFETCH(bool, switchedOn);
    QFETCH(QString, word);
    QFETCH(int, row);
    QFETCH(int, step);
    chooseMap(switchedOn, word);
    SweepModel model(switchedOn, powerKey, 0, word.toStdString());
    const QPointF origin = in(21)->pos();
    hand->press(origin + QPointF(1, row));
    QCOMPARE(sent(), model.press(keySeenAt(1, row)));
    int x = 1;
    for (const int way : {step, -step})
        for (; x >= 1 && x < keysWidth; x += way) {
            hand->move(origin + QPointF(x, row));
            const Messages wanted = model.move(keySeenAt(x, row)), got = sent();
            QVERIFY2(got == wanted, qPrintable(QStringLiteral("at %1").arg(x)));
            if (way > 0 && x + way >= keysWidth)
                break;
        }
    hand->release();
    QCOMPARE(sent(), model.release());
    QVERIFY(sounding().isEmpty());
    QCOMPARE(unrest(), QString());
}

void TestGlissandoSweeps::sweepsAtRandom_data()
{
    QTest::addColumn<bool>("switchedOn");
    QTest::addColumn<QString>("word");
    QTest::addColumn<int>("seed");
    for (int seed = 1; seed <= 3; ++seed) {
        QTest::addRow("off, seed %d", seed) << false << ionian << seed;
        QTest::addRow("on, seed %d", seed) << true << ionian << seed;
        QTest::addRow("grey keys, seed %d", seed) << true << octaves << seed;
    }
}

void TestGlissandoSweeps::sweepsAtRandom()
{
    QFETCH(bool, switchedOn);
    QFETCH(QString, word);
    QFETCH(int, seed);
    chooseMap(switchedOn, word);
    SweepModel model(switchedOn, powerKey, 0, word.toStdString());
    std::mt19937 random(static_cast<unsigned>(seed));
    const auto number = [&](int from, int to) {
        return std::uniform_int_distribution<int>(from, to)(random);
    };
    const QPointF origin = in(21)->pos();
    for (int gesture = 0; gesture < 60; ++gesture) {
        QPoint place(number(0, keysWidth - 1), number(65, 98));
        hand->press(origin + place);
        Messages wanted = model.press(keySeenAt(place.x(), place.y()));
        for (int moves = number(0, 40); moves > 0; --moves) {
            place += QPoint(number(-20, 20), number(-15, 15));
            hand->move(origin + place);
            wanted += model.move(keySeenAt(place.x(), place.y()));
        }
        hand->release();
        wanted += model.release();
        QCOMPARE(sent(), wanted);
        QCOMPARE(unrest(), QString());
    }
    QVERIFY(sounding().isEmpty());
}

QTEST_MAIN(TestGlissandoSweeps)
#include "test_glissando_sweeps.moc"
