#include "Score.h"

#include <algorithm>

namespace {

constexpr int noteOn = 0x90, noteOff = 0x80;
constexpr std::size_t mostHeld = 10;

/// The tonic alone repeats every octave: even so these find a note above or below, whatever the tonic.
const std::vector<int> neverSilent{55, 57, 59, 60, 62, 64, 65};

std::vector<int> keysFrom(int from, int to, bool black)
{
    std::vector<int> keys;
    for (int key = from; key <= to; ++key)
        if (black || isWhite(key))
            keys.push_back(key);
    return keys;
}

} // namespace

Score::Score(std::mt19937& source, RoadModel& road, NoteLedger& book, Send sender)
    : numbers(source), model(road), ledger(book), send(std::move(sender))
{
}

bool Score::followsModel() const
{
    return style == Style::pass || style == Style::mapped || style == Style::recalls;
}

// The hand has the lowest octaves for itself.
const std::vector<int>& Score::keys() const
{
    static const std::vector<int> all = keysFrom(50, 108, true), white = keysFrom(43, 79, false);
    return style == Style::pass ? all : style == Style::mapped ? white : neverSilent;
}

int Score::velocity()
{
    const int any = 1 + below(126);
    return any < NoteLedger::handVelocity ? any : any + 1;
}

void Score::playNext()
{
    while (ahead.empty())
        invent();
    const NoteLedger::Message message = ahead.front();
    ahead.pop_front();
    perform(message);
}

void Score::invent()
{
    const bool firstChannel = style != Style::otherChannels;
    const int chance = below(100);
    if (firstChannel && chance < 22)
        pressSome(1 + below(4));
    else if (firstChannel && chance < 50)
        releaseOne();
    else if (firstChannel && chance < 62)
        run();
    else if (chance < 70)
        recall();
    else if (chance < 82)
        otherChannelNotes();
    else if (chance < 94)
        controllers();
    else
        shortOnes();
}

void Score::pressSome(int count)
{
    for (; count > 0 && held.size() < mostHeld; --count) {
        const int key = oneOf(keys());
        if (std::find(held.begin(), held.end(), key) != held.end())
            continue;
        held.push_back(key);
        ahead.push_back({noteOn, key, velocity()});
    }
}

void Score::releaseOne()
{
    if (held.empty())
        return;
    const auto at = held.begin() + below(static_cast<int>(held.size()));
    const int key = *at;
    held.erase(at);
    if (below(4) == 0)
        ahead.push_back({noteOn, key, 0});
    else
        ahead.push_back({noteOff, key, below(128)});
}

void Score::run()
{
    const std::vector<int>& from = style == Style::recalls ? keysFrom(43, 79, false) : keys();
    auto at = static_cast<std::size_t>(below(static_cast<int>(from.size())));
    for (int i = 0; i < 8; ++i, at = (at + 1) % from.size()) {
        if (std::find(held.begin(), held.end(), from[at]) != held.end())
            continue;
        ahead.push_back({noteOn, from[at], velocity()});
        ahead.push_back({noteOff, from[at], 64});
    }
}

// With the power on each black key but the power key stands for a preset.
void Score::recall()
{
    if (style != Style::recalls && style != Style::flood)
        return;
    int key = 21 + below(88);
    while (isWhite(key) || key == model.presets.powerKey)
        key = 21 + (key - 20) % 88;
    ahead.push_back({noteOn, key, velocity()});
    ahead.push_back({noteOff, key, 0});
}

// With the power off they meet keys of the first channel, which any channel's note-off releases: the model
// knows.
void Score::otherChannelNotes()
{
    const int note = 84 + below(25), loud = velocity();
    for (int channel = 1; channel < 16; ++channel)
        ahead.push_back({noteOn + channel, note, loud});
    for (int channel = 1; channel < 16; ++channel)
        ahead.push_back({noteOff + channel, note, 1});
}

void Score::controllers()
{
    const int channel = below(16), number = below(118);
    for (int i = 0; i < 6; ++i)
        ahead.push_back({0xB0 + channel, number, below(128)});
    ahead.push_back({0xE0 + channel, below(128), below(128)});
    ahead.push_back({0xA0 + channel, below(128), below(128)});
    ahead.push_back({0xF2, below(128), below(128)});
}

// None of these leaves.
void Score::shortOnes()
{
    ahead.push_back({0xC0 + below(16), below(128)});
    ahead.push_back({0xD0 + below(16), below(128)});
    ahead.push_back({0xF8});
}

void Score::perform(const NoteLedger::Message& message)
{
    if (followsModel())
        playByModel(message);
    else
        playFreely(message);
}

void Score::playByModel(const NoteLedger::Message& message)
{
    model.sent.clear();
    model.receive({message.begin(), message.end()});
    const qint64 number = send(message);
    for (const RoadModel::Message& answer : model.sent)
        ledger.expect(NoteLedger::Message(answer.begin(), answer.end()), number);
}

void Score::playFreely(const NoteLedger::Message& message)
{
    const qint64 number = send(message);
    if (message.size() != 3)
        return;
    const int status = message.at(0), key = message.at(1);
    const bool isFirst = status == noteOn || status == noteOff;
    if (!isFirst)
        ledger.expect(message, number);
    else if (!isWhite(key))
        return;
    else if (status == noteOn && message.at(2) != 0)
        ledger.expectPress(key, message.at(2), number);
    else
        ledger.expectRelease(key, number);
}

void Score::releaseAll()
{
    for (; !ahead.empty(); ahead.pop_front())
        perform(ahead.front());
    while (!held.empty())
        releaseOne();
    for (; !ahead.empty(); ahead.pop_front())
        perform(ahead.front());
}

void Score::forget()
{
    ahead.clear();
    held.clear();
}
