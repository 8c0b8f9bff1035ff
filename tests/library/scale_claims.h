#pragma once

#include <utility>
#include <vector>

// What the factory descriptions say of the notes of a scale, told again in a form that a test can follow.
// A phrase that claims two things stands twice.

namespace scale_claims {

/// What the title's scale is said to be or to hold. Degrees count from 1, semitones from 0 at the tonic.
enum class Kind {
    modeOf,          ///< the mode on that degree of each named scale
    otherModeOf,     ///< another mode of it, of no told degree
    notModeOf,       ///< none of its modes
    omitting,        ///< each named scale without those degrees
    altering,        ///< each named scale with degrees raised (n) or lowered (-n) by a semitone
    adding,          ///< the named scale and one more note, in semitones
    uniting,         ///< the named scales together
    sameNotesOn,     ///< the notes of the named scale on a tonic that many semitones higher
    partOf,          ///< all of its notes stand in the named scale
    holdsAllOthers,  ///< every scale of the tables is a part of it
    differsInOne,    ///< as many notes as the named scale, all but one the same
    sharesLetters,   ///< the word's letters from the first number to the second are those of the named scale
    palindrome,      ///< the steps read the same upward and downward
    transpositions,  ///< as many transpositions differ
    modes,           ///< as many modes differ
    modesFillBlock,  ///< its modes are the scales of its category, each once
    ownComplement,   ///< the notes that it leaves out are the same scale on another tonic
    noteCount,       ///< as many notes
    steps,           ///< all of its steps, in semitones
    firstSteps,      ///< how it begins
    stepAt,          ///< the step above a degree: degree, semitones
    stepCount,       ///< how many steps are of a size: semitones, count
    exactly,         ///< these notes and no others
    holds,           ///< these notes among others
    lacks,           ///< none of these notes
    everyOther,      ///< the notes of its odd degrees
    chordRoots,      ///< all notes on which `chord` can be built, in semitones
    alternateTriads, ///< first, third and fifth of any degree make this chord
    onlyModeWith,    ///< alone among its modes has that degree at that height: degree, semitones
    onlyModeLacking, ///< alone among the modes of the named scale has not that note
    brightestWith,   ///< the highest notes in sum among those of its modes that hold that note
    fifthsInARow,    ///< its notes are neighbours in the circle of fifths
    partials,        ///< each lies within 0.6 semitones of a note, and they meet all notes
    melakarta        ///< the parent scale of that number in Carnatic music
};

struct Claim
{
    using Titles = std::vector<const char*>;
    using Numbers = std::vector<int>;

    Claim(const char* ofTitle, const char* text, Kind what, Titles others = {}, Numbers values = {},
          Numbers chordNotes = {})
        : title(ofTitle), phrase(text), kind(what), of(std::move(others)), numbers(std::move(values)),
          chord(std::move(chordNotes))
    {
    }

    const char *title, *phrase;
    Kind kind;
    Titles of;       ///< the scales that it is compared with
    Numbers numbers; ///< as the kind says
    Numbers chord;   ///< semitones above the chord's root
};

inline constexpr const char* melodicMinor = "Melodic Minor (ascending)";
inline constexpr const char* dimHalfWhole = "Diminished Half-/Whole Tone";
inline constexpr const char* dimWholeHalf = "Diminished Whole-/Half Tone";

inline const std::vector<Claim> claims = {
    Claim("Lydian", "is the fourth mode of the Ionian scale", Kind::modeOf, {"Ionian"}, {4}),
    Claim("Lydian", "equivalent to an Ionian scale with the fourth degree raised", Kind::altering, {"Ionian"},
          {4}),
    Claim("Lydian", "the only one of the seven modes with an augmented fourth above the tonic",
          Kind::onlyModeWith, {}, {4, 6}),
    Claim("Lydian", "The raised fourth takes away the pull of the subdominant", Kind::holds, {}, {6}),
    Claim("Lydian", "The raised fourth takes away the pull of the subdominant", Kind::lacks, {}, {5}),
    Claim("Lydian", "played over major seventh chords", Kind::holds, {}, {0, 4, 7, 11}),

    Claim("Ionian",
          "semitones between the third and fourth degrees and between the seventh degree and the octave; all "
          "other steps are whole tones",
          Kind::steps, {}, {2, 2, 1, 2, 2, 2, 1}),
    Claim("Ionian", "The six other modes of this category hold the same notes begun on another degree",
          Kind::modesFillBlock),
    Claim("Ionian", "triads on the first, fourth and fifth degrees are major", Kind::chordRoots, {},
          {0, 5, 7}, {0, 4, 7}),
    Claim("Ionian", "its leading tone", Kind::holds, {}, {11}),
    Claim("Ionian", "is the major scale", Kind::exactly, {}, {0, 2, 4, 5, 7, 9, 11}),

    Claim("Mixolydian", "is the fifth mode of the Ionian scale", Kind::modeOf, {"Ionian"}, {5}),
    Claim("Mixolydian", "equivalent to an Ionian scale with the seventh degree lowered", Kind::altering,
          {"Ionian"}, {-7}),
    Claim("Mixolydian", "Without a leading tone", Kind::lacks, {}, {11}),
    Claim("Mixolydian", "the major triad a whole tone below the tonic", Kind::holds, {}, {10, 2, 5}),
    Claim("Mixolydian", "a dominant seventh chord, whose four notes it contains", Kind::holds, {},
          {0, 4, 7, 10}),

    Claim("Dorian", "is the second mode of the Ionian scale", Kind::modeOf, {"Ionian"}, {2}),
    Claim("Dorian", "equivalent to an Aeolian scale with the sixth degree raised", Kind::altering,
          {"Aeolian"}, {6}),
    Claim("Dorian", "Its steps read the same upward and downward", Kind::palindrome),
    Claim("Dorian", "the brightest of the modes of this category with a minor third", Kind::brightestWith, {},
          {3}),
    Claim("Dorian", "gives it a major triad on the fourth degree", Kind::holds, {}, {5, 9, 0}),
    Claim("Dorian", "the usual scale for minor seventh chords", Kind::holds, {}, {0, 3, 7, 10}),
    Claim("Dorian", "The major sixth", Kind::holds, {}, {9}),

    Claim("Aeolian", "is the sixth mode of the Ionian scale", Kind::modeOf, {"Ionian"}, {6}),
    Claim("Aeolian", "holds the notes of its relative major scale, whose tonic lies a minor third higher",
          Kind::sameNotesOn, {"Ionian"}, {3}),
    Claim("Aeolian", "equivalent to a Dorian scale with the sixth degree lowered", Kind::altering, {"Dorian"},
          {-6}),
    Claim("Aeolian", "Its seventh degree lies a whole tone below the tonic", Kind::stepAt, {}, {7, 2}),
    Claim("Aeolian", "the natural minor scale", Kind::exactly, {}, {0, 2, 3, 5, 7, 8, 10}),

    Claim("Phrygian", "is the third mode of the Ionian scale", Kind::modeOf, {"Ionian"}, {3}),
    Claim("Phrygian", "equivalent to an Aeolian scale with the second degree lowered", Kind::altering,
          {"Aeolian"}, {-2}),
    Claim("Phrygian", "The note a semitone above the tonic", Kind::stepAt, {}, {1, 1}),

    Claim("Locrian", "is the seventh mode of the Ionian scale", Kind::modeOf, {"Ionian"}, {7}),
    Claim("Locrian", "equivalent to a Phrygian scale with the fifth degree lowered", Kind::altering,
          {"Phrygian"}, {-5}),
    Claim("Locrian", "the only mode of the major scale without a perfect fifth above the tonic",
          Kind::onlyModeLacking, {"Ionian"}, {7}),
    Claim("Locrian", "its tonic triad is diminished", Kind::holds, {}, {0, 3, 6}),
    Claim("Locrian", "over half-diminished seventh chords", Kind::holds, {}, {0, 3, 6, 10}),

    Claim("Lydian Augmented", "is the third mode of the Melodic Minor (ascending) scale", Kind::modeOf,
          {melodicMinor}, {3}),
    Claim("Lydian Augmented", "equivalent to a Lydian scale with the fifth degree raised", Kind::altering,
          {"Lydian"}, {5}),
    Claim("Lydian Augmented", "begins with four whole tones in a row", Kind::firstSteps, {}, {2, 2, 2, 2}),
    Claim("Lydian Augmented", "four whole tones in a row, which bring it close to the Whole Tone scale",
          Kind::sharesLetters, {"Whole Tone"}, {0, 8}),
    Claim("Lydian Augmented", "its tonic triad is augmented", Kind::holds, {}, {0, 4, 8}),
    Claim("Lydian Augmented", "played over major seventh chords with a raised fifth", Kind::holds, {},
          {0, 4, 8, 11}),
    Claim("Lydian Augmented",
          "a C major seventh chord with a G sharp takes the notes of the A melodic minor scale",
          Kind::sameNotesOn, {melodicMinor}, {9}),
    Claim("Lydian Augmented", "improvisation over a major seventh chord with a raised fifth", Kind::holds, {},
          {0, 4, 8, 11}),

    Claim("Lydian Dominant", "is the fourth mode of the Melodic Minor (ascending) scale", Kind::modeOf,
          {melodicMinor}, {4}),
    Claim("Lydian Dominant", "equivalent to a Lydian scale with the seventh degree lowered", Kind::altering,
          {"Lydian"}, {-7}),
    Claim("Lydian Dominant", "or to a Mixolydian scale with the fourth degree raised", Kind::altering,
          {"Mixolydian"}, {4}),
    Claim("Lydian Dominant",
          "Its notes are likened to the eighth to fourteenth partials of the overtone series", Kind::partials,
          {}, {8, 9, 10, 11, 12, 13, 14}),
    Claim("Lydian Dominant", "the scale for a dominant seventh chord", Kind::holds, {}, {0, 4, 7, 10}),

    Claim("Fifth Mode", "is the fifth mode of the Melodic Minor (ascending) scale", Kind::modeOf,
          {melodicMinor}, {5}),
    Claim("Fifth Mode", "equivalent to a Mixolydian scale with the sixth degree lowered", Kind::altering,
          {"Mixolydian"}, {-6}),
    Claim("Fifth Mode", "or to an Aeolian scale with the third degree raised", Kind::altering, {"Aeolian"},
          {3}),
    Claim("Fifth Mode", "Its lower half is major", Kind::sharesLetters, {"Ionian"}, {0, 6}),
    Claim("Fifth Mode", "its upper half is minor", Kind::sharesLetters, {"Aeolian"}, {6, 11}),
    Claim("Fifth Mode", "its steps read the same upward and downward", Kind::palindrome),
    Claim("Fifth Mode", "the parent scale Charukesi", Kind::melakarta, {}, {26}),
    Claim("Fifth Mode", "suits a dominant seventh chord", Kind::holds, {}, {0, 4, 7, 10}),

    Claim(melodicMinor, "is equivalent to an Ionian scale with the third degree lowered", Kind::altering,
          {"Ionian"}, {-3}),
    Claim(melodicMinor,
          "the raised sixth and seventh degrees lead smoothly to the tonic, while the way down usually takes "
          "the notes of the Aeolian scale",
          Kind::altering, {"Aeolian"}, {6, 7}),
    Claim(melodicMinor, "its modes fill this category", Kind::modesFillBlock),
    Claim(melodicMinor, "the parent scale Gourimanohari", Kind::melakarta, {}, {23}),

    Claim("Locrian #2", "is the sixth mode of the Melodic Minor (ascending) scale", Kind::modeOf,
          {melodicMinor}, {6}),
    Claim("Locrian #2", "equivalent to a Locrian scale with the second degree raised", Kind::altering,
          {"Locrian"}, {2}),
    Claim("Locrian #2", "or to an Aeolian scale with the fifth degree lowered", Kind::altering, {"Aeolian"},
          {-5}),
    Claim("Locrian #2", "gives the half-diminished seventh chord a major ninth", Kind::holds, {},
          {0, 3, 6, 10, 2}),
    Claim("Locrian #2", "The major second makes it milder than the Locrian scale", Kind::altering,
          {"Locrian"}, {2}),
    Claim("Locrian #2",
          "on the second degree of a minor key, though its own second is then the major third of the key",
          Kind::holds, {}, {2}),
    Claim("Locrian #2", "With C as its tonic it has the notes of the E flat melodic minor scale",
          Kind::sameNotesOn, {melodicMinor}, {3}),

    Claim("Phrygian #6", "is the second mode of the Melodic Minor (ascending) scale", Kind::modeOf,
          {melodicMinor}, {2}),
    Claim("Phrygian #6", "equivalent to a Phrygian scale with the sixth degree raised", Kind::altering,
          {"Phrygian"}, {6}),
    Claim("Phrygian #6", "or to a Dorian scale with the second degree lowered", Kind::altering, {"Dorian"},
          {-2}),
    Claim("Phrygian #6", "the parent scale Natakapriya", Kind::melakarta, {}, {10}),
    Claim("Phrygian #6", "the dark semitone above the tonic", Kind::stepAt, {}, {1, 1}),
    Claim("Phrygian #6", "the brighter sixth of the Dorian scale", Kind::sharesLetters, {"Dorian"}, {8, 9}),
    Claim("Phrygian #6", "dominant seventh chord with suspended fourth and lowered ninth", Kind::holds, {},
          {0, 5, 7, 10, 1}),

    Claim("Altered", "is the seventh mode of the Melodic Minor (ascending) scale", Kind::modeOf,
          {melodicMinor}, {7}),
    Claim("Altered", "equivalent to a Locrian scale with the fourth degree lowered", Kind::altering,
          {"Locrian"}, {-4}),
    Claim("Altered",
          "Besides the root, the major third and the minor seventh of a dominant chord it holds all four "
          "alterations: the lowered and the raised fifth and the lowered and the raised ninth",
          Kind::exactly, {}, {0, 4, 10, 6, 8, 1, 3}),
    Claim("Altered", "begins like the Diminished Half-/Whole Tone scale", Kind::sharesLetters, {dimHalfWhole},
          {0, 6}),
    Claim("Altered", "ends like the Whole Tone scale", Kind::sharesLetters, {"Whole Tone"}, {6, 11}),
    Claim("Altered", "With C as its tonic it has the notes of the D flat melodic minor scale",
          Kind::sameNotesOn, {melodicMinor}, {1}),

    Claim("Whole Tone", "divides the octave into six equal steps", Kind::steps, {}, {2, 2, 2, 2, 2, 2}),
    Claim("Whole Tone", "All of its modes are alike", Kind::modes, {}, {1}),
    Claim("Whole Tone", "there are only two different transpositions", Kind::transpositions, {}, {2}),
    Claim("Whole Tone", "every triad built from its alternate degrees is augmented", Kind::alternateTriads,
          {}, {}, {0, 4, 8}),
    Claim("Whole Tone", "played over dominant seventh chords with a raised fifth", Kind::holds, {},
          {0, 4, 8, 10}),

    Claim(dimWholeHalf, "an eight-note scale", Kind::noteCount, {}, {8}),
    Claim(dimWholeHalf, "whole tones and semitones in turn, beginning with a whole tone", Kind::steps, {},
          {2, 1, 2, 1, 2, 1, 2, 1}),
    Claim(dimWholeHalf, "joins two diminished seventh chords whose roots lie a whole tone apart",
          Kind::exactly, {}, {0, 3, 6, 9, 2, 5, 8, 11}),
    Claim(dimWholeHalf, "There are only three different transpositions", Kind::transpositions, {}, {3}),
    Claim(dimWholeHalf, "it has only two modes", Kind::modes, {}, {2}),
    Claim(dimWholeHalf, "of which the other one is the Diminished Half-/Whole Tone scale", Kind::otherModeOf,
          {dimHalfWhole}),
    Claim(dimWholeHalf, "played over diminished seventh chords", Kind::holds, {}, {0, 3, 6, 9}),

    Claim(dimHalfWhole, "is the second mode of the Diminished Whole-/Half Tone scale", Kind::modeOf,
          {dimWholeHalf}, {2}),
    Claim(dimHalfWhole, "an eight-note scale", Kind::noteCount, {}, {8}),
    Claim(dimHalfWhole, "semitones and whole tones in turn, beginning with a semitone", Kind::steps, {},
          {1, 2, 1, 2, 1, 2, 1, 2}),
    Claim(dimHalfWhole, "major and minor triads on four of its degrees, a minor third apart from one another",
          Kind::chordRoots, {}, {0, 3, 6, 9}, {0, 4, 7}),
    Claim(dimHalfWhole, "major and minor triads on four of its degrees, a minor third apart from one another",
          Kind::chordRoots, {}, {0, 3, 6, 9}, {0, 3, 7}),
    Claim(dimHalfWhole, "diminished triads on all eight", Kind::chordRoots, {}, {0, 1, 3, 4, 6, 7, 9, 10},
          {0, 3, 6}),
    Claim(dimHalfWhole, "dominant seventh chords with a lowered ninth and a natural thirteenth", Kind::holds,
          {}, {0, 4, 7, 10, 1, 9}),
    Claim(dimHalfWhole, "the chord of C major and F sharp major, all of whose notes stand in this scale",
          Kind::holds, {}, {0, 4, 7, 6, 10, 1}),

    Claim("Man Gong", "is the third mode of the Major Pentatonic scale", Kind::modeOf, {"Major Pentatonic"},
          {3}),
    Claim("Man Gong",
          "equivalent to an Aeolian, Phrygian, or Locrian scale with the second and fifth degrees omitted",
          Kind::omitting, {"Aeolian", "Phrygian", "Locrian"}, {2, 5}),
    Claim("Man Gong", "the only mode of the Major Pentatonic which lacks a perfect fifth above the tonic",
          Kind::onlyModeLacking, {"Major Pentatonic"}, {7}),
    Claim("Man Gong", "heard as the dominant of a Minor Pentatonic scale", Kind::sameNotesOn,
          {"Minor Pentatonic"}, {5}),

    Claim("Minor Pentatonic", "is the fifth mode of the Major Pentatonic scale", Kind::modeOf,
          {"Major Pentatonic"}, {5}),
    Claim("Minor Pentatonic",
          "equivalent to an Aeolian, Dorian, or Phrygian scale with the second and sixth degrees omitted",
          Kind::omitting, {"Aeolian", "Dorian", "Phrygian"}, {2, 6}),
    Claim("Minor Pentatonic", "Having no semitones", Kind::stepCount, {}, {1, 0}),
    Claim("Minor Pentatonic", "in Chinese music as the Yu mode", Kind::exactly, {}, {0, 3, 5, 7, 10}),
    Claim("Minor Pentatonic", "the ground of the Blues scale", Kind::partOf, {"Blues"}),

    Claim("Suspended Pentatonic", "is the second mode of the Major Pentatonic scale", Kind::modeOf,
          {"Major Pentatonic"}, {2}),
    Claim("Suspended Pentatonic",
          "equivalent to an Aeolian, Dorian, or Mixolydian scale with the third and sixth degrees omitted",
          Kind::omitting, {"Aeolian", "Dorian", "Mixolydian"}, {3, 6}),
    Claim("Suspended Pentatonic", "Without a third it is neither major nor minor", Kind::lacks, {}, {3, 4}),
    Claim("Suspended Pentatonic", "its notes can all be stacked in fourths or fifths", Kind::fifthsInARow),
    Claim("Suspended Pentatonic",
          "In China it is the Shang mode, in Carnatic music Raga Madhyamavati, and in Hindustani music the "
          "notes of Raga Megh",
          Kind::exactly, {}, {0, 2, 5, 7, 10}),
    Claim("Suspended Pentatonic", "dominant chords with a suspended fourth", Kind::holds, {}, {0, 5, 7, 10}),

    Claim("Yo", "is the fourth mode of the Major Pentatonic scale", Kind::modeOf, {"Major Pentatonic"}, {4}),
    Claim("Yo",
          "equivalent to a Dorian, Ionian, or Mixolydian scale with the third and seventh degrees omitted",
          Kind::omitting, {"Dorian", "Ionian", "Mixolydian"}, {3, 7}),
    Claim("Yo", "scales without semitones", Kind::stepCount, {}, {1, 0}),
    Claim("Yo",
          "the same notes form the Zhi mode, and in India Raga Durga of the north and Raga Shuddha Saveri of "
          "the south",
          Kind::exactly, {}, {0, 2, 5, 7, 9}),
    Claim("Yo", "Lacking a third", Kind::lacks, {}, {3, 4}),

    Claim("Dominant Pentatonic",
          "equivalent to a Mixolydian or Lydian Dominant scale with the fourth and sixth degrees omitted",
          Kind::omitting, {"Mixolydian", "Lydian Dominant"}, {4, 6}),
    Claim("Dominant Pentatonic", "it is not a mode of the Major Pentatonic scale", Kind::notModeOf,
          {"Major Pentatonic"}),
    Claim("Dominant Pentatonic", "Its five notes are those of a dominant ninth chord", Kind::exactly, {},
          {0, 4, 7, 10, 2}),
    Claim("Dominant Pentatonic",
          "come near to the fourth, fifth, sixth, seventh and ninth partials of the overtone series",
          Kind::partials, {}, {4, 5, 6, 7, 9}),

    Claim("Major Pentatonic",
          "equivalent to an Ionian, Lydian, or Mixolydian scale with the fourth and seventh degrees omitted",
          Kind::omitting, {"Ionian", "Lydian", "Mixolydian"}, {4, 7}),
    Claim("Major Pentatonic", "five in a row of the circle of fifths", Kind::fifthsInARow),
    Claim("Major Pentatonic", "no two of them stand a semitone apart", Kind::stepCount, {}, {1, 0}),
    Claim("Major Pentatonic", "the Gong mode of China and Raga Bhupali of northern India", Kind::exactly, {},
          {0, 2, 4, 7, 9}),

    Claim("Blues",
          "is a Minor Pentatonic scale with an added sixth note, the tritone between the fourth and the "
          "fifth degrees",
          Kind::adding, {"Minor Pentatonic"}, {6}),
    Claim("Blues", "its minor third", Kind::holds, {}, {3}),
    Claim("Blues", "the major third of the chord", Kind::lacks, {}, {4}),

    Claim("Bebop Dominant",
          "is a Mixolydian scale with an added major seventh between the minor seventh and the octave",
          Kind::adding, {"Mixolydian"}, {11}),
    Claim("Bebop Dominant", "With eight notes to the octave", Kind::noteCount, {}, {8}),
    Claim("Bebop Dominant", "between the minor seventh and the octave", Kind::holds, {}, {10, 11}),
    Claim("Bebop Dominant",
          "has the notes of the dominant seventh chord on every beat, and the added note falls between the "
          "beats",
          Kind::everyOther, {}, {0, 4, 7, 10}),

    Claim("Bebop Major", "is an Ionian scale with an added note between the fifth and the sixth degrees",
          Kind::adding, {"Ionian"}, {8}),
    Claim("Bebop Major",
          "Its eight notes are those of a major sixth chord and of the diminished seventh chord on the "
          "leading tone",
          Kind::exactly, {}, {0, 4, 7, 9, 11, 2, 5, 8}),
    Claim("Bebop Major", "one chord filling the gaps of the other", Kind::everyOther, {}, {0, 4, 7, 9}),
    Claim("Bebop Major", "used in jazz over major chords", Kind::holds, {}, {0, 4, 7}),

    Claim("Bebop Melodic Minor",
          "is a Melodic Minor (ascending) scale with an added note between the fifth and the sixth degrees",
          Kind::adding, {melodicMinor}, {8}),
    Claim("Bebop Melodic Minor",
          "Its eight notes are those of a minor sixth chord and of the diminished seventh chord on the "
          "leading tone",
          Kind::exactly, {}, {0, 3, 7, 9, 11, 2, 5, 8}),
    Claim("Bebop Melodic Minor", "one chord filling the gaps of the other", Kind::everyOther, {},
          {0, 3, 7, 9}),
    Claim("Bebop Melodic Minor", "used in jazz over minor sixth chords", Kind::holds, {}, {0, 3, 7, 9}),
    Claim("Bebop Melodic Minor", "differs from the Bebop Major scale in the third only", Kind::altering,
          {"Bebop Major"}, {-3}),

    Claim("Bebop Minor", "is a Dorian scale with an added major third between the minor third and the fourth",
          Kind::adding, {"Dorian"}, {4}),
    Claim("Bebop Minor", "the fifth mode of the Bebop Dominant scale", Kind::modeOf, {"Bebop Dominant"}, {5}),
    // The dominant chord stands a fourth above the tonic.
    Claim("Bebop Minor",
          "in a progression from the second to the fifth degree of a key, one line in these notes fits both "
          "the minor seventh chord and the dominant chord that follows it",
          Kind::holds, {}, {0, 3, 7, 10, 5, 9}),
    Claim("Bebop Minor",
          "The added note keeps the chord notes of that dominant chord, not those of the minor seventh "
          "chord, on the beat; over the minor seventh chord it is a passing note",
          Kind::everyOther, {}, {5, 9, 0, 3}),

    Claim("Harmonic Major", "equivalent to an Ionian scale with the sixth degree lowered", Kind::altering,
          {"Ionian"}, {-6}),
    Claim("Harmonic Major", "or to a Harmonic Minor scale with the third degree raised", Kind::altering,
          {"Harmonic Minor"}, {3}),
    Claim("Harmonic Major", "The step of three semitones between its sixth and seventh degrees", Kind::stepAt,
          {}, {6, 3}),
    Claim("Harmonic Major", "gives its upper half the colour of the Harmonic Minor scale",
          Kind::sharesLetters, {"Harmonic Minor"}, {6, 11}),
    Claim("Harmonic Major", "over a major triad", Kind::holds, {}, {0, 4, 7}),
    Claim("Harmonic Major", "the minor subdominant", Kind::holds, {}, {5, 8, 0}),
    Claim("Harmonic Major", "the parent scale Sarasangi", Kind::melakarta, {}, {27}),

    Claim("Harmonic Minor", "equivalent to an Aeolian scale with the seventh degree raised", Kind::altering,
          {"Aeolian"}, {7}),
    Claim("Harmonic Minor", "The raised degree is the leading tone of the major dominant chord", Kind::holds,
          {}, {7, 11, 2}),
    Claim("Harmonic Minor", "it holds the notes of the common chords of a minor key in classical harmony",
          Kind::exactly, {}, {0, 3, 7, 5, 8, 11, 2}),
    Claim("Harmonic Minor", "The step of three semitones between its sixth and seventh degrees", Kind::stepAt,
          {}, {6, 3}),
    Claim("Harmonic Minor", "the parent scale Keeravani", Kind::melakarta, {}, {21}),

    Claim("Double Harmonic Major", "equivalent to a Harmonic Major scale with the second degree lowered",
          Kind::altering, {"Harmonic Major"}, {-2}),
    Claim("Double Harmonic Major", "It has two steps of three semitones, each with a semitone on either side",
          Kind::steps, {}, {1, 3, 1, 2, 1, 3, 1}),
    Claim("Double Harmonic Major", "its steps read the same upward and downward", Kind::palindrome),
    Claim("Double Harmonic Major", "the parent scale Mayamalavagowla", Kind::melakarta, {}, {15}),

    Claim("Hungarian Major", "equivalent to a Lydian Dominant scale with the second degree raised",
          Kind::altering, {"Lydian Dominant"}, {2}),
    Claim("Hungarian Major", "or to a Diminished Half-/Whole Tone scale with the second degree omitted",
          Kind::omitting, {dimHalfWhole}, {2}),
    Claim("Hungarian Major", "begins with a step of three semitones", Kind::firstSteps, {}, {3}),
    Claim("Hungarian Major", "the minor third, heard as a raised second, stands beside the major third",
          Kind::holds, {}, {3, 4}),
    Claim("Hungarian Major", "the parent scale Nasikabhushani", Kind::melakarta, {}, {70}),
    Claim("Hungarian Major", "a dominant seventh chord with a raised ninth and a raised eleventh",
          Kind::holds, {}, {0, 4, 7, 10, 3, 6}),

    Claim("Prometheus", "a scale of six notes", Kind::noteCount, {}, {6}),
    Claim("Prometheus", "equivalent to a Lydian Dominant scale with the fifth degree omitted", Kind::omitting,
          {"Lydian Dominant"}, {5}),
    Claim("Prometheus", "differs from the Whole Tone scale in one note only", Kind::differsInOne,
          {"Whole Tone"}),
    Claim("Prometheus", "holds the notes of the so-called mystic chord", Kind::exactly, {},
          {0, 6, 10, 4, 9, 2}),
    Claim("Prometheus", "Without a fifth the tonic hovers, as in the Whole Tone scale", Kind::lacks, {}, {7}),

    Claim("Major Locrian", "is the fifth mode of the Neapolitan Major scale", Kind::modeOf,
          {"Neapolitan Major"}, {5}),
    Claim("Major Locrian", "equivalent to a Locrian scale with the second and third degrees raised",
          Kind::altering, {"Locrian"}, {2, 3}),
    Claim("Major Locrian", "or to a Whole Tone scale with an added perfect fourth", Kind::adding,
          {"Whole Tone"}, {5}),
    Claim("Major Locrian", "Its lower half is that of the major scale", Kind::sharesLetters, {"Ionian"},
          {0, 5}),
    Claim("Major Locrian", "its fifth, sixth and seventh degrees are those of the Locrian scale",
          Kind::sharesLetters, {"Locrian"}, {6, 11}),
    Claim("Major Locrian", "a dominant seventh chord that has both a lowered and a raised fifth", Kind::holds,
          {}, {0, 4, 10, 6, 8}),
    Claim("Major Locrian", "improvisation over a dominant seventh chord with a lowered fifth", Kind::holds,
          {}, {0, 4, 6, 10}),

    Claim("Hungarian Gypsy", "is the fourth mode of the Double Harmonic Major scale", Kind::modeOf,
          {"Double Harmonic Major"}, {4}),
    Claim("Hungarian Gypsy", "equivalent to a Harmonic Minor scale with the fourth degree raised",
          Kind::altering, {"Harmonic Minor"}, {4}),
    Claim("Hungarian Gypsy", "Its two steps of three semitones", Kind::stepCount, {}, {3, 2}),
    Claim("Hungarian Gypsy", "the same notes as the parent scale Simhendramadhyamam", Kind::melakarta, {},
          {57}),

    Claim("Traditional Japanese", "a scale of five notes", Kind::noteCount, {}, {5}),
    Claim("Traditional Japanese", "equivalent to a Phrygian scale with the third and sixth degrees omitted",
          Kind::omitting, {"Phrygian"}, {3, 6}),
    Claim("Traditional Japanese",
          "The semitone above the tonic and the empty space of four semitones that follows it",
          Kind::firstSteps, {}, {1, 4}),
    Claim("Traditional Japanese",
          "the same notes form Raga Bairagi of the north and Raga Revati of the south", Kind::exactly, {},
          {0, 1, 5, 7, 10}),

    Claim("Iwato", "a scale of five notes", Kind::noteCount, {}, {5}),
    Claim("Iwato", "equivalent to a Locrian scale with the third and sixth degrees omitted", Kind::omitting,
          {"Locrian"}, {3, 6}),
    Claim("Iwato", "differs from the Traditional Japanese scale in one note only", Kind::differsInOne,
          {"Traditional Japanese"}),
    Claim("Iwato", "the fifth above the tonic is diminished instead of perfect", Kind::holds, {}, {6}),
    Claim("Iwato", "the fifth above the tonic is diminished instead of perfect", Kind::lacks, {}, {7}),
    Claim("Iwato", "Two of its steps are semitones", Kind::stepCount, {}, {1, 2}),
    Claim("Iwato", "two are wide steps of four semitones", Kind::stepCount, {}, {4, 2}),

    Claim("Enigmatic",
          "begins with a semitone and a step of three semitones, goes on in whole tones, and ends with two "
          "semitones",
          Kind::steps, {}, {1, 3, 2, 2, 2, 1, 1}),
    Claim("Enigmatic", "a perfect fourth in place of the augmented one", Kind::holds, {}, {6}),
    Claim("Enigmatic", "neither a perfect fourth nor a perfect fifth above the tonic", Kind::lacks, {},
          {5, 7}),

    Claim("Phrygian Dominant", "is the fifth mode of the Harmonic Minor scale", Kind::modeOf,
          {"Harmonic Minor"}, {5}),
    Claim("Phrygian Dominant", "equivalent to a Phrygian scale with the third degree raised", Kind::altering,
          {"Phrygian"}, {3}),
    Claim("Phrygian Dominant", "The step of three semitones between its second and third degrees",
          Kind::stepAt, {}, {2, 3}),
    Claim("Phrygian Dominant", "the parent scale Vakulabharanam", Kind::melakarta, {}, {14}),
    Claim("Phrygian Dominant", "played over a dominant seventh chord", Kind::holds, {}, {0, 4, 7, 10}),

    Claim("Oriental", "is the fifth mode of the Double Harmonic Major scale", Kind::modeOf,
          {"Double Harmonic Major"}, {5}),
    Claim("Oriental", "the second mode of the Hungarian Gypsy scale", Kind::modeOf, {"Hungarian Gypsy"}, {2}),
    Claim("Oriental",
          "equivalent to a Phrygian Dominant scale with the fifth degree lowered and the sixth degree raised",
          Kind::altering, {"Phrygian Dominant"}, {-5, 6}),
    Claim("Oriental",
          "It has two steps of three semitones, and between them stand three notes a semitone apart",
          Kind::steps, {}, {1, 3, 1, 1, 3, 1, 2}),
    Claim("Oriental", "Lacking a perfect fifth", Kind::lacks, {}, {7}),
    Claim("Oriental", "a dominant seventh chord with a lowered fifth and a lowered ninth", Kind::holds, {},
          {0, 4, 6, 10, 1}),
    Claim("Oriental", "improvisation over a dominant seventh chord with a lowered fifth and ninth",
          Kind::holds, {}, {0, 4, 6, 10, 1}),

    Claim("Balinese Pelog", "equivalent to a Phrygian scale with the fourth degree raised", Kind::altering,
          {"Phrygian"}, {4}),
    Claim("Balinese Pelog",
          "Its semitones above the tonic and around the fifth, beside a step of three semitones", Kind::steps,
          {}, {1, 2, 3, 1, 1, 2, 2}),
    Claim("Balinese Pelog", "the same notes as the parent scale Bhavapriya", Kind::melakarta, {}, {44}),

    Claim("Neapolitan Major",
          "equivalent to a Melodic Minor (ascending) scale with the second degree lowered", Kind::altering,
          {melodicMinor}, {-2}),
    Claim("Neapolitan Major", "its third is minor", Kind::holds, {}, {3}),
    Claim("Neapolitan Major", "its sixth is major, and that distinguishes it from the Neapolitan Minor scale",
          Kind::differsInOne, {"Neapolitan Minor"}),
    Claim("Neapolitan Major", "The lowered second degree is the root of the Neapolitan chord", Kind::holds,
          {}, {1}),
    Claim("Neapolitan Major",
          "Apart from its two semitones, on either side of the tonic, it moves in whole tones", Kind::steps,
          {}, {1, 2, 2, 2, 2, 2, 1}),
    Claim("Neapolitan Major", "the parent scale Kokilapriya", Kind::melakarta, {}, {11}),

    Claim("Neapolitan Minor", "equivalent to a Harmonic Minor scale with the second degree lowered",
          Kind::altering, {"Harmonic Minor"}, {-2}),
    Claim("Neapolitan Minor", "or to a Phrygian scale with the seventh degree raised", Kind::altering,
          {"Phrygian"}, {7}),
    Claim("Neapolitan Minor",
          "the two notes that lead to the tonic by a semitone, one from above and one from below",
          Kind::holds, {}, {1, 11}),
    Claim("Neapolitan Minor", "Its lowered second degree is the root of the Neapolitan chord", Kind::holds,
          {}, {1, 5, 8}),
    Claim("Neapolitan Minor", "the parent scale Dhenuka", Kind::melakarta, {}, {9}),

    Claim("Eight-tone Spanish", "is a Locrian scale with an added major third", Kind::adding, {"Locrian"},
          {4}),
    Claim("Eight-tone Spanish", "putting the notes of the Locrian scale and of the Altered scale together",
          Kind::uniting, {"Locrian", "Altered"}),
    Claim("Eight-tone Spanish", "the minor and the major third side by side", Kind::holds, {}, {3, 4}),
    Claim("Eight-tone Spanish", "the fifth is diminished too", Kind::holds, {}, {6}),
    Claim("Eight-tone Spanish", "From the minor third to the diminished fifth it moves in semitones",
          Kind::holds, {}, {3, 4, 5, 6}),
    // The chord's fifth is left out, as players do.
    Claim("Eight-tone Spanish", "improvisation over a dominant seventh chord with a lowered ninth",
          Kind::holds, {}, {0, 4, 10, 1}),

    Claim("Augmented", "a scale of six notes", Kind::noteCount, {}, {6}),
    Claim("Augmented", "steps of three semitones and of one semitone take turns", Kind::steps, {},
          {3, 1, 3, 1, 3, 1}),
    Claim("Augmented", "joins two augmented triads whose roots lie a semitone apart", Kind::exactly, {},
          {0, 4, 8, 11, 3, 7}),
    Claim("Augmented",
          "as it repeats itself every four semitones there are only four different transpositions",
          Kind::transpositions, {}, {4}),
    Claim("Augmented", "major and minor triads on three of its degrees, each four semitones apart",
          Kind::chordRoots, {}, {0, 4, 8}, {0, 4, 7}),
    Claim("Augmented", "major and minor triads on three of its degrees, each four semitones apart",
          Kind::chordRoots, {}, {0, 4, 8}, {0, 3, 7}),
    Claim("Augmented", "no whole tone between neighbours", Kind::stepCount, {}, {2, 0}),
    Claim("Augmented", "played over major seventh chords", Kind::holds, {}, {0, 4, 7, 11}),
    Claim("Augmented", "joins two groups of six notes, each of them an Augmented scale", Kind::ownComplement),

    Claim("Lydian Minor", "is the fourth mode of the Neapolitan Major scale", Kind::modeOf,
          {"Neapolitan Major"}, {4}),
    Claim("Lydian Minor", "equivalent to a Lydian scale with the sixth and seventh degrees lowered",
          Kind::altering, {"Lydian"}, {-6, -7}),
    Claim("Lydian Minor", "or to a Whole Tone scale with an added perfect fifth", Kind::adding,
          {"Whole Tone"}, {7}),
    Claim("Lydian Minor", "Its lower half is that of the Lydian scale", Kind::sharesLetters, {"Lydian"},
          {0, 6}),
    Claim("Lydian Minor", "its upper half that of the Aeolian scale", Kind::sharesLetters, {"Aeolian"},
          {7, 11}),
    Claim("Lydian Minor", "the parent scale Rishabhapriya", Kind::melakarta, {}, {62}),
    Claim("Lydian Minor", "a dominant seventh chord with a raised eleventh and a lowered thirteenth",
          Kind::holds, {}, {0, 4, 7, 10, 6, 8}),

    Claim("Chromatic", "holds all twelve notes of the octave", Kind::noteCount, {}, {12}),
    Claim("Chromatic", "a semitone from one to the next", Kind::stepCount, {}, {1, 12}),
    Claim("Chromatic", "Every other scale of this library is a part of it", Kind::holdsAllOthers),
};

} // namespace scale_claims
