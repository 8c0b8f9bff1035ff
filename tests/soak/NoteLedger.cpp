#include "NoteLedger.h"

#include <QDebug>

#include <algorithm>
#include <utility>

namespace {

constexpr int noteOn = 0x90, noteOff = 0x80;

QString text(const NoteLedger::Message& message)
{
    QString bytes;
    for (const int byte : message)
        bytes += QStringLiteral("%1 ").arg(byte, 2, 16, QLatin1Char('0'));
    return bytes.trimmed();
}

bool isFirstChannelNote(const NoteLedger::Message& message)
{
    return message.size() == 3 && (message.at(0) == noteOn || message.at(0) == noteOff);
}

} // namespace

void NoteLedger::expect(const Message& message, qint64 sent)
{
    awaited.push_back({message, -1, sent});
    ++count.expected;
}

void NoteLedger::expectPress(int key, int velocity, qint64 sent)
{
    awaited.push_back({{noteOn, -1, velocity}, key, sent});
    ++count.expected;
}

void NoteLedger::expectRelease(int key, qint64 sent)
{
    awaited.push_back({{noteOff, -1, 0}, key, sent});
    ++count.expected;
}

// The pitch that ends is the one that was heard to begin.
bool NoteLedger::answers(const Entry& entry, const Message& message) const
{
    if (entry.key == -1)
        return message == entry.message;
    if (message.size() != 3 || message.at(0) != entry.message.at(0) || message.at(2) != entry.message.at(2))
        return false;
    return message.at(0) == noteOn || pitchOfKey.value(entry.key, -1) == message.at(1);
}

// A glissando ends its first key once more, so a pitch that the hand has played may end more than once.
bool NoteLedger::isOfHand(const Message& message) const
{
    if (!isFirstChannelNote(message))
        return false;
    return message.at(0) == noteOn ? message.at(2) == handVelocity
                                   : handPlayed[static_cast<std::size_t>(message.at(1))];
}

void NoteLedger::followSound(const Message& message)
{
    if (isFirstChannelNote(message))
        on[static_cast<std::size_t>(message.at(1))] = message.at(0) == noteOn;
}

qint64 NoteLedger::closeFirst(const Message& message)
{
    const Entry entry = awaited.front();
    if (entry.key != -1 && message.at(0) == noteOn)
        pitchOfKey[entry.key] = message.at(1);
    awaited.pop_front();
    if (isTracer(message))
        surplus += std::exchange(doubtful, {});
    return lastHeard = entry.sent;
}

qint64 NoteLedger::hear(const Message& message)
{
    if (deaf)
        return -1;
    ++count.heard;
    followSound(message);
    if (!awaited.empty() && answers(awaited.front(), message))
        return closeFirst(message);
    if (!isOfHand(message))
        return closeLater(message);
    handPlayed[static_cast<std::size_t>(message.at(1))] = true;
    ++(message.at(0) == noteOn ? count.handOns : count.handOffs);
    return -1;
}

// What was awaited before it is lost; if nobody awaits it, it is one too many.
qint64 NoteLedger::closeLater(const Message& message)
{
    const auto found = std::find_if(awaited.begin(), awaited.end(),
                                    [&](const Entry& entry) { return answers(entry, message); });
    if (found == awaited.end()) {
        doubtful += QStringLiteral("%1 came, which nothing called for (%2 outstanding, the first is %3)")
                        .arg(text(message))
                        .arg(outstanding())
                        .arg(awaited.empty() ? QString() : text(awaited.front().message));
        return -1;
    }
    const bool tracers =
        std::any_of(awaited.begin(), found, [](const Entry& entry) { return isTracer(entry.message); });
    losses.append({lastHeard, awaited.front().sent, std::prev(found)->sent, found->sent, tracers,
                   std::exchange(doubtful, {}),
                   QStringLiteral("%1 lost, the first of them %2, before %3")
                       .arg(found - awaited.begin())
                       .arg(text(awaited.front().message), text(message))});
    awaited.erase(awaited.begin(), found);
    return closeFirst(message);
}

QList<int> NoteLedger::sounding() const
{
    QList<int> pitches;
    for (std::size_t pitch = 0; pitch < on.size(); ++pitch)
        if (on[pitch])
            pitches += static_cast<int>(pitch);
    return pitches;
}

QList<NoteLedger::Loss> NoteLedger::takeLosses()
{
    return std::exchange(losses, {});
}

QStringList NoteLedger::takeSurplus()
{
    return std::exchange(surplus, {});
}

void NoteLedger::forget()
{
    awaited.clear();
    doubtful.clear();
    on.reset();
}
