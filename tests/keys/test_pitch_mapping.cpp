// The rule of the instrument against a plain statement of itself, and the worked examples of the manual.

#include "MappingRule.h"
#include "keys/pitch_mapping.h"

#include <QtTest>

#include <vector>

using namespace pitch_mapping;

namespace {

Degrees degreesOf(const char* word)
{
    Degrees degrees;
    for (std::size_t n = 0; n < 12; ++n)
        degrees[n] = word[n] == 'x';
    return degrees;
}

Targets mapped(int tonic, const char* word, int shift = 0)
{
    const PitchSet scale = pitchesOf(tonic, degreesOf(word));
    return slide(walk(tonic, scale), scale, shift).targets;
}

using Pairs = std::vector<std::pair<int, int>>;

} // namespace
Q_DECLARE_METATYPE(Pairs)

class TestPitchMapping : public QObject
{
    Q_OBJECT

private slots:
    void workedExamples_data();
    void workedExamples();
    void silentRangesOfTheExamples();
    void everyTonicEveryWordEveryShift();
    void shiftsBeyondTheKeyboard();
    void powerOffIsTheIdentity();
    void seedPlaysTheTonicEvenAloneInItsScale();
    void highestTonicDropsTheSurplusBelow();
    void tailOfASilentEndIsSilent();
    void degreesHoldForEveryPitch();
    void shiftTruncatesTowardsZero();
    void whitesAreFiftyTwo();
};

void TestPitchMapping::workedExamples_data()
{
    QTest::addColumn<int>("tonic");
    QTest::addColumn<QByteArray>("word");
    QTest::addColumn<int>("shift");
    QTest::addColumn<Pairs>("pairs");
    const QByteArray ionian("xoxoxxoxoxox"), pentatonic("xoxoxooxoxoo");
    QTest::newRow("C Ionian") << 0 << ionian << 0 << Pairs{{21, 21}, {59, 59}, {60, 60},  {62, 62},
                                                           {64, 64}, {65, 65}, {108, 108}};
    QTest::newRow("D Ionian") << 2 << ionian << 0
                              << Pairs{{48, 50}, {50, 52},   {52, 54},  {53, 55}, {55, 57},
                                       {57, 59}, {59, 61},   {60, 62},  {62, 64}, {64, 66},
                                       {65, 67}, {67, 69},   {69, 71},  {71, 73}, {72, 74},
                                       {21, 23}, {105, 107}, {107, -1}, {108, -1}};
    QTest::newRow("C pentatonic") << 0 << pentatonic << 0
                                  << Pairs{{60, 60}, {62, 62}, {64, 64}, {65, 67}, {67, 69},
                                           {69, 72}, {71, 74}, {72, 76}, {74, 79}, {59, 57},
                                           {57, 55}, {55, 52}, {53, 50}, {52, 48}, {50, 45},
                                           {48, 43}, {96, -1}, {31, -1}, {21, -1}, {33, 21}};
    QTest::newRow("A pentatonic") << 9 << pentatonic << 0 << Pairs{{60, 69}, {62, 71}, {64, 73}, {65, 76},
                                                                   {67, 78}, {59, 66}, {57, 64}};
    QTest::newRow("anchor two to the left")
        << 0 << ionian << 2
        << Pairs{{60, 64}, {62, 65}, {64, 67}, {103, 107}, {105, 108}, {107, -1}, {108, -1}};
    QTest::newRow("anchor two to the right")
        << 0 << ionian << -2 << Pairs{{60, 57}, {62, 59}, {64, 60}, {108, 105}, {24, 21}, {23, -1}, {21, -1}};
}

void TestPitchMapping::workedExamples()
{
    QFETCH(int, tonic);
    QFETCH(QByteArray, word);
    QFETCH(int, shift);
    QFETCH(Pairs, pairs);
    const Targets targets = mapped(tonic, word.constData(), shift);
    for (const auto& [key, target] : pairs)
        QCOMPARE(targets[indexOf(key)], target);
}

void TestPitchMapping::silentRangesOfTheExamples()
{
    const Targets ionian = mapped(0, "xoxoxxoxoxox"), pentatonic = mapped(0, "xoxoxooxoxoo");
    for (int key = 21; key <= 108; ++key) {
        QCOMPARE(ionian[indexOf(key)], isWhite(key) ? key : -1);
        if (key >= 96 || key <= 31 || !isWhite(key))
            QCOMPARE(pentatonic[indexOf(key)], -1);
        else
            QVERIFY(pentatonic[indexOf(key)] != -1);
    }
}

void TestPitchMapping::everyTonicEveryWordEveryShift()
{
    for (int tonic = 0; tonic < 12; ++tonic)
        for (unsigned word = 0; word < 2048; ++word) {
            const Degrees degrees(word << 1U | 1U);
            const PitchSet scale = pitchesOf(tonic, degrees);
            const Targets straight = walk(tonic, scale);
            const MappingRule rule(tonic, degrees);
            for (int shift = -12; shift <= 12; ++shift) {
                const Targets got = slide(straight, scale, shift).targets;
                const auto expected = shift == 0 ? rule.target : rule.slid(shift, tonic, degrees);
                for (int key = 21; key <= 108; ++key) {
                    const int wanted = isWhite(key) ? expected.at(key) : -1;
                    if (got[indexOf(key)] != wanted)
                        QFAIL(qPrintable(QStringLiteral("tonic %1 word %2 shift %3 key %4: %5, not %6")
                                             .arg(tonic)
                                             .arg(word, 11, 2, QLatin1Char('0'))
                                             .arg(shift)
                                             .arg(key)
                                             .arg(got[indexOf(key)])
                                             .arg(wanted)));
                }
            }
        }
}

void TestPitchMapping::shiftsBeyondTheKeyboard()
{
    const PitchSet scale = pitchesOf(0, degreesOf("xoxoxxoxoxox"));
    const Targets straight = walk(0, scale);
    for (const int shift : {52, 53, 1000}) {
        Targets silent;
        silent.fill(-1);
        QCOMPARE(slide(straight, scale, shift).targets, silent);
        QCOMPARE(slide(straight, scale, -shift).targets, straight);
    }
    QCOMPARE(slide(straight, scale, 51).targets[indexOf(21)], 108);
    QCOMPARE(slide(straight, scale, -51).targets[indexOf(108)], 21);
}

void TestPitchMapping::powerOffIsTheIdentity()
{
    for (int key = 21; key <= 108; ++key)
        QCOMPARE(identity()[indexOf(key)], key);
}

void TestPitchMapping::seedPlaysTheTonicEvenAloneInItsScale()
{
    for (int tonic = 0; tonic < 12; ++tonic) {
        const Targets none = walk(tonic, PitchSet());
        for (int key = 21; key <= 108; ++key)
            QCOMPARE(none[indexOf(key)], key == 60 ? 60 + tonic : -1);
    }
}

void TestPitchMapping::highestTonicDropsTheSurplusBelow()
{
    const Targets targets = mapped(11, "xxxxxxxxxxxx");
    QCOMPARE(targets[indexOf(60)], 71);
    QCOMPARE(targets[indexOf(59)], 70);
    QCOMPARE(targets[indexOf(21)], 71 - 23); // 23 white keys lie below middle C
    QVERIFY(std::find(targets.begin(), targets.end(), 47) == targets.end());
}

void TestPitchMapping::tailOfASilentEndIsSilent()
{
    const PitchSet scale = pitchesOf(0, degreesOf("xoxoxooxoxoo")); // 96 and above are silent
    const Targets straight = walk(0, scale);
    const Targets slid = slide(straight, scale, 3).targets;
    for (const int key : {103, 105, 107, 108})
        QCOMPARE(slid[indexOf(key)], -1);
    QCOMPARE(slide(straight, scale, -3).targets[indexOf(21)], -1);
}

void TestPitchMapping::degreesHoldForEveryPitch()
{
    for (int pitch = -60; pitch < 200; ++pitch)
        for (int tonic = 0; tonic < 12; ++tonic) {
            const int degree = degreeOf(pitch, tonic);
            QVERIFY(degree >= 0 && degree < 12);
            QCOMPARE((pitch - tonic - degree) % 12, 0);
            QCOMPARE(isBlackPitch(pitch), !isWhite(pitch));
        }
}

void TestPitchMapping::shiftTruncatesTowardsZero()
{
    QCOMPARE(shiftOfAnchor(0), 0);
    QCOMPARE(shiftOfAnchor(16.9), 0);
    QCOMPARE(shiftOfAnchor(-16.9), 0);
    QCOMPARE(shiftOfAnchor(17), -1);
    QCOMPARE(shiftOfAnchor(-17), 1);
    QCOMPARE(shiftOfAnchor(-34.5), 2);
}

void TestPitchMapping::whitesAreFiftyTwo()
{
    int n = 0;
    for (int key = 21; key <= 108; ++key)
        if (isWhite(key))
            QCOMPARE(whitePitches()[static_cast<std::size_t>(n++)], key);
    QCOMPARE(n, 52);
}

QTEST_GUILESS_MAIN(TestPitchMapping)
#include "test_pitch_mapping.moc"
