#pragma once

#include "StagePlaces.h"

#include <QList>

#include <algorithm>
#include <map>

/// What one gesture over the in keys must send, told independently of the program: a hand that presses a key,
/// moves and lets go.
class SweepModel
{
public:
    using Messages = QList<QList<int>>;

    /// `targets` holds the pitch that each key plays, -1 for none.
    SweepModel(std::map<int, int> targets, bool powerOn, int powerKey)
        : target(std::move(targets)), power(powerOn), keyOfPower(powerKey)
    {
    }

    Messages press(int key)
    {
        held = key;
        swept = seen = 0;
        return noteOn(key);
    }
    /// The hand finds keys within two semitones of the one it saw last.
    Messages move(QPoint pixel)
    {
        if (seen == 0)
            swept = seen = held;
        const int from = seen;
        for (int key = std::max(from - 2, 21); key <= std::min(from + 2, 108); ++key)
            if (stage::isOnInKey(key, pixel)) {
                seen = key;
                break;
            }
        if (isPassedOver(seen) || seen == swept)
            return {};
        const Messages sent = noteOff(swept) + noteOn(seen);
        swept = seen;
        return sent;
    }
    /// The key that is under the hand ends, and the one that it began with is ended once more.
    Messages release() const { return (swept ? noteOff(swept) : Messages()) + noteOff(held); }

private:
    static bool isBlack(int key) { return "x.x.xx.x.x.x"[key % 12] == '.'; }
    bool isPassedOver(int key) const { return power ? isBlack(key) : key == keyOfPower; }
    Messages noteOn(int key) const { return note(0x90, key, 75); }
    Messages noteOff(int key) const { return note(0x80, key, 0); }
    Messages note(int status, int key, int velocity) const
    {
        const int pitch = target.at(key);
        return pitch == -1 ? Messages() : Messages{{status, pitch, velocity}};
    }

    const std::map<int, int> target;
    const bool power;
    const int keyOfPower;
    int held = 0, swept = 0, seen = 0; // 0: none yet
};
