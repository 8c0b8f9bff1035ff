#pragma once

#include <QColor>
#include <QString>

#include <vector>

/// The surface of a white key, from its back to its front.
struct WhiteLook
{
    QColor back, front;
    QColor lip;  ///< the key's front side, below its face
    QColor glow; ///< light from within, by its alpha
    int edge;    ///< how much light its edges catch, 0 to 255
};

/// The surface of a black key: its top from back to front, and the slope at its end.
struct BlackLook
{
    QColor back, front, slope;
    int edge;
};

/// The colours of one sheet.
struct KeyLook
{
    QString name; ///< of the sheet's file
    WhiteLook white, whitePressed;
    BlackLook black, blackPressed;
};

/// The five sheets: plain, input, output, asleep and learn.
[[nodiscard]] std::vector<KeyLook> keyLooks();
