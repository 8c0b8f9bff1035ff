#pragma once

#include <QList>
#include <QStringList>

#include <random>

/// Gestures for the hand, made up within what a piece of music allows, in xdotool's words. Each ends with the
/// buttons up. Places are those of a window of full width at the screen's origin.
namespace gestures {

enum class Repertoire {
    powerOff, ///< low keys, ports, display, the window's width
    looking,  ///< lists, ports, menus, the window's width, keys that sound themselves: nothing that changes
              ///< the map
    power,    ///< the power by all ways, selectors, low keys, flags, the power button's place
    presets,  ///< flags and their menus, selectors, scales of the library; the power stays on
    anchors,  ///< the main anchor, there and back
};

/// One of the repertoire. `rows` is how many rows of either port list belong to other programs.
[[nodiscard]] QStringList any(Repertoire repertoire, std::mt19937& numbers, int rows);

/// Buttons up, menus closed, questions answered with no, the keyboard on the window, the pointer where
/// nothing is.
[[nodiscard]] QList<QStringList> tidyUp();

/// The file dialog by its shortcut: waits for it, gives it the keyboard, types a path and accepts.
[[nodiscard]] QList<QStringList> answerFileDialog(const QString& shortcut, const QString& path);
/// Succeeds while a file dialog is there.
[[nodiscard]] QStringList findFileDialog();

} // namespace gestures
