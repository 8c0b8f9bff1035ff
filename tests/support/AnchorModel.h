#pragma once

#include "tunes.h"

#include <QByteArray>
#include <QPoint>

/// What the white keys play while the hand drags an anchor, told independently of the program. x is the
/// hand's way since the press, in pixels.
class AnchorModel
{
public:
    /// `word` is the scale; `anchor` the number of the one in the hand.
    AnchorModel(int semitones, const QByteArray& word, int anchor)
        : tonic(semitones), degrees(bitsOf(word)), home(anchor * static_cast<int>(degrees.count()) * keyWidth)
    {
    }

    /// Where the anchor in the hand stands at first, from the main one: so many scales away.
    [[nodiscard]] int start() const { return home; }
    /// The ways to the ends of the bar, where the anchor in the hand stops.
    [[nodiscard]] int leftEnd() const { return -374 - home; }
    [[nodiscard]] int rightEnd() const { return 476 - home; }

    /// The answer of the program to tapWhiteKeys() over the whole keyboard.
    [[nodiscard]] QList<QList<int>> answer(int x) const
    {
        const int keys = qRound(double(qBound(leftEnd(), x, rightEnd())) / keyWidth);
        QList<QList<int>> messages;
        for (const auto& entry : MappingRule(tonic, degrees).slid(-keys, tonic, degrees))
            if (entry.second != -1)
                messages += tap(entry.second);
        return messages;
    }

private:
    static constexpr int keyWidth = 17; // of a white key
    static std::bitset<12> bitsOf(const QByteArray& word)
    {
        std::bitset<12> bits;
        for (std::size_t n = 0; n < 12; ++n)
            bits[n] = word.at(static_cast<int>(n)) == 'x';
        return bits;
    }

    const int tonic;
    const std::bitset<12> degrees;
    const int home;
};
