#pragma once

/// What assistive technology is told of the window: its stage in words, and its dialogs as such.
namespace accessibility {

/// Before the window makes its parts. More than once is harmless.
void install();
/// Somebody listens to what changes; else no event is made.
[[nodiscard]] bool isHeard();

} // namespace accessibility
