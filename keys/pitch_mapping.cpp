#include "keys/pitch_mapping.h"

#include <algorithm>
#include <string_view>

namespace pitch_mapping {
namespace {

//   C C# D D# E F F# G G# A A# B
constexpr std::string_view octavePattern = ".#.#..#.#.#.";

/// The smallest scale pitch from `from` up to 108, or noTarget.
int nextUp(const PitchSet& scale, int from)
{
    for (int c = std::max(from, lowestPitch); c <= highestPitch; ++c)
        if (scale[indexOf(c)])
            return c;
    return noTarget;
}

/// The largest scale pitch from `from` down to 21, or noTarget.
int nextDown(const PitchSet& scale, int from)
{
    for (int c = std::min(from, highestPitch); c >= lowestPitch; --c)
        if (scale[indexOf(c)])
            return c;
    return noTarget;
}

void store(Targets& targets, int key, int pitch)
{
    if (isOnKeyboard(key))
        targets[indexOf(key)] = pitch;
}

template <typename Next>
void walkFromSeed(Targets& targets, int tonic, int step, Next next)
{
    int cursor = seedPitch + step;
    for (int c = next(seedPitch + tonic + step); c != noTarget; c = next(c + step)) {
        if (isBlackPitch(cursor)) // never two in a row, so one skip is enough
            cursor += step;
        store(targets, cursor, c);
        cursor += step;
    }
}

Slide takeFromAbove(const Targets& from, const PitchSet& scale, std::size_t shift)
{
    Slide result{from, lowestPitch, highestPitch};
    const auto& whites = whitePitches();
    int lastTarget = noTarget;
    for (std::size_t i = 0; i + shift < whites.size(); ++i) {
        lastTarget = from[indexOf(whites[i + shift])];
        result.targets[indexOf(whites[i])] = lastTarget;
        result.tailFirst = whites[i] + 1;
    }
    int next = lastTarget + 1;
    for (int key = result.tailFirst; key <= highestPitch; ++key) {
        if (isBlackPitch(key))
            continue;
        const int c = nextUp(scale, next);
        if (c != noTarget)
            next = c + 1;
        // A silent neighbour silences the tail; otherwise the search would start again from the bottom.
        result.targets[indexOf(key)] = lastTarget == noTarget ? noTarget : c;
    }
    return result;
}

Slide takeFromBelow(const Targets& from, const PitchSet& scale, std::size_t shift)
{
    Slide result{from, lowestPitch, lowestPitch - 1};
    const auto& whites = whitePitches();
    int lastTarget = noTarget;
    for (std::size_t i = whites.size(); i-- > shift;) {
        lastTarget = from[indexOf(whites[i - shift])];
        result.targets[indexOf(whites[i])] = lastTarget;
        result.tailLast = whites[i] - 1;
    }
    int next = lastTarget - 1;
    for (int key = result.tailLast; key >= lowestPitch; --key) {
        if (isBlackPitch(key))
            continue;
        const int c = nextDown(scale, next);
        if (c != noTarget)
            next = c - 1;
        result.targets[indexOf(key)] = c;
    }
    return result;
}

} // namespace

bool isBlackPitch(int pitch)
{
    const int degree = degreeOf(pitch, 0);
    return octavePattern[static_cast<std::size_t>(degree)] == '#';
}

const std::array<int, whiteCount>& whitePitches()
{
    static const auto whites = [] {
        std::array<int, whiteCount> list{};
        std::size_t n = 0;
        for (int pitch = lowestPitch; pitch <= highestPitch; ++pitch)
            if (!isBlackPitch(pitch))
                list[n++] = pitch;
        return list;
    }();
    return whites;
}

int degreeOf(int pitch, int tonic)
{
    return ((pitch - tonic) % octave + octave) % octave;
}

PitchSet pitchesOf(int tonic, const Degrees& degrees)
{
    PitchSet set;
    for (int pitch = lowestPitch; pitch <= highestPitch; ++pitch)
        set[indexOf(pitch)] = degrees[static_cast<std::size_t>(degreeOf(pitch, tonic))];
    return set;
}

Targets identity()
{
    Targets targets{};
    for (int pitch = lowestPitch; pitch <= highestPitch; ++pitch)
        targets[indexOf(pitch)] = pitch;
    return targets;
}

Targets walk(int tonic, const PitchSet& scale)
{
    Targets targets;
    targets.fill(noTarget);
    store(targets, seedPitch, seedPitch + tonic);
    walkFromSeed(targets, tonic, +1, [&scale](int from) { return nextUp(scale, from); });
    walkFromSeed(targets, tonic, -1, [&scale](int from) { return nextDown(scale, from); });
    return targets;
}

Slide slide(const Targets& from, const PitchSet& scale, int shift)
{
    if (shift > 0)
        return takeFromAbove(from, scale, static_cast<std::size_t>(shift));
    if (shift < 0)
        return takeFromBelow(from, scale, static_cast<std::size_t>(-static_cast<long>(shift)));
    return {from, lowestPitch, lowestPitch - 1};
}

int shiftOfAnchor(double sceneX)
{
    return static_cast<int>(sceneX / -whiteKeyWidth);
}

} // namespace pitch_mapping
