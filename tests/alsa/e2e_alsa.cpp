// The program on a real ALSA sequencer, with its default back end: virtual ports, raw MIDI devices of the
// system, and two programs in a row. Guards what most users have: port names and indexes, and threads, differ
// from JACK's.

#include "AlsaPlayer.h"
#include "MappingRule.h"
#include "ProgramUnderTest.h"

#include <QtTest>

#include <fcntl.h>
#include <unistd.h>

namespace {

using Message = AlsaPlayer::Message;
using Messages = QList<Message>;

const QString programPath = QStringLiteral(SORVANE_PROGRAM);
const QString virtualIn = QStringLiteral("Sorvane MIDI In");
const QString virtualOut = QStringLiteral("Sorvane MIDI Out");
// Degree 0 in the lowest bit.
const std::bitset<12> ionian(0b101010110101), pentatonic(0b001010010101);
constexpr int waitMs = 30000;

/// White keys: with the power on a black one would recall its preset.
Messages played()
{
    Messages messages;
    for (int note = 50; note <= 72; ++note)
        if (isWhite(note))
            messages += Messages{{0x90, note, note}, {0x80, note, 64}};
    return messages;
}

/// What played() becomes where each key passes through the given mappings in turn. All but the last must play
/// white notes only.
Messages mappedThrough(const QList<MappingRule>& mappings)
{
    Messages messages;
    for (int note = 50; note <= 72; ++note) {
        if (!isWhite(note))
            continue;
        int pitch = note;
        for (const MappingRule& mapping : mappings)
            pitch = mapping.target.at(pitch);
        messages += Messages{{0x90, pitch, note}, {0x80, pitch, 0}};
    }
    return messages;
}

/// A raw MIDI device, opened without waiting.
class RawDevice
{
public:
    RawDevice(const char* path, int mode) : file(::open(path, mode | O_NONBLOCK)) {}
    ~RawDevice() { ::close(file); }
    Q_DISABLE_COPY(RawDevice)

    [[nodiscard]] bool isOpen() const { return file >= 0; }
    [[nodiscard]] bool write(const QByteArray& bytes) const
    {
        return ::write(file, bytes.constData(), static_cast<std::size_t>(bytes.size())) == bytes.size();
    }
    [[nodiscard]] QByteArray read() const
    {
        char bytes[256];
        const ssize_t size = ::read(file, bytes, sizeof bytes);
        return size > 0 ? QByteArray(bytes, static_cast<int>(size)) : QByteArray();
    }

private:
    int file;
};

} // namespace

class EndToEndAlsa : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();

    void defaultBackEndIsAlsa();
    void virtualPortsCarryTheMappedNotes();
    void rawDevicesAreSelectedByName();
    void twoProgramsInARow();
};

void EndToEndAlsa::initTestCase()
{
    if (::access("/dev/snd/seq", R_OK | W_OK) != 0)
        QSKIP("NO ALSA SEQUENCER here (/dev/snd/seq): run this through scripts/alsa-vm");
}

void EndToEndAlsa::defaultBackEndIsAlsa()
{
    ProgramUnderTest program(programPath);
    QCOMPARE(program.run({"--list-ports"}), 0);
    QVERIFY(program.output().contains(QStringLiteral("ALSA")));
    QVERIFY(program.output().contains(QStringLiteral("VirMIDI 0-0")));
}

void EndToEndAlsa::virtualPortsCarryTheMappedNotes()
{
    ProgramUnderTest program(programPath);
    QVERIFY(program.start({"--headless", "--power", "on", "--tonic", "D"}));
    AlsaPlayer player;
    QVERIFY(player.isOpen());
    QVERIFY(player.connectOutputTo(virtualIn) && player.connectInputFrom(virtualOut));
    QCOMPARE(player.answerTo(played()), mappedThrough({MappingRule(2, ionian)}));
    const Messages passing{{0x92, 60, 5}, {0xB0, 64, 127}, {0xE0, 1, 2}};
    QCOMPARE(player.answerTo(passing), passing);
    // D# Iwato by its black key.
    QCOMPARE(player.answerTo({{0x90, 75, 1}, {0x90, 62, 5}, {0x80, 75, 0}, {0x80, 62, 0}}),
             (Messages{{0x90, 64, 5}, {0x80, 64, 0}}));
    static_cast<void>(player.answerTo({{0x90, 49, 1}, {0x80, 49, 0}})); // the power key
    QCOMPARE(player.answerTo({{0x90, 61, 7}, {0x80, 61, 7}}), (Messages{{0x90, 61, 7}, {0x80, 61, 0}}));
    QCOMPARE(program.stop(), 0);
}

void EndToEndAlsa::rawDevicesAreSelectedByName()
{
    const RawDevice keyboard("/dev/snd/midiC0D0", O_WRONLY), synthesizer("/dev/snd/midiC0D1", O_RDONLY);
    QVERIFY(keyboard.isOpen() && synthesizer.isOpen());
    ProgramUnderTest program(programPath);
    QVERIFY(program.start({"--headless", "--power", "on", "--tonic", "E", "--in", "VirMIDI 0-0", "--out",
                           "VirMIDI 0-1", "--no-virtual"}));
    // The way is open once a control change comes through.
    QByteArray received;
    QVERIFY(QTest::qWaitFor(
        [&] {
            static_cast<void>(keyboard.write(QByteArray("\xB0\x07\x01", 3)));
            received += synthesizer.read();
            return !received.isEmpty();
        },
        waitMs));
    QVERIFY(keyboard.write(QByteArray("\x90\x3C\x40\x80\x3C\x40", 6)));
    received.clear();
    QVERIFY(QTest::qWaitFor(
        [&] { return (received += synthesizer.read()).contains(QByteArray("\x80\x40", 2)); }, waitMs));
    QVERIFY2(received.contains(QByteArray("\x90\x40\x40", 3)),
             received.toHex().constData()); // middle C plays E

    AlsaPlayer observer;
    QVERIFY(observer.portsNamed(virtualIn).isEmpty() && observer.portsNamed(virtualOut).isEmpty());
    QCOMPARE(program.stop(), 0);
}

void EndToEndAlsa::twoProgramsInARow()
{
    AlsaPlayer player;
    ProgramUnderTest first(programPath), second(programPath);
    QVERIFY(first.start({"--headless", "--power", "on", "--scale", "xoxoxooxoxoo"}));
    QVERIFY(QTest::qWaitFor([&] { return player.portsNamed(virtualOut).size() == 1; }, waitMs));
    QVERIFY(player.connectOutputTo(virtualIn, 0));
    QVERIFY(second.start({"--headless", "--power", "on", "--tonic", "D", "--in", "Sorvane MIDI Out"}));
    QVERIFY(player.connectInputFrom(virtualOut, 1));
    QVERIFY(QTest::qWaitFor(
        [&] { return player.answerTo({}).isEmpty() && player.portsNamed(virtualIn).size() == 2; }, waitMs));
    QCOMPARE(player.answerTo(played()), mappedThrough({MappingRule(0, pentatonic), MappingRule(2, ionian)}));
    QCOMPARE(first.stop(), 0);
    QCOMPARE(second.stop(), 0);
}

QTEST_GUILESS_MAIN(EndToEndAlsa)
#include "e2e_alsa.moc"
