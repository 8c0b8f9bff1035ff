#include "keys/tonic_names.h"

const std::array<QString, pitch_mapping::octave> tonicModifierName = {"C",  "C#", "D",  "D#", "E",  "F",
                                                                      "F#", "G",  "G#", "A",  "A#", "B"};

const std::array<QString, pitch_mapping::octave> scaleModifierName = {"P1", "m2", "M2", "m3", "M3", "P4",
                                                                      "^",  "P5", "m6", "M6", "m7", "M7"};
