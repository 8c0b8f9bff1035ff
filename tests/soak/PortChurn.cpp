#include "PortChurn.h"

namespace {

constexpr const char* names[PortChurn::rows] = {"piano", "pads"};
constexpr std::size_t mostGuests = 4;
constexpr int toWearIn = 120; // beside a bare pass-through some hundred came and went until it was flat

} // namespace

void PortChurn::begin()
{
    settle();
    sinceChange.start();
}

void PortChurn::settle()
{
    for (int i = 0; i < rows; ++i)
        if (!listed[i])
            listed[i] = std::make_unique<JackPlayer>(names[i]);
}

void PortChurn::wearIn()
{
    for (int i = 0; i < toWearIn; ++i)
        JackPlayer guest("early guest " + QByteArray::number(i));
}

void PortChurn::step()
{
    if (sinceChange.elapsed() < pauseMs)
        return;
    if (below(4) == 0)
        changeListed();
    else
        changeGuests();
    ++count;
    pauseMs = 300 + below(1200);
    sinceChange.restart();
}

void PortChurn::changeListed()
{
    const int i = below(rows);
    if (listed[i])
        listed[i].reset();
    else
        listed[i] = std::make_unique<JackPlayer>(names[i]);
}

void PortChurn::changeGuests()
{
    if (!guests.empty() && (guests.size() == mostGuests || below(2) == 0)) {
        guests.erase(guests.begin() + below(static_cast<int>(guests.size())));
        return;
    }
    guests.push_back(std::make_unique<JackPlayer>("guest " + QByteArray::number(++born)));
    if (guests.back()->isOpen() && below(2) == 0)
        guests.back()->connectInputTo(QStringLiteral(":Sorvane MIDI Out"));
}
