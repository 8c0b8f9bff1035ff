#pragma once

#include <QList>
#include <QMap>
#include <QString>

#include <bitset>
#include <deque>

/// What must come back from the program, entered in the order of sending, held against what does come. The
/// hand at the screen plays in between, at a velocity that nobody else uses.
class NoteLedger
{
public:
    using Message = QList<int>;
    static constexpr int handVelocity = 75;

    struct Counts
    {
        qint64 expected = 0, heard = 0, handOns = 0, handOffs = 0;
    };

    /// Messages that never came, by the numbers of those that should have called for them, and of the ones
    /// around the gap that did come; -1 where there is no number.
    struct Loss
    {
        qint64 before, first, last, after;
        bool tracers;        ///< some of them, too
        QStringList surplus; ///< what came within, which nothing called for
        QString text;
    };

    /// Messages that nothing changes: what they meet on their way, they alone tell.
    [[nodiscard]] static bool isTracer(const Message& message)
    {
        return message.size() == 3 && message.at(0) == 0xBF && message.at(1) >= 118;
    }

    /// `sent` is the number of the message that was sent; heard() gives it back.
    void expect(const Message& message, qint64 sent);
    /// Exactly one note-on of that velocity, whatever its pitch, and later exactly one note-off for that
    /// pitch.
    void expectPress(int key, int velocity, qint64 sent);
    void expectRelease(int key, qint64 sent);

    /// The number of the message that this one answers, or -1.
    qint64 hear(const Message& message);

    [[nodiscard]] int outstanding() const { return static_cast<int>(awaited.size()); }
    /// The pitches of the first channel that were begun and not ended.
    [[nodiscard]] QList<int> sounding() const;
    [[nodiscard]] const Counts& counts() const { return count; }
    [[nodiscard]] QList<Loss> takeLosses();
    /// What came that nothing called for, though no tracer was lost.
    [[nodiscard]] QStringList takeSurplus();
    /// Nothing is awaited any more, and nothing sounds.
    void forget();
    /// While it is deaf, whatever comes is nothing to it.
    void setDeaf(bool isSo) { deaf = isSo; }

private:
    struct Entry
    {
        Message message; ///< the pitch is -1 while it is not known
        int key;         ///< -1: the message is known
        qint64 sent;
    };
    [[nodiscard]] bool answers(const Entry& entry, const Message& message) const;
    [[nodiscard]] bool isOfHand(const Message& message) const;
    void followSound(const Message& message);
    qint64 closeFirst(const Message& message);
    qint64 closeLater(const Message& message);

    std::deque<Entry> awaited;
    QMap<int, int> pitchOfKey;
    std::bitset<128> on, handPlayed;
    Counts count;
    QList<Loss> losses;
    QStringList surplus, doubtful; ///< what nothing called for, and what waits for the next tracer
    qint64 lastHeard = -1;
    bool deaf = false;
};
