#include "keys/TonicKeyController.h"

#include "app/MainWnd.h"
#include "headers/HeaderController.h"
#include "keys/TonicKeyItem.h"

namespace {

void storeInHeader(const QString& name)
{
    if (mainWnd->headerController)
        mainWnd->headerController->storeTonic(name);
}

} // namespace

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
    if (key && switchOn)
        storeInHeader(key->tableName());
}

void TonicKeyController::switchWasSet(bool toHeader)
{
    if (!toHeader || (switchOn && !activeKey))
        return;
    storeInHeader(switchOn ? activeKey->tableName() : QString());
}

bool TonicKeyController::shouldChangeState(TonicKeyItem*)
{
    return pressedKey != nullptr;
}
