#pragma once

#include "keys/StageControl.h"

#include <QCoreApplication>

class SwitchItem;
class TonicKeyItem;

/// A key of the tonic row or of the scale row.
class SelectorControl : public StageControl
{
    Q_DECLARE_TR_FUNCTIONS(SelectorControl)

public:
    explicit SelectorControl(TonicKeyItem& onKey);

    [[nodiscard]] QString name() const override;
    [[nodiscard]] QAccessible::Role role() const override;
    [[nodiscard]] bool isOn() const override;
    void press() override;

private:
    TonicKeyItem& key;
};

/// The switch below one of the rows; it sleeps with the power.
class SwitchControl : public StageControl
{
    Q_DECLARE_TR_FUNCTIONS(SwitchControl)

public:
    explicit SwitchControl(SwitchItem& onItem);

    [[nodiscard]] QString name() const override;
    [[nodiscard]] QAccessible::Role role() const override { return QAccessible::CheckBox; }
    [[nodiscard]] bool isReachable() const override;
    [[nodiscard]] bool isOn() const override;
    void press() override;

private:
    SwitchItem& switchItem;
};
