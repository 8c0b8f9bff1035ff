#include "headers/anchor_snap.h"

#include "keys/pitch_mapping.h"

#include <cstdlib>

namespace anchor_snap {
namespace {

constexpr int gridSize = 200;
constexpr int reach = 2; // grid points looked at on each side
constexpr int farAway = 1000;

} // namespace

QList<int> grid(int step)
{
    QList<int> points;
    for (int i = 0; i < gridSize; ++i)
        points.append(i * step);
    return points;
}

int nearest(const QList<int>& grid, int x)
{
    const int index = std::abs(x / pitch_mapping::whiteKeyWidth);
    int best = 0, bestDistance = farAway;
    for (int i = qMax(index - reach, 0); i < qMin(index + reach, grid.size()); ++i) {
        const int distance = std::abs(grid[i] - x);
        if (distance >= bestDistance)
            continue;
        best = grid[i];
        bestDistance = distance;
    }
    return best;
}

std::optional<int> stop(qreal sceneX, qreal inGroup)
{
    if (sceneX < barLeft)
        return static_cast<int>(barLeft - inGroup);
    if (sceneX > barRight)
        return static_cast<int>(barRight - inGroup);
    return std::nullopt;
}

} // namespace anchor_snap
