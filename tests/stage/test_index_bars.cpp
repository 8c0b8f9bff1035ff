// The numbers along both keyboards: the degree of the note that each key plays, whatever is chosen and
// however far the anchors were slid.

#include "AnchorFixture.h"
#include "MappingRule.h"
#include "headers/AnchorItem.h"
#include "keys/TonicKeyItem.h"

class TestIndexBars : public AnchorFixture
{
    Q_OBJECT

private slots:
    void init();

    // The input bar
    void everyNumberIsTheDegreeOfTheNote_data();
    void everyNumberIsTheDegreeOfTheNote();
    void everyNumberIsTheDegreeOfTheNotePlayed();
    void everyWordIsNumberedOnBothBars();
    void middleCBearsTheTonicsNumber();
    void keysWithoutANumberAreTheGreyOnes();
    void slidPastTheKeyboardUpwardNothingIsNumbered();
    void powerOffBarsAreBare();
    void numbersFollowThePower();
    void countOfNoDegreesLeavesTheInputBarBare();
    void countThatIsNotGivenIsAsked();

    // The output bar
    void outNumbersRunThroughTheTonicsOctave_data();
    void outNumbersRunThroughTheTonicsOctave();
    void tenthOutNumberStandsTwoPixelsLeft();
    void slidAnchorsLeaveTheOutputBar();

    // The rest of the axis
    void correctionIsAskedOnThePowerItem();
    void countIsThatOfTheDegreesThatAreOn();
    void axisOfAGivenTonicMovesTheOutAnchors();
    void anchorFindsTheWhiteKeyThatItTouches();
    void anchorThatTouchesNoKeyStays();

private:
    AnchorRule::Numbers inBar() const { return asNumbers(power()->marksIn()); }
    AnchorRule::Numbers outBar() const { return asNumbers(power()->marksOut()); }
    /// The number above each white key that has one.
    std::map<int, int> numberAbove() const;
    QStringList words() const;
    static AnchorRule::Numbers corrected(AnchorRule::Numbers numbers, int tonicDegree);
};

// Nothing here needs the screen.
void TestIndexBars::init()
{
    openWindow();
    window->setPower(true);
}

std::map<int, int> TestIndexBars::numberAbove() const
{
    std::map<int, int> found;
    int key = 21;
    qreal left = 0;
    const auto fits = [&](int x) {
        left = window->findInNote(key)->x();
        return isWhite(key) && x >= left && x < left + 17;
    };
    for (const degree_marks::Mark& mark : power()->marksIn()) {
        while (key <= 108 && !fits(mark.x))
            ++key;
        found[key] = key <= 108 ? mark.number : 0;
    }
    return found;
}

QStringList TestIndexBars::words() const
{
    QStringList all;
    for (const QString& category : library().categories())
        all << library().scalesFromCategory(category);
    return all;
}

AnchorRule::Numbers TestIndexBars::corrected(AnchorRule::Numbers numbers, int tonicDegree)
{
    const int count = numbers.size();
    for (auto& [x, number] : numbers)
        x += degree_marks::outCorrection(tonicDegree, number, count);
    return numbers;
}

void TestIndexBars::everyNumberIsTheDegreeOfTheNote_data()
{
    QTest::addColumn<int>("tonicDegree");
    for (int n = 0; n < 12; ++n)
        QTest::addRow("tonic %d", n) << n;
}

// All scales of the library, slid ten keys either way.
void TestIndexBars::everyNumberIsTheDegreeOfTheNote()
{
    QFETCH(int, tonicDegree);
    QCOMPARE(words().size(), 47);
    for (const QString& word : words()) {
        choose(tonicDegree, word);
        for (int shift = -10; shift <= 10; ++shift) {
            putGroup(-17 * shift);
            const AnchorRule wanted(tonicDegree, word, shift);
            QCOMPARE(inBar(), wanted.inBar());
            std::map<int, int> byTarget; // what the program says that it plays, numbered by the scale
            for (int key = 21; key <= 108; ++key) {
                const QGraphicsItem* item = window->findInNote(key);
                if (!isWhite(key))
                    continue;
                QCOMPARE(key_roles::isDeactive(item), key_roles::target(item) == -1);
                if (!key_roles::isDeactive(item))
                    byTarget[key] = wanted.numberOfNote(key_roles::target(item));
            }
            QVERIFY(byTarget == wanted.numbers());
        }
    }
}

// The same by ear, for a sample that meets every tonic, every scale and every slide.
void TestIndexBars::everyNumberIsTheDegreeOfTheNotePlayed()
{
    int turn = 0;
    for (const QString& word : words()) {
        const int tonicDegree = ++turn % 12, shift = 5 * turn % 21 - 10;
        choose(tonicDegree, word);
        putGroup(-17 * shift);
        std::map<int, int> heard;
        for (int key = 21; key <= 108; ++key) {
            if (!isWhite(key))
                continue;
            port->clear();
            window->findInNote(key)->pushKey();
            for (const QList<int>& message : port->takeLists())
                heard[key] = AnchorRule(tonicDegree, word).numberOfNote(message[1]);
            window->findInNote(key)->releaseKey();
        }
        QVERIFY(heard.size() > 20);
        QVERIFY2(heard == numberAbove(), qPrintable(word));
    }
}

void TestIndexBars::everyWordIsNumberedOnBothBars()
{
    for (int bits = 1; bits < 4096; bits += 2) { // the tonic is always on
        QString word;
        for (int n = 0; n < 12; ++n)
            word.append(QLatin1Char((bits >> n) & 1 ? 'x' : 'o'));
        const int tonicDegree = bits % 11;
        choose(tonicDegree, word);
        QCOMPARE(inBar(), AnchorRule(tonicDegree, word).inBar());
        QCOMPARE(outBar(), corrected(AnchorRule(tonicDegree, word).outBar(), tonicDegree));
    }
}

void TestIndexBars::middleCBearsTheTonicsNumber()
{
    for (int n = 0; n < 12; ++n) {
        choose(n, ionian);
        QCOMPARE(numberAbove()[60], 1);
        QCOMPARE(numberAbove()[59], 7);
        QCOMPARE(numberAbove()[62], 2);
        putGroup(17);
        QCOMPARE(numberAbove()[62], 1);
        putGroup(-17);
        QCOMPARE(numberAbove()[59], 1);
        putGroup(0);
    }
}

void TestIndexBars::keysWithoutANumberAreTheGreyOnes()
{
    choose(2, QStringLiteral("xooxoooxoooo"));
    for (const int shift : {-40, -20, -3, 0, 3, 20, 40}) {
        putGroup(-17 * shift);
        const std::map<int, int> numbers = numberAbove();
        for (int key = 21; key <= 108; ++key)
            QCOMPARE(numbers.count(key) == 0,
                     !isWhite(key) || key_roles::isDeactive(window->findInNote(key)));
    }
}

void TestIndexBars::slidPastTheKeyboardUpwardNothingIsNumbered()
{
    putGroup(-17 * 52);
    QVERIFY(inBar().isEmpty());
    putGroup(-17 * 51);
    QCOMPARE(inBar().size(), 1); // A0 plays C8, the last note there is
    QVERIFY(!outBar().isEmpty());
}

void TestIndexBars::powerOffBarsAreBare()
{
    QCOMPARE(inBar().size(), 52);
    window->setPower(false);
    QVERIFY(inBar().isEmpty());
    QVERIFY(outBar().isEmpty());
    choose(4, wholeTone);
    putGroup(34);
    QVERIFY(inBar().isEmpty());
    QVERIFY(outBar().isEmpty());
}

void TestIndexBars::numbersFollowThePower()
{
    choose(7, wholeTone);
    putGroup(51);
    const AnchorRule::Numbers in = inBar(), out = outBar();
    for (int i = 0; i < 3; ++i) {
        window->setPower(false);
        window->setPower(true);
        QCOMPARE(inBar(), in);
        QCOMPARE(outBar(), out);
    }
}

void TestIndexBars::countOfNoDegreesLeavesTheInputBarBare()
{
    for (const int count : {0, -2}) {
        power()->drawIndexesIN(7);
        QVERIFY(!inBar().isEmpty());
        power()->drawIndexesIN(count);
        QVERIFY(inBar().isEmpty());
    }
}

void TestIndexBars::countThatIsNotGivenIsAsked()
{
    const AnchorRule::Numbers wanted = inBar();
    power()->drawIndexesIN(0);
    power()->drawIndexesIN(-1);
    QCOMPARE(inBar(), wanted);
}

void TestIndexBars::outNumbersRunThroughTheTonicsOctave_data()
{
    everyNumberIsTheDegreeOfTheNote_data();
}

void TestIndexBars::outNumbersRunThroughTheTonicsOctave()
{
    QFETCH(int, tonicDegree);
    for (const QString& word : words()) {
        choose(tonicDegree, word);
        QCOMPARE(outBar(), corrected(AnchorRule(tonicDegree, word).outBar(), tonicDegree));
    }
}

// All twelve degrees on C. The tenth is A: moved by 2 as every number is, by 2 as the tenth and by 2 by the
// table.
void TestIndexBars::tenthOutNumberStandsTwoPixelsLeft()
{
    choose(0, QString(12, QLatin1Char('x')));
    const AnchorRule::Numbers numbers = outBar();
    QCOMPARE(numbers.size(), 12);
    const int a4 = qRound(window->findInNote(69)->pairedOutKey->scenePos().x() - power()->anchorBarOut->x());
    const int b4 = qRound(window->findInNote(71)->pairedOutKey->scenePos().x() - power()->anchorBarOut->x());
    QCOMPARE(numbers[9], qMakePair(a4 + 8 - 2 - 2 - 2, 10));
    QCOMPARE(numbers[11], qMakePair(b4 + 8 - 2, 12));
}

void TestIndexBars::slidAnchorsLeaveTheOutputBar()
{
    choose(9, ionian);
    const AnchorRule::Numbers before = outBar();
    for (const int x : {-340, -17, 17, 340}) {
        putGroup(x);
        QCOMPARE(outBar(), before);
    }
}

void TestIndexBars::correctionIsAskedOnThePowerItem()
{
    QCOMPARE(power()->correctCoordAnchorOutByTonic(4, 1, 7), 3);
    QCOMPARE(power()->correctCoordAnchorOutByTonic(1, 12, 12), -5);
    QCOMPARE(power()->correctCoordAnchorOutByTonic(1, 11, 11), -1);
    QCOMPARE(power()->correctCoordAnchorOutByTonic(1, 11, 12), 1);
    QCOMPARE(power()->correctCoordAnchorOutByTonic(1, 11, 0), 1);
    QCOMPARE(power()->correctCoordAnchorOutByTonic(4, 1, 0), 0);
    QCOMPARE(power()->correctCoordAnchorOutByTonic(4, 13, 7), 0);
}

void TestIndexBars::countIsThatOfTheDegreesThatAreOn()
{
    for (const bool flag : {true, false})
        for (int count = 1; count <= 12; ++count) {
            choose(count % 12, wordOf(count));
            QCOMPARE(power()->getCurScaleCount(flag), count);
        }
    window->setPower(false); // the selectors keep what they show
    QCOMPARE(power()->getCurScaleCount(false), 12);
}

void TestIndexBars::axisOfAGivenTonicMovesTheOutAnchors()
{
    const auto tip = [this] { return power()->mainAnchorOut->mapToScene(QPointF(23, 0)).x(); };
    const auto leftOf = [this](int note) { return window->findInNote(note)->pairedOutKey->scenePos().x(); };
    power()->redrawAnchorAxis(-1);
    QCOMPARE(tip(), leftOf(60));
    power()->redrawAnchorAxis(4);
    QCOMPARE(tip(), leftOf(64));
    choose(7, ionian);
    QCOMPARE(tip(), leftOf(67));
    power()->redrawAnchorAxis(0);
    QCOMPARE(tip(), leftOf(60));
    power()->redrawAnchorAxis(-1);
    QCOMPARE(tip(), leftOf(67));
}

void TestIndexBars::anchorFindsTheWhiteKeyThatItTouches()
{
    for (int key = 21; key <= 108; ++key) {
        if (!isWhite(key))
            continue;
        auto* anchor = new AnchorItem;
        anchor->addToGroup(new QGraphicsRectItem(-1, 0, 2, 2));
        scene()->addItem(anchor);
        anchor->setPos(window->findInNote(key)->pos() + QPointF(6, 90));
        power()->findPosForAnchor(anchor);
        QCOMPARE(anchor->sceneBoundingRect().center().x(), window->findInNote(key)->x());
        delete anchor;
    }
}

void TestIndexBars::anchorThatTouchesNoKeyStays()
{
    AnchorItem anchor;
    anchor.addToGroup(new QGraphicsRectItem(-1, 0, 2, 2));
    scene()->addItem(&anchor);
    anchor.setPos(100, 170);
    power()->findPosForAnchor(&anchor);
    QCOMPARE(anchor.pos(), QPointF(100, 170));
    scene()->removeItem(&anchor);
}

QTEST_MAIN(TestIndexBars)
#include "test_index_bars.moc"
