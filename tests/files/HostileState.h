#pragma once

#include <QString>

class MainWnd;
class RecordingPort;

/// What must hold in a window after any file was offered to it, good or bad. Each returns the first fault in
/// words, "" if there is none.
namespace hostile_state {

/// Library, presets, power button, selectors, mapping and scene. Changes nothing.
[[nodiscard]] QString fault(const MainWnd& window);
/// Plays keys through the window: what sounds is what the mapping says, and what was begun is ended. A black
/// key may recall a preset.
[[nodiscard]] QString faultOfNotes(MainWnd& window, RecordingPort& port);
/// The state in a few lines that compare equal if nothing was changed.
[[nodiscard]] QString summary(const MainWnd& window);

} // namespace hostile_state
