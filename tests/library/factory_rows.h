#pragma once

#include "library/scale_data.h"

/// One scale of the factory tables, as it must stand there.
struct WantedRow
{
    int block, row; // the row counts from 1
    const char *scale, *abbr1, *abbr2, *title;
};

inline constexpr WantedRow wantedRows[] = {
    {1, 1, "xoxoxoxxoxox", "MAJOR", "Lydian", "Lydian"},
    {1, 2, "xoxoxxoxoxox", "MAJOR", "Ionian", "Ionian"},
    {1, 3, "xoxoxxoxoxxo", "MAJOR", "Mixol", "Mixolydian"},
    {1, 4, "xoxxoxoxoxxo", "MINOR", "Dorian", "Dorian"},
    {1, 5, "xoxxoxoxxoxo", "MINOR", "Aeol.", "Aeolian"},
    {1, 6, "xxoxoxoxxoxo", "MINOR", "Phryg.", "Phrygian"},
    {1, 7, "xxoxoxxoxoxo", "MINOR", "Locr.", "Locrian"},
    {2, 1, "xoxoxoxoxxox", "Mel.MIN", "Ly.Aug", "Lydian Augmented"},
    {2, 2, "xoxoxoxxoxxo", "Mel.MIN", "Ly.Dom", "Lydian Dominant"},
    {2, 3, "xoxoxxoxxoxo", "Mel.MIN", "5thMode", "Fifth Mode"},
    {2, 4, "xoxxoxoxoxox", "Mel.MIN", "Asc.(+)", "Melodic Minor (ascending)"},
    {2, 5, "xoxxoxxoxoxo", "Mel.MIN", "Locr#2", "Locrian #2"},
    {2, 6, "xxoxoxoxoxxo", "Mel.MIN", "Phry#6", "Phrygian #6"},
    {2, 7, "xxoxxoxoxoxo", "Mel.MIN", "Altered", "Altered"},
    {3, 1, "xoxoxoxoxoxo", "SYMM", "WholeT.", "Whole Tone"},
    {3, 2, "xoxxoxxoxxox", "SYMM", "Dim.WH", "Diminished Whole-/Half Tone"},
    {3, 3, "xxoxxoxxoxxo", "SYMM", "Dim.HW", "Diminished Half-/Whole Tone"},
    {4, 1, "xooxoxooxoxo", "PENTA", "MGong", "Man Gong"},
    {4, 2, "xooxoxoxooxo", "PENTA", "Min.Pt", "Minor Pentatonic"},
    {4, 3, "xoxooxoxooxo", "PENTA", "Susp.Pt", "Suspended Pentatonic"},
    {4, 4, "xoxooxoxoxoo", "PENTA", "Yo", "Yo"},
    {4, 5, "xoxoxooxooxo", "PENTA", "Dom.Pt", "Dominant Pentatonic"},
    {4, 6, "xoxoxooxoxoo", "PENTA", "Maj.Pt", "Major Pentatonic"},
    {5, 1, "xooxoxxxooxo", "BLUES", "6Tone", "Blues"},
    {6, 1, "xoxoxxoxoxxx", "BEBOP", "Bep.Dom", "Bebop Dominant"},
    {6, 2, "xoxoxxoxxxox", "BEBOP", "Bep.Maj", "Bebop Major"},
    {6, 3, "xoxxoxoxxxox", "BEBOP", "Mel.Min", "Bebop Melodic Minor"},
    {6, 4, "xoxxxxoxoxxo", "BEBOP", "Bep.Minor", "Bebop Minor"},
    {7, 1, "xoxoxxoxxoox", "HARM", "Major", "Harmonic Major"},
    {7, 2, "xoxxoxoxxoox", "HARM", "Minor", "Harmonic Minor"},
    {7, 3, "xxooxxoxxoox", "HARM", "2xMaj", "Double Harmonic Major"},
    {8, 1, "xooxxoxxoxxo", "EXOTIC", "Hun.Maj", "Hungarian Major"},
    {8, 2, "xoxoxoxooxxo", "EXOTIC", "Promth.", "Prometheus"},
    {8, 3, "xoxoxxxoxoxo", "EXOTIC", "MajLocr", "Major Locrian"},
    {8, 4, "xoxxooxxxoox", "EXOTIC", "H.Gypsy", "Hungarian Gypsy"},
    {8, 5, "xxoooxoxooxo", "EXOTIC", "Trad.Jap", "Traditional Japanese"},
    {8, 6, "xxoooxxoooxo", "EXOTIC", "Iwato", "Iwato"},
    {8, 7, "xxooxoxoxoxx", "EXOTIC", "Enigma", "Enigmatic"},
    {8, 8, "xxooxxoxxoxo", "EXOTIC", "PhrygDom", "Phrygian Dominant"},
    {8, 9, "xxooxxxooxxo", "EXOTIC", "Orient", "Oriental"},
    {8, 10, "xxoxooxxxoxo", "EXOTIC", "Bal.Pel", "Balinese Pelog"},
    {8, 11, "xxoxoxoxoxox", "EXOTIC", "Neap.Maj", "Neapolitan Major"},
    {8, 12, "xxoxoxoxxoox", "EXOTIC", "Neap.Min", "Neapolitan Minor"},
    {8, 13, "xxoxxxxoxoxo", "EXOTIC", "8.Span", "Eight-tone Spanish"},
    {9, 1, "xoxooxoxoooo", "ZOL", "Scale1", "ZOL 2 Scale Name"},
    {9, 2, "xoxxoooxxoxo", "ZOL", "Scale2", "ZOL 1 Scale Name"},
    {9, 3, "xooxxooxxoox", "MISC", "Augm.", "Augmented"},
    {9, 4, "xoxoxoxxxoxo", "MISC", "Ly.Min", "Lydian Minor"},
    {9, 5, "xxxxxxxxxxxx", "MISC", "Chrom", "Chromatic"},
    {9, 6, "xooooooooooo", "MISC", "Oct.", "Octaves Only"},
};

/// The row of the factory table; it counts from 1.
[[nodiscard]] const scale_data& tableRow(int block, int row);
/// One data row for each scale that has a description, in the columns "title" and "text".
void addDescriptions();
