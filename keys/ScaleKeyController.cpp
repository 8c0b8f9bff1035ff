#include "keys/ScaleKeyController.h"

#include "app/MainWnd.h"
#include "headers/HeaderController.h"
#include "keys/PowerItem.h"
#include "keys/TonicKeyItem.h"
#include "keys/tonic_names.h"
#include "library/scale_word.h"
#include "logging/categories.h"

#include <algorithm>

void ScaleKeyController::addKey(TonicKeyItem* key)
{
    if (key->index != 0)
        KeyControllerBase::addKey(key);
    else if (!keys.contains(key))
        keys.append(key);
}

bool ScaleKeyController::shouldChangeState(TonicKeyItem* key)
{
    if (!switchOn || touchedKeys.contains(key))
        return false;
    touchedKeys.append(key);
    return true;
}

void ScaleKeyController::setSwitchOff(bool toHeader)
{
    qCDebug(lcKeys) << "ScaleKeyController::setSwitchOff" << (toHeader ? "true" : "false");
    KeyControllerBase::setSwitchOff(toHeader);
}

void ScaleKeyController::switchWasSet(bool toHeader)
{
    if (toHeader && mainWnd->headerController)
        mainWnd->headerController->storeScale(switchOn, scaleModifier());
    mainWnd->checkScaleMatches(true);
}

QString ScaleKeyController::scaleModifier() const
{
    QString word(QLatin1Char('x'));
    for (int i = 1; i < scaleWordLength; ++i) {
        const TonicKeyItem* key = findKey(i);
        word += QLatin1Char(key && key->on ? 'x' : 'o');
    }
    return word;
}

bool ScaleKeyController::applyLetters(const QString& word)
{
    for (int i = 1; i < scaleWordLength; ++i) {
        TonicKeyItem* key = findKey(i);
        if (!key)
            continue;
        const QChar letter = word.at(i);
        if (letter == QLatin1Char('x')) {
            key->setOn();
        } else if (letter == QLatin1Char('o')) {
            key->setOff();
        } else {
            qCDebug(lcKeys) << "incorrect Scale modifier: " << word << " char: " << letter
                            << " at position: " << i;
            return false;
        }
    }
    return true;
}

bool ScaleKeyController::setScaleModifier(const QString& word, bool force)
{
    if ((!force && !switchOn) || word.isEmpty())
        return false;
    if (word.size() < scaleWordLength) {
        qCDebug(lcKeys) << "Scale modifier is too short, must be 12 chars: " << word;
        return false;
    }
    if (!applyLetters(word))
        return false;
    mainWnd->powerItem->remap();
    return true;
}

bool ScaleKeyController::toggleKey(const QString& noteName)
{
    const auto note = std::find(tonicModifierName.begin(), tonicModifierName.end(), noteName);
    const int index = static_cast<int>(note - tonicModifierName.begin());
    TonicKeyItem* key = index == 0 || note == tonicModifierName.end() ? nullptr : findKey(index);
    if (!key)
        return false;
    key->flip();
    mainWnd->powerItem->remap();
    return true;
}

void ScaleKeyController::setAllOff()
{
    if (mainWnd->headerController)
        mainWnd->headerController->clearScaleNames();
    setScaleModifier(tonicAloneWord, true);
    mainWnd->checkScaleMatches(true);
}

void ScaleKeyController::setIonicMajor()
{
    qCDebug(lcKeys) << "ScaelKeyController::setIonicMajor";
    setScaleModifier(ionianWord, true);
    mainWnd->checkScaleMatches(true);
}

int ScaleKeyController::curScaleNumber() const
{
    return mainWnd->headerController ? mainWnd->headerController->findMinUserNum() : 0;
}
