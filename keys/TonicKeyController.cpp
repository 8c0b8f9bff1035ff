#include "keys/TonicKeyController.h"

#include "keys/TonicKeyItem.h"

int TonicKeyController::tonicModifierIndex() const
{
    return activeKey ? activeKey->index : -1;
}

QString TonicKeyController::tonicModifier() const
{
    return switchOn && activeKey ? activeKey->tableName() : QString();
}

bool TonicKeyController::setTonicModifier(const QString& name, bool update, bool force)
{
    if ((!switchOn && !force) || name.isEmpty())
        return false;
    for (TonicKeyItem* key : qAsConst(keys)) {
        if (key->tableName() != name)
            continue;
        key->changeState(update);
        return true;
    }
    return false;
}

void TonicKeyController::setActiveKey(TonicKeyItem* key)
{
    activeKey = key;
}

bool TonicKeyController::shouldChangeState(TonicKeyItem*)
{
    return pressedKey != nullptr;
}
