#pragma once

#include <QAccessibleWidget>

class MainWnd;

/// The window for assistive technology: what can be reached in it, in the order of Tab, and the page of the
/// scale; while a dialog is open, that alone.
class WindowAccessible : public QAccessibleWidget
{
public:
    explicit WindowAccessible(MainWnd* window);

    [[nodiscard]] int childCount() const override { return parts().size(); }
    [[nodiscard]] QAccessibleInterface* child(int index) const override;
    [[nodiscard]] int indexOfChild(const QAccessibleInterface* child) const override;
    [[nodiscard]] QAccessibleInterface* childAt(int x, int y) const override;

private:
    [[nodiscard]] QWidgetList parts() const;
};
