#include "app/ViewAccessible.h"

#include "app/ControlAccessible.h"
#include "app/KeyboardWalk.h"
#include "app/MainWnd.h"
#include "keys/StageControl.h"

#include <QGraphicsItem>
#include <QGraphicsView>

ViewAccessible::ViewAccessible(QGraphicsView* view) : QAccessibleWidget(view, QAccessible::Grouping) {}

ViewAccessible::~ViewAccessible()
{
    for (const QAccessible::Id id : qAsConst(made))
        if (QAccessible::accessibleInterface(id))
            QAccessible::deleteAccessibleInterface(id);
}

// Null while the window is made.
KeyboardWalk* ViewAccessible::walk() const
{
    const auto* window = widget() ? qobject_cast<const MainWnd*>(widget()->parent()) : nullptr;
    return window ? window->keyboardWalk : nullptr;
}

QVector<ViewAccessible::Child> ViewAccessible::reachable() const
{
    QVector<Child> found;
    const KeyboardWalk* keyboard = walk();
    if (!keyboard)
        return found;
    const StageStops& stops = keyboard->places();
    for (const StageStop& stop : stops.all()) {
        if (stop.widget != widget())
            continue;
        for (const StageStop::Row& row : stop.rows)
            for (StageControl* control : stops.reachable(stop, row))
                found.append({&stop, control});
    }
    return found;
}

QAccessibleInterface* ViewAccessible::interfaceOf(const Child& child) const
{
    QAccessible::Id& id = made[child.control];
    if (id == 0)
        id = QAccessible::registerAccessibleInterface(
            new ControlAccessible(*walk(), *child.stop, *child.control));
    return QAccessible::accessibleInterface(id);
}

// The views reach beyond the window.
QRect ViewAccessible::rect() const
{
    const QWidget* window = widget()->window();
    return QAccessibleWidget::rect() & QRect(window->mapToGlobal(QPoint()), window->size());
}

int ViewAccessible::childCount() const
{
    return reachable().size();
}

QAccessibleInterface* ViewAccessible::child(int index) const
{
    const auto children = reachable();
    return index >= 0 && index < children.size() ? interfaceOf(children.at(index)) : nullptr;
}

int ViewAccessible::indexOfChild(const QAccessibleInterface* child) const
{
    const auto children = reachable();
    for (int i = 0; child && i < children.size(); ++i)
        if (interfaceOf(children.at(i)) == child)
            return i;
    return -1;
}

// The cells of the game are parts of one item, and so are a key's beam and the slider below it.
QAccessibleInterface* ViewAccessible::childAt(int x, int y) const
{
    const auto* view = qobject_cast<const QGraphicsView*>(widget());
    const auto children = reachable();
    if (!view || children.isEmpty())
        return nullptr;
    const auto items = view->items(view->viewport()->mapFromGlobal({x, y})); // the uppermost first
    for (const QGraphicsItem* item : items)
        for (const Child& each : children) {
            const bool isIt = item == &each.control->item || item->parentItem() == &each.control->item;
            if (isIt && interfaceOf(each)->rect().contains(x, y))
                return interfaceOf(each);
        }
    return nullptr;
}

QAccessibleInterface* ViewAccessible::focusChild() const
{
    const KeyboardWalk* keyboard = walk();
    return keyboard && widget()->hasFocus() ? find(keyboard->current()) : nullptr;
}

QAccessibleInterface* ViewAccessible::find(const StageControl* control) const
{
    const auto children = reachable();
    for (const Child& each : children)
        if (each.control == control)
            return interfaceOf(each);
    return nullptr;
}
