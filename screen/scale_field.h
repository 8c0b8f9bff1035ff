#pragma once

/// The fields of a scale that can be typed into, as numbers: the one that has the focus when its dialog comes
/// up.
enum scale_field : int { title_field = 1, abbr1_field = 2, abbr2_field = 3, description_field = 4 };
