// Presets recalled by black keys while white keys are held, on a real JACK interface. Guards the promise to a
// player that a held note keeps its pitch and that its release stops just that pitch, and the order of
// messages that arrive while a recall runs the event loop: a white key right behind a black one plays the new
// preset.

#include "JackPlayer.h"
#include "MappingRule.h"
#include "PipeWireDaemon.h"
#include "ProgramUnderTest.h"

#include <QtTest>

#include <memory>
#include <random>

namespace {

using Message = JackPlayer::Message;
using Messages = QList<Message>;
using Pitches = QList<int>;

const QString programPath = QStringLiteral(SORVANE_PROGRAM);
const QString virtualIn = QStringLiteral(":Sorvane MIDI In");
const QString virtualOut = QStringLiteral(":Sorvane MIDI Out");

constexpr int velocity = 64;

Message press(int note)
{
    return {0x90, note, velocity};
}

Message release(int note)
{
    return {0x80, note, 0};
}

Messages pressAll(const Pitches& notes)
{
    Messages messages;
    for (const int note : notes)
        messages.append(press(note));
    return messages;
}

Messages releaseAll(const Pitches& notes)
{
    Messages messages;
    for (const int note : notes)
        messages.append(release(note));
    return messages;
}

Messages recall(int blackKey)
{
    return {press(blackKey), release(blackKey)};
}

// The factory presets above the power key, as a player finds them.
constexpr int tonicDSharp = 51, lydianC = 58, factoryActive = 63, aeolianAnyTonic = 66, lydianAnyTonic = 70,
              iwatoDSharp = 75, yoAnyTonic = 82, chromaticC = 87, bebopFSharp = 90, topLydianC = 94;

struct Preset
{
    int blackKey;
    int tonic;        ///< semitones above C, -1 where the preset leaves the tonic alone
    const char* word; ///< empty where it leaves the scale alone
};

const Preset presets[] = {
    {tonicDSharp, 3, ""},
    {54, 6, ""},
    {56, 7, ""},
    {lydianC, 0, "xoxoxoxxoxox"},
    {61, 7, "xoxooxoxoooo"},
    {factoryActive, 0, "xoxoxxoxoxox"}, // empty at first, but it is left with what a fresh start shows
    {aeolianAnyTonic, -1, "xoxxoxoxxoxo"},
    {68, -1, "xoxoxxoxoxox"},
    {lydianAnyTonic, -1, "xoxoxoxxoxox"},
    {73, 1, "xoxxoooxxoxo"},
    {iwatoDSharp, 3, "xxoooxxoooxo"},
    {78, 6, "xoxoxoxxoxox"},
    {80, -1, "xooxoxxxooxo"},
    {yoAnyTonic, -1, "xoxooxoxoxoo"},
    {85, 3, "xoxooxoxoooo"},
    {chromaticC, 0, "xxxxxxxxxxxx"},
    {bebopFSharp, 6, "xoxoxxoxxxox"},
    {92, 7, "xoxoxoxxxoxo"},
    {topLydianC, 0, "xoxoxoxxoxox"},
    {97, -1, ""}, // an empty one changes nothing
};

/// What a player expects of the keys: the mapping follows the recalled presets, a held key its own press.
class Expectation
{
public:
    void take(const Message& message)
    {
        const int note = message.at(1);
        if (isWhite(note))
            message.first() == 0x90 ? pressWhite(note) : releaseWhite(note);
        else if (message.first() == 0x90)
            recallBy(note);
    }
    [[nodiscard]] Messages takeSent() { return std::exchange(sent, {}); }
    [[nodiscard]] bool holds(int note) const { return sounding.count(note) != 0; }
    [[nodiscard]] Pitches held() const
    {
        Pitches notes;
        for (const auto& entry : sounding)
            notes.append(entry.first);
        return notes;
    }

private:
    void pressWhite(int note)
    {
        const int pitch = MappingRule(tonic, degrees).target.at(note);
        sounding[note] = pitch;
        sent.append(press(pitch));
    }
    void releaseWhite(int note)
    {
        sent.append(release(sounding.at(note)));
        sounding.erase(note);
    }
    void recallBy(int note)
    {
        for (const Preset& preset : presets) {
            if (preset.blackKey != note)
                continue;
            if (preset.tonic != -1)
                tonic = preset.tonic;
            for (std::size_t n = 0; preset.word[0] && n < 12; ++n)
                degrees[n] = preset.word[n] == 'x';
        }
    }

    int tonic = 0;
    std::bitset<12> degrees{0b101010110101};
    std::map<int, int> sounding;
    Messages sent;
};

/// The notes that are on after the messages, by pitch; a count below 0 stays below 0.
class SoundingNotes
{
public:
    /// False for a note-off of a pitch that is not on.
    [[nodiscard]] bool take(const Messages& messages)
    {
        bool matched = true;
        for (const Message& message : messages) {
            int& count = counts[message.at(1)];
            count += message.first() == 0x90 ? 1 : -1;
            matched = matched && count >= 0;
        }
        return matched;
    }
    [[nodiscard]] bool isSilent() const
    {
        return std::all_of(counts.begin(), counts.end(), [](const auto& entry) { return entry.second == 0; });
    }

private:
    std::map<int, int> counts;
};

/// A player who holds chords on the white keys 48 to 72 and recalls presets meanwhile.
class RandomPlayer
{
public:
    explicit RandomPlayer(unsigned seed) : numbers(seed) {}

    Message next(const Expectation& keys)
    {
        if (releaseNext != 0)
            return release(std::exchange(releaseNext, 0));
        if (upTo(4) == 0) {
            ++recalls;
            releaseNext = presets[upTo(static_cast<int>(std::size(presets)) - 1)].blackKey;
            return press(releaseNext);
        }
        int note = 48 + upTo(24);
        while (!isWhite(note))
            note = 48 + upTo(24);
        return keys.holds(note) ? release(note) : press(note);
    }
    int upTo(int last) { return std::uniform_int_distribution<int>(0, last)(numbers); }

    int recalls = 0;

private:
    std::mt19937 numbers;
    int releaseNext = 0;
};

} // namespace

class EndToEndPresets : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();

    void heldChordKeepsItsPitchesThroughRecalls();
    void notesAfterARecallPlayTheNewPreset_data();
    void notesAfterARecallPlayTheNewPreset();
    void presetWithoutTonicOrScaleLeavesItAlone();
    void whiteKeyRightBehindABlackOnePlaysTheNewPreset();
    void presetThatIsLeftRemembersTheSelectors();
    void everyNoteIsMatchedOverALongRun_data();
    void everyNoteIsMatchedOverALongRun();

private:
    PipeWireDaemon daemon{1024}; // a run of thousands of messages, which must come back whole
    std::unique_ptr<ProgramUnderTest> program;
    std::unique_ptr<JackPlayer> player;
};

void EndToEndPresets::initTestCase()
{
    if (!daemon.startForJack())
        QSKIP(qPrintable(daemon.reason()));
}

void EndToEndPresets::init()
{
    program = std::make_unique<ProgramUnderTest>(programPath);
    QVERIFY(program->start({"--headless", "--midi-api", "jack", "--power", "on"}));
    player = std::make_unique<JackPlayer>("player");
    QVERIFY(player->connectOutputTo(virtualIn) && player->connectInputTo(virtualOut) &&
            player->waitForEcho());
}

void EndToEndPresets::cleanup()
{
    player.reset();
    const int status = program->stop();
    program.reset();
    QCOMPARE(status, 0);
}

void EndToEndPresets::heldChordKeepsItsPitchesThroughRecalls()
{
    QCOMPARE(player->answerTo(pressAll({60, 64, 67})), pressAll({60, 64, 67})); // C Ionian
    QCOMPARE(player->answerTo(recall(lydianC)), Messages());
    QCOMPARE(player->answerTo(pressAll({53, 65})), pressAll({54, 66}));
    QCOMPARE(player->answerTo(recall(iwatoDSharp)), Messages());
    QCOMPARE(player->answerTo(pressAll({62})), pressAll({64}));
    QCOMPARE(player->answerTo(releaseAll({64, 65})), releaseAll({64, 66}));
    QCOMPARE(player->answerTo(recall(tonicDSharp)), Messages());
    QCOMPARE(player->answerTo(recall(bebopFSharp)), Messages());
    QCOMPARE(player->answerTo(releaseAll({60})), releaseAll({60}));
    QCOMPARE(player->answerTo(pressAll({60})), pressAll({66})); // struck again: the new pitch
    QCOMPARE(player->answerTo(recall(topLydianC)), Messages());
    QCOMPARE(player->answerTo(releaseAll({53, 62, 67, 60})), releaseAll({54, 64, 67, 66}));
    QCOMPARE(player->answerTo(releaseAll({53, 60, 62, 64, 65, 67})), Messages()); // nothing is held any more
}

void EndToEndPresets::notesAfterARecallPlayTheNewPreset_data()
{
    QTest::addColumn<int>("blackKey");
    QTest::addColumn<Pitches>("pitches"); // of 55 57 59 60 62 64 65 67 69 71

    QTest::newRow("C Lydian") << lydianC << Pitches{55, 57, 59, 60, 62, 64, 66, 67, 69, 71};
    QTest::newRow("D# Iwato") << iwatoDSharp << Pitches{56, 57, 61, 63, 64, 68, 69, 73, 75, 76};
    QTest::newRow("D# alone") << tonicDSharp << Pitches{58, 60, 62, 63, 65, 67, 68, 70, 72, 74};
    QTest::newRow("F# bebop major") << bebopFSharp << Pitches{62, 63, 65, 66, 68, 70, 71, 73, 74, 75};
    QTest::newRow("C chromatic") << chromaticC << Pitches{57, 58, 59, 60, 61, 62, 63, 64, 65, 66};
    QTest::newRow("C Lydian, higher up") << topLydianC << Pitches{55, 57, 59, 60, 62, 64, 66, 67, 69, 71};
}

void EndToEndPresets::notesAfterARecallPlayTheNewPreset()
{
    QFETCH(const int, blackKey);
    QFETCH(const Pitches, pitches);
    const Pitches keys{55, 57, 59, 60, 62, 64, 65, 67, 69, 71};
    QCOMPARE(player->answerTo(recall(blackKey)), Messages());
    QCOMPARE(player->answerTo(pressAll(keys)), pressAll(pitches));
    QCOMPARE(player->answerTo(releaseAll(keys)), releaseAll(pitches));
}

void EndToEndPresets::presetWithoutTonicOrScaleLeavesItAlone()
{
    const Pitches keys{59, 60, 62, 64, 65};
    const auto playsNow = [&](int blackKey, const Pitches& pitches) {
        const Messages played = recall(blackKey) + pressAll(keys) + releaseAll(keys);
        return player->answerTo(played) == pressAll(pitches) + releaseAll(pitches);
    };
    QVERIFY(playsNow(tonicDSharp, {62, 63, 65, 67, 68}));     // D# under the Ionian scale of the start
    QVERIFY(playsNow(aeolianAnyTonic, {61, 63, 65, 66, 68})); // still D#
    QVERIFY(playsNow(yoAnyTonic, {60, 63, 65, 68, 70}));
    QVERIFY(playsNow(lydianC, {59, 60, 62, 64, 66}));
    QVERIFY(playsNow(tonicDSharp, {62, 63, 65, 67, 69})); // D# under the Lydian scale of the last preset
    QVERIFY(playsNow(lydianAnyTonic, {62, 63, 65, 67, 69}));
}

void EndToEndPresets::whiteKeyRightBehindABlackOnePlaysTheNewPreset()
{
    for (int round = 0; round < 20; ++round) {
        const Messages played{press(iwatoDSharp), press(62),   release(iwatoDSharp), press(lydianC),
                              press(65),          release(62), release(65),          release(lydianC)};
        QCOMPARE(player->answerTo(played), (Messages{press(64), press(66), release(64), release(66)}));
    }
}

// The preset that is active at the start is empty; it is left with the selectors of a fresh start.
void EndToEndPresets::presetThatIsLeftRemembersTheSelectors()
{
    QCOMPARE(player->answerTo(recall(iwatoDSharp) + pressAll({62})), pressAll({64}));
    QCOMPARE(player->answerTo(recall(factoryActive) + releaseAll({62})), releaseAll({64}));
    QCOMPARE(player->answerTo(pressAll({62, 65})), pressAll({62, 65}));
    QCOMPARE(player->answerTo(releaseAll({62, 65})), releaseAll({62, 65}));
}

void EndToEndPresets::everyNoteIsMatchedOverALongRun_data()
{
    QTest::addColumn<int>("longestBurst"); // messages between two echoes

    QTest::newRow("in bursts") << 12;
    QTest::newRow("in long bursts") << 200;
}

void EndToEndPresets::everyNoteIsMatchedOverALongRun()
{
    QFETCH(const int, longestBurst);
    RandomPlayer hands(static_cast<unsigned>(longestBurst));
    Expectation expected;
    SoundingNotes sounding;
    while (hands.recalls < 300) {
        Messages played;
        for (int left = 1 + hands.upTo(longestBurst - 1); left > 0; --left) {
            played.append(hands.next(expected));
            expected.take(played.last());
        }
        const Messages answer = player->answerTo(played);
        QVERIFY2(sounding.take(answer), "a note-off without its note-on");
        QCOMPARE(answer, expected.takeSent());
    }
    const Messages last = releaseAll(expected.held());
    for (const Message& message : last)
        expected.take(message);
    const Messages answer = player->answerTo(last);
    QVERIFY2(sounding.take(answer) && sounding.isSilent(), "a note is left on");
    QCOMPARE(answer, expected.takeSent());
}

QTEST_GUILESS_MAIN(EndToEndPresets)
#include "e2e_presets.moc"
