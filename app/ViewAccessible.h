#pragma once

#include <QAccessibleWidget>
#include <QHash>

class KeyboardWalk;
class QGraphicsView;
class StageControl;
struct StageStop;

/// A view of the stage for assistive technology: its children are the controls that can be reached now, in
/// the order of the eye. What is only painted is not among them.
class ViewAccessible : public QAccessibleWidget
{
public:
    explicit ViewAccessible(QGraphicsView* view);
    ~ViewAccessible() override;
    Q_DISABLE_COPY_MOVE(ViewAccessible)

    [[nodiscard]] QRect rect() const override;
    [[nodiscard]] int childCount() const override;
    [[nodiscard]] QAccessibleInterface* child(int index) const override;
    [[nodiscard]] int indexOfChild(const QAccessibleInterface* child) const override;
    [[nodiscard]] QAccessibleInterface* childAt(int x, int y) const override;
    [[nodiscard]] QAccessibleInterface* focusChild() const override;
    /// The child that stands for it, or null.
    [[nodiscard]] QAccessibleInterface* find(const StageControl* control) const;

private:
    struct Child
    {
        const StageStop* stop;
        StageControl* control;
    };

    [[nodiscard]] KeyboardWalk* walk() const;
    [[nodiscard]] QVector<Child> reachable() const;
    [[nodiscard]] QAccessibleInterface* interfaceOf(const Child& child) const;

    mutable QHash<const StageControl*, QAccessible::Id> made;
};
