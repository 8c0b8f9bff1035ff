#pragma once

#include <QList>
#include <QObject>

class SwitchItem;
class TonicKeyItem;

/// The keys of one selector row, its switch, and the gesture that is under way on it.
class KeyControllerBase : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    virtual void addKey(TonicKeyItem* key);
    /// Whether entering `key` during a gesture changes it.
    [[nodiscard]] virtual bool shouldChangeState(TonicKeyItem* key);
    /// `toHeader` stores the new state in the active header too.
    virtual void setSwitchOn(bool toHeader);
    virtual void setSwitchOff(bool toHeader);

    /// The key of an index, or null.
    [[nodiscard]] TonicKeyItem* findKey(int index) const;

    bool switchOn = true;
    SwitchItem* switchItem = nullptr;
    TonicKeyItem* pressedKey = nullptr;
    QList<TonicKeyItem*> keys;
    QList<TonicKeyItem*> touchedKeys; ///< the keys that the gesture has changed, or begun on

public slots:
    void onKeyPressed(TonicKeyItem* key);
    void onKeyRelased(TonicKeyItem* key); // Kept: so spelt
    void onMouseHoverEntered(TonicKeyItem* key);

protected:
    /// Runs once for each setSwitchOn() and setSwitchOff(), when the switch stands.
    virtual void switchWasSet(bool toHeader);

private:
    void setSwitch(bool on, bool toHeader);
};
