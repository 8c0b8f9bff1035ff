#pragma once

#include "NoteLedger.h"
#include "RoadModel.h"

#include <deque>
#include <functional>
#include <random>

/// Makes up music and enters what must come of it in the ledger.
class Score
{
public:
    enum class Style {
        pass,          ///< power off: every key but the power key, and all channels
        mapped,        ///< white keys and all channels, as the model maps them
        recalls,       ///< the same with black keys, notes held over them
        anywhere,      ///< keys that sound under every tonic, scale and power; what they sound is the hand's
                       ///< affair
        flood,         ///< the same with black keys
        otherChannels, ///< no note of the first channel
    };
    using Send = std::function<qint64(const NoteLedger::Message&)>; ///< gives the number of what was sent

    Score(std::mt19937& source, RoadModel& road, NoteLedger& book, Send sender);

    void begin(Style newStyle) { style = newStyle; }
    /// Sends the next message.
    void playNext();
    /// Ends what is begun.
    void releaseAll();
    /// Drops what is begun, for one who ends it by other means.
    void forget();
    /// Sends what the model follows, and expects its answer.
    void playByModel(const NoteLedger::Message& message);

private:
    [[nodiscard]] int below(int bound) { return static_cast<int>(numbers() % static_cast<unsigned>(bound)); }
    template <typename List>
    [[nodiscard]] auto oneOf(const List& list)
    {
        return list[static_cast<std::size_t>(below(static_cast<int>(std::size(list))))];
    }
    [[nodiscard]] int velocity();
    [[nodiscard]] bool followsModel() const;
    [[nodiscard]] const std::vector<int>& keys() const;
    [[nodiscard]] int heldKey();

    void invent();
    void pressSome(int count);
    void releaseOne();
    void run();
    void recall();
    void otherChannelNotes();
    void controllers();
    void shortOnes();

    void perform(const NoteLedger::Message& message);
    void playFreely(const NoteLedger::Message& message);

    std::mt19937& numbers;
    RoadModel& model;
    NoteLedger& ledger;
    const Send send;
    Style style = Style::otherChannels;
    std::deque<NoteLedger::Message> ahead;
    std::vector<int> held; ///< keys that are down, in the order of their presses
};
