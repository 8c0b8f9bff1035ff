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
#include <utility>

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
    return stops.isReachable(place, last) ? last : instead(place, last);
}

// What was left may have gone since, as a flag with the power, or an anchor beyond the window's edge.
StageControl* KeyboardWalk::instead(const StageStop& at, const StageControl* gone) const
{
    for (const StageStop::Row& row : at.rows)
        if (gone && std::find(row.begin(), row.end(), gone) != row.end())
            if (StageControl* found = stops.nearest(at, row, *gone))
                return found;
    return arrival(at);
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
        (QApplication::keyboardModifiers() & ~Qt::KeypadModifier) != Qt::NoModifier)
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
