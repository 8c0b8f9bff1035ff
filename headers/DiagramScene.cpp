#include "headers/DiagramScene.h"

#include <QWidget>

DiagramScene::DiagramScene(PowerItem* power, QWidget* widget)
    : QGraphicsScene(widget), parentWidget(widget), powerItem(power)
{
    // Some 250 items whose pictures change all the time: an index would cost more than it finds.
    setItemIndexMethod(NoIndex);
}
