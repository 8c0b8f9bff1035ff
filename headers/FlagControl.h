#pragma once

#include "keys/StageControl.h"

#include <QCoreApplication>

class HeaderItem;

/// The flag of a preset. It can be taken to another flag, or to the power button.
class FlagControl : public StageControl
{
    Q_DECLARE_TR_FUNCTIONS(FlagControl)

public:
    explicit FlagControl(HeaderItem& onFlag);

    [[nodiscard]] QString name() const override;
    [[nodiscard]] QString description() const override;
    [[nodiscard]] QAccessible::Role role() const override { return QAccessible::RadioButton; }
    [[nodiscard]] bool isOn() const override;
    /// Recalls the preset.
    void press() override;
    [[nodiscard]] bool hasMenu() const override { return true; }
    void openMenu(QPoint screen) override;
    [[nodiscard]] bool canBeTaken() const override { return true; }
    void take() override { press(); }
    void dropOn(StageControl* other) override;

private:
    HeaderItem& flag;
};
