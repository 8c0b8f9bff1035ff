#pragma once

#include "JackPlayer.h"

#include <QElapsedTimer>

#include <memory>
#include <random>
#include <vector>

/// Other programs of the stage: two that are listed in the port rows, which come and go, and guests that
/// nobody listed. Some guests listen to the program and some send system exclusive messages to it, which must
/// come out nowhere.
class PortChurn
{
public:
    static constexpr int rows = 2; ///< of either list belong to the ones that are listed

    explicit PortChurn(std::mt19937& source) : numbers(source) {}

    /// The listed ones come. Before the program starts.
    void begin();
    /// Guests come and go until the JACK library has all that it keeps for later ones.
    void wearIn();
    /// Something changes, now and then.
    void step();
    /// The listed ones are there again.
    void settle();
    /// The guests go: each has the program's library hold some files open.
    void dismissGuests() { guests.clear(); }
    [[nodiscard]] int changes() const { return count; }

private:
    [[nodiscard]] int below(int bound) { return static_cast<int>(numbers() % static_cast<unsigned>(bound)); }
    void changeListed();
    void changeGuests();

    std::mt19937& numbers;
    std::unique_ptr<JackPlayer> listed[rows];
    std::vector<std::unique_ptr<JackPlayer>> guests;
    QElapsedTimer sinceChange;
    int pauseMs = 500, count = 0, born = 0;
};
