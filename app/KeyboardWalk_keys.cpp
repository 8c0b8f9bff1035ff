// What the keys mean where the focus is: Tab, the arrows, and what takes, drops and opens.

#include "app/KeyboardWalk.h"

#include "app/FocusRing.h"
#include "app/MainWnd.h"
#include "keys/StageControl.h"

#include <QKeyEvent>

#include <algorithm>

namespace {

Qt::KeyboardModifiers plain(Qt::KeyboardModifiers modifiers)
{
    return modifiers & ~Qt::KeypadModifier;
}

} // namespace

bool KeyboardWalk::isReturn(int key)
{
    return key == Qt::Key_Return || key == Qt::Key_Enter;
}

bool KeyboardWalk::takeKey(const QKeyEvent& event)
{
    if (window.isOccupied())
        return false;
    const auto modifiers = plain(event.modifiers());
    const bool back = event.key() == Qt::Key_Backtab;
    // Not left to the view, whose scene would look for widgets of its own first.
    if ((back || event.key() == Qt::Key_Tab) && !(modifiers & ~Qt::ShiftModifier))
        return step(!back && modifiers == Qt::NoModifier);
    if (!current())
        return false;
    if (ring->isAwake() && isReturn(event.key()))
        return true; // specialKey() has had it; the scene would pass it on to the game
    return (modifiers == Qt::NoModifier && arrow(event.key())) || command(event);
}

bool KeyboardWalk::command(const QKeyEvent& event)
{
    const auto modifiers = plain(event.modifiers());
    const bool menu =
        event.key() == Qt::Key_Menu || (event.key() == Qt::Key_F10 && modifiers == Qt::ShiftModifier);
    StageControl* control = current();
    if (!ring->isAwake())
        return false;
    if (menu) {
        openMenuOf(stopHere(), *control);
        return true;
    }
    if (modifiers != Qt::ControlModifier || (event.key() != Qt::Key_X && event.key() != Qt::Key_V))
        return false;
    const bool takes = event.key() == Qt::Key_X && control->canBeTaken();
    drop(event.key() == Qt::Key_V ? control : nullptr);
    if (takes) {
        taken = control;
        control->take();
    }
    follow();
    return true;
}

// The first one only shows where the focus is.
bool KeyboardWalk::arrow(int key)
{
    const bool sideways = key == Qt::Key_Left || key == Qt::Key_Right;
    const bool along = sideways || key == Qt::Key_Home || key == Qt::Key_End;
    if (!along && key != Qt::Key_Up && key != Qt::Key_Down)
        return false;
    if (!ring->isAwake())
        wake();
    else if (sideways && current()->slides())
        slide(stopHere(), *current(), key == Qt::Key_Right ? 1 : -1);
    else if (along)
        moveInRow(key);
    else
        moveToRow(key == Qt::Key_Down ? 1 : -1);
    follow();
    return true;
}

void KeyboardWalk::moveInRow(int key)
{
    StageControl* from = current();
    const StageStop& place = stopHere();
    for (const StageStop::Row& whole : place.rows) {
        if (std::find(whole.begin(), whole.end(), from) == whole.end())
            continue;
        const StageStop::Row row = stops.reachable(place, whole);
        const int last = static_cast<int>(row.size()) - 1;
        const int at = static_cast<int>(std::find(row.begin(), row.end(), from) - row.begin());
        const int to = key == Qt::Key_Home   ? 0
                       : key == Qt::Key_End  ? last
                       : key == Qt::Key_Left ? at - 1
                                             : at + 1;
        setCurrent(row[static_cast<std::size_t>(qBound(0, to, last))]);
        return;
    }
}

// To the nearest one of the next row that has any.
void KeyboardWalk::moveToRow(int step)
{
    StageControl* from = current();
    const StageStop& place = stopHere();
    const auto begin = std::find_if(place.rows.begin(), place.rows.end(), [&](const StageStop::Row& row) {
        return std::find(row.begin(), row.end(), from) != row.end();
    });
    const int rows = static_cast<int>(place.rows.size());
    for (int i = static_cast<int>(begin - place.rows.begin()) + step; i >= 0 && i < rows; i += step)
        if (StageControl* found = stops.nearest(place, place.rows[static_cast<std::size_t>(i)], *from))
            return setCurrent(found);
}
