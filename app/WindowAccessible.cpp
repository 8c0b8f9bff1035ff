#include "app/WindowAccessible.h"

#include "app/KeyboardWalk.h"
#include "app/MainWnd.h"
#include "screen/AbstractDialog.h"
#include "screen/CenterScreen.h"
#include "screen/DescriptionEditor.h"
#include "screen/LibraryView.h"
#include "screen/ScaleListWidget.h"

WindowAccessible::WindowAccessible(MainWnd* window) : QAccessibleWidget(window, QAccessible::Window) {}

QWidgetList WindowAccessible::parts() const
{
    const auto* window = qobject_cast<const MainWnd*>(widget());
    if (!window || !window->keyboardWalk)
        return {};
    QWidgetList found;
    const auto dialogs = window->findChildren<AbstractDialog*>(QString(), Qt::FindDirectChildrenOnly);
    for (AbstractDialog* dialog : dialogs)
        if (dialog->isVisible())
            found = {dialog}; // the uppermost is the last
    if (!found.isEmpty())
        return found;
    const StageStops& stops = window->keyboardWalk->places();
    for (const StageStop& stop : stops.all())
        if (stops.isReachable(stop) && !found.contains(stop.widget))
            found.append(stop.widget);
    const LibraryView* library = window->centerScreen->libraryView();
    if (library->description->isVisible()) // no stop, but to be read
        found.insert(found.indexOf(library->scales) + 1, library->description);
    return found;
}

QAccessibleInterface* WindowAccessible::child(int index) const
{
    return QAccessible::queryAccessibleInterface(parts().value(index));
}

int WindowAccessible::indexOfChild(const QAccessibleInterface* child) const
{
    return child ? parts().indexOf(qobject_cast<QWidget*>(child->object())) : -1;
}

// They overlap: what the pointer would find.
QAccessibleInterface* WindowAccessible::childAt(int x, int y) const
{
    const QWidgetList all = parts();
    QWidget* found = widget()->childAt(widget()->mapFromGlobal({x, y}));
    while (found && !all.contains(found))
        found = found->parentWidget();
    return QAccessible::queryAccessibleInterface(found);
}
