#pragma once

#include "RoadModel.h"

#include <QList>

/// The presets and the power button as a player knows them who has followed every drop. Flags are named by
/// their black keys.
class StageModel : public RoadModel
{
public:
    using Messages = QList<QList<int>>;

    [[nodiscard]] Messages answerTo(const Messages& played)
    {
        sent.clear();
        for (const QList<int>& message : played)
            receive({message.begin(), message.end()});
        Messages answer;
        for (const Message& message : sent)
            answer.append(QList<int>(message.begin(), message.end()));
        return answer;
    }

    [[nodiscard]] int powerKey() const { return presets.powerKey; }
    [[nodiscard]] static QList<int> flags()
    {
        QList<int> keys;
        for (int i = 0; i < PresetModel::count; ++i)
            keys.append(PresetModel::keyOf(i));
        return keys;
    }

    /// The press recalls.
    void pressFlag(int key)
    {
        presets.recall(PresetModel::indexOf(key));
        setPower(presets.power);
    }
    /// The preset goes to the key that the button leaves, and stays the active one if it was.
    void dropPowerOn(int key)
    {
        const int left = PresetModel::indexOf(presets.powerKey), taken = PresetModel::indexOf(key);
        exchange(left, taken);
        if (presets.active == taken)
            presets.active = left;
        presets.powerKey = key;
    }
    /// The same change of places, by the other hand.
    void dropFlagOnPower(int key) { dropPowerOn(key); }
    /// The preset that was dragged, active since the press, stays so in its new place.
    void dropFlagOnFlag(int key, int onto)
    {
        exchange(PresetModel::indexOf(key), PresetModel::indexOf(onto));
        presets.active = PresetModel::indexOf(onto);
    }

private:
    void exchange(int a, int b)
    {
        std::swap(presets.records[static_cast<std::size_t>(a)], presets.records[static_cast<std::size_t>(b)]);
    }
};
