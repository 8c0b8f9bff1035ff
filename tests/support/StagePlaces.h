#pragma once

#include <QPoint>

/// Where the hand finds things on the stage, in its pixels, and what lies under a pixel. Told from the plan
/// of the stage, without the program. Keys are named by their notes, 21 to 108.
namespace stage {

enum class Keyboard { in, out };

/// A spot of a key that nothing else on the stage takes from it: the foot of a white one; of a black one the
/// end that looks out below its flag.
[[nodiscard]] QPoint keyPlace(Keyboard keyboard, int note);

/// True if the pixel belongs to that in key as it is seen: a white key ends where a black one lies on it.
[[nodiscard]] bool isOnInKey(int note, QPoint pixel);

/// The middle of a flag's name box; flags are named by their black in key.
[[nodiscard]] QPoint flagPlace(int blackKey);

/// The power button when it stands on that in key: what it is pressed at, and what it is dragged by.
[[nodiscard]] QPoint powerSquare(int blackKey);
[[nodiscard]] QPoint powerSleeve(int blackKey);

/// The key of the tonic selector so many semitones above C, a white one.
[[nodiscard]] QPoint tonicPlace(int semitones);

/// The handle of the in anchor that stands on the left edge of middle C at the start, moved by x.
[[nodiscard]] QPoint anchorPlace(int x);

} // namespace stage
