#pragma once

#include "MappingRule.h"

#include <QList>

#include <cstdlib>
#include <map>
#include <string>

/// What the white keys play with the power on, -1 for nothing. The tonic counts semitones above C; the word
/// has an 'x' for each degree of the scale.
inline std::map<int, int> whiteTargets(int tonic, const std::string& word)
{
    std::bitset<12> degrees;
    for (std::size_t n = 0; n < 12; ++n)
        degrees[n] = word.at(n) == 'x';
    return MappingRule(tonic, degrees).target;
}

/// What one gesture over the in keys must send, told independently of the program: a hand that presses a key,
/// moves and lets go. For presets that recall nothing.
class SweepModel
{
public:
    using Messages = QList<QList<int>>;

    SweepModel(bool powerOn, int keyUnderPower, int tonic, const std::string& word)
        : power(powerOn), keyOfPower(keyUnderPower), white(whiteTargets(tonic, word))
    {
    }

    Messages press(int key)
    {
        held = seen = key;
        swept = 0;
        return noteOn(key);
    }
    /// `key` is the one under the hand, 0 beside the keys. The hand finds keys within two semitones of the
    /// one it saw last.
    Messages move(int key)
    {
        if (swept == 0)
            swept = held;
        if (key != 0 && std::abs(key - seen) <= 2)
            seen = key;
        if (isPassedOver(seen) || seen == swept)
            return {};
        const Messages sent = noteOff(swept) + noteOn(seen);
        swept = seen;
        return sent;
    }
    /// The key that is under the hand ends, and the one that it began with is ended once more.
    Messages release() const { return (swept ? noteOff(swept) : Messages()) + noteOff(held); }

private:
    bool isPassedOver(int key) const { return power ? !isWhite(key) : key == keyOfPower; }
    int target(int key) const { return !power ? key : isWhite(key) ? white.at(key) : -1; }
    Messages noteOn(int key) const { return note(0x90, key, 75); }
    Messages noteOff(int key) const { return note(0x80, key, 0); }
    Messages note(int status, int key, int velocity) const
    {
        const int pitch = target(key);
        return pitch == -1 ? Messages() : Messages{{status, pitch, velocity}};
    }

    const bool power;
    const int keyOfPower;
    const std::map<int, int> white;
    int held = 0, swept = 0, seen = 0; // 0: none yet
};
