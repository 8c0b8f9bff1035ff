// The recall of a header: what it saves, what it loads and what it does to the anchors.

#include "HeaderFixture.h"

#include <QtTest>

class TestHeaderRecall : public HeaderFixture
{
    Q_OBJECT

private slots:
    // What stops a recall
    void nullItemIsNoRecall();
    void openDialogStopsARecall();
    void recallOfTheActiveHeaderOnlyMatches();

    // Saving
    void storeSavesTheSelectors();
    void storeWithTheTonicOffKeepsThePitchPosition();
    void storeRefreshesTheHeaderThatIsLeft();
    void recallWithoutStoreMovesNothing();
    void recallWithoutStoreRefreshesTheHeaderThatIsLeft();
    void firstRecallSavesNowhere();

    // Loading
    void recallWithThePowerOffLoadsNothing();
    void recallLoadsTonicAndScale();
    void recallOfATonicAloneKeepsTheScale();
    void recallOfAScaleAloneKeepsTheTonic();
    void recallOfAnEmptyHeaderSwitchesBothOff();
    void recallOfATonicWithoutAWordStillMapsIt();

    // Status
    void statusSaysWhichHeaderIsActive();
    void statusActiveRecallsWithoutStore();

    // Pitch position
    void storePitchPositionTruncates_data();
    void storePitchPositionTruncates();
    void invalidPitchPositionKeepsTheOldOne();
    void restorePitchPositionMovesRight();
    void recallMovesTheAnchors_data();
    void recallMovesTheAnchors();
};

void TestHeaderRecall::nullItemIsNoRecall()
{
    window->setPower(true);
    const QStringList before = state();
    presets().setActiveHeader(nullptr, true);
    presets().setActiveHeader(nullptr, false);
    QCOMPARE(state(), before);
}

void TestHeaderRecall::openDialogStopsARecall()
{
    window->setPower(true);
    window->dialogOpen = true;
    const QStringList before = state();
    recall(25, true);
    recall(25, false);
    QCOMPARE(state(), before);
}

void TestHeaderRecall::recallOfTheActiveHeaderOnlyMatches()
{
    window->setPower(true);
    record(firstActive) = fullRecord();
    const QString category = library().currentCategory();
    library().setCurrentScaleIndex(category, -1);
    recall(firstActive);
    // The names are mended; the other fields are neither saved nor loaded.
    header_data wanted = fullRecord();
    wanted.nameScenic1 = QStringLiteral("MAJOR");
    wanted.nameScenic2 = QStringLiteral("Lydian");
    QCOMPARE(asText(record(firstActive)), asText(wanted));
    QCOMPARE(tonic().tonicModifier(), QStringLiteral("C"));
    QCOMPARE(scale().scaleModifier(), ionian);
    QCOMPARE(library().currentScale(), ionian);
}

void TestHeaderRecall::storeSavesTheSelectors()
{
    placeAnchors(34);
    setTonic("D");
    setScale(wholeTone);
    record(firstActive) = {};
    recall(25);
    header_data wanted = {
        QStringLiteral("SYMM"), QStringLiteral("WholeT."), QString(), on, QStringLiteral("D"), on, wholeTone};
    wanted.anchorValid = true;
    wanted.anchorPos = 34;
    QCOMPARE(asText(record(firstActive)), asText(wanted));
}

void TestHeaderRecall::storeWithTheTonicOffKeepsThePitchPosition()
{
    placeAnchors(34);
    tonic().setSwitchOff(false);
    scale().setSwitchOff(false);
    record(firstActive) = fullRecord();
    recall(25);
    const header_data& left = record(firstActive);
    QVERIFY(!left.tonicOn);
    QCOMPARE(left.tonicData, QString());
    QVERIFY(!left.anchorValid);
    QCOMPARE(left.anchorPos, 51);
    QVERIFY(!left.scaleOn);
    QCOMPARE(left.scaleData, ionian);
}

void TestHeaderRecall::storeRefreshesTheHeaderThatIsLeft()
{
    emptyHeaders();
    setScale(unknownWord);
    recall(25);
    QCOMPARE(record(firstActive).nameScenic1, QStringLiteral("User"));
    QCOMPARE(record(firstActive).nameScenic2, QStringLiteral("1"));
    QVERIFY(library().isCustomScale(unknownWord));
}

void TestHeaderRecall::recallWithoutStoreMovesNothing()
{
    placeAnchors(34);
    window->setPower(true);
    record(25) = fullRecord();
    const QString before = asText(record(firstActive));
    recall(25, false);
    QCOMPARE(active(), 25);
    QCOMPARE(asText(record(firstActive)), before);
    QCOMPARE(tonic().tonicModifier(), QStringLiteral("C"));
    QCOMPARE(scale().scaleModifier(), ionian);
    QCOMPARE(anchors()->pos(), QPointF(34, 7));
}

void TestHeaderRecall::recallWithoutStoreRefreshesTheHeaderThatIsLeft()
{
    record(firstActive) = fullRecord();
    recall(25, false);
    QCOMPARE(record(firstActive).nameScenic2, QStringLiteral("Lydian"));
    QCOMPARE(header(firstActive)->status(), header_deactive);
}

void TestHeaderRecall::firstRecallSavesNowhere()
{
    placeAnchors(34);
    window->setPower(true);
    presets().activeHeader = nullptr;
    record(25) = fullRecord();
    const QString before = asText(record(firstActive));
    recall(25);
    QCOMPARE(active(), 25);
    QCOMPARE(asText(record(firstActive)), before);
    QCOMPARE(anchors()->x(), 34.0 + 51); // the remembered offset is 0
    QCOMPARE(tonic().tonicModifier(), QStringLiteral("E"));
}

void TestHeaderRecall::recallWithThePowerOffLoadsNothing()
{
    placeAnchors(34);
    record(25) = fullRecord();
    recall(25);
    QCOMPARE(active(), 25);
    QCOMPARE(record(firstActive).scaleData, ionian); // saved all the same
    QCOMPARE(tonic().tonicModifier(), QStringLiteral("C"));
    QCOMPARE(scale().scaleModifier(), ionian);
    QCOMPARE(anchors()->pos(), QPointF(34, 7));
}

void TestHeaderRecall::recallLoadsTonicAndScale()
{
    window->setPower(true);
    tonic().setSwitchOff(false);
    scale().setSwitchOff(false);
    record(25) = fullRecord();
    record(25).nameTonic.clear();
    record(25).anchorPos = 0;
    recall(25);
    QVERIFY(tonic().switchOn && scale().switchOn);
    QCOMPARE(tonic().tonicModifier(), QStringLiteral("E"));
    QCOMPARE(scale().scaleModifier(), lydian);
    QCOMPARE(record(25).nameTonic, QStringLiteral("E"));
    QCOMPARE(target(60), 64);
    QCOMPARE(target(65), 64 + 6); // the fourth white key plays the raised fourth
}

void TestHeaderRecall::recallOfATonicAloneKeepsTheScale()
{
    window->setPower(true);
    record(25) = {QString(), QString(), QStringLiteral("G"), on, QStringLiteral("G"), off, lydian};
    recall(25);
    QVERIFY(tonic().switchOn && !scale().switchOn);
    QCOMPARE(tonic().tonicModifier(), QStringLiteral("G"));
    QCOMPARE(scale().scaleModifier(), ionian);
    QCOMPARE(target(60), 67);
}

void TestHeaderRecall::recallOfAScaleAloneKeepsTheTonic()
{
    window->setPower(true);
    setTonic("D");
    record(25) = {QString(), QString(), QStringLiteral("G"), off, QStringLiteral("G"), on, lydian};
    recall(25);
    QVERIFY(!tonic().switchOn && scale().switchOn);
    QCOMPARE(tonic().tonicModifierIndex(), 2);
    QCOMPARE(scale().scaleModifier(), lydian);
    QCOMPARE(target(60), 62);
    QCOMPARE(target(65), 62 + 6);
}

void TestHeaderRecall::recallOfAnEmptyHeaderSwitchesBothOff()
{
    window->setPower(true);
    setTonic("D");
    record(25) = {};
    recall(25);
    QVERIFY(!tonic().switchOn && !scale().switchOn);
    QCOMPARE(tonic().tonicModifierIndex(), 2);
    QCOMPARE(scale().scaleModifier(), ionian);
    QCOMPARE(asText(record(25)), asText({}));
}

void TestHeaderRecall::recallOfATonicWithoutAWordStillMapsIt()
{
    window->setPower(true);
    record(25) = {QString(), QString(), QStringLiteral("F"), on, QStringLiteral("F"), on, QString()};
    recall(25);
    QCOMPARE(scale().scaleModifier(), ionian);
    QCOMPARE(target(60), 65);
}

void TestHeaderRecall::statusSaysWhichHeaderIsActive()
{
    for (const int key : {25, highest, lowest, firstActive}) {
        recall(key);
        for (const HeaderItem* item : qAsConst(presets().headers))
            QCOMPARE(item->status(), item == header(key) ? header_active : header_deactive);
    }
}

void TestHeaderRecall::statusActiveRecallsWithoutStore()
{
    window->setPower(true);
    record(25) = fullRecord();
    header(25)->setStatus(header_active);
    QCOMPARE(active(), 25);
    QCOMPARE(header(firstActive)->status(), header_deactive);
    QCOMPARE(scale().scaleModifier(), ionian);
}

void TestHeaderRecall::storePitchPositionTruncates_data()
{
    QTest::addColumn<qreal>("x");
    QTest::addColumn<int>("wanted");
    QTest::newRow("whole") << 34.0 << 34;
    QTest::newRow("right") << 34.9 << 34;
    QTest::newRow("left") << -17.9 << -17;
    QTest::newRow("home") << 0.0 << 0;
}

void TestHeaderRecall::storePitchPositionTruncates()
{
    QFETCH(qreal, x);
    placeAnchors(x);
    header_data data;
    data.anchorPos = 999;
    presets().storePitchPosition(data, true);
    QVERIFY(data.anchorValid);
    QTEST(data.anchorPos, "wanted");
}

void TestHeaderRecall::invalidPitchPositionKeepsTheOldOne()
{
    placeAnchors(34);
    header_data data = fullRecord();
    presets().storePitchPosition(data, false);
    QVERIFY(!data.anchorValid);
    QCOMPARE(data.anchorPos, 51);
}

void TestHeaderRecall::restorePitchPositionMovesRight()
{
    placeAnchors(10);
    header_data data = fullRecord();
    presets().restorePitchPosition(data);
    QCOMPARE(anchors()->pos(), QPointF(61, 7));
    data.anchorPos = -17;
    presets().restorePitchPosition(data);
    QCOMPARE(anchors()->pos(), QPointF(44, 7));
    data.anchorValid = false;
    presets().restorePitchPosition(data);
    QCOMPARE(anchors()->pos(), QPointF(44, 7));
}

void TestHeaderRecall::recallMovesTheAnchors_data()
{
    QTest::addColumn<bool>("oldTonic");
    QTest::addColumn<bool>("newTonic");
    QTest::addColumn<bool>("valid");
    QTest::addColumn<qreal>("before");
    QTest::addColumn<qreal>("after");
    QTest::newRow("to the stored place") << on << on << true << 34.0 << 51.0;
    QTest::newRow("truncated offset") << on << on << true << 34.5 << 51.5;
    QTest::newRow("left of home") << on << on << true << -34.5 << 50.5;
    QTest::newRow("nothing stored: home") << on << on << false << 34.0 << 0.0;
    QTest::newRow("offset counts with the old tonic off") << off << on << true << 34.0 << 51.0;
    QTest::newRow("new tonic off: stays") << on << off << true << 34.0 << 34.0;
}

void TestHeaderRecall::recallMovesTheAnchors()
{
    QFETCH(bool, oldTonic);
    QFETCH(qreal, before);
    window->setPower(true);
    placeAnchors(before);
    if (!oldTonic)
        tonic().setSwitchOff(false);
    record(25) = fullRecord();
    record(25).tonicOn = *static_cast<bool*>(QTest::qData("newTonic", QMetaType::Bool));
    record(25).anchorValid = *static_cast<bool*>(QTest::qData("valid", QMetaType::Bool));
    recall(25);
    QTEST(anchors()->x(), "after");
    QCOMPARE(anchors()->y(), 7.0);
    QCOMPARE(record(firstActive).anchorValid, oldTonic);
    if (oldTonic)
        QCOMPARE(record(firstActive).anchorPos, static_cast<int>(before));
}

QTEST_MAIN(TestHeaderRecall)
#include "test_header_recall.moc"
