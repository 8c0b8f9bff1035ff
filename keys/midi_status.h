#pragma once

/// The first byte of a MIDI message, as far as this program looks into it. The low four bits are the channel.
namespace midi_status {

inline constexpr int noteOff = 0x80;
inline constexpr int noteOn = 0x90;

} // namespace midi_status
