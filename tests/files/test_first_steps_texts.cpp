// What the sample's descriptions claim of its scales, told again as arithmetic on the words.

#include "first_steps.h"
#include "words.h"

#include <QtTest>

namespace {

struct Claim
{
    const char *title, *phrase;
    bool holds;
};

QString word(const char* title)
{
    return first_steps::scaleOf(title).scale;
}

// A phrase that claims two things stands twice.
std::vector<Claim> claims()
{
    using namespace words;
    const auto is = [](const char* title, const QString& other) { return word(title) == other; };
    const char *hira = "Hirajoshi", *miyako = "Miyako-bushi", *kumoi = "Kumoi", *dorian4 = "Dorian #4";
    const char *blues = "Major Blues", *third = "Messiaen's Third Mode", *triad = "Major Triad",
               *minor7 = "Minor Seventh Chord", *melodic = "Melodic Minor (ascending)";
    return {
        {hira, "a scale of five notes", notes(word(hira)).size() == 5},
        {hira, "equivalent to an Aeolian or", is(hira, without(word("Aeolian"), {4, 7}))},
        {hira, "Harmonic Minor scale with the fourth and seventh degrees omitted",
         is(hira, without(word("Harmonic Minor"), {4, 7}))},
        {hira, "Two of its steps are semitones, and two are wide steps of four semitones",
         steps(word(hira)) == std::vector<int>({2, 1, 4, 1, 4})},
        {hira, "The same notes begun on its fourth degree are the Miyako-bushi scale",
         is(miyako, mode(word(hira), 4))},
        {miyako, "is the fourth mode of the Hirajoshi scale", is(miyako, mode(word(hira), 4))},
        {miyako, "a Phrygian scale with the third and seventh degrees omitted",
         is(miyako, without(word("Phrygian"), {3, 7}))},
        {miyako,
         "differs from the Traditional Japanese scale in one note only: its sixth is minor, where that one "
         "has a "
         "minor seventh",
         is("Traditional Japanese", moved(word(miyako), 8, 10))},
        {kumoi, "a scale of five notes", notes(word(kumoi)).size() == 5},
        {kumoi, "equivalent to a Dorian or", is(kumoi, without(word("Dorian"), {4, 7}))},
        {kumoi, "Melodic Minor (ascending) scale with the fourth and seventh degrees omitted",
         is(kumoi, without(word(melodic), {4, 7}))},
        {kumoi, "differs from the Hirajoshi scale in one note only, the major sixth",
         is(kumoi, moved(word(hira), 8, 9))},
        {kumoi, "it has a single semitone", steps(word(kumoi)) == std::vector<int>({2, 1, 4, 2, 3})},
        {dorian4, "is the fourth mode of the Harmonic Minor scale",
         is(dorian4, mode(word("Harmonic Minor"), 4))},
        {dorian4, "a Dorian scale with the fourth degree raised", is(dorian4, moved(word("Dorian"), 5, 6))},
        {dorian4, "a Lydian Dominant scale with the third degree lowered",
         is(dorian4, moved(word("Lydian Dominant"), 4, 3))},
        {dorian4, "Between its third and fourth degrees lies a step of three semitones",
         steps(word(dorian4)).at(2) == 3},
        {blues, "is the second mode of the Blues scale", is(blues, mode(word("Blues"), 2))},
        {blues, "a Major Pentatonic scale with an added minor third",
         is(blues, united(word("Major Pentatonic"), "xooxoooooooo"))},
        {blues, "the notes of the Blues scale whose tonic lies a minor third lower",
         notes(word(blues), 3) == notes(word("Blues"))},
        {third, "this scale of nine notes", notes(word(third)).size() == 9},
        {third, "A whole tone and two semitones follow one another three times over",
         steps(word(third)) == std::vector<int>({2, 1, 1, 2, 1, 1, 2, 1, 1})},
        {third, "only four different transpositions", transpositions(word(third)) == 4},
        {third, "and three modes", modes(word(third)) == 3},
        {third, "It joins three augmented triads",
         is(third, united(united("xoooxoooxooo", "ooxoooxoooxo"), "oooxoooxooox"))},
        {third, "the notes of the Whole Tone scale and of the Augmented scale put together",
         is(third, united(word("Whole Tone"), word("Augmented")))},
        {triad, "the first, third and fifth degrees of the Ionian scale",
         is(triad, only(word("Ionian"), {1, 3, 5}))},
        {minor7, "the first, third, fifth and seventh degrees of the Aeolian",
         is(minor7, only(word("Aeolian"), {1, 3, 5, 7}))},
        {minor7, "Dorian or Phrygian", is(minor7, only(word("Dorian"), {1, 3, 5, 7}))},
        {minor7, "Dorian or Phrygian", is(minor7, only(word("Phrygian"), {1, 3, 5, 7}))},
        {minor7, "stand in the Minor Pentatonic scale",
         includes(notes(word("Minor Pentatonic")), notes(word(minor7)))},
        {minor7, "in the Blues scale as well", includes(notes(word("Blues")), notes(word(minor7)))},
    };
}

} // namespace

class TestFirstStepsTexts : public QObject
{
    Q_OBJECT

private slots:
    void descriptionIsTrue_data();
    void descriptionIsTrue();
};

void TestFirstStepsTexts::descriptionIsTrue_data()
{
    QTest::addColumn<int>("row");
    for (int row = 0; row < static_cast<int>(claims().size()); ++row) {
        const Claim claim = claims().at(static_cast<std::size_t>(row));
        QTest::addRow("%d %s: %s", row, claim.title, claim.phrase) << row;
    }
}

void TestFirstStepsTexts::descriptionIsTrue()
{
    QFETCH(int, row);
    const Claim claim = claims().at(static_cast<std::size_t>(row));
    QVERIFY(first_steps::scaleOf(claim.title).libBody.contains(claim.phrase));
    QVERIFY(claim.holds);
}

QTEST_APPLESS_MAIN(TestFirstStepsTexts)
#include "test_first_steps_texts.moc"
