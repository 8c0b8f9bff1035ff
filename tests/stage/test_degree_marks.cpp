// The numbers along the keyboards as plain values: which degree a pitch is, which pitch bears a degree, and
// the corrections by eye.

#include "AnchorRule.h"
#include "keys/degree_marks.h"

#include <QtTest>

using namespace degree_marks;
using pitch_mapping::Degrees;

namespace {

constexpr int words = 4096;

QString wordOf(int bits)
{
    QString word;
    for (int n = 0; n < 12; ++n)
        word.append(QLatin1Char((bits >> n) & 1 ? 'x' : 'o'));
    return word;
}

Degrees degreesOf(int bits)
{
    return Degrees(static_cast<unsigned long long>(bits));
}

// Row by row, the tonic from C to B.
const QList<QList<int>> table = {
    {0, 1, 1, 1, 3, -1, 1, 1, 1, 1, 1, 2},
    {0, 0, -1, 0, 0, 0, 0, 0, 0, 0, 0, -1},
    {0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0},
    {0, 0, -1, 0, -1, 0, 0, -1, 0, -1, 0, 0},
    {0, 0, 0, 0, 0, 0, 1, 0, 0, 0, 0, 0},
    {-1, -1, -1, -1, -1, -1, -1, -1, -1, -1, -1, -1},
    {0, -1, 0, 0, -1, 1, -1, -1, 0, -1, 0, -1},
    {0, -1, -1, -1, -1, 0, -1, -2, -1, 1, -1, -1},
    {-1, -1, -1, -1, -1, -1, -1, -2, 0, -1, -1, -1},
    {-2, -2, -3, -3, -3, -1, -2, -3, -3, -3, -2, -3},
    {-1, 1, -3, -2, -2, 0, -1, -2, -2, -2, -2, -2},
    {0, -5, -3, -1, -2, 0, -2, -3, -2, -3, -3, -3},
};

} // namespace

class TestDegreeMarks : public QObject
{
    Q_OBJECT

private slots:
    // Degrees
    void numberIsThePlaceAmongTheDegreesFromTheTonic();
    void numberOfAPitchOutsideTheScaleIsNone();
    void numberHoldsForEveryOctave();
    void pitchIsTheLowestOfItsNumberFromTheTonicUp();
    void pitchOfANumberThatTheScaleLacksIsNone();

    // Corrections
    void correctionsAreTheTable();
    void correctionsDoNotDependOnTheCount();
    void eleventhOnCSharpDependsOnTheCount();
    void countBelowOneCorrectsNothingButTheEleventhOnCSharp();
    void ordinalsOutsideOneToTwelveAreNotCorrected();
    void tonicsOutsideTheOctaveAreNotCorrected();
    void marksAreEqualByPlaceAndNumber();
};

void TestDegreeMarks::numberIsThePlaceAmongTheDegreesFromTheTonic()
{
    for (int bits = 0; bits < words; ++bits)
        for (int tonic = 0; tonic < 12; ++tonic) {
            const AnchorRule rule(tonic, wordOf(bits));
            for (int pitch = 60; pitch < 72; ++pitch)
                QCOMPARE(numberOf(pitch, tonic, degreesOf(bits)), rule.numberOfNote(pitch));
        }
}

void TestDegreeMarks::numberOfAPitchOutsideTheScaleIsNone()
{
    const Degrees tonicAlone(1);
    for (int pitch = 21; pitch <= 108; ++pitch)
        QCOMPARE(numberOf(pitch, 2, tonicAlone), pitch % 12 == 2 ? 1 : 0);
    QCOMPARE(numberOf(60, 0, Degrees()), 0);
}

void TestDegreeMarks::numberHoldsForEveryOctave()
{
    const Degrees ionian = degreesOf(0b101010110101);
    for (int pitch = -24; pitch <= 140; ++pitch)
        QCOMPARE(numberOf(pitch, 7, ionian), numberOf(60 + (pitch + 24) % 12, 7, ionian));
}

void TestDegreeMarks::pitchIsTheLowestOfItsNumberFromTheTonicUp()
{
    for (int bits = 1; bits < words; ++bits)
        for (int tonic = 0; tonic < 12; ++tonic) {
            const QList<int> degrees = AnchorRule(tonic, wordOf(bits)).degrees();
            for (int i = 0; i < degrees.size(); ++i)
                QCOMPARE(pitchOf(i + 1, tonic, degreesOf(bits)), 60 + tonic + degrees[i]);
        }
}

void TestDegreeMarks::pitchOfANumberThatTheScaleLacksIsNone()
{
    for (int bits = 0; bits < words; ++bits) {
        const int count = AnchorRule(0, wordOf(bits)).count();
        for (const int number : {-1000, -1, 0, count + 1, 13, 1000})
            QCOMPARE(pitchOf(number, 5, degreesOf(bits)), -1);
    }
}

void TestDegreeMarks::correctionsAreTheTable()
{
    QCOMPARE(table.size(), 12);
    for (int ordinal = 1; ordinal <= 12; ++ordinal)
        for (int tonic = 0; tonic < 12; ++tonic)
            QCOMPARE(outCorrection(tonic, ordinal, 12), table[ordinal - 1][tonic]);
}

void TestDegreeMarks::correctionsDoNotDependOnTheCount()
{
    for (int ordinal = 1; ordinal <= 12; ++ordinal)
        for (int tonic = 0; tonic < 12; ++tonic)
            for (int count = 1; count <= 12; ++count)
                if (ordinal != 11 || tonic != 1)
                    QCOMPARE(outCorrection(tonic, ordinal, count), table[ordinal - 1][tonic]);
}

void TestDegreeMarks::eleventhOnCSharpDependsOnTheCount()
{
    for (int count = 1; count <= 12; ++count)
        QCOMPARE(outCorrection(1, 11, count), count == 11 ? -1 : 1);
}

void TestDegreeMarks::countBelowOneCorrectsNothingButTheEleventhOnCSharp()
{
    for (const int count : {0, -1, -12})
        for (int ordinal = -1; ordinal <= 14; ++ordinal)
            for (int tonic = 0; tonic < 12; ++tonic)
                QCOMPARE(outCorrection(tonic, ordinal, count), ordinal == 11 && tonic == 1 ? 1 : 0);
}

void TestDegreeMarks::ordinalsOutsideOneToTwelveAreNotCorrected()
{
    for (const int ordinal :
         {std::numeric_limits<int>::min(), -1, 0, 13, 14, std::numeric_limits<int>::max()})
        for (int tonic = 0; tonic < 12; ++tonic)
            for (int count = 0; count <= 12; ++count)
                QCOMPARE(outCorrection(tonic, ordinal, count), 0);
}

void TestDegreeMarks::tonicsOutsideTheOctaveAreNotCorrected()
{
    for (const int tonic : {std::numeric_limits<int>::min(), -1, 12, 13, std::numeric_limits<int>::max()})
        for (int ordinal = 0; ordinal <= 13; ++ordinal)
            QCOMPARE(outCorrection(tonic, ordinal, 12), 0);
}

void TestDegreeMarks::marksAreEqualByPlaceAndNumber()
{
    QVERIFY((Mark{3, 1} == Mark{3, 1}));
    QVERIFY(!(Mark{3, 1} == Mark{3, 2}));
    QVERIFY(!(Mark{3, 1} == Mark{4, 1}));
}

QTEST_GUILESS_MAIN(TestDegreeMarks)
#include "test_degree_marks.moc"
