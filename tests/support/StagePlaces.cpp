#include "StagePlaces.h"

#include <QRect>

namespace stage {
namespace {

constexpr int lowest = 21, highest = 108;
constexpr int leftEdge = 35, whiteWidth = 17, octaveWidth = 7 * whiteWidth;
constexpr int inTop = 348, outTop = 48;
constexpr QSize white(17, 99), black(10, 64);

bool isBlack(int note)
{
    return "x.x.xx.x.x.x"[note % 12] == '.';
}

int whitesBelow(int note)
{
    int count = 0;
    for (int n = lowest; n < note; ++n)
        count += isBlack(n) ? 0 : 1;
    return count;
}

QRect cellOf(int note, int top)
{
    if (isBlack(note))
        return {QPoint(cellOf(note + 1, top).left() - black.width() / 2, top), black};
    return {QPoint(leftEdge + whiteWidth * whitesBelow(note), top), white};
}

bool isOnBlack(int note, QPoint pixel)
{
    return note >= lowest && note <= highest && isBlack(note) && cellOf(note, inTop).contains(pixel);
}

// In the octave from C1 to B1. Black keys on the white ones:   | |#|#| | |#|#|#| |
QPoint flagOfFirstOctave(int semitone)
{
    switch (semitone) {
    case 1:
        return {77, 343};
    case 3:
        return {111, 343};
    case 6:
        return {119, 316};
    case 8:
        return {154, 316};
    default:
        return {188, 316};
    }
}

} // namespace

QPoint keyPlace(Keyboard keyboard, int note)
{
    const QRect cell = cellOf(note, keyboard == Keyboard::in ? inTop : outTop);
    return {cell.center().x(), isBlack(note) ? cell.bottom() - 4 : cell.bottom() - 14};
}

bool isOnInKey(int note, QPoint pixel)
{
    if (isBlack(note))
        return isOnBlack(note, pixel);
    return cellOf(note, inTop).contains(pixel) && !isOnBlack(note - 1, pixel) && !isOnBlack(note + 1, pixel);
}

QPoint flagPlace(int blackKey)
{
    return flagOfFirstOctave(blackKey % 12) + QPoint(octaveWidth * (blackKey / 12 - 2), 0);
}

QPoint powerSquare(int blackKey)
{
    return cellOf(blackKey, inTop).topLeft() + QPoint(5, -3);
}

QPoint powerSleeve(int blackKey)
{
    return cellOf(blackKey, inTop).topLeft() + QPoint(5, 27);
}

QPoint tonicPlace(int semitones)
{
    return {leftEdge + whiteWidth * (whitesBelow(24 + semitones) - whitesBelow(24)) + 8, 238};
}

QPoint anchorPlace(int x)
{
    return {426 + x, 462};
}

} // namespace stage
