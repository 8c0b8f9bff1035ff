// The walk by assistive technology: what it asks for, and what it is told. Nothing is made where none
// listens.

#include "app/KeyboardWalk.h"

#include "app/MainWnd.h"
#include "app/ViewAccessible.h"
#include "app/accessibility.h"
#include "keys/StageControl.h"

namespace {

constexpr int tapMs = 150; // long enough to be heard

/// Null where nobody listens.
QAccessibleInterface* interfaceOf(QWidget* view, const StageControl* control)
{
    if (!accessibility::isHeard() || !control)
        return nullptr;
    const auto* all = dynamic_cast<ViewAccessible*>(QAccessible::queryAccessibleInterface(view));
    return all ? all->find(control) : nullptr;
}

} // namespace

bool KeyboardWalk::answers(const StageStop& at, const StageControl& control) const
{
    return !window.isOccupied() && stops.isReachable(at, &control);
}

void KeyboardWalk::goTo(const StageStop& at, StageControl& control)
{
    if (!answers(at, control))
        return;
    const auto index = &at - stops.all().data();
    remembered[static_cast<std::size_t>(index)] = &control;
    wake();
    arriveAt(static_cast<int>(index), Qt::OtherFocusReason);
}

void KeyboardWalk::tap(const StageStop& at, StageControl& control)
{
    if (!answers(at, control))
        return;
    letGo();
    held = &control;
    tapEnd.start(tapMs);
    control.press();
    tellState(at, control);
    follow();
}

void KeyboardWalk::slide(const StageStop& at, StageControl& control, int steps)
{
    if (!answers(at, control) || !control.slides())
        return;
    release();
    control.slide(steps);
    tellState(at, control);
    follow();
}

void KeyboardWalk::openMenuOf(const StageStop& at, StageControl& control)
{
    if (!answers(at, control) || !control.hasMenu())
        return;
    release();
    control.openMenu(window.mapToGlobal(stops.placeOf(at, &control).center()));
    follow();
}

void KeyboardWalk::tellFocus() const
{
    QAccessibleInterface* told = interfaceOf(window.focusWidget(), current());
    if (!told || !window.focusWidget()->hasFocus())
        return;
    QAccessibleEvent event(told, QAccessible::Focus);
    QAccessible::updateAccessibility(&event);
}

void KeyboardWalk::tellState(const StageStop& at, const StageControl& control)
{
    QAccessibleInterface* told = interfaceOf(at.widget, &control);
    if (!told)
        return;
    if (control.slides()) {
        QAccessibleValueChangeEvent event(told, control.value());
        QAccessible::updateAccessibility(&event);
        return;
    }
    QAccessible::State changed;
    changed.checked = told->state().checkable;
    changed.pressed = !changed.checked;
    QAccessibleStateChangeEvent event(told, changed);
    QAccessible::updateAccessibility(&event);
}
