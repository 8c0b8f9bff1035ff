#pragma once

#include <QString>

/// One scale of the catalogue. Its word is its key: two scales of the same notes cannot both be there.
struct scale_data
{
    QString scale;   ///< twelve letters, one a semitone from the tonic up: "x" sounds, "o" does not
    QString abbr1;   ///< first line of the short label
    QString abbr2;   ///< second line of the short label
    QString title;   ///< the name shown to the user
    QString libBody; ///< the description, one paragraph
};
