#pragma once

#include "FactoryPresets.h"

#include <array>
#include <vector>

/// What the program must do with a stream of messages, told independently of it: which keys are held, what
/// they sounded, which preset is recalled, and which bytes leave.
class RoadModel
{
public:
    using Message = std::vector<unsigned char>;

    RoadModel() { remap(); }

    void setPower(bool on)
    {
        presets.power = on;
        remap();
    }
    /// Semitones above C.
    void setTonic(int semitones)
    {
        presets.chooseTonic(semitones);
        remap();
    }
    void setScale(const char* word)
    {
        presets.word = word;
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

    PresetModel presets = factoryPresets();
    std::array<bool, 128> held{};
    std::vector<Message> sent;

private:
    void remap() { target = presets.mapping(); }

    void note(int status, int key, int velocity)
    {
        if (status < 0x80 || status > 0x9F || key < 21 || key > 108)
            return;
        const auto at = static_cast<std::size_t>(key);
        const bool noteOff = status < 0x90;
        if (!held[at] && velocity != 0 && status == 0x90) {
            held[at] = true;
            press(key, velocity);
        } else if (held[at] && (velocity == 0 || noteOff)) {
            held[at] = false;
            release(key);
        }
    }

    void press(int key, int velocity)
    {
        if (key == presets.powerKey) {
            setPower(!presets.power);
            return;
        }
        if (target[key] != -1) {
            sounded[key] = target[key];
            send(0x90, target[key], velocity);
        }
        if (presets.power && !isWhite(key)) {
            presets.recall(PresetModel::indexOf(key));
            remap();
        }
        presets.match();
    }

    void release(int key)
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

    std::map<int, int> target;
    std::map<int, int> sounded;
};
