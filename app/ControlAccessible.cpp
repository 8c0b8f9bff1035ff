#include "app/ControlAccessible.h"

#include "app/KeyboardWalk.h"
#include "keys/StageControl.h"

#include <QTimer>
#include <QWidget>

ControlAccessible::ControlAccessible(KeyboardWalk& keyboard, const StageStop& at, StageControl& what)
    : walk(keyboard), stop(at), control(what)
{
}

QWindow* ControlAccessible::window() const
{
    return stop.widget->window()->windowHandle();
}

QAccessibleInterface* ControlAccessible::parent() const
{
    return QAccessible::queryAccessibleInterface(stop.widget);
}

QString ControlAccessible::text(QAccessible::Text which) const
{
    switch (which) {
    case QAccessible::Name:
        return control.name();
    case QAccessible::Description:
        return control.description();
    case QAccessible::Value:
        return control.slides() ? QString::number(control.value()) : QString();
    default:
        return {};
    }
}

QRect ControlAccessible::rect() const
{
    const QWidget* all = stop.widget->window();
    const QRect inWindow = walk.places().placeOf(stop, &control) & all->rect();
    return {all->mapToGlobal(inWindow.topLeft()), inWindow.size()};
}

QAccessible::Role ControlAccessible::role() const
{
    return control.role();
}

QAccessible::State ControlAccessible::state() const
{
    QAccessible::State state;
    state.focusable = true;
    state.focused = stop.widget->hasFocus() && walk.current() == &control;
    state.invisible = !walk.places().isReachable(stop, &control);
    state.checkable = role() == QAccessible::CheckBox || role() == QAccessible::RadioButton;
    state.checked = state.checkable && control.isOn();
    state.pressed = !state.checkable && control.isOn();
    state.hasPopup = control.hasMenu();
    return state;
}

void* ControlAccessible::interface_cast(QAccessible::InterfaceType type)
{
    if (type == QAccessible::ActionInterface)
        return static_cast<QAccessibleActionInterface*>(this);
    if (type == QAccessible::ValueInterface && control.slides())
        return static_cast<QAccessibleValueInterface*>(this);
    return nullptr;
}

QStringList ControlAccessible::actionNames() const
{
    QStringList names{setFocusAction()};
    if (control.slides())
        names << increaseAction() << decreaseAction();
    else
        names << pressAction();
    if (control.hasMenu())
        names << showMenuAction();
    return names;
}

void ControlAccessible::doAction(const QString& name)
{
    if (!actionNames().contains(name))
        return;
    QTimer::singleShot(0, &walk, [keyboard = &walk, at = &stop, what = &control, name] {
        if (name == setFocusAction())
            keyboard->goTo(*at, *what);
        else if (name == pressAction())
            keyboard->tap(*at, *what);
        else if (name == showMenuAction())
            keyboard->openMenuOf(*at, *what);
        else
            keyboard->slide(*at, *what, name == increaseAction() ? 1 : -1);
    });
}

QVariant ControlAccessible::currentValue() const
{
    return control.value();
}

void ControlAccessible::setCurrentValue(const QVariant& value)
{
    walk.slide(stop, control, qBound(control.lowest(), value.toInt(), control.highest()) - control.value());
}

QVariant ControlAccessible::maximumValue() const
{
    return control.highest();
}

QVariant ControlAccessible::minimumValue() const
{
    return control.lowest();
}
