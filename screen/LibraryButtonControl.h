#pragma once

#include "keys/StageControl.h"

class LibraryButton;

/// A picture button of the centre scene.
class LibraryButtonControl : public StageControl
{
public:
    explicit LibraryButtonControl(LibraryButton& onButton);

    [[nodiscard]] QString name() const override;
    /// What its plate reads.
    [[nodiscard]] QString description() const override;
    [[nodiscard]] QAccessible::Role role() const override { return QAccessible::PushButton; }
    void press() override;

private:
    LibraryButton& button;
};
