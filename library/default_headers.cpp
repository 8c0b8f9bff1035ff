// The factory presets, one a line, from the lowest black key up.

#include "library/default_tables.h"

namespace {

constexpr bool on = true, off = false;

const header_data empty;

} // namespace

const std::array<header_data, resetHeaderCount> resetHeaderData = {{
    empty,
    empty,
    empty,
    empty,
    empty,
    empty,
    empty,
    empty,
    empty,
    empty,
    empty,
    empty,
    {"", "", "D#", on, "D#", off, ""},
    {"", "", "F#", on, "F#", off, ""},
    {"", "", "G", on, "G", off, ""},
    {"MAJOR", "Lydian", "C", on, "C", on, "xoxoxoxxoxox"},
    {"ZOL", "Scale1", "G", on, "G", on, "xoxooxoxoooo"},
    empty,
    {"MINOR", "Aeol.", "", off, "", on, "xoxxoxoxxoxo"},
    {"MAJOR", "Ionian", "", off, "", on, "xoxoxxoxoxox"},
    {"MAJOR", "Lydian", "", off, "", on, "xoxoxoxxoxox"},
    // Kept: the label of one scale over the word of the other.
    {"ZOL", "Scale1", "C#", on, "C#", on, "xoxxoooxxoxo"},
    {"EXOTIC", "Iwato", "D#", on, "D#", on, "xxoooxxoooxo"},
    {"MAJOR", "Lydian", "F#", on, "F#", on, "xoxoxoxxoxox"},
    {"BLUES", "6Tone", "", off, "", on, "xooxoxxxooxo"},
    {"PENTA", "Yo", "", off, "", on, "xoxooxoxoxoo"},
    {"MyScale", "ZOL1", "D#", on, "D#", on, "xoxooxoxoooo"},
    {"MISC", "Chrom", "C", on, "C", on, "xxxxxxxxxxxx"},
    {"BEBOP", "Bep.Maj", "F#", on, "F#", on, "xoxoxxoxxxox"},
    {"MISC", "Ly.Min", "G", on, "G", on, "xoxoxoxxxoxo"},
    {"MAJOR", "Lydian", "C", on, "C", on, "xoxoxoxxoxox"},
    empty,
    empty,
    empty,
    empty,
    empty,
}};
