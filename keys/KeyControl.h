#pragma once

#include "keys/StageControl.h"

#include <QCoreApplication>

class ResizableItem;

/// A key of either keyboard: it sounds as long as it is pressed.
class KeyControl : public StageControl
{
    Q_DECLARE_TR_FUNCTIONS(KeyControl)

public:
    explicit KeyControl(ResizableItem& onKey);

    [[nodiscard]] QString name() const override;
    [[nodiscard]] QAccessible::Role role() const override { return QAccessible::PushButton; }
    [[nodiscard]] bool isOn() const override;
    void press() override;
    void release() override;

    /// "C#4" for note 61; middle C is C4.
    [[nodiscard]] static QString noteName(int note);

private:
    [[nodiscard]] QString effect() const;

    ResizableItem& key;
};
