#pragma once

#include <QList>

#include <optional>

/// Where the anchors may stand: whole white keys, and not beyond the bar. All in scene pixels.
namespace anchor_snap {

inline constexpr qreal barLeft = -374, barRight = 476; ///< of an anchor's x
inline constexpr qreal barTop = 145;                   ///< anchors are gripped at this y and below

/// The 200 multiples of `step` from 0 on.
[[nodiscard]] QList<int> grid(int step);

/// The grid point nearest to `x`, looked for around its own index; 0 if the grid does not reach so far.
[[nodiscard]] int nearest(const QList<int>& grid, int x);

/// The place of the group that puts an anchor on the end of the bar which it has passed; nothing if it has
/// passed none. `inGroup` is the anchor's x within its group.
[[nodiscard]] std::optional<int> stop(qreal sceneX, qreal inGroup);

} // namespace anchor_snap
