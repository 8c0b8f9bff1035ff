#pragma once

#include <QPoint>

/// Where a hand finds the library on the stage, in its pixels, told from the plan of the stage.
namespace browser_places {

constexpr QPoint ofScene(int x, int y)
{
    return {x + 21, y + 152};
}

// The buttons' middles, from left to right
constexpr QPoint newCategory = ofScene(296, 27), deleteCategory = ofScene(314, 27),
                 renameCategory = ofScene(332, 27);
constexpr QPoint addScale = ofScene(420, 27), copyScale = ofScene(438, 27), moveScale = ofScene(456, 27),
                 deleteScale = ofScene(474, 27);
constexpr QPoint playedPlate = ofScene(534, 27), firstShortName = ofScene(622, 27),
                 secondShortName = ofScene(666, 27), pencil = ofScene(680, 49), page = ofScene(560, 90);
constexpr QPoint access = ofScene(753, 113);

// Beside the library
constexpr QPoint onTheKeys{480, 420}, onThePanel{180, 190};

constexpr QPoint scaleSwitch{898, 260};

/// A key of the scale selector: the foot of a white one, the body of a black one.
constexpr QPoint degree(int index)
{
    constexpr int whites[] = {0, -1, 1, -1, 2, 3, -1, 4, -1, 5, -1, 6};
    constexpr int blacks[] = {-1, 12, -1, 29, -1, -1, 63, -1, 80, -1, 97, -1};
    constexpr int left = 799;
    return whites[index] >= 0 ? QPoint(left + whites[index] * 17 + 8, 238)
                              : QPoint(left + blacks[index] + 5, 205);
}

} // namespace browser_places
