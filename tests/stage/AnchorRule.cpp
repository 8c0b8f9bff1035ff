#include "AnchorRule.h"

#include "MappingRule.h"

namespace {

constexpr int keys = 52;             // white ones
constexpr int keysBelowMiddleC = 23; // A0 to B3
constexpr int firstKeyLeft = 8;      // scene x of A0, and of its out key on the out bar
constexpr int blackLeft = -5;        // from the white key above it
constexpr int blackWidth = 10;

int whiteKeysBelow(int note)
{
    int n = 0;
    for (int lower = 21; lower < note; ++lower)
        n += isWhite(lower) ? 1 : 0;
    return n;
}

} // namespace

AnchorRule::AnchorRule(int tonic, const QString& word, int shift) : tonicDegree(tonic), shiftKeys(shift)
{
    for (int n = 0; n < 12; ++n)
        on[static_cast<std::size_t>(n)] = word.at(n) == QLatin1Char('x');
}

QList<int> AnchorRule::degrees() const
{
    QList<int> result;
    for (int n = 0; n < 12; ++n)
        if (on[static_cast<std::size_t>(n)])
            result.append(n);
    return result;
}

// Kept: from 52 keys on, all keys fall silent one way and nothing happens the other way.
std::map<int, int> AnchorRule::targets() const
{
    const MappingRule rule(tonicDegree, on);
    if (shiftKeys < keys)
        return shiftKeys > -keys ? rule.slid(shiftKeys, tonicDegree, on) : rule.target;
    std::map<int, int> silent = rule.target;
    for (auto& entry : silent)
        entry.second = -1;
    return silent;
}

std::map<int, int> AnchorRule::numbers() const
{
    const int start = shiftKeys > -keys ? shiftKeys : 0; // what middle C plays, in scale notes from the tonic
    std::map<int, int> result;
    for (const auto& [key, target] : targets()) {
        const int step = whiteKeysBelow(key) - keysBelowMiddleC + start;
        if (target != -1)
            result[key] = (step % count() + count()) % count() + 1;
    }
    return result;
}

AnchorRule::Numbers AnchorRule::inBar() const
{
    Numbers result;
    for (const auto& [key, number] : numbers()) {
        const int left = firstKeyLeft + white * whiteKeysBelow(key);
        result.append({left + (white - widthOf(number)) / 2, number});
    }
    return result;
}

AnchorRule::Numbers AnchorRule::outBar() const
{
    Numbers result;
    for (const int degree : degrees()) {
        const int number = result.size() + 1;
        result.append({outMiddle(60 + tonicDegree + degree) - (number == 10 ? 4 : 2), number});
    }
    return result;
}

int AnchorRule::numberOfNote(int note) const
{
    return degrees().indexOf(((note - tonicDegree) % 12 + 12) % 12) + 1;
}

int AnchorRule::widthOf(int number)
{
    static const int widths[] = {6, 3, 4, 5, 5, 4, 6, 5, 6, 6};
    return number < 10 ? widths[number] : 13;
}

int AnchorRule::outMiddle(int note)
{
    const int left = firstKeyLeft + white * whiteKeysBelow(note);
    return isWhite(note) ? left + white / 2 : left + blackLeft + blackWidth / 2;
}
