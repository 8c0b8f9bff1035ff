#include "headers/DiagramScene.h"

#include <QWidget>

DiagramScene::DiagramScene(PowerItem* power, QWidget* widget)
    : QGraphicsScene(widget), parentWidget(widget), powerItem(power)
{
}
