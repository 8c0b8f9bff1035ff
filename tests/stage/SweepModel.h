#pragma once

#include <QList>
#include <QPointF>

#include <map>

/// The key at a place counted from the top left corner of A0; 0 beside the keys. Told from the sizes alone:
/// white keys are 17 by 99, black ones 10 by 64 and centred on the edge between their neighbours.
[[nodiscard]] int keySeenAt(int x, int y);

/// What a hand on the input keyboard sends, told without items or scenes. Presets that recall nothing, and
/// the power button on its first key.
class SweepModel
{
public:
    /// `targets` are those of the white keys with the power on, -1 for a grey one.
    SweepModel(bool powerOn, std::map<int, int> targets);

    // Places are counted as in keySeenAt()
    void press(QPoint place);
    void move(QPoint place);
    void release();

    [[nodiscard]] QList<QList<int>> take();

private:
    void push(int key);
    void pull(int key);
    [[nodiscard]] bool isPassedOver(int key) const;
    [[nodiscard]] bool isSilent(int key) const;

    const bool power;
    const std::map<int, int> target;
    std::map<int, int> remembered; // the pitch that each key sounded last
    int pressed = 0, current = 0, down = 0;
    QList<QList<int>> sent;
};
