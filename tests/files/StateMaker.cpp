// What a player does on the stage.

#include "StateMaker.h"

#include "headers/AnchorsGroup.h"
#include "headers/HeaderController.h"
#include "keys/PowerItem.h"
#include "keys/key_roles.h"
#include "screen/AlertWidget.h"

#include <QAction>
#include <QPushButton>
#include <QTimer>

#include <numeric>

StateMaker::StateMaker(MainWnd& instrument, unsigned seed)
    : window(instrument), library(instrument.library), hand(instrument.ui.inKeyboardGraphicsView),
      random(seed)
{
}

const std::vector<StateMaker::Move>& StateMaker::moves()
{
    static const std::vector<Move> all = {
        {8, "recall by key", &StateMaker::recallByKey},
        {6, "recall by flag", &StateMaker::recallByFlag},
        {2, "walk the presets", &StateMaker::walkThePresets},
        {14, "menu", &StateMaker::useTheMenu},
        {1, "question", &StateMaker::answerAQuestion},
        {2, "white keys", &StateMaker::playWhites},
        {6, "drag the power", &StateMaker::dragThePower},
        {4, "drag a flag", &StateMaker::dragAFlag},
        {6, "drag the anchors", &StateMaker::dragTheAnchors},
        {6, "tonic", &StateMaker::chooseATonic},
        {8, "degrees", &StateMaker::flipDegrees},
        {5, "switch", &StateMaker::flipASwitch},
        {5, "power", &StateMaker::switchThePower},
        {4, "scene", &StateMaker::changeTheScene},
        {3, "library view", &StateMaker::openOrCloseTheLibrary},
        {2, "ports", &StateMaker::selectPorts},
        {1, "file name", &StateMaker::nameTheFile},
        {3, "add category", &StateMaker::addACategory},
        {2, "rename category", &StateMaker::renameACategory},
        {1, "delete category", &StateMaker::deleteACategory},
        {4, "add played scale", &StateMaker::addThePlayedScale},
        {3, "edit scale", &StateMaker::editAScale},
        {3, "copy scale", &StateMaker::copyAScale},
        {3, "move scale", &StateMaker::moveAScale},
        {2, "move scale within", &StateMaker::moveAScaleWithin},
        {3, "delete scale", &StateMaker::deleteAScale},
        {2, "stand in category", &StateMaker::standInACategory},
    };
    return all;
}

QString StateMaker::step()
{
    const auto& all = moves();
    const int weights = std::accumulate(all.begin(), all.end(), 0,
                                        [](int sum, const Move& move) { return sum + move.weight; });
    int left = number(weights);
    auto move = all.begin();
    while ((left -= move->weight) >= 0)
        ++move;
    (this->*move->run)();
    return QLatin1String(move->name);
}

HeaderItem& StateMaker::anyFlag()
{
    const QList<HeaderItem*>& flags = window.headerController->headers;
    return *flags.at(number(flags.size()));
}

void StateMaker::play(int note)
{
    window.receiveMessage({0x90, note, 1 + number(127)});
    window.receiveMessage({0x80, note, 0});
}

// The key under the power button switches the power.
void StateMaker::recallByKey()
{
    play(key_roles::pitch(&anyFlag()));
}

void StateMaker::recallByFlag()
{
    const HeaderItem& flag = anyFlag();
    hand.click(flag.mapToScene(QRectF(flag.nameRect1).center()));
}

void StateMaker::walkThePresets()
{
    for (int steps = 1 + number(3); steps > 0; --steps) {
        if (chance(50))
            window.headerController->setActiveHeaderPrev();
        else
            window.headerController->setActiveHeaderNext();
    }
}

// All but the last, which asks.
void StateMaker::useTheMenu()
{
    HeaderController& presets = *window.headerController;
    const bool onActive = presets.activeHeader && chance(30);
    presets.contextHeader = onActive ? presets.activeHeader : &anyFlag();
    QAction* action = presets.actions.at(number(presets.actions.size() - 1));
    if (presets.hasCopy || action != presets.actions.at(1))
        action->trigger();
}

void StateMaker::question(bool erase)
{
    QTimer poll;
    QObject::connect(&poll, &QTimer::timeout, &window, [this] {
        const auto alerts = window.findChildren<AlertWidget*>(QString(), Qt::FindDirectChildrenOnly);
        for (const AlertWidget* alert : alerts)
            if (!alert->isHidden())
                alert->findChild<QPushButton*>(QStringLiteral("okButton"))->click();
    });
    poll.start(1);
    if (erase)
        window.headerController->eraseAll();
    else
        window.headerController->resetAll();
}

void StateMaker::answerAQuestion()
{
    question(chance(40));
}

void StateMaker::playWhites()
{
    for (int notes = 1 + number(4); notes > 0; --notes)
        play(60 + 12 * (number(5) - 2));
}

void StateMaker::dragThePower()
{
    const QPointF sleeve = window.powerItem->pos() + QPointF(9, 60);
    const HeaderItem& flag = anyFlag();
    hand.drag(sleeve, flag.mapToScene(QRectF(flag.nameRect1).center()), 40);
    hand.release();
}

void StateMaker::dragAFlag()
{
    const HeaderItem &flag = anyFlag(), &other = anyFlag();
    const QPointF onFlag = other.mapToScene(QRectF(other.nameRect1).center());
    const QPointF onPower = window.powerItem->pos() + QPointF(9, 74);
    hand.drag(flag.mapToScene(QRectF(flag.nameRect1).center()), chance(30) ? onPower : onFlag, 40);
    hand.release();
}

void StateMaker::dragTheAnchors()
{
    const QPointF grip(window.powerItem->anchorsGroup->x() + 399, 165);
    hand.drag(grip, grip + QPointF(17 * (number(61) - 30), 0), 40);
    hand.release();
}
