// The factory scales. What a description says of modes, omitted and altered degrees is checked by a test that
// rotates and compares the words; keep both in step.

#include "library/default_tables.h"

namespace {

struct Row
{
    const char *scale = "", *abbr1 = "", *abbr2 = "", *title = "", *libBody = "";
};

using Block = std::array<Row, resetBlockRows>;

constexpr Block majorModes = {{
    {"xoxoxoxxoxox", "MAJOR", "Lydian", "Lydian",
     "The Lydian scale is the fourth mode of the Ionian scale. It is equivalent to an Ionian scale with "
     "the fourth degree raised, and it is the only one of the seven modes with an augmented fourth above "
     "the tonic. The raised fourth takes away the pull of the subdominant, so that the tonic triad seems "
     "to float. It is found in the folk music of Poland and Slovakia, in church music, in film scores, and"
     " in jazz, where it is played over major seventh chords. Examples: Ludwig van Beethoven, String "
     "Quartet No. 15, third movement; Gabriel Faure, \"Lydia\""},
    {"xoxoxxoxoxox", "MAJOR", "Ionian", "Ionian",
     "The Ionian scale is the major scale, the most familiar scale of Western music. It has semitones "
     "between the third and fourth degrees and between the seventh degree and the octave; all other steps "
     "are whole tones. The name was given to it by Heinrich Glarean in 1547. The six other modes of this "
     "category hold the same notes begun on another degree. Its triads on the first, fourth and fifth "
     "degrees are major, and its leading tone makes the tonic easy to establish. It is at home in nearly "
     "every style. Examples: Ludwig van Beethoven, \"Ode to Joy\" from Symphony No. 9; \"Frere Jacques\" "
     "(traditional)"},
    {"xoxoxxoxoxxo", "MAJOR", "Mixol", "Mixolydian",
     "The Mixolydian scale is the fifth mode of the Ionian scale. It is equivalent to an Ionian scale with"
     " the seventh degree lowered. Without a leading tone its cadence goes by way of the major triad a "
     "whole tone below the tonic, a sound well known from the songs and dances of Scotland, Ireland and "
     "the Appalachians. In jazz and blues it is the first choice for a dominant seventh chord, whose four "
     "notes it contains. It is also common in rock music. Examples: \"Old Joe Clark\" (traditional); \"She"
     " Moved Through the Fair\" (traditional)"},
    {"xoxxoxoxoxxo", "MINOR", "Dorian", "Dorian",
     "The Dorian scale is the second mode of the Ionian scale. It is equivalent to an Aeolian scale with "
     "the sixth degree raised. Its steps read the same upward and downward. The major sixth makes it the "
     "brightest of the modes of this category with a minor third and gives it a major triad on the fourth "
     "degree. It is common in Gregorian chant and in English and Irish folk song, and in jazz it is the "
     "usual scale for minor seventh chords. Examples: \"Scarborough Fair\" (traditional); \"Drunken "
     "Sailor\" (traditional); Miles Davis, \"So What\""},
    {"xoxxoxoxxoxo", "MINOR", "Aeol.", "Aeolian",
     "The Aeolian scale, also known as the natural minor scale, is the sixth mode of the Ionian scale and "
     "thus holds the notes of its relative major scale, whose tonic lies a minor third higher. It is "
     "equivalent to a Dorian scale with the sixth degree lowered. Its seventh degree lies a whole tone "
     "below the tonic; classical composers often raise it to gain a leading tone, while folk song and rock"
     " music mostly leave it as it is. Examples: \"O Come, O Come, Emmanuel\" (traditional); \"God Rest Ye"
     " Merry, Gentlemen\" (traditional)"},
    {"xxoxoxoxxoxo", "MINOR", "Phryg.", "Phrygian",
     "The Phrygian scale is the third mode of the Ionian scale. It is equivalent to an Aeolian scale with "
     "the second degree lowered. The note a semitone above the tonic leads down to it and gives the scale "
     "its dark and solemn character; a melody often closes with that step. It is one of the old church "
     "modes, it was used for hymns of penitence, and together with its variant with a major third it is "
     "the basis of much of flamenco. Examples: Thomas Tallis, \"Why Fum'th in Fight\" (Third Mode Melody);"
     " Martin Luther, \"Aus tiefer Not schrei ich zu dir\""},
    {"xxoxoxxoxoxo", "MINOR", "Locr.", "Locrian",
     "The Locrian scale is the seventh mode of the Ionian scale. It is equivalent to a Phrygian scale with"
     " the fifth degree lowered. It is the only mode of the major scale without a perfect fifth above the "
     "tonic, so that its tonic triad is diminished and hardly able to close a piece. For that reason it "
     "was long a theoretical scale, and whole pieces in it are rare; it appears in passages of "
     "twentieth-century music and, in jazz, over half-diminished seventh chords. Example: Paul Hindemith, "
     "\"Turandot Scherzo\" from Symphonic Metamorphosis of Themes by Carl Maria von Weber (in passages)"},
}};

constexpr Block melodicMinorModes = {{
    {"xoxoxoxoxxox", "Mel.MIN", "Ly.Aug", "Lydian Augmented",
     "The Lydian Augmented scale is the third mode of the Melodic Minor (ascending) scale. It is "
     "equivalent to a Lydian scale with the fifth degree raised. It begins with four whole tones in a row,"
     " which bring it close to the Whole Tone scale, and its tonic triad is augmented. In jazz it is "
     "played over major seventh chords with a raised fifth: a C major seventh chord with a G sharp takes "
     "the notes of the A melodic minor scale. In classical music it is mostly met in passing. Example: "
     "improvisation over a major seventh chord with a raised fifth (jazz practice)"},
    {"xoxoxoxxoxxo", "Mel.MIN", "Ly.Dom", "Lydian Dominant",
     "The Lydian Dominant scale, also known as the acoustic scale, is the fourth mode of the Melodic Minor"
     " (ascending) scale. It is equivalent to a Lydian scale with the seventh degree lowered, or to a "
     "Mixolydian scale with the fourth degree raised. Its notes are likened to the eighth to fourteenth "
     "partials of the overtone series, though the eleventh and the thirteenth lie well off; hence its "
     "second name. It was used by Bela Bartok, and in jazz it is the scale for a dominant seventh chord "
     "that does not resolve down a fifth. Example: Bela Bartok, \"Cantata profana\" (closing pages)"},
    {"xoxoxxoxxoxo", "Mel.MIN", "5thMode", "Fifth Mode",
     "The Fifth Mode scale, also known as the Aeolian Dominant scale, is the fifth mode of the Melodic "
     "Minor (ascending) scale. It is equivalent to a Mixolydian scale with the sixth degree lowered, or to"
     " an Aeolian scale with the third degree raised. Its lower half is major and its upper half is minor,"
     " and its steps read the same upward and downward. Carnatic music knows it as the parent scale "
     "Charukesi, and in jazz it suits a dominant seventh chord that leads to a minor chord. Example: Raga "
     "Charukesi (Carnatic, traditional)"},
    {"xoxxoxoxoxox", "Mel.MIN", "Asc.(+)", "Melodic Minor (ascending)",
     "The Melodic Minor (ascending) scale is equivalent to an Ionian scale with the third degree lowered. "
     "In classical music it is used upward, because the raised sixth and seventh degrees lead smoothly to "
     "the tonic, while the way down usually takes the notes of the Aeolian scale. In jazz, where it is "
     "called the jazz minor scale, it is used in both directions, and its modes fill this category. In "
     "Carnatic music it is the parent scale Gourimanohari. Examples: Johann Sebastian Bach, Bourree from "
     "the Suite in E minor, BWV 996; Raga Gourimanohari (Carnatic, traditional)"},
    {"xoxxoxxoxoxo", "Mel.MIN", "Locr#2", "Locrian #2",
     "The Locrian #2 scale is the sixth mode of the Melodic Minor (ascending) scale. It is equivalent to a"
     " Locrian scale with the second degree raised, as its name says, or to an Aeolian scale with the "
     "fifth degree lowered. The major second makes it milder than the Locrian scale and gives the "
     "half-diminished seventh chord a major ninth. It is used in jazz over that chord, often on the second"
     " degree of a minor key, though its own second is then the major third of the key. With C as its "
     "tonic it has the notes of the E flat melodic minor scale. Example: improvisation over a "
     "half-diminished seventh chord (jazz practice)"},
    {"xxoxoxoxoxxo", "Mel.MIN", "Phry#6", "Phrygian #6",
     "The Phrygian #6 scale, also known as Dorian b2, is the second mode of the Melodic Minor (ascending) "
     "scale. It is equivalent to a Phrygian scale with the sixth degree raised, or to a Dorian scale with "
     "the second degree lowered. It joins the dark semitone above the tonic to the brighter sixth of the "
     "Dorian scale. Carnatic music knows it as the parent scale Natakapriya; in jazz it is played over a "
     "dominant seventh chord with suspended fourth and lowered ninth. Example: Raga Natakapriya (Carnatic,"
     " traditional)"},
    {"xxoxxoxoxoxo", "Mel.MIN", "Altered", "Altered",
     "The Altered scale, also known as Super Locrian, is the seventh mode of the Melodic Minor (ascending)"
     " scale. It is equivalent to a Locrian scale with the fourth degree lowered. Besides the root, the "
     "major third and the minor seventh of a dominant chord it holds all four alterations: the lowered and"
     " the raised fifth and the lowered and the raised ninth. It begins like the Diminished Half-/Whole "
     "Tone scale and ends like the Whole Tone scale. With C as its tonic it has the notes of the D flat "
     "melodic minor scale. Example: improvisation over an altered dominant seventh chord (jazz practice)"},
}};

constexpr Block symmetricScales = {{
    {"xoxoxoxoxoxo", "SYMM", "WholeT.", "Whole Tone",
     "The Whole Tone scale divides the octave into six equal steps. All of its modes are alike, and there "
     "are only two different transpositions, so that no degree stands out as a tonic; every triad built "
     "from its alternate degrees is augmented. It was used earlier by Mikhail Glinka, but it is best known"
     " from French music of about 1900, where it gives a floating and dreamlike sound. In jazz it is "
     "played over dominant seventh chords with a raised fifth. Example: Claude Debussy, \"Voiles\" from "
     "Preludes, Book 1"},
    {"xoxxoxxoxxox", "SYMM", "Dim.WH", "Diminished Whole-/Half Tone",
     "The Diminished Whole-/Half Tone scale is an eight-note scale of whole tones and semitones in turn, "
     "beginning with a whole tone. It joins two diminished seventh chords whose roots lie a whole tone "
     "apart. There are only three different transpositions, and it has only two modes, of which the other "
     "one is the Diminished Half-/Whole Tone scale. Nikolai Rimsky-Korsakov and other Russian composers "
     "used it for the fantastic; in jazz it is played over diminished seventh chords. Examples: Bela "
     "Bartok, \"Diminished Fifth\" and \"From the Island of Bali\" from Mikrokosmos"},
    {"xxoxxoxxoxxo", "SYMM", "Dim.HW", "Diminished Half-/Whole Tone",
     "The Diminished Half-/Whole Tone scale is the second mode of the Diminished Whole-/Half Tone scale: "
     "an eight-note scale of semitones and whole tones in turn, beginning with a semitone. Olivier "
     "Messiaen listed it as the second of his modes of limited transposition. It holds major and minor "
     "triads on four of its degrees, a minor third apart from one another, and diminished triads on all "
     "eight. In jazz it is played over dominant seventh chords with a lowered ninth and a natural "
     "thirteenth. Example: Igor Stravinsky, \"Petrushka\" (the chord of C major and F sharp major, all of "
     "whose notes stand in this scale)"},
}};

constexpr Block pentatonicScales = {{
    {"xooxoxooxoxo", "PENTA", "MGong", "Man Gong",
     "The Man Gong scale, also known as the Phrygian Pentatonic scale, is the third mode of the Major "
     "Pentatonic scale. It is equivalent to an Aeolian, Phrygian, or Locrian scale with the second and "
     "fifth degrees omitted. This is a rarely-used scale which originated in China in the 15th century. "
     "Its rarity may be attributable to the fact that it is the only mode of the Major Pentatonic which "
     "lacks a perfect fifth above the tonic, making the tonic more difficult to establish. The tonic has a"
     " tendency to be heard as the dominant of a Minor Pentatonic scale instead. Example: Huo Lin "
     "(traditional)"},
    {"xooxoxoxooxo", "PENTA", "Min.Pt", "Minor Pentatonic",
     "The Minor Pentatonic scale is the fifth mode of the Major Pentatonic scale. It is equivalent to an "
     "Aeolian, Dorian, or Phrygian scale with the second and sixth degrees omitted. Having no semitones, "
     "it cannot sound a harsh step, which makes it a good first scale for improvisation. It is found in "
     "folk music in most parts of the world, in Chinese music as the Yu mode, and it is the ground of the "
     "Blues scale and of many guitar solos in rock music. Examples: \"Land of the Silver Birch\" "
     "(traditional); \"Wayfaring Stranger\" (traditional)"},
    {"xoxooxoxooxo", "PENTA", "Susp.Pt", "Suspended Pentatonic",
     "The Suspended Pentatonic scale, also known as the Egyptian scale, is the second mode of the Major "
     "Pentatonic scale. It is equivalent to an Aeolian, Dorian, or Mixolydian scale with the third and "
     "sixth degrees omitted. Without a third it is neither major nor minor, and its notes can all be "
     "stacked in fourths or fifths. In China it is the Shang mode, in Carnatic music Raga Madhyamavati, "
     "and in Hindustani music the notes of Raga Megh. In jazz it suits dominant chords with a suspended "
     "fourth. Examples: Raga Madhyamavati (Carnatic, traditional); Raga Megh (Hindustani, traditional)"},
    {"xoxooxoxoxoo", "PENTA", "Yo", "Yo",
     "The Yo scale is the fourth mode of the Major Pentatonic scale. It is equivalent to a Dorian, Ionian,"
     " or Mixolydian scale with the third and seventh degrees omitted. The name comes from Japan, where "
     "scales without semitones are set against the In scales that have them; it is heard in folk songs and"
     " festival music. In China the same notes form the Zhi mode, and in India Raga Durga of the north and"
     " Raga Shuddha Saveri of the south. Lacking a third, it sounds open and bright. Examples: Raga Durga "
     "(Hindustani, traditional); Raga Shuddha Saveri (Carnatic, traditional)"},
    {"xoxoxooxooxo", "PENTA", "Dom.Pt", "Dominant Pentatonic",
     "The Dominant Pentatonic scale is equivalent to a Mixolydian or Lydian Dominant scale with the fourth"
     " and sixth degrees omitted. Unlike the other scales of this category it is not a mode of the Major "
     "Pentatonic scale. Its five notes are those of a dominant ninth chord, so that every one of them "
     "belongs to that chord; they also come near to the fourth, fifth, sixth, seventh and ninth partials "
     "of the overtone series. It is used in jazz and blues for melodies over an unaltered dominant chord. "
     "Example: improvisation over a dominant ninth chord (jazz practice)"},
    {"xoxoxooxoxoo", "PENTA", "Maj.Pt", "Major Pentatonic",
     "The Major Pentatonic scale is equivalent to an Ionian, Lydian, or Mixolydian scale with the fourth "
     "and seventh degrees omitted. Its notes are five in a row of the circle of fifths, and no two of them"
     " stand a semitone apart. It is one of the oldest and most widespread scales: it is the Gong mode of "
     "China and Raga Bhupali of northern India, and it is common in the songs of Scotland and in American "
     "folk and country music. Examples: \"Auld Lang Syne\" (traditional); \"Amazing Grace\" (traditional)"},
}};

constexpr Block bluesScales = {{
    {"xooxoxxxooxo", "BLUES", "6Tone", "Blues",
     "The Blues scale is a Minor Pentatonic scale with an added sixth note, the tritone between the fourth"
     " and the fifth degrees. This blue note is mostly played in passing or bent up or down to its "
     "neighbours. The scale is used over major and dominant chords as well as over minor ones; the "
     "friction between its minor third and the major third of the chord is the very sound of the blues. "
     "From there it went into jazz, rhythm and blues, and rock music. Example: the twelve-bar blues "
     "(traditional)"},
}};

constexpr Block bebopScales = {{
    {"xoxoxxoxoxxx", "BEBOP", "Bep.Dom", "Bebop Dominant",
     "The Bebop Dominant scale is a Mixolydian scale with an added major seventh between the minor seventh"
     " and the octave. With eight notes to the octave, a run in eighth notes that begins with a chord note"
     " on the beat has the notes of the dominant seventh chord on every beat, and the added note falls "
     "between the beats. The bebop players of the 1940s used it as a matter of course, above all downward;"
     " the name was given to it later by the jazz teacher David Baker. Example: improvisation over a "
     "dominant seventh chord (bebop practice)"},
    {"xoxoxxoxxxox", "BEBOP", "Bep.Maj", "Bebop Major",
     "The Bebop Major scale is an Ionian scale with an added note between the fifth and the sixth degrees."
     " Its eight notes are those of a major sixth chord and of the diminished seventh chord on the leading"
     " tone, one chord filling the gaps of the other, so that harmonized it moves between rest and tension"
     " with every step. The pianist Barry Harris taught it under the name of the major sixth diminished "
     "scale. It is used in jazz over major chords. Example: improvisation and block chords over a major "
     "sixth chord (bebop practice)"},
    {"xoxxoxoxxxox", "BEBOP", "Mel.Min", "Bebop Melodic Minor",
     "The Bebop Melodic Minor scale is a Melodic Minor (ascending) scale with an added note between the "
     "fifth and the sixth degrees. Its eight notes are those of a minor sixth chord and of the diminished "
     "seventh chord on the leading tone, one chord filling the gaps of the other. The pianist Barry Harris"
     " taught it under the name of the minor sixth diminished scale. It differs from the Bebop Major scale"
     " in the third only. It is used in jazz over minor sixth chords. Example: improvisation and block "
     "chords over a minor sixth chord (bebop practice)"},
    {"xoxxxxoxoxxo", "BEBOP", "Bep.Minor", "Bebop Minor",
     "The Bebop Minor scale, also known as Bebop Dorian, is a Dorian scale with an added major third "
     "between the minor third and the fourth. It is also the fifth mode of the Bebop Dominant scale: in a "
     "progression from the second to the fifth degree of a key, one line in these notes fits both the "
     "minor seventh chord and the dominant chord that follows it. The added note keeps the chord notes of "
     "that dominant chord, not those of the minor seventh chord, on the beat; over the minor seventh chord"
     " it is a passing note. Example: improvisation over a minor seventh chord (bebop practice)"},
}};

constexpr Block harmonicScales = {{
    {"xoxoxxoxxoox", "HARM", "Major", "Harmonic Major",
     "The Harmonic Major scale is equivalent to an Ionian scale with the sixth degree lowered, or to a "
     "Harmonic Minor scale with the third degree raised. The step of three semitones between its sixth and"
     " seventh degrees gives its upper half the colour of the Harmonic Minor scale over a major triad. "
     "Classical composers of the nineteenth century reached it by borrowing the minor subdominant in a "
     "major key. Carnatic music knows it as the parent scale Sarasangi. Example: Raga Sarasangi (Carnatic,"
     " traditional)"},
    {"xoxxoxoxxoox", "HARM", "Minor", "Harmonic Minor",
     "The Harmonic Minor scale is equivalent to an Aeolian scale with the seventh degree raised. The "
     "raised degree is the leading tone of the major dominant chord, and the scale takes its name from "
     "there: it holds the notes of the common chords of a minor key in classical harmony. The step of "
     "three semitones between its sixth and seventh degrees is avoided in smooth melodies and sought after"
     " for an eastern colour. Carnatic music knows it as the parent scale Keeravani. Example: Raga "
     "Keeravani (Carnatic, traditional)"},
    {"xxooxxoxxoox", "HARM", "2xMaj", "Double Harmonic Major",
     "The Double Harmonic Major scale is equivalent to a Harmonic Major scale with the second degree "
     "lowered. It has two steps of three semitones, each with a semitone on either side, and its steps "
     "read the same upward and downward. In India it is the scale of Raga Bhairav and the parent scale "
     "Mayamalavagowla, which is the first one that students of Carnatic music learn; it is common as well "
     "in the music of the eastern Mediterranean. Examples: \"Misirlou\" (traditional); Raga "
     "Mayamalavagowla (Carnatic, traditional)"},
}};

constexpr Block exoticScales = {{
    {"xooxxoxxoxxo", "EXOTIC", "Hun.Maj", "Hungarian Major",
     "The Hungarian Major scale is equivalent to a Lydian Dominant scale with the second degree raised, or"
     " to a Diminished Half-/Whole Tone scale with the second degree omitted. It begins with a step of "
     "three semitones, so that the minor third, heard as a raised second, stands beside the major third. "
     "Carnatic music knows it as the parent scale Nasikabhushani. In jazz it can be played over a dominant"
     " seventh chord with a raised ninth and a raised eleventh. Example: Raga Nasikabhushani (Carnatic, "
     "traditional)"},
    {"xoxoxoxooxxo", "EXOTIC", "Promth.", "Prometheus",
     "The Prometheus scale is a scale of six notes. It is equivalent to a Lydian Dominant scale with the "
     "fifth degree omitted, and it differs from the Whole Tone scale in one note only. It holds the notes "
     "of the so-called mystic chord, which Alexander Scriabin built of different kinds of fourths and from"
     " which he drew both melody and harmony in several of his late works. Without a fifth the tonic "
     "hovers, as in the Whole Tone scale. Example: Alexander Scriabin, \"Prometheus: The Poem of Fire\""},
    {"xoxoxxxoxoxo", "EXOTIC", "MajLocr", "Major Locrian",
     "The Major Locrian scale is the fifth mode of the Neapolitan Major scale. It is equivalent to a "
     "Locrian scale with the second and third degrees raised, or to a Whole Tone scale with an added "
     "perfect fourth. Its lower half is that of the major scale, while its fifth, sixth and seventh "
     "degrees are those of the Locrian scale. It is rarely used as the scale of a whole piece; in jazz it "
     "can be played over a dominant seventh chord that has both a lowered and a raised fifth. Example: "
     "improvisation over a dominant seventh chord with a lowered fifth (jazz practice)"},
    {"xoxxooxxxoox", "EXOTIC", "H.Gypsy", "Hungarian Gypsy",
     "The Hungarian Gypsy scale, also known as the Hungarian Minor scale, is the fourth mode of the Double"
     " Harmonic Major scale. It is equivalent to a Harmonic Minor scale with the fourth degree raised. Its"
     " two steps of three semitones are the mark of the Romani bands that played in the towns of "
     "nineteenth-century Hungary, whose manner was taken up by Franz Liszt and others. Carnatic music "
     "knows the same notes as the parent scale Simhendramadhyamam. Examples: Franz Liszt, Hungarian "
     "Rhapsodies (in passages); Raga Simhendramadhyamam (Carnatic, traditional)"},
    {"xxoooxoxooxo", "EXOTIC", "Trad.Jap", "Traditional Japanese",
     "The Traditional Japanese scale, also known as the Insen scale, is a scale of five notes. It is "
     "equivalent to a Phrygian scale with the third and sixth degrees omitted. The semitone above the "
     "tonic and the empty space of four semitones that follows it give it a still and serious sound. The "
     "name Insen comes from the Japanese In scale, whose rising form has these notes; it is heard in music"
     " for koto and shamisen. In India the same notes form Raga Bairagi of the north and Raga Revati of "
     "the south. Examples: Raga Bairagi (Hindustani, traditional); Raga Revati (Carnatic, traditional)"},
    {"xxoooxxoooxo", "EXOTIC", "Iwato", "Iwato",
     "The Iwato scale is a scale of five notes from Japan, where it belongs to a tuning of the koto. It is"
     " equivalent to a Locrian scale with the third and sixth degrees omitted. It differs from the "
     "Traditional Japanese scale in one note only: the fifth above the tonic is diminished instead of "
     "perfect, so that the scale lacks a restful centre and sounds tense and dark. Two of its steps are "
     "semitones and two are wide steps of four semitones. Example: music for the koto in Iwato tuning "
     "(traditional practice)"},
    {"xxooxoxoxoxx", "EXOTIC", "Enigma", "Enigmatic",
     "The Enigmatic scale was published as a riddle by Adolfo Crescentini in a music journal of Milan, "
     "with the invitation to harmonize it. It begins with a semitone and a step of three semitones, goes "
     "on in whole tones, and ends with two semitones; in its first form it was written with a perfect "
     "fourth in place of the augmented one on the way down. It belongs to no key and has neither a perfect"
     " fourth nor a perfect fifth above the tonic. Giuseppe Verdi took up the challenge in his old age. "
     "Example: Giuseppe Verdi, \"Ave Maria\" from Quattro pezzi sacri"},
    {"xxooxxoxxoxo", "EXOTIC", "PhrygDom", "Phrygian Dominant",
     "The Phrygian Dominant scale is the fifth mode of the Harmonic Minor scale. It is equivalent to a "
     "Phrygian scale with the third degree raised. The step of three semitones between its second and "
     "third degrees is heard all around the Mediterranean: it is known as Freygish in klezmer music, it "
     "comes near to the maqam Hijaz of Arab music, and it is part of flamenco. In Carnatic music it is the"
     " parent scale Vakulabharanam. In jazz it is played over a dominant seventh chord that resolves to "
     "minor. Examples: \"Hava Nagila\" (traditional); Raga Vakulabharanam (Carnatic, traditional)"},
    {"xxooxxxooxxo", "EXOTIC", "Orient", "Oriental",
     "The Oriental scale is the fifth mode of the Double Harmonic Major scale, and the second mode of the "
     "Hungarian Gypsy scale. It is equivalent to a Phrygian Dominant scale with the fifth degree lowered "
     "and the sixth degree raised. It has two steps of three semitones, and between them stand three notes"
     " a semitone apart. Lacking a perfect fifth, it is a scale of colour more than of rest. In jazz it "
     "can be played over a dominant seventh chord with a lowered fifth and a lowered ninth. Example: "
     "improvisation over a dominant seventh chord with a lowered fifth and ninth (jazz practice)"},
    {"xxoxooxxxoxo", "EXOTIC", "Bal.Pel", "Balinese Pelog",
     "The Balinese Pelog scale is an approximation, in twelve equal semitones, of the seven-tone pelog "
     "tuning of the gamelan of Bali and Java, whose steps differ from one set of instruments to the next "
     "and fit no keyboard. It is equivalent to a Phrygian scale with the fourth degree raised. Its "
     "semitones above the tonic and around the fifth, beside a step of three semitones, recall the narrow "
     "and wide steps of pelog. Carnatic music knows the same notes as the parent scale Bhavapriya. "
     "Examples: gamelan music in pelog tuning (traditional); Raga Bhavapriya (Carnatic, traditional)"},
    {"xxoxoxoxoxox", "EXOTIC", "Neap.Maj", "Neapolitan Major",
     "The Neapolitan Major scale is equivalent to a Melodic Minor (ascending) scale with the second degree"
     " lowered. In spite of its name its third is minor; its sixth is major, and that distinguishes it "
     "from the Neapolitan Minor scale. The lowered second degree is the root of the Neapolitan chord of "
     "classical harmony. Apart from its two semitones, on either side of the tonic, it moves in whole "
     "tones. Carnatic music knows it as the parent scale Kokilapriya. Example: Raga Kokilapriya (Carnatic,"
     " traditional)"},
    {"xxoxoxoxxoox", "EXOTIC", "Neap.Min", "Neapolitan Minor",
     "The Neapolitan Minor scale is equivalent to a Harmonic Minor scale with the second degree lowered, "
     "or to a Phrygian scale with the seventh degree raised. It unites the two notes that lead to the "
     "tonic by a semitone, one from above and one from below. Its lowered second degree is the root of the"
     " Neapolitan chord, with which classical composers darken a cadence in a minor key. Carnatic music "
     "knows the scale as the parent scale Dhenuka. Example: Raga Dhenuka (Carnatic, traditional)"},
    {"xxoxxxxoxoxo", "EXOTIC", "8.Span", "Eight-tone Spanish",
     "The Eight-tone Spanish scale is a Locrian scale with an added major third. It can also be had by "
     "putting the notes of the Locrian scale and of the Altered scale together. Its name points to the "
     "music of Spain, whose melodies of Phrygian kind use the minor and the major third side by side; here"
     " the fifth is diminished too, which makes the scale restless. From the minor third to the diminished"
     " fifth it moves in semitones. In jazz it can be played over an altered dominant chord. Example: "
     "improvisation over a dominant seventh chord with a lowered ninth (jazz practice)"},
}};

constexpr Block miscellaneous = {{
    {"xoxooxoxoooo", "ZOL", "Scale1", "ZOL 2 Scale Name", "ZOL 2 Scale Description Text"},
    {"xoxxoooxxoxo", "ZOL", "Scale2", "ZOL 1 Scale Name", "ZOL 1 Scale Description Text"},
    {"xooxxooxxoox", "MISC", "Augm.", "Augmented",
     "The Augmented scale is a scale of six notes in which steps of three semitones and of one semitone "
     "take turns. It joins two augmented triads whose roots lie a semitone apart, and as it repeats itself"
     " every four semitones there are only four different transpositions. It holds major and minor triads "
     "on three of its degrees, each four semitones apart, and no whole tone between neighbours. It appears"
     " in music of the twentieth century, and in jazz it is played over major seventh chords. Example: "
     "Arnold Schoenberg, \"Ode to Napoleon Buonaparte\" (whose twelve-tone row joins two groups of six "
     "notes, each of them an Augmented scale)"},
    {"xoxoxoxxxoxo", "MISC", "Ly.Min", "Lydian Minor",
     "The Lydian Minor scale is the fourth mode of the Neapolitan Major scale. It is equivalent to a "
     "Lydian scale with the sixth and seventh degrees lowered, or to a Whole Tone scale with an added "
     "perfect fifth. Its lower half is that of the Lydian scale, its upper half that of the Aeolian scale."
     " Carnatic music knows it as the parent scale Rishabhapriya. In jazz it can be played over a dominant"
     " seventh chord with a raised eleventh and a lowered thirteenth. Example: Raga Rishabhapriya "
     "(Carnatic, traditional)"},
    {"xxxxxxxxxxxx", "MISC", "Chrom", "Chromatic",
     "The Chromatic scale holds all twelve notes of the octave, a semitone from one to the next. Every "
     "other scale of this library is a part of it. As all of its steps are equal, it has no tonic of its "
     "own; composers of tonal music use it for runs and for the colouring of other scales, and the "
     "twelve-tone music of the twentieth century gives all of its notes the same weight. With this scale "
     "each white key plays the next semitone. Examples: Johann Sebastian Bach, Chromatic Fantasia and "
     "Fugue, BWV 903; Nikolai Rimsky-Korsakov, \"Flight of the Bumblebee\""},
    {"xooooooooooo", "MISC", "Oct.", "Octaves Only", "..."},
}};

constexpr std::array<Block, resetBlockCount> blocks = {{{},
                                                        majorModes,
                                                        melodicMinorModes,
                                                        symmetricScales,
                                                        pentatonicScales,
                                                        bluesScales,
                                                        bebopScales,
                                                        harmonicScales,
                                                        exoticScales,
                                                        miscellaneous,
                                                        {}}};

scale_data toRecord(const Row& row)
{
    const auto text = [](const char* literal) { return QString::fromLatin1(literal); };
    return {text(row.scale), text(row.abbr1), text(row.abbr2), text(row.title), text(row.libBody)};
}

} // namespace

const std::array<QString, resetCategoryCount> resetCatrgoryData = {
    "1 - Major Scale Modes", "2 - Melodic Minor Modes", "3 - Symmetric Scales", "4 - Pentatonic Scales",
    "5 - Blues Scales",      "6 - Bebop Scales",        "7 - Harmonic Scales",  "8 - Exotic Scales",
    "9 - Miscellaneous",     "10 - User Scales"};

// The last rows of the ninth block lie past its count: they are never loaded, though presets name two of
// them.
const std::array<int, resetBlockCount> numResetScales = {0, 7, 7, 3, 6, 1, 4, 3, 13, 3, 0};

const std::array<std::array<scale_data, resetBlockRows>, resetBlockCount> resetScaleData = [] {
    std::array<std::array<scale_data, resetBlockRows>, resetBlockCount> records;
    for (std::size_t b = 0; b < blocks.size(); ++b)
        for (std::size_t row = 0; row < blocks[b].size(); ++row)
            records[b][row] = toRecord(blocks[b][row]);
    return records;
}();
