// The rules of a glissando, told without the program.

#include "SweepModel.h"

#include "MappingRule.h"

namespace {

constexpr int lowestKey = 21, highestKey = 108, powerKeyAtStart = 49;
constexpr int reach = 2; // semitones to each side that a move looks at

} // namespace

int keySeenAt(int x, int y)
{
    constexpr int whiteKeys = 52;
    if (x < 0 || x >= 17 * whiteKeys || y < 0 || y >= 99)
        return 0;
    int white = lowestKey;
    for (int k = 0; k < x / 17; ++k)
        white += isWhite(white + 1) ? 1 : 2;
    const int within = x % 17;
    if (y < 64 && within < 5 && white > lowestKey && !isWhite(white - 1))
        return white - 1;
    if (y < 64 && within >= 12 && white < highestKey && !isWhite(white + 1))
        return white + 1;
    return white;
}

SweepModel::SweepModel(bool powerOn, std::map<int, int> targets) : power(powerOn), target(std::move(targets))
{
}

bool SweepModel::isSilent(int key) const
{
    return power && (!isWhite(key) || target.at(key) == -1);
}

bool SweepModel::isPassedOver(int key) const
{
    return power ? !isWhite(key) : key == powerKeyAtStart;
}

void SweepModel::push(int key)
{
    if (isSilent(key))
        return;
    remembered[key] = power ? target.at(key) : key;
    sent.append({0x90, remembered[key], 75});
}

void SweepModel::pull(int key)
{
    if (!isSilent(key) && remembered.count(key))
        sent.append({0x80, remembered[key], 0});
}

void SweepModel::press(QPoint place)
{
    pressed = keySeenAt(place.x(), place.y());
    current = pressed;
    down = 0;
    push(pressed);
}

void SweepModel::move(QPoint place)
{
    if (!down)
        down = pressed;
    const int seen = keySeenAt(place.x(), place.y());
    if (seen && qAbs(seen - current) <= reach)
        current = seen;
    if (isPassedOver(current) || current == down)
        return;
    pull(down);
    push(current);
    down = current;
}

// The scene ends the key that is down, and the item that the press began with ends once more.
void SweepModel::release()
{
    if (down)
        pull(down);
    pull(pressed);
}

QList<QList<int>> SweepModel::take()
{
    QList<QList<int>> messages;
    messages.swap(sent);
    return messages;
}
