// What a player does on the selectors and in the display.

#include "StateMaker.h"

#include "keys/KeyControllerBase.h"
#include "keys/PowerItem.h"
#include "keys/SwitchItem.h"
#include "keys/key_roles.h"
#include "library/SettingsStore.h"

const QStringList StateMaker::portNames = {QStringLiteral("Piano"), QString::fromUtf8("Klavier \xc3\xbc 2:1"),
                                           QStringLiteral("a \"b\" \\ c"), QStringLiteral("In-"), QString()};
const QString StateMaker::futureKey = QStringLiteral("OfALaterVersion");

void StateMaker::chooseATonic()
{
    if (window.isPowerOn()) // else the selector sleeps
        window.tonicController->findKey(number(12))->changeState(true);
}

void StateMaker::flipDegrees()
{
    if (!window.isPowerOn())
        return;
    for (int flips = 1 + number(6); flips > 0; --flips)
        window.scaleController->findKey(1 + number(11))->changeState(true);
}

void StateMaker::flipASwitch()
{
    const KeyControllerBase& selector = chance(50) ? *window.tonicController : *window.scaleController;
    selector.switchItem->switchStatus(true);
}

void StateMaker::switchThePower()
{
    if (chance(50))
        window.switchPower();
    else
        play(key_roles::pitch(window.powerItem));
}

void StateMaker::changeTheScene()
{
    switch (number(6)) {
    case 0:
        return window.ui.buttonMIDIinOut->click();
    case 1:
        return window.ui.buttonCredits->click();
    case 2:
        return window.on_scene1Button_clicked();
    case 3:
        return window.on_scene2Button_clicked();
    case 4:
        return window.on_scene34LeftButton_clicked();
    default:
        return window.on_scene34TopButton_clicked();
    }
}

void StateMaker::openOrCloseTheLibrary()
{
    if (window.isPowerOn())
        window.showLibraryScreen(chance(70));
}

void StateMaker::selectPorts()
{
    const QString port = portNames.at(number(portNames.size()));
    if (chance(50))
        SettingsStore::setMidiInPortSelected(port, chance(50));
    else
        SettingsStore::setMidiOutPortSelected(port, chance(50));
    SettingsStore::setSettingsProperty(futureKey, QVariantList{number(100), anyText()});
}

void StateMaker::nameTheFile()
{
    SettingsStore::setDbFileName(QStringLiteral("/nowhere/%1/%2.svdb").arg(number(100)).arg(anyText()));
}
