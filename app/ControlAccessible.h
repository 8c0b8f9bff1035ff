#pragma once

#include <QAccessible>

class KeyboardWalk;
class StageControl;
struct StageStop;

/// A control of the stage for assistive technology: it says what the control says and does what Return does.
class ControlAccessible : public QAccessibleInterface,
                          public QAccessibleActionInterface,
                          public QAccessibleValueInterface
{
public:
    /// All of them outlive it.
    ControlAccessible(KeyboardWalk& keyboard, const StageStop& at, StageControl& what);

    // QAccessibleInterface
    [[nodiscard]] bool isValid() const override { return true; }
    [[nodiscard]] QObject* object() const override { return nullptr; }
    [[nodiscard]] QWindow* window() const override;
    [[nodiscard]] QAccessibleInterface* childAt(int, int) const override { return nullptr; }
    [[nodiscard]] QAccessibleInterface* parent() const override;
    [[nodiscard]] QAccessibleInterface* child(int) const override { return nullptr; }
    [[nodiscard]] int childCount() const override { return 0; }
    [[nodiscard]] int indexOfChild(const QAccessibleInterface*) const override { return -1; }
    [[nodiscard]] QString text(QAccessible::Text which) const override;
    void setText(QAccessible::Text, const QString&) override {}
    [[nodiscard]] QRect rect() const override;
    [[nodiscard]] QAccessible::Role role() const override;
    [[nodiscard]] QAccessible::State state() const override;
    void* interface_cast(QAccessible::InterfaceType type) override;

    // QAccessibleActionInterface
    [[nodiscard]] QStringList actionNames() const override;
    /// Carried out from the event loop: what it opens may run for long.
    void doAction(const QString& name) override;
    [[nodiscard]] QStringList keyBindingsForAction(const QString&) const override { return {}; }

    // QAccessibleValueInterface, a slider's; white keys from the place at the start
    [[nodiscard]] QVariant currentValue() const override;
    void setCurrentValue(const QVariant& value) override;
    [[nodiscard]] QVariant maximumValue() const override;
    [[nodiscard]] QVariant minimumValue() const override;
    [[nodiscard]] QVariant minimumStepSize() const override { return 1; }

private:
    KeyboardWalk& walk;
    const StageStop& stop;
    StageControl& control;
};
