#pragma once

#include "MappingRule.h"

#include <array>
#include <vector>

/// What the program must do with a stream of messages, told independently of it: which keys are held, what
/// they sounded, and which bytes leave.
class RoadModel
{
public:
    using Message = std::vector<unsigned char>;

    RoadModel() { remap(); }

    void setPower(bool on)
    {
        power = on;
        remap();
    }
    void setTonic(int index)
    {
        tonic = index;
        remap();
    }
    /// Twelve letters, "x" for on.
    void setScale(const char* word)
    {
        for (std::size_t n = 0; n < 12; ++n)
            degrees[n] = word[n] == 'x';
        remap();
    }

    /// Takes one message; what leaves is appended to `sent`, mapped notes first.
    void receive(const std::vector<int>& bytes)
    {
        if (bytes.size() != 3)
            return;
        note(bytes[0], bytes[1], bytes[2]);
        if (bytes[0] != 0x80 && bytes[0] != 0x90)
            send(bytes[0], bytes[1], bytes[2]);
    }

    bool power = false;
    std::array<bool, 128> held{};
    std::vector<Message> sent;

private:
    static constexpr int powerKey = 49;

    void remap()
    {
        const MappingRule rule(tonic, degrees);
        for (int key = 21; key <= 108; ++key) {
            const int mapped = isWhite(key) ? rule.target.at(key) : -1;
            target[static_cast<std::size_t>(key)] = power ? mapped : key;
        }
    }

    void note(int status, int key, int velocity)
    {
        if (status < 0x80 || status > 0x9F || key < 21 || key > 108)
            return;
        const auto at = static_cast<std::size_t>(key);
        const bool noteOff = status < 0x90;
        if (!held[at] && velocity != 0 && status == 0x90) {
            held[at] = true;
            if (key == powerKey)
                setPower(!power);
            else
                press(at, velocity);
        } else if (held[at] && (velocity == 0 || noteOff)) {
            held[at] = false;
            release(at);
        }
    }

    void press(std::size_t key, int velocity)
    {
        if (target[key] == -1)
            return;
        sounded[key] = target[key];
        send(0x90, target[key], velocity);
    }

    void release(std::size_t key)
    {
        // Silent keys release nothing, not even what they sounded before they fell silent.
        if (target[key] == -1 || sounded[key] == 0)
            return;
        send(0x80, sounded[key], 0);
    }

    void send(int status, int first, int second)
    {
        sent.push_back({static_cast<unsigned char>(status), static_cast<unsigned char>(first),
                        static_cast<unsigned char>(second)});
    }

    int tonic = 0;
    std::bitset<12> degrees{0b101010110101}; // Ionian, degree 0 in the lowest bit
    std::array<int, 128> target{};
    std::array<int, 128> sounded{};
};
