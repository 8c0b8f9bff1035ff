#pragma once

#include "keys/KeyControllerBase.h"

/// The tonic row: one active key.
class TonicKeyController : public KeyControllerBase
{
    Q_OBJECT

public:
    using KeyControllerBase::KeyControllerBase;

    /// Semitones above C of the active key, 0 to 11; -1 without one.
    [[nodiscard]] int tonicModifierIndex() const;
    /// The active key's name; "" with the switch off or no key active.
    [[nodiscard]] QString tonicModifier() const;
    /// Activates the key of that name. False for an unknown or empty name, and with the switch off unless
    /// forced.
    bool setTonicModifier(const QString& name, bool update, bool force);
    /// With the switch on the active header takes the key's name.
    void setActiveKey(TonicKeyItem* key);

    [[nodiscard]] bool shouldChangeState(TonicKeyItem* key) override;

    TonicKeyItem* activeKey = nullptr;

protected:
    void switchWasSet(bool toHeader) override;
};
