#pragma once

#include "keys/StageControl.h"

#include <QCoreApplication>

/// The power button. It can be taken to a flag, whose key then switches the power.
class PowerControl : public StageControl
{
    Q_DECLARE_TR_FUNCTIONS(PowerControl)

public:
    using StageControl::StageControl;

    [[nodiscard]] QString name() const override;
    [[nodiscard]] QString description() const override;
    [[nodiscard]] QAccessible::Role role() const override { return QAccessible::CheckBox; }
    [[nodiscard]] bool isOn() const override;
    void press() override;
    [[nodiscard]] bool canBeTaken() const override { return isOn(); }
    void take() override;
    void dropOn(StageControl* other) override;
};
