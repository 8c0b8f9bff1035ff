#pragma once

/// Indexes into `defaultKeys`.
enum settings_key : int {
    key_database_path = 0,
    key_power_on = 1,
    key_power_point_x = 2, ///< of no use
    key_tonic_on = 3,
    key_scale_on = 4,
    key_tonic_modifier = 5,
    key_scale_modifier = 6,
    key_active_header = 7,
    key_current_scene = 8,
    key_library_opened = 9,
    key_anchor_x = 10,
    key_midi_in_port = 11,
    key_midi_out_port = 12
};
