#pragma once

#include "keys/key_pictures.h"

#include <QColor>
#include <QImage>
#include <QStringList>

#include <vector>

/// The looks of each part, and the pairs of them that a user must be able to tell apart without colours.
namespace state_pairs {

/// How much two pictures must differ: by that many of 255 levels of grey on that share of the part.
struct Difference
{
    int levels;
    double share;
};

inline constexpr Difference plain{25, 0.12}; ///< seen at a glance
inline constexpr Difference rim{25, 0.05};   ///< a rim, a lamp or a shadow: small, and hard
inline constexpr Difference soft{12, 0.30};  ///< a change of all of a plate while the pointer is on it

/// Pictures laid upon each other, on the ground that lies behind them on the stage.
struct Look
{
    const char* name;
    QStringList layers; ///< below Resources/, the lowest first
    QColor ground;
};

struct Pair
{
    Look one, other;
    Difference wanted;
};

/// How a key looks, by what made it so.
struct KeyLook
{
    const char* name;
    KeySheet sheet;
    KeyCell cell;
    KeyShine shine;
};

struct KeyPair
{
    bool black;
    KeyLook one, other;
};

inline const QColor rail(0x1d, 0x2c, 0x38); ///< what lies behind the flags

// The layers of a part's states
[[nodiscard]] QStringList power(std::initializer_list<const char*> states);
/// Types count from 1.
[[nodiscard]] QStringList flag(int type, std::initializer_list<const char*> states);
/// The row is "Tonic" or "Scale"; a null state is the neutral one.
[[nodiscard]] QStringList toggle(const char* row, const char* state);

/// A null picture if a layer is missing.
[[nodiscard]] QImage pictureOf(const Look& look);
[[nodiscard]] QImage pictureOf(const KeyLook& look, KeyShape shape);

[[nodiscard]] std::vector<Pair> ofFlags();
[[nodiscard]] std::vector<Pair> ofPower();
[[nodiscard]] std::vector<Pair> ofSwitches();
[[nodiscard]] std::vector<Pair> ofButtons();
[[nodiscard]] const std::vector<KeyPair>& ofKeys();

} // namespace state_pairs
