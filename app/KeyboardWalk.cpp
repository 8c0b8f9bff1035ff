#include "app/KeyboardWalk.h"

#include "app/FocusRing.h"
#include "app/MainWnd.h"
#include "app/accessibility.h"
#include "keys/StageControl.h"
#include "screen/AbstractDialog.h"

#include <QContextMenuEvent>
#include <QGraphicsView>
#include <QKeyEvent>

#include <algorithm>
#include <cstdlib>
#include <utility>

namespace {

bool isReturn(int key)
{
    return key == Qt::Key_Return || key == Qt::Key_Enter;
}

Qt::KeyboardModifiers plain(Qt::KeyboardModifiers modifiers)
{
    return modifiers & ~Qt::KeypadModifier;
}

} // namespace

KeyboardWalk::KeyboardWalk(MainWnd& mainWindow)
    : QObject(&mainWindow), window(mainWindow), stops(mainWindow), ring(new FocusRing(&mainWindow)),
      remembered(stops.all().size(), nullptr)
{
    for (QWidget* view :
         {window.ui.outKeyboardGraphicsView, window.ui.centerGraphicsView, window.ui.inKeyboardGraphicsView})
        view->installEventFilter(this);
    tapEnd.setSingleShot(true);
    connect(&tapEnd, &QTimer::timeout, this, &KeyboardWalk::release);
    connect(&window, &MainWnd::specialKeyPressed, this, &KeyboardWalk::specialKey);
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* now) { followFocus(now); });
    connect(ring, &FocusRing::windowChanges, this, &KeyboardWalk::follow);
    connect(ring, &FocusRing::slept, this, &KeyboardWalk::letGo);
    connect(ring, &FocusRing::keyComes, this, [this](int key) {
        keyCameTo = window.focusWidget();
        if (!isReturn(key))
            release(); // whatever it means, it finds no key down
    });
}

void KeyboardWalk::wake()
{
    ring->wake();
}

// The window's view may be one of several stops: it is the one that was gone to.
int KeyboardWalk::here() const
{
    const QWidget* focus = window.focusWidget();
    const auto& all = stops.all();
    if (stop >= 0 && all[static_cast<std::size_t>(stop)].widget == focus)
        return stop;
    const auto found = std::find_if(all.begin(), all.end(), [&](const StageStop& each) {
        return each.widget == focus && stops.isReachable(each);
    });
    return found != all.end() ? static_cast<int>(found - all.begin()) : -1;
}

const StageStop& KeyboardWalk::stopHere() const
{
    return stops.all()[static_cast<std::size_t>(here())];
}

bool KeyboardWalk::step(bool next)
{
    const int count = static_cast<int>(stops.all().size());
    const int from = here();
    const int first = from >= 0 ? from : (next ? -1 : count);
    for (int n = 1; n <= count; ++n) {
        const int to = (first + (next ? n : -n) + 2 * count) % count;
        if (!stops.isReachable(stops.all()[static_cast<std::size_t>(to)]))
            continue;
        arriveAt(to, next ? Qt::TabFocusReason : Qt::BacktabFocusReason);
        return true;
    }
    return false;
}

void KeyboardWalk::arriveAt(int to, Qt::FocusReason reason)
{
    letGo();
    stop = to;
    QWidget* widget = stops.all()[static_cast<std::size_t>(to)].widget;
    const bool isThere = widget->hasFocus(); // another part of the same view
    widget->setFocus(reason);
    follow();
    if (isThere)
        tellFocus();
}

StageControl* KeyboardWalk::arrival(const StageStop& at) const
{
    StageControl* first = nullptr;
    if (stops.isReachable(at, at.home))
        return at.home;
    for (const StageStop::Row& row : at.rows)
        for (StageControl* control : row) {
            if (!stops.isReachable(at, control))
                continue;
            if (control->isOn())
                return control;
            if (!first)
                first = control;
        }
    return first;
}

StageControl* KeyboardWalk::current() const
{
    const int at = here();
    if (at < 0)
        return nullptr;
    const StageStop& place = stops.all()[static_cast<std::size_t>(at)];
    StageControl* last = remembered[static_cast<std::size_t>(at)];
    return stops.isReachable(place, last) ? last : arrival(place);
}

void KeyboardWalk::setCurrent(StageControl* control)
{
    const int at = here();
    if (at < 0 || !control)
        return;
    const bool moves = control != current();
    remembered[static_cast<std::size_t>(at)] = control;
    follow();
    if (moves)
        tellFocus();
}

void KeyboardWalk::followFocus(const QWidget* now)
{
    if (!now || now->window() != &window)
        return;
    stop = here();
    follow();
    if (accessibility::isHeard()) // behind what Qt itself tells of the view
        QMetaObject::invokeMethod(this, &KeyboardWalk::tellFocus, Qt::QueuedConnection);
}

void KeyboardWalk::follow()
{
    if (!ring->isAwake())
        return;
    const QWidget* focus = QApplication::focusWidget();
    const int at = here();
    if (at >= 0 && focus && focus->hasFocus() && !window.dialogOpen) {
        const StageStop& place = stops.all()[static_cast<std::size_t>(at)];
        const StageControl* control = current();
        ring->enclose(control || place.rows.empty() ? stops.placeOf(place, control) : QRect());
    } else if (focus && window.dialogOpen && focus->window() == &window &&
               !qobject_cast<const AbstractDialog*>(focus)) {
        ring->enclose(stops.placeOf({const_cast<QWidget*>(focus)}, nullptr));
    } else {
        ring->enclose({});
    }
}

bool KeyboardWalk::eventFilter(QObject* object, QEvent* event)
{
    switch (event->type()) {
    case QEvent::KeyPress:
        return takeKey(*static_cast<QKeyEvent*>(event));
    case QEvent::KeyRelease:
        if (isReturn(static_cast<QKeyEvent*>(event)->key()) &&
            !static_cast<QKeyEvent*>(event)->isAutoRepeat())
            release();
        break;
    case QEvent::FocusOut:
        letGo();
        break;
    case QEvent::ContextMenu: // the key has opened it already
        return static_cast<QContextMenuEvent*>(event)->reason() == QContextMenuEvent::Keyboard;
    default:
        break;
    }
    return QObject::eventFilter(object, event);
}

// A ring that is not seen presses nothing.
void KeyboardWalk::specialKey(int key)
{
    StageControl* control = current();
    if (!ring->isAwake() || !control || window.isOccupied() || !window.focusWidget()->hasFocus() ||
        window.focusWidget() != keyCameTo || // a button that it pressed has given the keyboard back
        plain(QApplication::keyboardModifiers()) != Qt::NoModifier)
        return;
    if (!isReturn(key)) {
        drop(nullptr);
    } else if (taken) {
        drop(control);
    } else {
        const StageStop& at = stopHere();
        release();
        setCurrent(control); // it may be the first one only because it is lit
        held = control;      // before the press, in which the key may come up again
        control->press();
        tellState(at, *control);
    }
    follow();
}

void KeyboardWalk::release()
{
    tapEnd.stop();
    if (StageControl* control = std::exchange(held, nullptr))
        control->release();
}

void KeyboardWalk::drop(StageControl* at)
{
    if (StageControl* control = std::exchange(taken, nullptr))
        control->dropOn(at);
}

void KeyboardWalk::letGo()
{
    release();
    drop(nullptr);
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
    const int x = stops.placeOf(place, from).center().x();
    const auto distance = [&](const StageControl* control) {
        return std::abs(stops.placeOf(place, control).center().x() - x);
    };
    const auto begin = std::find_if(place.rows.begin(), place.rows.end(), [&](const StageStop::Row& row) {
        return std::find(row.begin(), row.end(), from) != row.end();
    });
    const int rows = static_cast<int>(place.rows.size());
    for (int i = static_cast<int>(begin - place.rows.begin()) + step; i >= 0 && i < rows; i += step) {
        StageControl* nearest = nullptr;
        for (StageControl* control : place.rows[static_cast<std::size_t>(i)])
            if (stops.isReachable(place, control) && (!nearest || distance(control) < distance(nearest)))
                nearest = control;
        if (nearest)
            return setCurrent(nearest);
    }
}
